#include <gtest/gtest.h>

#include <algorithm>

#include "support/round_fixture.h"

namespace vandrel {
namespace {

class AuctionTest : public testing::Test {
  protected:
    // An auction of the one powerup left, tried every hundred updates.
    static RoundSetup selling() {
        RoundSetup setup;
        setup.mode = GameMode::Deathmatch;
        setup.tune = [](GameOptions& options) {
            options.auctionInterval = 100;
            options.powerupDisabled.fill(true);
            options.powerupDisabled[Bonus::Bomb] = false;
        };
        return setup;
    }
    static std::shared_ptr<Player> addBidder(TestRound& round, Square square, int cash) {
        auto player = round.addPlayer(square);
        player->cash = cash;
        return player;
    }
    static void bid(TestRound& round, const Player& player) {
        HeldKeys keys;
        keys.button2 = true;
        round.press(player, keys);
    }
    static bool hasToast(const TestRound& round, const std::string& text) {
        const auto texts = round.toastTexts();
        return std::count(texts.begin(), texts.end(), text) != 0;
    }
};

TEST_F(AuctionTest, OpensInTheFirstUpdateIfAnybodyHasCash) {
    TestRound round(selling());
    addBidder(round, {1, 1}, 1);
    round.step();
    ASSERT_NE(round.game().auction, nullptr);
    EXPECT_EQ(round.game().auction->bonus, Bonus::Bomb);
    EXPECT_EQ(round.game().auction->timer, 540);
    EXPECT_TRUE(hasToast(round, "Auction: Extra Bomb x3"));
    EXPECT_TRUE(hasToast(round, "Bid: Key"));
}

TEST_F(AuctionTest, WithoutCashItIsTriedAgainAfterTheInterval) {
    TestRound round(selling());
    const auto player = addBidder(round, {1, 1}, 0);
    round.step(50);
    EXPECT_EQ(round.game().auction, nullptr);
    player->cash = 1;
    EXPECT_EQ(round.stepUntil([&] { return round.game().auction != nullptr; }), 51);
}

TEST_F(AuctionTest, WithNothingToSellNoneOpens) {
    TestRound round(selling());
    gameOptions.powerupDisabled[Bonus::Bomb] = true;
    addBidder(round, {1, 1}, 5);
    round.step();
    EXPECT_EQ(round.game().auction, nullptr);
    EXPECT_EQ(round.game().auctionCountdown, 100);
}

TEST_F(AuctionTest, TheLastBidderPaysAndGetsThree) {
    TestRound round(selling());
    const auto first = addBidder(round, {1, 1}, 3);
    const auto second = addBidder(round, {5, 5}, 3);
    round.step();
    bid(round, *first);
    bid(round, *second);
    EXPECT_EQ(round.game().auction->price, 2);
    const int bombsBefore = second->maxBombs;
    ASSERT_GT(round.stepUntil([&] { return round.game().auction == nullptr; }), 0);
    EXPECT_EQ(second->cash, 1);
    EXPECT_EQ(second->maxBombs, bombsBefore + 3);
    EXPECT_EQ(first->cash, 3);
}

TEST_F(AuctionTest, LastsNineSecondsAndTheNextComesAnIntervalLater) {
    struct Case {
        int rate;
        int updates;
    };
    for (const Case& c : {Case{60, 540}, Case{120, 1080}, Case{144, 1080}, Case{30, 540}}) {
        RoundSetup setup = selling();
        setup.rate = c.rate;
        TestRound round(setup);
        addBidder(round, {1, 1}, 9);
        round.step();
        EXPECT_EQ(round.stepUntil([&] { return round.game().auction == nullptr; }), c.updates) << c.rate;
        EXPECT_EQ(round.stepUntil([&] { return round.game().auction != nullptr; }), 100) << c.rate;
    }
}

TEST_F(AuctionTest, TwoWhoBidInOneUpdateRaiseTwiceAndTheLaterLeads) {
    TestRound round(selling());
    const auto first = addBidder(round, {1, 1}, 2);
    const auto second = addBidder(round, {5, 5}, 2);
    round.step();
    HeldKeys keys;
    keys.button2 = true;
    round.hold(*first, keys);
    round.hold(*second, keys);
    round.step();
    EXPECT_EQ(round.game().auction->price, 2);
    EXPECT_EQ(round.game().auction->bidder, second);
}

TEST_F(AuctionTest, AWinnerWhoCannotUsePowerupsGetsNothingAndKeepsTheCash) {
    struct Case {
        const char* form;
        void (*become)(Player& player);
    };
    for (const Case& c : {Case{"dead", [](Player& player) { player.dead = true; }},
                          Case{"a ghost",
                               [](Player& player) {
                                   player.ghost = true;
                                   player.shieldTimer = Player::lastingShield();
                               }},
                          Case{"crawling", [](Player& player) {
                                   player.crawling = true;
                                   player.crawlTimer = 10'000;
                               }}}) {
        TestRound round(selling());
        const auto leader = addBidder(round, {1, 1}, 3);
        const auto other = addBidder(round, {5, 5}, 3);
        round.step();
        bid(round, *other);
        bid(round, *leader);
        const int bombs = leader->maxBombs;
        gameOptions.respawnTime = 100;
        leader->respawnTimer = 10'000;
        c.become(*leader);
        round.stepUntil([&] { return round.game().auction == nullptr; });
        EXPECT_EQ(leader->cash, 3) << c.form;
        EXPECT_EQ(leader->maxBombs, bombs) << c.form;
        EXPECT_EQ(other->cash, 3) << c.form << ": nobody else wins either";
    }
}

TEST_F(AuctionTest, ABidInTheUpdateInWhichItEndsFindsNone) {
    TestRound round(selling());
    const auto player = addBidder(round, {1, 1}, 3);
    round.step();
    round.game().auction->timer = 1;
    bid(round, *player);
    EXPECT_EQ(round.game().auction, nullptr);
    EXPECT_EQ(player->cash, 3);
}

TEST_F(AuctionTest, QuantitiesAndTheGateOfOldReplays) {
    TestRound round(selling());
    EXPECT_EQ(round.game().auctionQuantity(Bonus::Bomb), 3);
    EXPECT_EQ(round.game().auctionQuantity(Bonus::Range), 3);
    EXPECT_EQ(round.game().auctionQuantity(Bonus::Speed), 1);
    round.game().replay.playback = true;
    round.game().replay.version = replayVersion(1, 0, 2);
    EXPECT_EQ(round.game().auctionQuantity(Bonus::Bomb), 1);
    round.game().replay.version = replayVersion(1, 0, 3);
    EXPECT_EQ(round.game().auctionQuantity(Bonus::Bomb), 3);
    round.game().replay.playback = false;
}

}  // namespace
}  // namespace vandrel
