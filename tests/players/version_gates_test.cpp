// Rules that changed between releases: each is played as a replay of the last release before the change and of the one
// that brought it. Those of records and of flags have a file of their own.
#include <gtest/gtest.h>

#include <memory>

#include "players/both_sides.h"
#include "players/in_words.h"

namespace vandrel {
namespace {

TEST(Since_0_0_9, WhoComesBackHasRoomAndIsNoGhost) {
    for (const int kind : {SquareKind::Wall, SquareKind::Empty}) {
        playBothSides(replayVersion(0, 0, 9),
                      [kind](TestRound& round, bool old) {
                          const auto player = round.addPlayer({5, 5});
                          squareGrid.set(5, 5, kind);
                          squareGrid.set(6, 5, SquareKind::Wall);
                          player->die();
                          player->respawnTimer = 1;
                          round.step();
                          EXPECT_FALSE(player->dead);
                          EXPECT_EQ(player->ghost, old && kind == SquareKind::Wall);
                          EXPECT_EQ(squareGrid.at(6, 5) == SquareKind::Wall, old);
                          EXPECT_EQ(player->shieldTimer, Player::runningShield());
                      },
                      {.mode = GameMode::Deathmatch});
    }
}

TEST(Since_0_0_11, SnakesMoveByThePixel) {
    playBothSides(replayVersion(0, 0, 11), [](TestRound& round, bool old) {
        const auto snake = round.addSnake({5, 5}, Facing::Right, 3);
        snake->x += 2;
        round.step();
        EXPECT_EQ(snake->x, old ? 164 : 165) << "four pixels from a multiple of four, or three";
    });
}

TEST(Since_0_0_11, TheOlderSnakeCrawlsThroughAWallAndEatsItAtItsFarSide) {
    TestRound round({.version = replayVersion(0, 0, 10)});
    const auto snake = round.addSnake({5, 5}, Facing::Right, 3);
    squareGrid.set(6, 5, SquareKind::HardWall);
    bonusGrid.at(6, 5) = Bonus::Stop;
    for (int x = 161; x <= 189; ++x) {
        round.step();
        EXPECT_EQ(snake->x, x);
        EXPECT_EQ(squareGrid.at(6, 5), SquareKind::HardWall);
    }
    round.step();
    EXPECT_EQ(snake->x, 192) << "in step again";
    EXPECT_EQ(markOf(round.game(), {6, 5}), '.');
    EXPECT_EQ(formOf(*snake), "snake of 4");
}

TEST(Since_0_0_11, TheOlderSnakesBodyFollowsThePathSixteenPixelsApart) {
    TestRound round({.size = {40, 11}, .version = replayVersion(0, 0, 10)});
    const auto snake = round.addSnake({5, 5}, Facing::Right, 3);
    round.step(20);
    EXPECT_EQ(snake->x, 240);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(std::get<0>(snake->snakeParts.at(i)), 240 - 16 * (static_cast<int>(i) + 1));
        EXPECT_EQ(std::get<2>(snake->snakeParts.at(i)), Facing::Right);
    }
    act(round, *snake, {.up = true}, 8);
    EXPECT_EQ(snake->facing, Facing::Up) << "it turns where both coordinates are on a line";
}

TEST(Since_0_95_2, TeamsOfWhichNobodyCanRescueDie) {
    playBothSides(replayVersion(0, 95, 2),
                  [](TestRound& round, bool old) {
                      round.addTeam({1, 5});
                      round.addTeam({13, 5});
                      const auto player = round.addPlayer({5, 5}, 0);
                      round.addPlayer({9, 9}, 1);
                      player->crawling = true;
                      round.step();
                      EXPECT_EQ(player->dead, !old);
                  },
                  {.mode = GameMode::BattleRoyale});
}

TEST(Since_0_95_9, WhoStartsToCrawlLetsItsBombsGo) {
    playBothSides(replayVersion(0, 95, 9),
                  [](TestRound& round, bool old) {
                      const auto player = round.addPlayer({5, 5});
                      player->remoteActive = true;
                      placeBombOf(BombKind::Armed, {9, 9}, player);
                      player->hurt(DeathReason::Explosion, round.replay(), nullptr);
                      EXPECT_TRUE(player->crawling);
                      EXPECT_EQ(player->remoteActive, old);
                      EXPECT_EQ(markOf(round.game(), {9, 9}), old ? 'a' : 'o');
                  },
                  {.mode = GameMode::BattleRoyale});
}

TEST(Since_0_95_12, HeadsOnOneSquareHurtEachOther) {
    playBothSides(replayVersion(0, 95, 12), [](TestRound& round, bool old) {
        round.addSnake({5, 5}, Facing::Up, 12, true);
        round.addSnake({5, 5}, Facing::Down, 12);
        round.addSnake({9, 5}, Facing::Down, 12);
        round.game().checkPlayerHits();
        EXPECT_EQ(formOf(*players[0]), old ? "snake of 12" : "dead");
        EXPECT_EQ(formOf(*players[1]), old ? "snake of 12" : "crawling, shielded");
        EXPECT_EQ(formOf(*players[2]), "snake of 12");
        EXPECT_EQ(players[0]->kills + players[1]->kills, 0);
    });
}

TEST(Since_0_95_15, RocketsStepOnceAPass) {
    playBothSides(replayVersion(0, 95, 15), [](TestRound& round, bool old) {
        placeRocket({5, 5}, round.addPlayer({1, 1}), Facing::Right);
        round.game().updateBombs();
        // The old pass meets it again on the next square and counts its frame there too.
        EXPECT_EQ(bombGrid.at(6, 5).rocketStep, old ? 1 : 0);
    });
}

// What a hit makes of a computer's snake of twelve in the release before a change and from it on.
TEST(SnakesOfTheComputer, ThatAreHitFareByTheRelease) {
    struct Row {
        int gate;
        DeathReason reason;
        const char* before;
        const char* since;
        int stunBefore;
    };
    constexpr Row rows[] = {
        // A flame on the head stuns, and since the release after that it halves, too.
        {replayVersion(0, 95, 16), DeathReason::Explosion, "dead", "snake of 12", 0},
        {replayVersion(0, 95, 17), DeathReason::Explosion, "snake of 12", "snake of 6, shielded", 180},
        {replayVersion(1, 0, 10), DeathReason::PushedWall, "snake of 12", "dead", 0},
        {replayVersion(1, 0, 10), DeathReason::Wall, "snake of 12", "dead", 0},
    };
    for (const Row& row : rows) {
        playBothSides(row.gate, [&row](TestRound& round, bool old) {
            const auto killer = round.addPlayer({1, 1});
            const auto snake = round.addSnake({5, 5}, Facing::Up, 12, true);
            snake->hurt(row.reason, round.replay(), killer);
            const std::string form = old ? row.before : row.since;
            EXPECT_EQ(formOf(*snake), form);
            EXPECT_EQ(killer->kills, form == "snake of 12" ? 0 : 1);
            EXPECT_EQ(snake->slowTimer, row.reason == DeathReason::Explosion ? (old ? row.stunBefore : 180) : 0);
        });
    }
}

TEST(Since_0_95_16, ASlowedSnakeOfAnySortMovesAPixelAFrame) {
    playBothSides(replayVersion(0, 95, 16), [](TestRound& round, bool old) {
        for (const bool ai : {false, true}) {
            const auto snake = round.addSnake({5, 5}, Facing::Up, 12, ai);
            snake->slowTimer = 100;
            EXPECT_EQ(snake->getSpeed(round.replay()), old ? 3 : 1);
        }
    });
}

TEST(Since_0_95_20, ANewSnakeLooksForAWayOut) {
    playBothSides(replayVersion(0, 95, 20), [](TestRound& round, bool old) {
        squareGrid.set(5, 6, SquareKind::GridBlock);
        EXPECT_EQ(createAISnake(120, {5, 5}, round.replay().version)->facing, old ? Facing::Down : Facing::Up);
    });
}

TEST(Since_0_95_26, AWaveThatAWallStoppedBurnsOut) {
    playBothSides(replayVersion(0, 95, 26), [](TestRound& round, bool old) {
        squareGrid.set(7, 5, SquareKind::GridBlock);
        placeBomb({5, 5}, round.addPlayer({13, 9}), 0);
        EXPECT_NE(round.stepUntil([&] { return isFlame(round.game(), {6, 5}); }), -1);
        round.step(5);  // to the wall, at the pace of these releases
        EXPECT_EQ(isFlame(round.game(), {6, 5}), !old);
        EXPECT_TRUE(isFlame(round.game(), {4, 5}));
    });
}

TEST(Since_0_95_28, FlamesStartOneSquareOutAndScaleWithTheRate) {
    playBothSides(replayVersion(0, 95, 28),
                  [](TestRound& round, bool old) {
                      round.game().explodeBomb({5, 5}, round.addPlayer({13, 9}));
                      const auto& flames = round.game().explosions;
                      ASSERT_EQ(flames.size(), 12U);
                      constexpr int oldTimers[] = {0, 4, 8};
                      constexpr int newTimers[] = {8, 8, 16};
                      for (std::size_t i = 0; i < 3; ++i) {
                          const bool out = !old && i == 0;
                          EXPECT_EQ(flames[i].timer, old ? oldTimers[i] : newTimers[i]);
                          EXPECT_EQ(flames[i].steps, out ? 1 : 0);
                          EXPECT_EQ(flames[i].firstFrame, out);
                          EXPECT_EQ(flames[i].x, out ? 4 : 5);
                      }
                  },
                  {.rate = 120});
}

// Tested before it falls, a timer takes one update more.
TEST(Since_0_95_28, TheTimerOfAFlameFallsBeforeItIsTested) {
    playBothSides(replayVersion(0, 95, 28), [](TestRound& round, bool old) {
        const auto owner = round.addPlayer({13, 9});
        Explosion flame;
        flame.owner = owner;
        flame.x = flame.y = 5;
        flame.dx = 1;
        flame.timer = 2;
        round.game().explosions = {flame};
        for (const int x : {5, old ? 5 : 6, 6}) {
            round.game().updateExplosions();
            EXPECT_EQ(round.game().explosions.at(0).x, x);
        }
    });
}

// The strong player on (4, 5) pushes a wall to (6, 5).
std::shared_ptr<Player> pushWall(TestRound& round) {
    const auto pusher = round.addPlayer({4, 5});
    pusher->strength = true;
    squareGrid.set(5, 5, SquareKind::Wall);
    act(round, *pusher, {.right = true});
    EXPECT_EQ(squareGrid.at(6, 5), SquareKind::Wall);
    return pusher;
}

TEST(Since_0_96_13, APushedWallCrushes) {
    playBothSides(replayVersion(0, 96, 13), [](TestRound& round, bool old) {
        const auto victim = round.addPlayer({6, 5});
        EXPECT_EQ(pushWall(round)->kills, old ? 0 : 1);
        EXPECT_TRUE(victim->dead) << "by the wall that it then stands in, where not by the push";
    });
}

TEST(Since_1_0_10, AWallPushedOnASnakeIsThePushersHit) {
    for (const bool head : {true, false}) {
        playBothSides(replayVersion(1, 0, 10), [head](TestRound& round, bool old) {
            const auto snake = round.addSnake(head ? Square{6, 5} : Square{10, 8}, Facing::Up, 12, true);
            layParts(*snake, {10, 8}, 8, head ? Square{10, 8} : Square{6, 5});
            snake->stopTimer = 100;
            EXPECT_EQ(pushWall(round)->kills, old ? 0 : 1);
            // A wall that has come to stand on a part halves in any release, by nobody's hand.
            EXPECT_EQ(formOf(*snake), !head ? "snake of 6, shielded" : old ? "snake of 12" : "dead");
        });
    }
}

TEST(Since_1_0_10, PartsThatTheSnakeHasNoLongerAreNotHit) {
    playBothSides(replayVersion(1, 0, 10), [](TestRound& round, bool old) {
        const auto snake = round.addSnake({8, 8}, Facing::Up, 12);
        layParts(*snake, {8, 8}, 10, {5, 5});
        snake->setSnakeLength(8);
        squareGrid.set(5, 5, SquareKind::Wall);
        round.game().checkPlayerHits();
        EXPECT_EQ(snake->snakeLengthNow(), old ? 4 : 8);
    });
}

TEST(Since_1_0_11, ACrawlerMayNotBid) {
    playBothSides(replayVersion(1, 0, 11), [](TestRound& round, bool old) {
        const auto player = round.addPlayer({5, 5});
        asCrawler(*player);
        player->cash = 5;
        round.game().auction = std::make_unique<Auction>();
        round.game().auction->timer = 1000;
        act(round, *player, {.button2 = true});
        EXPECT_EQ(player->canUsePowerups(), old);
        EXPECT_EQ(round.game().auction->price, old ? 1 : 0);
        EXPECT_EQ(player->pingTimer, 60);
    });
}

}  // namespace
}  // namespace vandrel
