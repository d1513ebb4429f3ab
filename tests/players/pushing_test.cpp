// Strength: which walls and bombs move one square, what refuses them, and who is crushed behind a wall.
#include <gtest/gtest.h>

#include "support/round_fixture.h"

namespace vandrel {
namespace {

constexpr Square source{5, 5};
constexpr Square target{6, 5};

// A strong player left of what it pushes.
class Pushing : public testing::Test {
  protected:
    explicit Pushing(const RoundSetup& setup = {}) : round(setup), pusher(round.addPlayer({4, 5})) {
        pusher->strength = true;
    }

    void push() {
        round.hold(*pusher, {.right = true});
        round.step();
    }

    TestRound round;
    std::shared_ptr<Player> pusher;
};

TEST_F(Pushing, AWallMovesOnWithItsHitsAndWhatItHides) {
    for (const int kind :
         {SquareKind::Wall, SquareKind::HardWall, SquareKind::HardWallHitOnce, SquareKind::HardWallHitTwice}) {
        squareGrid.set(source, kind);
        squareGrid.set(target, SquareKind::Empty);
        bonusGrid.at(source) = Bonus::Range;
        bonusGrid.at(target) = 0;
        round.takeHeard();
        push();
        EXPECT_EQ(squareGrid.at(source), SquareKind::Empty);
        EXPECT_EQ(bonusGrid.at(source), 0);
        EXPECT_EQ(squareGrid.at(target), kind);
        EXPECT_EQ(bonusGrid.at(target), Bonus::Range);
        EXPECT_EQ(round.takeHeard(), (std::vector<HeardSample>{{SampleIds::Slide}}));
        EXPECT_EQ(pusher->x, 128) << "the push takes the frame";
    }
    push();
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
        squareGrid.set(source, row.kind);
        pusher->strength = row.strength;
        pusher->x = 128 + row.offset;
        push();
        EXPECT_NE(squareGrid.at(source), SquareKind::Empty);
        EXPECT_EQ(squareGrid.at(target), SquareKind::Empty);
        EXPECT_EQ(pusher->x, 128);
    }
}

TEST(PushingInFreshRounds, IsRefusedWhereTheNextSquareIsTaken) {
    enum class Taken { ByWall, ByCrumbling, ByBonus, ByBomb };
    for (const bool bomb : {false, true}) {
        for (const Taken taken : {Taken::ByWall, Taken::ByCrumbling, Taken::ByBonus, Taken::ByBomb}) {
            TestRound round;
            const auto player = round.addPlayer({4, 5});
            player->strength = true;
            if (bomb) {
                placeBomb(source, player, 500);
            } else {
                squareGrid.set(source, SquareKind::Wall);
            }
            if (taken == Taken::ByBomb) {
                placeBomb(target, player, 500);
            } else if (taken == Taken::ByBonus) {
                bonusGrid.at(target) = Bonus::Cash;
            } else {
                squareGrid.set(target, taken == Taken::ByWall ? SquareKind::GridBlock : SquareKind::HardWallCrumbling);
            }
            round.hold(*player, {.right = true});
            round.step();
            EXPECT_EQ(squareGrid.at(source) == SquareKind::Wall, !bomb);
            EXPECT_EQ(hasBomb(source), bomb);
            EXPECT_TRUE(round.takeHeard().empty());
        }
    }
}

TEST(PushingInFreshRounds, ABombMovesOnWithItsWholeRecord) {
    struct Row {
        BombKind kind;
        bool moves;
    };
    constexpr Row rows[] = {
        {BombKind::Ticking, true}, {BombKind::Armed, true}, {BombKind::Steered, false}, {BombKind::Rocket, false}};
    for (const Row& row : rows) {
        TestRound round;
        const auto player = round.addPlayer({4, 5});
        const auto owner = round.addPlayer({1, 1});
        player->strength = true;
        owner->remoteActive = true;
        placeBomb(source, owner, 77);
        bombGrid.edit(source).kind = row.kind;
        bombGrid.edit(source).direction = Facing::Up;
        bombGrid.edit(source).rocketStep = -50;
        round.hold(*player, {.right = true});
        player->update(round.replay(), &round.game(), false);
        EXPECT_EQ(hasBomb(source), !row.moves);
        ASSERT_EQ(hasBomb(target), row.moves);
        if (row.moves) {
            const Bomb& moved = bombGrid.at(target);
            EXPECT_EQ(moved.owner.lock(), owner);
            EXPECT_EQ(moved.fuse, 77);
            EXPECT_EQ(moved.kind, row.kind);
            EXPECT_EQ(moved.direction, Facing::Up);
            EXPECT_EQ(moved.rocketStep, -50);
            const Bomb& left = bombGrid.at(source);
            EXPECT_EQ(left.fuse, 0);
            EXPECT_EQ(left.kind, BombKind::Ticking);
            EXPECT_EQ(left.direction, Facing::Down);
        }
    }
}

TEST_F(Pushing, APushedBombTicksOnWhereItWent) {
    placeBomb(source, pusher, 5);
    push();
    round.release(*pusher);
    EXPECT_EQ(round.stepUntil([] { return !hasBomb(target); }), 5);
    EXPECT_TRUE(isFlame(round.game(), target));
    EXPECT_EQ(pusher->bombsPlaced, 0);
}

TEST_F(Pushing, AWallCrushesAWalkerAndCreditsThePusher) {
    const auto victim = round.addPlayer(target);
    squareGrid.set(source, SquareKind::HardWall);
    push();
    EXPECT_TRUE(victim->dead);
    EXPECT_EQ(pusher->kills, 1);
    EXPECT_EQ(squareGrid.at(target), SquareKind::HardWall);
}

// `PushedWall` asks for no form: a ghost is not spared by the push, unlike by the wall itself.
TEST_F(Pushing, AWallCrushesAGhost) {
    const auto victim = round.addPlayer(target);
    victim->ghost = true;
    victim->shieldTimer = Player::lastingShield();
    squareGrid.set(source, SquareKind::Wall);
    push();
    EXPECT_TRUE(victim->dead);
    EXPECT_EQ(pusher->kills, 1);
}

TEST_F(Pushing, AShieldTakesTheWallAndStartsToRun) {
    const auto victim = round.addPlayer(target);
    victim->shield = true;
    victim->shieldTimer = Player::lastingShield();
    squareGrid.set(source, SquareKind::Wall);
    push();
    EXPECT_FALSE(victim->dead);
    EXPECT_EQ(pusher->kills, 0);
    // The victim is updated behind the pusher and so loses a first frame already.
    EXPECT_EQ(victim->shieldTimer, Player::runningShield() - 1);
}

TEST_F(Pushing, AWallOnAHumanSnakesHeadMakesItCrawl) {
    const auto snake = round.addSnake(target, Facing::Up, 4);
    snake->snakeParts.assign(4, {416, 256, Facing::Up});
    squareGrid.set(source, SquareKind::Wall);
    push();
    EXPECT_FALSE(snake->isSnake());
    EXPECT_TRUE(snake->crawling);
    EXPECT_EQ(pusher->kills, 0) << "it lives";
}

// The parts of snakes of which only some stand behind the wall.
void layParts(Player& snake, const std::vector<Square>& squares) {
    snake.snakeParts.clear();
    for (const Square square : squares) {
        snake.snakeParts.emplace_back(square.x * squareSize, square.y * squareSize, Facing::Right);
    }
}

class PushingOnTails : public Pushing {
  protected:
    PushingOnTails() : Pushing({.version = replayOutputVersion}) { squareGrid.set(source, SquareKind::Wall); }
};

TEST(PushingOnTailsInFreshRounds, ANearPartIsHitUntilTheTailIsShortEnough) {
    struct Row {
        int length;
        std::size_t part;  // that stands behind the wall
        int lengthAfter;   // 0: the end of the snake
        int credits;
    };
    // Each hit halves, and the search begins again: part 1 is found at 16, 8 and 4, part 5 at 16 and 8, part 9 at 16.
    constexpr Row rows[] = {{16, 1, 0, 1}, {16, 5, 4, 1}, {16, 9, 8, 1}, {16, 0, 16, 0}, {8, 7, 4, 1}};
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << "length " << row.length << ", part " << row.part);
        TestRound round({.version = replayOutputVersion});
        squareGrid.set(source, SquareKind::Wall);
        const auto player = round.addPlayer({4, 5});
        player->strength = true;
        const auto snake = round.addSnake({10, 8}, Facing::Right, row.length, true);
        std::vector<Square> squares(static_cast<std::size_t>(row.length), Square{10, 8});
        squares[row.part] = target;
        layParts(*snake, squares);
        round.hold(*player, {.right = true});
        round.step();
        EXPECT_EQ(snake->snakeLengthNow(), row.lengthAfter);
        EXPECT_EQ(snake->dead, row.lengthAfter == 0);
        EXPECT_EQ(player->kills, row.credits);
    }
}

TEST_F(PushingOnTails, AShieldDoesNotSaveATail) {
    const auto snake = round.addSnake({10, 8}, Facing::Right, 16, true);
    std::vector<Square> squares(16, Square{10, 8});
    squares[9] = target;
    layParts(*snake, squares);
    snake->shield = true;
    snake->shieldTimer = 50;
    push();
    EXPECT_EQ(snake->snakeLengthNow(), 8);
    EXPECT_EQ(pusher->kills, 1);
}

TEST_F(PushingOnTails, AHumansTailIsHalvedWithoutCredit) {
    const auto snake = round.addSnake({10, 8}, Facing::Right, 16);
    std::vector<Square> squares(16, Square{10, 8});
    squares[9] = target;
    layParts(*snake, squares);
    push();
    EXPECT_EQ(snake->snakeLengthNow(), 8);
    EXPECT_EQ(pusher->kills, 0);
}

TEST(PushingOnTailsInFreshRounds, TheEndOfASnakesTailEarnsItsPointsInEverything) {
    TestRound round({.mode = GameMode::Everything, .version = replayOutputVersion, .tune = [](GameOptions& o) {
                         o.everythingCTF = false;
                     }});
    round.addTeam({1, 5});
    const auto player = round.addPlayer({4, 5}, 0);
    player->strength = true;
    squareGrid.set(source, SquareKind::Wall);
    const auto snake = round.addSnake({10, 8}, Facing::Right, 16, true);
    std::vector<Square> squares(16, Square{10, 8});
    squares[9] = target;
    layParts(*snake, squares);
    round.hold(*player, {.right = true});
    round.step();
    EXPECT_EQ(teams[0].score, gameOptions.snakeHurtPoints);
    EXPECT_EQ(player->kills, 0);
}

}  // namespace
}  // namespace vandrel
