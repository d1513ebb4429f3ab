// The other controls: the second button with its ring and its bids, walks by chance, and the trail of who scores.
#include <gtest/gtest.h>

#include <memory>

#include "base/random.h"
#include "players/in_words.h"
#include "shell/switches.h"

namespace vandrel {
namespace {

// An auction runs at a price of 1; the player has 3.
class SecondButton : public testing::Test {
  protected:
    SecondButton() : player(round.addPlayer({5, 5})) {
        player->cash = 3;
        round.game().auction = std::make_unique<Auction>();
        round.game().auction->bonus = Bonus::Range;
        round.game().auction->price = 1;
        round.game().auction->timer = 1000;
    }

    int price() { return round.game().auction->price; }

    TestRound round;
    std::shared_ptr<Player> player;
};

TEST_F(SecondButton, BidsOnceAPressAndNeverMoreThanTheCash) {
    act(round, *player, {.button2 = true}, 5);
    EXPECT_EQ(price(), 2);
    EXPECT_EQ(round.game().auction->bidder, player);
    EXPECT_EQ(round.takeHeard(), (std::vector<HeardSample>{{SampleIds::Cash2}}));
    EXPECT_EQ(round.toastTexts(), (std::vector<std::string>{"Bid: 2"}));
    for (int i = 0; i < 4; ++i) {
        round.press(*player, {});
        round.press(*player, {.button2 = true});
    }
    EXPECT_EQ(price(), 3);
    EXPECT_EQ(player->cash, 3) << "paid at the end only";
}

TEST_F(SecondButton, LightsTheRingForSixtyFramesAtEveryRate) {
    for (const int rate : {60, 120}) {
        gameOptions.updaterate = rate;
        gameOptions.frameMultiplier = rate / 60;
        round.press(*player, {.button2 = true});
        EXPECT_EQ(player->pingTimer, 59);
        EXPECT_EQ(round.stepUntil([&] { return player->pingTimer == 0; }), 59);
    }
}

TEST_F(SecondButton, OnlyLightsTheRingOfWhoCannotUseWhatIsOffered) {
    for (const Who& row : {Who{"a ghost", asGhost}, Who{"a snake", asSnake}}) {
        player->reset();
        row.make(*player);
        act(round, *player, {.button2 = true});
        EXPECT_EQ(player->pingTimer, 60) << row.who;
        EXPECT_EQ(price(), 1) << row.who;
        act(round, *player, {});
    }
}

TEST_F(SecondButton, HeldWhileGettingUpMakesNoBid) {
    player->crawling = true;
    player->crawlTimer = 3;
    act(round, *player, {.button2 = true}, 10);
    EXPECT_FALSE(player->crawling);
    EXPECT_EQ(price(), 1);
}

// Legs of up to eighty frames, along one axis each, from the source that nothing but looks and chance draws from.
TEST(AutoRandomControls, WalkByChanceWithoutFire) {
    TestRound round({.size = {40, 40}});
    const auto player = round.addPlayer({20, 20});
    round.hold(*player, {.fire = true, .button2 = true});
    autoRandomControls = true;
    seedGameRand(3);
    Pixel last = player->position();
    bool walkedX = false;
    bool walkedY = false;
    for (int frame = 0; frame < 2000; ++frame) {
        round.step();
        walkedX = walkedX || player->x != last.x;
        walkedY = walkedY || player->y != last.y;
        last = player->position();
    }
    autoRandomControls = false;
    EXPECT_TRUE(walkedX && walkedY);
    EXPECT_EQ(player->bombsPlaced, 0);
    EXPECT_EQ(player->pingTimer, 0);
}

TEST(Trail, HoldsTheLastTwentyPlacesForAsLongAsItsTimerRuns) {
    TestRound round;
    const auto player = round.addPlayer({5, 5});
    player->trailTimer = 61;
    act(round, *player, {.right = true}, 3);
    ASSERT_EQ(player->trail.size(), 3U);
    EXPECT_EQ(player->trail[0].x, 160) << "places before the step of the frame";
    EXPECT_EQ(player->trail[2].x, 164);
    round.step(57);
    ASSERT_EQ(player->trail.size(), 20U);
    EXPECT_EQ(player->trail.front().x, 160 + 2 * 40);
    round.step();
    EXPECT_TRUE(player->trail.empty());
}

}  // namespace
}  // namespace vandrel
