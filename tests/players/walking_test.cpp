// Walking: how far a step goes in each form and at each rate, the middle of the lane, what blocks, corners.
#include <gtest/gtest.h>

#include "support/round_fixture.h"

namespace vandrel {
namespace {

// A player whose place and keys a row gives, and where the first update takes it.
Pixel afterOneStep(TestRound& round, const Player& player, const HeldKeys& keys) {
    round.hold(player, keys);
    round.step();
    return player.position();
}

enum class Form { Walker, Slowed, Crawler, HumanSnake, SlowedHumanSnake, AISnake, MinorStunned, MajorStunned };

struct SpeedRow {
    Form form;
    int speed;
    int at60;
    int at120;
};

void takeForm(Player& player, const SpeedRow& row) {
    player.speed = row.speed;
    player.slowTimer =
        row.form == Form::Slowed || row.form == Form::SlowedHumanSnake || row.form == Form::MajorStunned ? 10 : 0;
    player.minorStunTimer = row.form == Form::MinorStunned ? 10 : 0;
    player.crawling = row.form == Form::Crawler;
    player.crawlTimer = player.crawling ? 10 : 0;
}

// A replay of today stands in for the choice of the computer's snakes: their records hold no direction.
TEST(Walking, GoesAsFarInAFrameAsItsFormAndTheRateSay) {
    constexpr SpeedRow rows[] = {
        {Form::Walker, 1, 1, 1},       {Form::Walker, 2, 2, 1},           {Form::Walker, 3, 3, 1},
        {Form::Walker, 5, 5, 2},       {Form::Walker, 6, 6, 3},           {Form::Slowed, 1, 1, 1},
        {Form::Slowed, 3, 1, 1},       {Form::Slowed, 5, 2, 1},           {Form::Slowed, 6, 3, 1},
        {Form::Slowed, 9, 4, 2},       {Form::Crawler, 6, 1, 1},          {Form::HumanSnake, 6, 3, 1},
        {Form::HumanSnake, 1, 3, 1},   {Form::SlowedHumanSnake, 6, 1, 1}, {Form::AISnake, 3, 3, 1},
        {Form::AISnake, 4, 4, 2},      {Form::AISnake, 1, 1, 1},          {Form::MinorStunned, 6, 2, 1},
        {Form::MajorStunned, 6, 1, 1},
    };
    for (const SpeedRow& row : rows) {
        for (const int rate : {30, 60, 120, 144}) {
            SCOPED_TRACE(testing::Message()
                         << "form " << static_cast<int>(row.form) << ", speed " << row.speed << ", at " << rate);
            TestRound round({.rate = rate, .version = replayOutputVersion});
            const bool isSnake = row.form >= Form::HumanSnake;
            const auto player =
                isSnake ? round.addSnake({5, 5}, Facing::Right, 4, row.form >= Form::AISnake) : round.addPlayer({5, 5});
            takeForm(*player, row);
            const Pixel place = afterOneStep(round, *player, {.right = !isSnake});
            EXPECT_EQ(place, (Pixel{160 + (rate >= 120 ? row.at120 : row.at60), 160}));
        }
    }
}

TEST(Walking, IgnoresTheMinorStunWhereTheMatchHasNone) {
    TestRound round({.version = replayOutputVersion, .tune = [](GameOptions& o) { o.minorStunEnabled = false; }});
    const auto snake = round.addSnake({5, 5}, Facing::Right, 4, true);
    snake->speed = 6;
    snake->minorStunTimer = 10;
    EXPECT_EQ(snake->getSpeed(round.replay()), 6);
}

TEST(Walking, LeftWinsOverRightUpOverDownAndSidewaysOverBoth) {
    struct Row {
        HeldKeys keys;
        Square way;
    };
    const Row rows[] = {
        {{.right = true}, {1, 0}},
        {{.left = true, .right = true}, {-1, 0}},
        {{.up = true, .down = true}, {0, -1}},
        {{.up = true, .left = true}, {-1, 0}},
        {{.down = true, .right = true}, {1, 0}},
        {{.up = true, .down = true, .left = true, .right = true}, {-1, 0}},
        {{}, {0, 0}},
        {{.right = true, .connected = false}, {0, 0}},
    };
    for (const Row& row : rows) {
        TestRound round;
        const auto player = round.addPlayer({5, 5});
        EXPECT_EQ(afterOneStep(round, *player, row.keys), (Pixel{160 + 2 * row.way.x, 160 + 2 * row.way.y}));
    }
}

TEST(Walking, IsDrawnToTheMiddleOfTheLaneWhileItGoesOn) {
    TestRound round;
    const auto player = round.addPlayer({5, 5});
    player->speed = 3;
    player->y += 7;
    round.hold(*player, {.right = true});
    for (const Pixel place : {Pixel{163, 164}, Pixel{166, 161}, Pixel{169, 160}, Pixel{172, 160}}) {
        round.step();
        EXPECT_EQ(player->position(), place);
    }
    player->x = 160 - 4;
    EXPECT_EQ(afterOneStep(round, *player, {.down = true}), (Pixel{159, 163}));
}

TEST(Walking, BeforeWhatBlocksItGoesBackOrOnToItsOwnLineAndStaysThere) {
    struct Row {
        int x;
        std::vector<int> then;
    };
    const Row rows[] = {{160 + 5, {163, 161, 160, 160}}, {160 - 5, {157, 159, 160, 160}}, {160, {160, 160}}};
    for (const Row& row : rows) {
        TestRound round;
        squareGrid.set(6, 5, SquareKind::GridBlock);
        const auto player = round.addPlayer({5, 5});
        player->x = row.x;
        round.hold(*player, {.right = true});
        for (const int x : row.then) {
            round.step();
            EXPECT_EQ(player->position(), (Pixel{x, 160}));
        }
        EXPECT_EQ(player->facing, Facing::Right);
    }
}

// What stands on the square ahead, and who may go there.
TEST(Walking, IsBlockedByWhatBlocksItsForm) {
    enum class Thing { Nothing, Kind, Bomb, Body };
    struct Row {
        Thing thing;
        int kind;
        bool walkerPasses;
        bool ghostPasses;
    };
    constexpr Row rows[] = {
        {Thing::Nothing, 0, true, true},
        {Thing::Kind, SquareKind::EdgeWall, false, false},
        {Thing::Kind, SquareKind::GridBlock, false, true},
        {Thing::Kind, SquareKind::Wall, false, true},
        {Thing::Kind, SquareKind::HardWallHitTwice, false, true},
        {Thing::Kind, SquareKind::WallCrumbling + 3, false, true},
        {Thing::Bomb, 0, false, true},
        {Thing::Body, 0, false, true},
    };
    for (const Row& row : rows) {
        for (const bool ghost : {false, true}) {
            SCOPED_TRACE(testing::Message() << "thing " << static_cast<int>(row.thing) << ", kind " << row.kind
                                            << (ghost ? ", ghost" : ""));
            TestRound round({.version = replayOutputVersion});
            const auto player = round.addPlayer({5, 5});
            player->ghost = ghost;
            player->shieldTimer = Player::lastingShield();
            if (row.thing == Thing::Kind) {
                squareGrid.set(6, 5, row.kind);
            } else if (row.thing == Thing::Bomb) {
                placeBomb({6, 5}, player, 500);
            } else if (row.thing == Thing::Body) {
                const auto snake = round.addSnake({9, 5}, Facing::Right, 1);
                snake->snakeParts.front() = {192, 160, Facing::Right};
            }
            const bool passes = ghost ? row.ghostPasses : row.walkerPasses;
            EXPECT_EQ(afterOneStep(round, *player, {.right = true}).x, passes ? 162 : 160);
        }
    }
}

TEST(Walking, PlayersShareASquareAndLeaveTheBombTheyStandOn) {
    TestRound round;
    const auto first = round.addPlayer({5, 5});
    const auto second = round.addPlayer({6, 5});
    placeBomb({5, 5}, first, 500);
    round.hold(*first, {.right = true});
    round.step(16);
    EXPECT_EQ(first->square(), second->square());
}

// The wall stands on (6, 5), to the right of the player, who is `offset` pixels off the lane. `cornerKind` is the kind
// of the square that its top-left pixel is on.
TEST(Walking, SlidesRoundTheCornerOfABlockOnlyPastTheMiddleAndOnlyIntoTheFree) {
    struct Row {
        int offset;
        int kindAbove;  // of (6, 4)
        int kindBelow;  // of (6, 6)
        int dy;
    };
    constexpr Row rows[] = {
        {0, 0, 0, 0},
        {3, 0, 0, 2},
        {-3, 0, 0, -2},
        {3, 0, SquareKind::Wall, 0},
        {-3, SquareKind::Wall, 0, 0},
        {-3, 0, SquareKind::Wall, -2},
        {3, 0, SquareKind::WallCrumbling, 0},
        {15, 0, 0, 2},
        {-16, 0, 0, -2},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << "offset " << row.offset << ", " << row.kindAbove << "/" << row.kindBelow);
        TestRound round;
        squareGrid.set(6, 5, SquareKind::GridBlock);
        squareGrid.set(6, 4, row.kindAbove);
        squareGrid.set(6, 6, row.kindBelow);
        const auto player = round.addPlayer({5, 5});
        player->y += row.offset;
        EXPECT_EQ(afterOneStep(round, *player, {.right = true}), (Pixel{160, 160 + row.offset + row.dy}));
    }
}

TEST(Walking, ReachesTheNextLaneRoundTheCornerWithTheOneKeyHeld) {
    TestRound round;
    squareGrid.set(5, 4, SquareKind::GridBlock);
    const auto player = round.addPlayer({5, 5});
    player->x += 6;
    round.hold(*player, {.up = true});
    round.step(30);
    EXPECT_EQ(player->x, 6 * 32);
    EXPECT_LT(player->y, 160);
}

TEST(Walking, CornersHeldByABombOrOverAWallAreNotSlidRound) {
    struct Row {
        bool bomb;
        bool wallUnderCorner;
        bool ghost;
        bool slides;
    };
    constexpr Row rows[] = {{false, false, false, true},
                            {true, false, false, false},
                            {false, true, false, false},
                            {false, true, true, true}};
    for (const Row& row : rows) {
        TestRound round;
        squareGrid.set(6, 5, row.ghost ? SquareKind::EdgeWall : SquareKind::GridBlock);
        const auto player = round.addPlayer({5, 5});
        player->y -= 5;
        player->ghost = row.ghost;
        player->shieldTimer = Player::lastingShield();
        if (row.bomb) {
            placeBomb({6, 4}, player, 500);
        }
        if (row.wallUnderCorner) {
            squareGrid.set(5, 4, SquareKind::Wall);
        }
        EXPECT_EQ(afterOneStep(round, *player, {.right = true}).y, 155 - (row.slides ? 2 : 0));
    }
}

TEST(Walking, ACrawlerKeepsItsSideOnTheWayUpAndDown) {
    TestRound round;
    const auto player = round.addPlayer({5, 5});
    player->crawling = true;
    player->crawlTimer = 500;
    player->facing = Facing::Left;
    EXPECT_EQ(afterOneStep(round, *player, {.down = true}), (Pixel{160, 161}));
    EXPECT_EQ(player->facing, Facing::Left);
    round.hold(*player, {.right = true});
    round.step();
    EXPECT_EQ(player->facing, Facing::Right);
}

TEST(Walking, StepsThroughSixPicturesACrawlerThroughTwo) {
    struct Row {
        bool crawling;
        int pixels;
        std::vector<int> frames;  // at each change
    };
    const Row rows[] = {{false, 2, {2, 3, 4, 5, 6, 1, 2}}, {true, 1, {2, 1, 2}}};
    for (const Row& row : rows) {
        TestRound round({.size = {40, 9}});
        const auto player = round.addPlayer({5, 5});
        player->crawling = row.crawling;
        player->crawlTimer = row.crawling ? 500 : 0;
        round.hold(*player, {.right = true});
        for (const int frame : row.frames) {
            const int before = player->animFrame;
            EXPECT_EQ(round.stepUntil([&] { return player->animFrame != before; }), 10 / row.pixels);
            EXPECT_EQ(player->animFrame, frame);
        }
    }
}

TEST(Walking, SkinAndColourKeysWorkInTheLobbyOnly) {
    TestRound round;
    const auto player = round.addPlayer({5, 5});
    round.hold(*player, {.skin = true});
    round.step();
    EXPECT_EQ(player->look.skin, 0);
    for (int i = 0; i < 3; ++i) {
        player->update(round.replay(), &round.game(), true);
    }
    EXPECT_EQ(player->look.skin, 1) << "one skin a press";
    round.hold(*player, {});
    player->update(round.replay(), &round.game(), true);
    round.hold(*player, {.skin = true});
    player->update(round.replay(), &round.game(), true);
    EXPECT_EQ(player->look.skin, 2);
}

}  // namespace
}  // namespace vandrel
