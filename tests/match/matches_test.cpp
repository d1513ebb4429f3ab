#include <fmt/format.h>
#include <gmock/gmock.h>

#include <map>

#include "arena/sparks.h"
#include "match/match_stage.h"
#include "match/round_transitions.h"

namespace vandrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Wins = std::vector<int>;

Wins winsOfPlayers() {
    Wins wins;
    for (const auto& player : players) {
        wins.push_back(player->wins);
    }
    return wins;
}

class MatchTest : public MatchStage {
  protected:
    // Round after round of Classic in which these players die in the first update. What stood on the score table when
    // each round began is kept. A match that should have ended and did not is quit.
    void letDie(std::vector<std::vector<int>> victims) {
        onUpdate = [this, victims = std::move(victims)](int round) {
            if (frameCounter != 0) {
                return;
            }
            winsAtStart.push_back(winsOfPlayers());
            if (round >= static_cast<int>(victims.size())) {
                closeAtUpdate = 1;
                return;
            }
            for (const int number : victims[static_cast<std::size_t>(round)]) {
                players.at(static_cast<std::size_t>(number))->die();
            }
        };
    }

    std::vector<Wins> winsAtStart;
};

TEST_F(MatchTest, GoesOnUntilSomebodyHasTheWinsNeeded) {
    gameOptions.winsNeeded = 2;
    letDie({{1}, {0}, {1}});
    EXPECT_FALSE(play()) << "it ran to its end";
    EXPECT_THAT(winsAtStart, ElementsAre(Wins{0, 0}, Wins{1, 0}, Wins{1, 1}));
    ASSERT_EQ(tables.size(), 3U);
    EXPECT_EQ(tables[2].before, (Wins{1, 1}));
    EXPECT_EQ(tables[2].after, (Wins{2, 1}));
    EXPECT_FALSE(tables[2].noWinner);
    EXPECT_THAT(tablesAtLootboxes, ElementsAre(3U)) << "once, behind the last table";
    EXPECT_EQ(timesLogged("New game\n"), 1);
    EXPECT_EQ(timesLogged("New round; randomness 0\n"), 3);
    EXPECT_EQ(timesLogged("Round over\n"), 3);
    EXPECT_EQ(timesLogged("Average FPS: 60.0\n"), 3) << "every tick was painted";
    EXPECT_EQ(timesLogged("Quit\n"), 0);
    EXPECT_EQ(timesLogged("Game ended\n"), 1);
}

TEST_F(MatchTest, ARoundThatNobodyWinsIsPlayedAgain) {
    letDie({{0, 1}, {0, 1}, {0}});
    lootboxesEnabled = false;
    EXPECT_FALSE(play());
    EXPECT_THAT(winsAtStart, ElementsAre(Wins{0, 0}, Wins{0, 0}, Wins{0, 0}));
    ASSERT_EQ(tables.size(), 3U);
    EXPECT_TRUE(tables[0].noWinner);
    EXPECT_TRUE(tables[1].noWinner);
    EXPECT_FALSE(tables[2].noWinner);
    EXPECT_THAT(tablesAtLootboxes, IsEmpty()) << "loot boxes are switched off";
}

TEST_F(MatchTest, TheTableNamesTheRecordingInDiagnosticModeOnly) {
    for (const bool told : {false, true}) {
        diagnostic = told;
        logLines().clear();
        letDie({{1}});
        EXPECT_FALSE(play(true));
        ASSERT_EQ(tables.size(), told ? 2U : 1U);
        EXPECT_EQ(timesLogged("Creating replay: " + tables.back().text + "\n"), told ? 1 : 0);
    }
}

TEST_F(MatchTest, SharedWinsEndTheMatchTogetherAndATieOfAllIsADraw) {
    gameOptions.gameMode = GameMode::Deathmatch;
    gameOptions.quickStartPlayers = 2;
    gameOptions.winsNeeded = 2;
    const std::vector<std::vector<int>> kills{{3, 3, 1}, {2, 2, 2}, {0, 0, -1}};
    onUpdate = [&](int round) {
        if (frameCounter == 0) {
            winsAtStart.push_back(winsOfPlayers());
            for (std::size_t i = 0; i < players.size(); ++i) {
                EXPECT_EQ(players[i]->kills, 0) << "kills last one round";
                players[i]->kills = kills.at(static_cast<std::size_t>(round))[i];
            }
            Game::current()->shrinkState = ShrinkState::Finished;
        }
    };
    EXPECT_FALSE(play());
    EXPECT_THAT(winsAtStart, ElementsAre(Wins{0, 0, 0}, Wins{1, 1, 0}, Wins{1, 1, 0}));
}

TEST_F(MatchTest, TheWinnerIsTakenWhenTheLastUpdateIsOver) {
    letDie({{1}, {0}});
    const auto firstDeath = onUpdate;
    onUpdate = [&](int round) {
        firstDeath(round);
        if (round == 0 && frameCounter == 240) {
            players[0]->die();  // the round was decided, its end not yet reached
        }
    };
    EXPECT_FALSE(play());
    EXPECT_THAT(winsAtStart, ElementsAre(Wins{0, 0}, Wins{0, 0}));
}

TEST_F(MatchTest, QuittingLeavesTheMatchWithoutScoring) {
    gameOptions.winsNeeded = 1;
    letDie({{1}});
    closeAtUpdate = 30;
    EXPECT_TRUE(play());
    EXPECT_EQ(timesLogged("Quit\n"), 1);
    EXPECT_EQ(timesLogged("Round over\n"), 0);
    EXPECT_THAT(tables, IsEmpty());
    EXPECT_THAT(tablesAtLootboxes, IsEmpty());
    EXPECT_EQ(rounds(), 1);
    EXPECT_EQ(timesLogged("Game ended\n"), 1);
}

TEST_F(MatchTest, AnAdvanceLimitOfOneQuitsTheMatchAfterOneUpdate) {
    advanceLimit = 1;
    EXPECT_TRUE(play());
    EXPECT_EQ(frameCounter, 1);
    EXPECT_EQ(timesLogged("Quit\n"), 1);
}

TEST_F(MatchTest, PutsBackTheOptionsAndTheUpdateRate) {
    gameOptions.numPlayers = 7;
    gameOptions.updaterate = 120;
    gameOptions.frameMultiplier = 2;
    gameOptions.randomnessIncrease = 100;
    gameOptions.winsNeeded = 4;
    letDie({{1}, {1}, {1}, {1}});
    fastForward = true;
    EXPECT_FALSE(play());
    EXPECT_THAT(rates, ElementsAre(120));
    EXPECT_EQ(gameOptions.updaterate, 120);
    EXPECT_EQ(gameOptions.numPlayers, 7) << "played with two";
    EXPECT_EQ(gameOptions.randomness, 0) << "it has risen meanwhile";
    EXPECT_THAT(shownRandomness, ElementsAre(1, 2));
    EXPECT_FALSE(gameOptions.arenaSizeResolved.has_value());
    EXPECT_FALSE(fastForward);
}

TEST_F(MatchTest, ASecondMatchStartsClean) {
    gameOptions.gameMode = GameMode::KingOfTheHill;
    gameOptions.winsNeeded = 3;
    std::vector<Wins> teamWins;
    onUpdate = [&](int round) {
        if (frameCounter == 0) {
            teamWins.push_back({teams.at(0).wins, teams.at(1).wins});
            EXPECT_THAT((Wins{teams[0].score, teams[1].score}), ElementsAre(0, 0)) << "scores last one round";
            EXPECT_EQ(players.size(), 2U);
            EXPECT_EQ(teams[0].members.size(), 1U);
            EXPECT_EQ(reaches.flag, 13.0f);
            teams[round < 4 ? 1 : 0].addScoreAtOnce(2);
            Game::current()->shrinkState = ShrinkState::Finished;
            players[0]->cash = 5;
        }
    };
    EXPECT_FALSE(play());
    EXPECT_THAT(teamWins, ElementsAre(Wins{0, 0}, Wins{0, 1}, Wins{0, 2}));
    EXPECT_THAT(players, IsEmpty());
    EXPECT_THAT(teams, IsEmpty());
    reaches = {99.0f, 1.0f, 1};  // as an old replay would leave it
    teamWins.clear();
    EXPECT_FALSE(play());
    EXPECT_THAT(teamWins, ElementsAre(Wins{0, 0}, Wins{0, 1}, Wins{1, 1}, Wins{2, 1}));
}

TEST_F(MatchTest, PlayersKeepWhatIsTheirsFromRoundToRound) {
    gameOptions.winsNeeded = 2;
    letDie({{1}, {1}});
    const auto deaths = onUpdate;
    std::vector<const Player*> first;
    onUpdate = [&](int round) {
        deaths(round);
        if (frameCounter == 0 && round == 0) {
            players[0]->cash = 7;
            players[0]->maxBombs = 6;
            first = {players[0].get(), players[1].get()};
        } else if (frameCounter == 0) {
            EXPECT_THAT((std::vector<const Player*>{players[0].get(), players[1].get()}), first);
            EXPECT_EQ(players[0]->cash, 7);
            EXPECT_EQ(players[0]->maxBombs, 1);
        }
    };
    EXPECT_FALSE(play());
}

TEST_F(MatchTest, EveryRoundDrawsItsOwnOptionsAndStartsWithoutSparks) {
    gameOptions.winsNeeded = 3;
    gameOptions.auctions = 2;
    letDie({{1}, {1}, {1}});
    const auto deaths = onUpdate;
    std::vector<int> intervals;
    onUpdate = [&](int round) {
        deaths(round);
        if (frameCounter == 0) {
            intervals.push_back(gameOptions.auctionInterval.value());
            EXPECT_THAT(sparks, IsEmpty());
        } else if (frameCounter == 200) {
            addSparks({100, 100});
        }
    };
    std::mt19937 expected = globalGenerator;
    EXPECT_FALSE(play());
    for (const int interval : intervals) {
        EXPECT_EQ(interval, uniformInt(expected, 1200, 2000));
    }
    EXPECT_EQ(intervals.size(), 3U);
}

TEST_F(MatchTest, TheReplayTestRunsFastForwardWhateverTheSwitchSays) {
    letDie({{1}});
    const auto deaths = onUpdate;
    onUpdate = [&](int round) {
        deaths(round);
        EXPECT_TRUE(fastForward);
    };
    EXPECT_FALSE(play(false, "", {.fastForward = true, .skipRoundEnd = false}));
    EXPECT_FALSE(fastForward);
    EXPECT_EQ(renderedFrames, 4) << "of 241 updates";
}

TEST_F(MatchTest, EveryRoundHasMusicThatFadesAtItsEndAndIsStopped) {
    gameOptions.winsNeeded = 2;
    letDie({{1}, {1}});
    play();
    EXPECT_EQ(music.made, 2);
    EXPECT_EQ(music.faded, 2);
    EXPECT_EQ(music.stopped, 2);
}

TEST_F(MatchTest, PlaysWithoutMusicToo) {
    letDie({{1}});
    MatchWorld silent = world();
    silent.makeMusic = [] { return nullptr; };
    EXPECT_FALSE(play_the_game(false, "", {}, silent));
    EXPECT_EQ(timesLogged("Round over\n"), 1);
}

TEST_F(MatchTest, TheSnakesOfTheComputerLeaveWithTheirRound) {
    gameOptions.gameMode = GameMode::SnakeHunter;
    gameOptions.preparationTime = 2;
    gameOptions.snakeNumber = 1;
    gameOptions.winsNeeded = 2;
    std::vector<std::size_t> playersAtStart;
    onUpdate = [&](int /*round*/) {
        if (frameCounter == 0) {
            playersAtStart.push_back(players.size());
            EXPECT_EQ(teams.at(0).members.size(), 2U);
            EXPECT_THAT(teams.at(1).members, IsEmpty());
        } else if (frameCounter == 199) {
            EXPECT_EQ(players.size(), 2U);
        } else if (frameCounter == 200) {
            ASSERT_EQ(players.size(), 3U) << "the hunters had their time to prepare";
            EXPECT_EQ(teams[1].members.size(), 1U);
            players[2]->die();
        }
    };
    EXPECT_FALSE(play());
    EXPECT_THAT(playersAtStart, ElementsAre(2U, 2U));
}

TEST_F(MatchTest, ACrowdThatFindsNoRoomEndsTheMatchWithAMessage) {
    gameOptions.gameMode = GameMode::CaptureTheFlag;
    gameOptions.quickStartPlayers = 79;
    EXPECT_TRUE(play());
    EXPECT_THAT(noSpaceTexts, ElementsAre("Error while generating player positions.\n"
                                          "Level may be too small for this number of players\n"
                                          "Press ENTER or button 1"));
    EXPECT_EQ(rounds(), 0);
    EXPECT_EQ(timesLogged("Game ended\n"), 0);
    EXPECT_EQ(Game::current(), nullptr);
    gameOptions = bareMatchOptions();
    letDie({{1}});
    EXPECT_FALSE(play()) << "the next match finds nothing in its way";
    EXPECT_EQ(winsAtStart.front(), (Wins{0, 0}));
}

struct Rise {
    int increase;
    int start;
};

// Nothing else draws from the global generator here, so its sequence tells when a match drew.
class RandomnessTest : public MatchTest, public testing::WithParamInterface<Rise> {};

TEST_P(RandomnessTest, RisesBetweenRoundsByOneDrawEachWhileBelowTwo) {
    constexpr int roundCount = 12;
    static std::vector<int> pitches;
    pitches.clear();
    setSamplePlayer([](SampleIds id, int /*volume*/, int /*pan*/, int speed) {
        if (id == SampleIds::Splurge) {
            pitches.push_back(speed);
        }
    });
    gameOptions.randomnessIncrease = GetParam().increase;
    gameOptions.randomness = GetParam().start;
    gameOptions.winsNeeded = roundCount;
    letDie(std::vector<std::vector<int>>(roundCount, {1}));
    globalGenerator.seed(5489);
    std::mt19937 expectedGenerator = globalGenerator;
    EXPECT_FALSE(play());

    std::vector<int> atStart;  // a rise is seen by the options of the round after the one it is shown before
    std::vector<int> shown;
    std::vector<int> expectedPitches;
    int randomness = GetParam().start;
    for (int round = 0; round < roundCount; ++round) {
        atStart.push_back(randomness);
        if (round == 0 || GetParam().increase == 0 || randomness >= 2) {
            continue;
        }
        if (canonicalFloat(expectedGenerator) * static_cast<float>(GetParam().increase) > 0.8f) {
            ++randomness;
            shown.push_back(randomness);
            expectedPitches.push_back(randomness == 1 ? 400 : 700);
        }
    }
    EXPECT_EQ(globalGenerator, expectedGenerator);
    EXPECT_EQ(shownRandomness, shown);
    EXPECT_EQ(pitches, expectedPitches);
    std::vector<std::string> heads;
    std::copy_if(logLines().begin(), logLines().end(), std::back_inserter(heads),
                 [](const std::string& line) { return line.starts_with("New round"); });
    ASSERT_EQ(heads.size(), atStart.size());
    for (std::size_t round = 0; round < heads.size(); ++round) {
        EXPECT_EQ(heads[round], fmt::format("New round; randomness {}\n", atStart[round])) << "round " << round;
    }
}

INSTANTIATE_TEST_SUITE_P(Options, RandomnessTest,
                         testing::Values(Rise{0, 0}, Rise{1, 0}, Rise{2, 0}, Rise{2, 1}, Rise{2, 2}),
                         [](const auto& test) {
                             return fmt::format("By{}From{}", test.param.increase, test.param.start);
                         });

TEST(Randomness, RisesOnceInFiveRoundsOrThreeInFive) {
    for (const auto& [increase, share] : std::map<int, double>{{1, 0.2}, {2, 0.6}}) {
        TestRound round;
        gameOptions.randomnessIncrease = increase;
        constexpr int draws = 10'000;
        int shown = 0;
        for (int i = 0; i < draws; ++i) {
            incrementRandomness(round.game(), [&](Game& /*game*/) { ++shown; });
        }
        EXPECT_EQ(gameOptions.randomness, shown);
        EXPECT_NEAR(static_cast<double>(shown) / draws, share, 0.02);
    }
}

TEST(FinishRound, BringsEverybodyBackForTheTableAndSendsTheSnakesAwayBehindIt) {
    for (const GameMode mode : {GameMode::SnakeHunter, GameMode::Everything}) {
        RoundSetup setup;
        setup.mode = mode;
        TestRound round(setup);
        round.addTeam({1, 5});
        round.addTeam({13, 5});
        const auto human = round.addPlayer({3, 5}, 0);
        const auto snake = round.addSnake({9, 5}, Facing::Right, 4, true);
        teams[1].members.push_back(snake);
        human->dead = true;
        human->remoteActive = true;
        human->crawling = true;
        gameOptions.winsNeeded = 1;
        int shown = 0;
        const auto trophyRoom = [&](const std::vector<ScoringEntity>& entities, bool noWinner, const std::string&) {
            ++shown;
            EXPECT_EQ(noWinner, mode != GameMode::SnakeHunter);
            EXPECT_THAT(entities.back().players, ElementsAre(snake));
            EXPECT_THAT(players, ElementsAre(human, snake));
            EXPECT_FALSE(human->dead);
            EXPECT_FALSE(human->remoteActive);
            EXPECT_EQ(human->crawling, mode != GameMode::Everything);
        };
        int counted = 0;
        const auto lootboxRoom = [&] {
            ++counted;
            EXPECT_THAT(players, ElementsAre(human));
        };
        const bool snakesWin = mode == GameMode::SnakeHunter;
        EXPECT_EQ(finishRound(round.game(), "", {trophyRoom, lootboxRoom}), snakesWin) << "in their own mode";
        EXPECT_EQ(shown, 1);
        EXPECT_EQ(counted, snakesWin ? 1 : 0);
        EXPECT_THAT(players, ElementsAre(human));
        EXPECT_EQ(teams[1].members.size(), mode == GameMode::SnakeHunter ? 0U : 1U);
    }
}

TEST(ScoreTable, HoldsAllTeamsOrAllPlayersInTheirOrder) {
    TestRound round;
    round.addTeam({1, 5});
    round.addTeam({13, 5});
    const auto left = round.addPlayer({3, 5}, 0);
    const auto right = round.addPlayer({5, 5}, 1);
    const auto second = round.addPlayer({7, 5}, 1);
    teams[0].wins = 4;
    teams[1].colour = {0.0f, 0.0f, 1.0f, 1.0f};
    right->wins = 2;

    const auto byTeam = scoreRound(TeamWinners{{1}});
    ASSERT_EQ(byTeam.size(), 2U);
    EXPECT_EQ(byTeam[0].previousScore, 4);
    EXPECT_EQ(byTeam[0].score, 4);
    EXPECT_THAT(byTeam[0].players, ElementsAre(left));
    EXPECT_EQ(byTeam[1].previousScore, 0);
    EXPECT_EQ(byTeam[1].score, 1);
    EXPECT_THAT(byTeam[1].players, ElementsAre(right, second));
    EXPECT_EQ(byTeam[1].teamColour.value().b, 1.0f);
    EXPECT_EQ(teams[1].wins, 1);

    const auto byPlayer = scoreRound(PlayerWinners{{right}});
    ASSERT_EQ(byPlayer.size(), 3U);
    EXPECT_EQ(byPlayer[1].previousScore, 2);
    EXPECT_EQ(byPlayer[1].score, 3);
    EXPECT_THAT(byPlayer[1].players, ElementsAre(right));
    EXPECT_FALSE(byPlayer[1].teamColour.has_value());
    EXPECT_EQ(byPlayer[2].score, 0);
    EXPECT_EQ(right->wins, 3);
}

}  // namespace
}  // namespace vandrel
