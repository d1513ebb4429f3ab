// The beginning of a round and of a life, the wait of the dead, and the square where each mode brings them back.
#include <gtest/gtest.h>

#include "players/in_words.h"

namespace vandrel {
namespace {

TEST(StartOfRound, LocksTheFireAndForgetsTheRoundBefore) {
    TestRound round;
    const auto player = round.addPlayer({5, 5});
    player->kills = 4;
    player->wins = 2;
    player->cash = 3;
    player->snakeParts.emplace_back(1, 2, Facing::Up);
    player->particles.emplace_back();
    player->dead = true;
    player->animFrame = 5;
    player->facing = Facing::Left;
    player->startRound();
    EXPECT_EQ(formOf(*player), "walking");
    EXPECT_TRUE(player->fireLocked);
    EXPECT_TRUE(player->snakeParts.empty() && player->particles.empty());
    EXPECT_EQ(player->kills, 0);
    EXPECT_EQ(player->wins, 2);
    EXPECT_EQ(player->cash, 3);
    EXPECT_EQ(player->animFrame, 1);
    EXPECT_EQ(player->facing, Facing::Down);
}

TEST(StartOfRound, AsSnakesLooksTowardTheMiddle) {
    struct Row {
        int y;
        bool ai;
        Facing facing;
        const char* form;
    };
    constexpr Row rows[] = {{5 * 32 + 16, false, Facing::Down, "snake of 4"},
                            {5 * 32 + 17, false, Facing::Up, "snake of 4"},
                            {9 * 32, true, Facing::Up, "snake of 9"}};
    for (const bool shielded : {false, true}) {
        for (const Row& row : rows) {
            TestRound round;
            gameOptions.startAsSnake = true;
            gameOptions.startWithShield = shielded;
            gameOptions.snakeStartLength = 9;
            const auto player = round.addPlayer({5, 5});
            player->isAI = row.ai;
            player->y = row.y;
            player->shieldTimer = 7;
            player->startRound();
            EXPECT_EQ(player->facing, row.facing);
            EXPECT_EQ(formOf(*player), std::string(row.form) + (shielded ? ", shielded" : ""));
            EXPECT_EQ(player->shieldTimer, shielded ? Player::lastingShield() : 7);
            EXPECT_EQ(round.takeHeard(), (std::vector<HeardSample>{{SampleIds::Snake, 255}}));
        }
    }
}

TEST(Respawn, IsAllowedByTheModesThatSaySo) {
    struct Row {
        GameMode mode;
        bool option;
        bool allowed;
    };
    constexpr Row rows[] = {
        {GameMode::Classic, true, false},      {GameMode::CaptureTheFlag, false, true},
        {GameMode::BattleRoyale, true, false}, {GameMode::KingOfTheHill, false, true},
        {GameMode::SnakeHunter, true, true},   {GameMode::SnakeHunter, false, false},
        {GameMode::Deathmatch, false, true},   {GameMode::Everything, false, true},
    };
    for (const Row& row : rows) {
        for (const int rate : {60, 120}) {
            TestRound round({.rate = rate, .mode = row.mode});
            gameOptions.snakeHunterRespawn = row.option;
            gameOptions.respawnTime = 2;
            round.addTeam({1, 5});
            round.addTeam({13, 5});
            const auto player = round.addPlayer({3, 3}, 0);
            round.addPlayer({9, 9}, 1);
            player->die();
            // Its own update counts first, so the second in which it died is whole.
            EXPECT_EQ(round.stepUntil([&] { return !player->dead; }, 500),
                      row.allowed ? 120 * gameOptions.frameMultiplier : -1)
                << static_cast<int>(row.mode);
        }
    }
}

TEST(Respawn, OpensAPlusOfTwoSquaresAndShieldsForTwoSeconds) {
    TestRound round({.rows = {"###############", "#wwwwwwwwwwwww#", "#wwwwwwwwwwwww#", "#wwwwwwXwwwwww#",
                              "#wwwwwwwwwwwww#", "#wwwwwwwwwwwww#", "#wwwwwwwwwwwww#", "###############"},
                     .mode = GameMode::Deathmatch});
    const auto player = round.addPlayer({7, 2});
    for (int x = 1; x < 14; ++x) {
        bonusGrid.at(x, 2) = Bonus::Cash;
    }
    player->x = 32;
    player->bombType = BombType::Flamethrower;
    player->fireLocked = false;
    player->die();
    player->respawnTimer = 1;
    round.step();
    EXPECT_EQ(player->position(), (Pixel{7 * 32, 2 * 32}));
    EXPECT_EQ(formOf(*player), "walking, shielded");
    EXPECT_EQ(player->shieldTimer, Player::runningShield());
    EXPECT_EQ(player->bombType, BombType::Normal);
    const char* opened[] = {"###############", "#wwwwww.wwwwww#", "#wwww.....wwww#",
                            "#wwwwwwXwwwwww#", "#wwwwww.wwwwww#", "#wwwwwwwwwwwww#"};
    for (int y = 0; y < 6; ++y) {
        EXPECT_EQ(rowOf(round.game(), y), opened[y]);
    }
    EXPECT_EQ(bonusGrid.at(4, 2), Bonus::Cash);
}

TEST(Respawn, ComputersSnakesAreGoneForGood) {
    TestRound round({.mode = GameMode::SnakeHunter});
    round.addTeam({1, 5});
    round.addTeam({13, 5});
    const auto snake = round.addSnake({5, 5}, Facing::Up, 12, true);
    snake->becomeHuman();
    round.step(1000);
    EXPECT_TRUE(snake->dead);
}

// The arena is a field of edge walls with what the row opens; the start is solid unless the row says otherwise.
struct WalkRow {
    GameMode mode;
    int team;
    Square start;
    std::vector<Square> open;
    Square back;
};

TEST(RespawnPosition, WalksTowardTheBaseOrTheMiddleAsTheModeSays) {
    // The bases are (1, 5), (13, 5), (7, 1) and (7, 9), the middle is (7, 5).
    const WalkRow rows[] = {
        {GameMode::CaptureTheFlag, 0, {3, 2}, {{3, 2}}, {3, 2}},
        {GameMode::CaptureTheFlag, 0, {3, 2}, {{2, 2}, {1, 4}}, {1, 4}},
        {GameMode::CaptureTheFlag, 0, {3, 2}, {{1, 2}}, {1, 5}},
        {GameMode::KingOfTheHill, 1, {10, 9}, {{13, 8}, {13, 7}}, {13, 8}},
        {GameMode::KingOfTheHill, 1, {10, 9}, {}, {13, 5}},
        {GameMode::Everything, 2, {3, 4}, {{4, 4}, {5, 1}}, {5, 1}},
        {GameMode::BattleRoyale, 3, {13, 2}, {{12, 9}}, {12, 9}},
        {GameMode::BattleRoyale, 3, {13, 2}, {}, {7, 9}},
        {GameMode::CaptureTheFlag, -1, {3, 2}, {}, {3, 2}},
        {GameMode::Classic, -1, {3, 2}, {{4, 2}}, {4, 2}},
        {GameMode::Deathmatch, -1, {3, 2}, {{4, 3}, {5, 3}}, {4, 3}},
        {GameMode::Deathmatch, -1, {3, 2}, {{3, 3}, {5, 3}}, {5, 3}},
        {GameMode::Deathmatch, -1, {6, 1}, {{7, 4}}, {7, 4}},
        {GameMode::SnakeHunter, 0, {11, 9}, {}, {7, 5}},
    };
    for (const WalkRow& row : rows) {
        TestRound round({.mode = row.mode});
        for (int x = 1; x < 14; ++x) {
            for (int y = 1; y < 10; ++y) {
                squareGrid.set(x, y, (x + y) % 2 == 0 ? SquareKind::EdgeWall : SquareKind::GridBlock);
            }
        }
        for (const Square base : {Square{1, 5}, Square{13, 5}, Square{7, 1}, Square{7, 9}}) {
            round.addTeam(base);
        }
        for (const Square square : row.open) {
            squareGrid.set(square, SquareKind::Wall);  // a breakable wall does not stop anybody
        }
        const auto player = round.addPlayer(row.start, row.team);
        EXPECT_EQ(player->respawnPosition(), row.back)
            << "mode " << static_cast<int>(row.mode) << " from " << row.start;
    }
}

TEST(Respawn, WaitsBeforeItsRingOnceTheSpiralHasAllButClosed) {
    for (const int rate : {60, 120}) {
        const int ring = 2 * rate * (rate / 60);
        for (const int timer : {ring + 1, ring, 5}) {
            SCOPED_TRACE(fmt::format("{} frames at {}", timer, rate));
            TestRound round({.rate = rate, .mode = GameMode::Deathmatch});
            gameOptions.shrinkingOn = false;
            round.game().shrinkState = ShrinkState::Shrinking;
            round.game().shrinkCursors.push_back({5, 5, 1, 0});
            squareGrid.set(5, 4, SquareKind::EdgeWall);
            squareGrid.set(5, 6, SquareKind::EdgeWall);
            const auto player = round.addPlayer({3, 3});
            player->die();
            player->respawnTimer = timer;
            round.step(3);
            const int left = timer > ring ? timer : timer - 3;
            EXPECT_EQ(player->respawnTimer, left);
            squareGrid.set(5, 6, SquareKind::Empty);
            round.step();
            EXPECT_EQ(player->respawnTimer, left - 1) << "with room to come back it goes on";
        }
    }
}

TEST(Dead, HaveNoInputAndDropTheirFlagWhereItIs) {
    TestRound round({.mode = GameMode::CaptureTheFlag});
    round.addTeam({1, 5});
    round.addTeam({13, 5});
    const auto player = round.addPlayer({5, 5}, 0);
    Flag flag;
    flag.team = 1;
    flag.inBase = false;
    flag.moveTo({170, 160});
    flag.carrier = player;
    round.game().flags = {flag};
    player->die();
    round.hold(*player, {.right = true, .fire = true});
    player->update(round.replay(), &round.game(), false);
    EXPECT_EQ(player->position(), (Pixel{160, 160}));
    EXPECT_EQ(countBombs(*player), 0);
    EXPECT_TRUE(round.game().flags[0].carrier.expired());
    EXPECT_EQ(round.game().flags[0].position(), (Pixel{170, 160}));
}

TEST(Player, OfATeamLeavesItWhenItGoes) {
    TestRound round;
    round.addTeam({1, 5});
    round.addPlayer({5, 5}, 0);
    round.addPlayer({7, 5}, 0);
    players.erase(players.begin());
    ASSERT_EQ(teams[0].members.size(), 1U);
    EXPECT_EQ(teams[0].members[0].lock(), players[0]);
}

}  // namespace
}  // namespace vandrel
