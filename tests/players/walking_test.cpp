// Walking: how far a step goes in each form and at each rate, the middle of the lane, what blocks, corners.
#include <gtest/gtest.h>

#include "players/in_words.h"

namespace vandrel {
namespace {

// The squares right of the player, and one far off.
constexpr Square ahead{6, 5};
constexpr Square aboveAhead{6, 4};
constexpr Square belowAhead{6, 6};
constexpr Square farOff{9, 5};

// A player in the middle of an arena, which a test may fill and empty again between two steps.
class Walking : public testing::Test {
  protected:
    // Where the first update with these keys takes it.
    Pixel step(const HeldKeys& keys) {
        act(round, *player, keys);
        return player->position();
    }
    void standAt(Pixel place) {
        player->x = place.x;
        player->y = place.y;
    }

    TestRound round;
    std::shared_ptr<Player> player = round.addPlayer({5, 5});
};

// A replay of today stands in for the choice of the computer's snakes: their records hold no direction.
TEST(WalkingInEachForm, GoesAsFarInAFrameAsTheFormAndTheRateSay) {
    enum class Form { Walker, Slowed, Crawler, HumanSnake, SlowedHumanSnake, AISnake, MinorStunned, MajorStunned };
    struct Row {
        Form form;
        int speed;
        int at60;
        int at120;
    };
    constexpr Row rows[] = {
        {Form::Walker, 1, 1, 1},       {Form::Walker, 2, 2, 1},           {Form::Walker, 3, 3, 1},
        {Form::Walker, 5, 5, 2},       {Form::Walker, 6, 6, 3},           {Form::Slowed, 1, 1, 1},
        {Form::Slowed, 3, 1, 1},       {Form::Slowed, 5, 2, 1},           {Form::Slowed, 6, 3, 1},
        {Form::Slowed, 9, 4, 2},       {Form::Crawler, 6, 1, 1},          {Form::HumanSnake, 6, 3, 1},
        {Form::HumanSnake, 1, 3, 1},   {Form::SlowedHumanSnake, 6, 1, 1}, {Form::AISnake, 3, 3, 1},
        {Form::AISnake, 4, 4, 2},      {Form::AISnake, 1, 1, 1},          {Form::MinorStunned, 6, 2, 1},
        {Form::MajorStunned, 6, 1, 1},
    };
    for (const Row& row : rows) {
        for (const int rate : {30, 60, 120, 144}) {
            SCOPED_TRACE(fmt::format("form {}, speed {}, at {}", static_cast<int>(row.form), row.speed, rate));
            TestRound round({.rate = rate, .version = replayOutputVersion});
            const bool isSnake = row.form >= Form::HumanSnake;
            const auto player =
                isSnake ? round.addSnake({5, 5}, Facing::Right, 4, row.form >= Form::AISnake) : round.addPlayer({5, 5});
            const bool isSlow =
                row.form == Form::Slowed || row.form == Form::SlowedHumanSnake || row.form == Form::MajorStunned;
            player->speed = row.speed;
            player->slowTimer = isSlow ? 10 : 0;
            player->minorStunTimer = row.form == Form::MinorStunned ? 10 : 0;
            if (row.form == Form::Crawler) {
                asCrawler(*player);
            }
            act(round, *player, {.right = !isSnake});
            EXPECT_EQ(player->position(), (Pixel{160 + (rate >= 120 ? row.at120 : row.at60), 160}));
        }
    }
}

TEST_F(Walking, LeftWinsOverRightUpOverDownAndSidewaysOverBoth) {
    struct Row {
        HeldKeys keys;
        Pixel to;
    };
    const Row rows[] = {
        {{.right = true}, {162, 160}},
        {{.left = true, .right = true}, {158, 160}},
        {{.up = true, .down = true}, {160, 158}},
        {{.up = true, .left = true}, {158, 160}},
        {{.down = true, .right = true}, {162, 160}},
        {{.up = true, .down = true, .left = true, .right = true}, {158, 160}},
        {{}, {160, 160}},
        {{.right = true, .connected = false}, {160, 160}},
    };
    for (const Row& row : rows) {
        standAt({160, 160});
        EXPECT_EQ(step(row.keys), row.to) << "row " << &row - rows;
    }
}

TEST_F(Walking, IsDrawnToTheMiddleOfTheLaneWhileItGoesOn) {
    player->speed = 3;
    player->y += 7;
    for (const Pixel place : {Pixel{163, 164}, Pixel{166, 161}, Pixel{169, 160}, Pixel{172, 160}}) {
        EXPECT_EQ(step({.right = true}), place);
    }
    player->x = 160 - 4;
    EXPECT_EQ(step({.down = true}), (Pixel{159, 163}));
}

TEST_F(Walking, BeforeWhatBlocksItGoesBackOrOnToItsOwnLineAndStaysThere) {
    squareGrid.set(ahead, SquareKind::GridBlock);
    for (const auto& way : {std::vector{165, 163, 161, 160, 160}, {155, 157, 159, 160, 160}, {160, 160, 160}}) {
        player->x = way.front();
        for (std::size_t i = 1; i < way.size(); ++i) {
            EXPECT_EQ(step({.right = true}), (Pixel{way[i], 160})) << "from " << way.front();
        }
        EXPECT_EQ(player->facing, Facing::Right);
    }
}

// What stands on the square ahead, and who may go there.
TEST(WalkingAhead, IsBlockedByWhatBlocksTheForm) {
    struct Row {
        const char* what;
        void (*put)(TestRound& round);
        bool walkerPasses;
        bool ghostPasses;
    };
    const Row rows[] = {
        {"nothing", [](auto&) {}, true, true},
        {"an edge wall", [](auto&) { squareGrid.set(ahead, SquareKind::EdgeWall); }, false, false},
        {"a pillar", [](auto&) { squareGrid.set(ahead, SquareKind::GridBlock); }, false, true},
        {"a wall", [](auto&) { squareGrid.set(ahead, SquareKind::Wall); }, false, true},
        {"a hard wall", [](auto&) { squareGrid.set(ahead, SquareKind::HardWallHitTwice); }, false, true},
        {"a crumbling wall", [](auto&) { squareGrid.set(ahead, SquareKind::WallCrumbling + 3); }, false, true},
        {"a bomb", [](auto&) { placeBomb(ahead, players[0], 500); }, false, true},
        {"a body", [](auto& round) { layParts(*round.addSnake(farOff, Facing::Right, 1), ahead, 0, ahead); }, false,
         true},
    };
    for (const Row& row : rows) {
        for (const bool ghost : {false, true}) {
            TestRound round;
            const auto player = round.addPlayer({5, 5});
            (ghost ? asGhost : asItIs)(*player);
            row.put(round);
            act(round, *player, {.right = true});
            EXPECT_EQ(player->x, (ghost ? row.ghostPasses : row.walkerPasses) ? 162 : 160)
                << row.what << (ghost ? ", a ghost" : "");
        }
    }
}

TEST_F(Walking, PlayersShareASquareAndLeaveTheBombTheyStandOn) {
    const auto other = round.addPlayer({6, 5});
    placeBomb({5, 5}, player, 500);
    act(round, *player, {.right = true}, 16);
    EXPECT_EQ(player->square(), other->square());
}

// A block stands on (6, 5), to the right of the player, who is some pixels off the lane.
TEST(WalkingPastACorner, SlidesRoundItOnlyPastTheMiddleOnlyIntoTheFreeAndOnlyFromTheFree) {
    struct Row {
        const char* what;
        int offset;
        void (*put)(const std::shared_ptr<Player>& player);
        int dy;
    };
    const Row rows[] = {
        {"in the middle of the lane", 0, [](auto&) {}, 0},
        {"below it", 3, [](auto&) {}, 2},
        {"above it", -3, [](auto&) {}, -2},
        {"as far below as can be", 15, [](auto&) {}, 2},
        {"as far above as can be", -16, [](auto&) {}, -2},
        {"a wall on the way down", 3, [](auto&) { squareGrid.set(belowAhead, SquareKind::Wall); }, 0},
        {"a wall on the way up", -3, [](auto&) { squareGrid.set(aboveAhead, SquareKind::Wall); }, 0},
        {"a wall on the other side", -3, [](auto&) { squareGrid.set(belowAhead, SquareKind::Wall); }, -2},
        {"a crumbling wall on the way", 3, [](auto&) { squareGrid.set(belowAhead, SquareKind::WallCrumbling); }, 0},
        {"a bomb on the way", -5, [](auto& player) { placeBomb(aboveAhead, player, 500); }, 0},
        {"a wall under its own corner", -5, [](auto&) { squareGrid.set(5, 4, SquareKind::Wall); }, 0},
        {"the same for a ghost before an edge wall", -5,
         [](auto& player) {
             squareGrid.set(5, 4, SquareKind::Wall);
             squareGrid.set(ahead, SquareKind::EdgeWall);
             asGhost(*player);
         },
         -2},
    };
    for (const Row& row : rows) {
        TestRound round;
        const auto player = round.addPlayer({5, 5});
        player->y += row.offset;
        squareGrid.set(ahead, SquareKind::GridBlock);
        row.put(player);
        act(round, *player, {.right = true});
        EXPECT_EQ(player->position(), (Pixel{160, 160 + row.offset + row.dy})) << row.what;
    }
}

TEST_F(Walking, ReachesTheNextLaneRoundTheCornerWithTheOneKeyHeld) {
    squareGrid.set(5, 4, SquareKind::GridBlock);
    player->x += 6;
    act(round, *player, {.up = true}, 30);
    EXPECT_EQ(player->x, 6 * 32);
    EXPECT_LT(player->y, 160);
}

TEST_F(Walking, ACrawlerKeepsItsSideOnTheWayUpAndDown) {
    asCrawler(*player);
    player->facing = Facing::Left;
    EXPECT_EQ(step({.down = true}), (Pixel{160, 161}));
    EXPECT_EQ(player->facing, Facing::Left);
    step({.right = true});
    EXPECT_EQ(player->facing, Facing::Right);
}

TEST_F(Walking, StepsThroughSixPicturesACrawlerThroughTwo) {
    struct Row {
        Who who;
        int updates;
        std::vector<int> frames;  // at each change
    };
    const Row rows[] = {{{"a walker", asItIs}, 5, {2, 3, 4, 5, 6, 1, 2}}, {{"a crawler", asCrawler}, 10, {2, 1, 2}}};
    for (const Row& row : rows) {
        player->reset();
        standAt({32, 160});
        row.who.make(*player);
        round.hold(*player, {.right = true});
        for (const int frame : row.frames) {
            const int before = player->animFrame;
            EXPECT_EQ(round.stepUntil([&] { return player->animFrame != before; }), row.updates) << row.who.who;
            EXPECT_EQ(player->animFrame, frame) << row.who.who;
        }
    }
}

TEST(Looks, ChangeByTheirKeysInTheLobbyOnlyAndOnceAPress) {
    TestRound round;
    const auto player = round.addPlayer({5, 5});
    act(round, *player, {.skin = true});
    EXPECT_EQ(player->look.skin, 0);
    const HeldKeys presses[] = {{.skin = true}, {.skin = true}, {}, {.skin = true}};
    const int skins[] = {1, 1, 1, 2};
    for (std::size_t i = 0; i < 4; ++i) {
        round.hold(*player, presses[i]);
        player->update(round.replay(), &round.game(), true);
        EXPECT_EQ(player->look.skin, skins[i]);
    }
}

}  // namespace
}  // namespace vandrel
