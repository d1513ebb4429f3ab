// Strength: which walls and bombs move one square, what refuses them, and who is crushed behind a wall.
#include <gtest/gtest.h>

#include "players/in_words.h"

namespace vandrel {
namespace {

constexpr Square source{5, 5};
constexpr Square target{6, 5};

// A strong player left of what it pushes.
struct StrongPusher : TestRound {
    explicit StrongPusher(const RoundSetup& setup = {.version = replayOutputVersion})
        : TestRound(setup), pusher(addPlayer({4, 5})) {
        pusher->strength = true;
    }

    void push(int wall = SquareKind::Empty) {
        if (wall != SquareKind::Empty) {
            squareGrid.set(source, wall);
        }
        act(*this, *pusher, {.right = true});
    }
    std::shared_ptr<Player> pusher;
};

class Pushing : public testing::Test {
  protected:
    StrongPusher round;
    std::shared_ptr<Player> pusher = round.pusher;
};

TEST_F(Pushing, AWallMovesOnWithItsHitsAndWhatItHides) {
    for (const int kind :
         {SquareKind::Wall, SquareKind::HardWall, SquareKind::HardWallHitOnce, SquareKind::HardWallHitTwice}) {
        squareGrid.set(target, SquareKind::Empty);
        bonusGrid.at(source) = Bonus::Range;
        bonusGrid.at(target) = 0;
        round.takeHeard();
        round.push(kind);
        EXPECT_EQ(markOf(round.game(), source), '.') << "nor is there a powerup";
        EXPECT_EQ(squareGrid.at(target), kind);
        EXPECT_EQ(bonusGrid.at(target), Bonus::Range);
        EXPECT_EQ(round.takeHeard(), (std::vector<HeardSample>{{SampleIds::Slide}}));
        EXPECT_EQ(pusher->x, 128) << "the push takes the frame";
    }
    round.push();
    EXPECT_EQ(pusher->x, 130) << "and the pusher walks after it";
}

TEST_F(Pushing, IsRefusedWithoutStrengthOffTheLineAndForWhatCannotMove) {
    struct Row {
        int kind;
        bool strength;
        int offset;  // pixels off the line
    };
    constexpr Row rows[] = {{SquareKind::Wall, false, 0},
                            {SquareKind::Wall, true, 1},
                            {SquareKind::GridBlock, true, 0},
                            {SquareKind::EdgeWall, true, 0},
                            {SquareKind::WallCrumbling, true, 0}};
    for (const Row& row : rows) {
        pusher->strength = row.strength;
        pusher->x = 128 + row.offset;
        round.push(row.kind);
        EXPECT_NE(squareGrid.at(source), SquareKind::Empty) << "row " << &row - rows;
        EXPECT_EQ(squareGrid.at(target), SquareKind::Empty) << "row " << &row - rows;
        EXPECT_EQ(pusher->x, 128) << "row " << &row - rows;
    }
}

TEST(PushingOntoWhatIsThere, IsRefused) {
    struct Row {
        char behind;
        void (*put)(const std::shared_ptr<Player>& player);
    };
    const Row rows[] = {
        {'o', [](const auto& player) { placeBomb(target, player, 500); }},
        {'X', [](const auto&) { squareGrid.set(target, SquareKind::GridBlock); }},
        {'=', [](const auto&) { squareGrid.set(target, SquareKind::HardWallCrumbling); }},
        {'b', [](const auto&) { bonusGrid.at(target) = Bonus::Cash; }},
    };
    for (const bool bomb : {false, true}) {
        for (const Row& row : rows) {
            StrongPusher round;
            if (bomb) {
                placeBomb(source, round.pusher, 500);
            }
            row.put(round.pusher);
            round.push(bomb ? SquareKind::Empty : SquareKind::Wall);
            EXPECT_EQ(rowOf(round.game(), 5), fmt::format("#....{}{}.......#", bomb ? 'o' : 'w', row.behind));
            EXPECT_TRUE(round.takeHeard().empty());
        }
    }
}

TEST(PushingBombs, MovesThemOnWithTheirWholeRecord) {
    for (const BombKind kind : bombKinds) {
        const bool moves = kind == BombKind::Ticking || kind == BombKind::Armed;
        StrongPusher round(RoundSetup{});
        const auto owner = round.addPlayer({1, 1});
        owner->remoteActive = true;
        placeBombOf(kind, source, owner, 77);
        bombGrid.edit(source).direction = Facing::Up;
        bombGrid.edit(source).rocketStep = -50;
        round.hold(*round.pusher, {.right = true});
        round.pusher->update(round.replay(), &round.game(), false);
        EXPECT_EQ(hasBomb(source), !moves);
        ASSERT_EQ(hasBomb(target), moves);
        if (moves) {
            const Bomb& moved = bombGrid.at(target);
            EXPECT_EQ(moved.owner.lock(), owner);
            EXPECT_EQ(moved.fuse, 77);
            EXPECT_EQ(moved.kind, kind);
            EXPECT_EQ(moved.direction, Facing::Up);
            EXPECT_EQ(moved.rocketStep, -50);
            const Bomb& left = bombGrid.at(source);
            EXPECT_EQ(left.fuse, 0);
            EXPECT_EQ(left.kind, BombKind::Ticking);
            EXPECT_EQ(left.direction, Facing::Down);
        }
    }
}

// A push asks for no form: a ghost is not spared by it, unlike by the wall itself.
TEST(PushingOntoPlayers, CrushesAllButTheShieldedAndCreditsThePusher) {
    struct Row : Who {
        bool crushed;
    };
    for (const Row& row : {Row{{"a walker", asItIs}, true}, Row{{"a ghost", asGhost}, true},
                           Row{{"a shielded one", asShielded}, false}}) {
        StrongPusher round;
        const auto victim = round.addPlayer(target);
        row.make(*victim);
        round.push(SquareKind::HardWall);
        EXPECT_EQ(victim->dead, row.crushed) << row.who;
        EXPECT_EQ(round.pusher->kills, row.crushed ? 1 : 0) << row.who;
        EXPECT_EQ(squareGrid.at(target), SquareKind::HardWall);
        if (victim->shield) {
            // The victim is updated behind the pusher and so loses a first frame already.
            EXPECT_EQ(victim->shieldTimer, Player::runningShield() - 1);
        }
    }
}

// Each hit halves, and the search begins again: part 1 is found at 16, 8 and 4, part 5 at 16 and 8, part 9 at 16.
TEST(PushingOntoTails, HitsANearPartUntilTheTailIsShortEnoughAndCreditsSnakesOfTheComputer) {
    struct Row {
        int length;
        std::size_t part;
        bool ai;
        bool shielded;
        const char* after;
        int credits;
    };
    constexpr Row rows[] = {
        {16, 1, true, false, "dead, shielded", 1},        {16, 5, true, false, "snake of 4, shielded", 1},
        {16, 9, true, false, "snake of 8, shielded", 1},  {16, 0, true, false, "snake of 16", 0},
        {8, 7, true, false, "snake of 4, shielded", 1},   {16, 9, true, true, "snake of 8, shielded", 1},
        {16, 9, false, false, "snake of 8, shielded", 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(fmt::format("length {}, part {}, ai {}, shielded {}", row.length, row.part, row.ai, row.shielded));
        StrongPusher round;
        const auto snake = round.addSnake({10, 8}, Facing::Right, row.length, row.ai);
        layParts(*snake, {10, 8}, row.part, target);
        snake->shield = row.shielded;
        snake->shieldTimer = 50;
        round.push(SquareKind::Wall);
        EXPECT_EQ(formOf(*snake), row.after);
        EXPECT_EQ(round.pusher->kills, row.credits);
    }
}

TEST(PushingOntoTails, EarnsThePointsOfASnakeThatWasHurtInEverything) {
    StrongPusher round({.mode = GameMode::Everything, .version = replayOutputVersion, .tune = [](GameOptions& o) {
                            o.everythingCTF = false;
                        }});
    round.addTeam({1, 5});
    round.pusher->team = 0;
    layParts(*round.addSnake({10, 8}, Facing::Right, 16, true), {10, 8}, 9, target);
    round.push(SquareKind::Wall);
    EXPECT_EQ(teams[0].score, gameOptions.snakeHurtPoints);
    EXPECT_EQ(round.pusher->kills, 0);
}

}  // namespace
}  // namespace vandrel
