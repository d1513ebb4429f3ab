#include <gmock/gmock.h>

#include "support/round_fixture.h"

namespace vandrel {
namespace {

using testing::Contains;

// An auction of the one powerup left, tried every hundred updates.
RoundSetup selling(int rate = 60) {
    return {.rate = rate, .mode = GameMode::Deathmatch, .tune = [](GameOptions& options) {
                options.auctionInterval = 100;
                options.powerupDisabled.fill(true);
                options.powerupDisabled[Bonus::Bomb] = false;
            }};
}

// Two people with three coins each.
class AuctionTest : public testing::Test {
  protected:
    AuctionTest() { first->cash = second->cash = 3; }

    const Auction* auction() { return round.game().auction.get(); }
    int untilItIsOver() {
        return round.stepUntil([&] { return auction() == nullptr; });
    }

    TestRound round{selling()};
    const std::shared_ptr<Player> first = round.addPlayer({1, 1});
    const std::shared_ptr<Player> second = round.addPlayer({5, 5});
    const HeldKeys bid{.button2 = true};
};

TEST(Auction, OpensAtOnceLastsNineSecondsAndTheNextComesAnIntervalLater) {
    for (const auto& [rate, updates] : {std::pair{60, 540}, {120, 1080}, {144, 1080}, {30, 540}}) {
        SCOPED_TRACE(rate);
        TestRound round(selling(rate));
        round.addPlayer({1, 1})->cash = 1;
        round.step();
        ASSERT_NE(round.game().auction, nullptr);
        EXPECT_EQ(round.game().auction->bonus, Bonus::Bomb);
        EXPECT_THAT(round.toastTexts(), Contains("Auction: Extra Bomb x3"));
        EXPECT_THAT(round.toastTexts(), Contains("Bid: Key"));
        EXPECT_EQ(round.stepUntil([&] { return round.game().auction == nullptr; }), updates);
        EXPECT_EQ(round.stepUntil([&] { return round.game().auction != nullptr; }), 100);
    }
}

TEST_F(AuctionTest, WithoutCashItIsTriedAgainAfterTheInterval) {
    first->cash = second->cash = 0;
    round.step(50);
    EXPECT_EQ(auction(), nullptr);
    first->cash = 1;
    EXPECT_EQ(round.stepUntil([&] { return auction() != nullptr; }), 51);
}

TEST_F(AuctionTest, WithNothingToSellNoneOpens) {
    gameOptions.powerupDisabled[Bonus::Bomb] = true;
    round.step();
    EXPECT_EQ(auction(), nullptr);
    EXPECT_EQ(round.game().auctionCountdown, 100);
}

TEST_F(AuctionTest, TwoWhoBidInOneUpdateRaiseTwiceAndTheLaterPaysAndGetsThree) {
    round.step();
    round.hold(*first, bid);
    round.press(*second, bid);
    EXPECT_EQ(auction()->price, 2);
    const int bombsBefore = second->maxBombs;
    ASSERT_GT(untilItIsOver(), 0);
    EXPECT_EQ(second->cash, 1);
    EXPECT_EQ(second->maxBombs, bombsBefore + 3);
    EXPECT_EQ(first->cash, 3);
}

TEST_F(AuctionTest, ABidInTheUpdateInWhichItEndsFindsNone) {
    round.step();
    round.game().auction->timer = 1;
    round.press(*first, bid);
    EXPECT_EQ(auction(), nullptr);
    EXPECT_EQ(first->cash, 3);
}

TEST_F(AuctionTest, BombsAndRangesAreSoldByThreeSince_1_0_3) {
    Game& game = round.game();
    const auto quantities = [&] {
        return std::vector{game.auctionQuantity(Bonus::Bomb), game.auctionQuantity(Bonus::Range),
                           game.auctionQuantity(Bonus::Speed)};
    };
    EXPECT_EQ(quantities(), (std::vector{3, 3, 1}));
    game.replay.playback = true;
    game.replay.version = replayVersion(1, 0, 3);
    EXPECT_EQ(quantities(), (std::vector{3, 3, 1}));
    game.replay.version = replayVersion(1, 0, 2);
    EXPECT_EQ(quantities(), (std::vector{1, 1, 1}));
}

}  // namespace
}  // namespace vandrel
