#include <gmock/gmock.h>

#include "arena/sparks.h"
#include "match/match_stage.h"

namespace vandrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MatchTest : public MatchStage {};

TEST_F(MatchTest, GoesOnUntilSomebodyHasTheWinsNeededAndPlaysAgainWhatNobodyWins) {
    gameOptions.winsNeeded = 2;
    letDie({{1}, {0, 1}, {0}, {1}});
    EXPECT_FALSE(play()) << "it ran to its end";
    EXPECT_THAT(winsAtStart, ElementsAre(Wins{0, 0}, Wins{1, 0}, Wins{1, 0}, Wins{1, 1}));
    ASSERT_EQ(tables.size(), 4U);
    EXPECT_TRUE(tables[1].noWinner);
    EXPECT_FALSE(tables[3].noWinner);
    EXPECT_EQ(tables[3].before, (Wins{1, 1}));
    EXPECT_EQ(tables[3].after, (Wins{2, 1}));
    EXPECT_THAT(tablesAtLootboxes, ElementsAre(4U)) << "once, behind the last table";
    EXPECT_THAT((Wins{music.made, music.faded, music.stopped}), ElementsAre(4, 4, 4)) << "music of its own each round";
    EXPECT_EQ(timesLogged("New game\n"), 1);
    EXPECT_EQ(timesLogged("New round; randomness 0\n"), 4);
    EXPECT_EQ(timesLogged("Round over\n"), 4);
    EXPECT_EQ(timesLogged("Average FPS: 60.0\n"), 4) << "every tick was painted";
    EXPECT_EQ(timesLogged("Quit\n"), 0);
    EXPECT_EQ(timesLogged("Game ended\n"), 1);
}

TEST_F(MatchTest, TheTableNamesTheRecordingInDiagnosticModeOnlyAndNoBoxesFollowWhereTheyAreOff) {
    lootboxesEnabled = false;
    for (const bool told : {false, true}) {
        diagnostic = told;
        logLines().clear();
        letDie({{1}});
        EXPECT_FALSE(play(true));
        ASSERT_EQ(tables.size(), told ? 2U : 1U);
        EXPECT_EQ(timesLogged("Creating replay: " + tables.back().text + "\n"), told ? 1 : 0);
    }
    EXPECT_THAT(tablesAtLootboxes, IsEmpty()) << "loot boxes are switched off";
}

TEST_F(MatchTest, SharedWinsEndTheMatchTogetherAndATieOfAllIsADraw) {
    gameOptions.gameMode = GameMode::Deathmatch;
    gameOptions.quickStartPlayers = 2;
    gameOptions.winsNeeded = 2;
    const std::vector<std::vector<int>> kills{{3, 3, 1}, {2, 2, 2}, {0, 0, -1}};
    letDie({{}, {}, {}}, [&](int round) {
        for (std::size_t i = 0; i < players.size() && frameCounter == 0; ++i) {
            EXPECT_EQ(players[i]->kills, 0) << "kills last one round";
            players[i]->kills = kills.at(static_cast<std::size_t>(round))[i];
        }
        Game::current()->shrinkState = ShrinkState::Finished;
    });
    EXPECT_FALSE(play());
    EXPECT_THAT(winsAtStart, ElementsAre(Wins{0, 0, 0}, Wins{1, 1, 0}, Wins{1, 1, 0}));
}

TEST_F(MatchTest, TheWinnerIsTakenWhenTheLastUpdateIsOver) {
    letDie({{1}, {0}}, [](int round) {
        if (round == 0 && frameCounter == 240) {
            players[0]->die();  // the round was decided, its end not yet reached
        }
    });
    EXPECT_FALSE(play());
    EXPECT_THAT(winsAtStart, ElementsAre(Wins{0, 0}, Wins{0, 0}));
}

TEST_F(MatchTest, QuittingLeavesTheMatchWithoutScoring) {
    letDie({{1}}, [this](int /*round*/) { closeAtUpdate = 30; });
    EXPECT_TRUE(play());
    EXPECT_EQ(timesLogged("Quit\n"), 1);
    EXPECT_EQ(timesLogged("Round over\n"), 0);
    EXPECT_THAT(tables, IsEmpty());
    EXPECT_THAT(tablesAtLootboxes, IsEmpty());
    EXPECT_EQ(rounds(), 1);
    EXPECT_EQ(timesLogged("Game ended\n"), 1);
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
    std::vector<std::shared_ptr<Player>> first;
    letDie({{1}, {1}}, [&](int round) {
        if (frameCounter == 0 && round == 0) {
            players[0]->cash = 7;
            players[0]->maxBombs = 6;
            first = players;
        } else if (frameCounter == 0) {
            EXPECT_EQ(players, first);
            EXPECT_EQ(players[0]->cash, 7);
            EXPECT_EQ(players[0]->maxBombs, 1);
        }
    });
    EXPECT_FALSE(play());
}

TEST_F(MatchTest, EveryRoundDrawsItsOwnOptionsAndStartsWithoutSparks) {
    gameOptions.winsNeeded = 3;
    gameOptions.auctions = 2;
    std::vector<int> intervals;
    letDie({{1}, {1}, {1}}, [&](int /*round*/) {
        if (frameCounter == 0) {
            intervals.push_back(gameOptions.auctionInterval.value());
            EXPECT_THAT(sparks, IsEmpty());
        } else if (frameCounter == 200) {
            addSparks({100, 100});
        }
    });
    std::mt19937 expected = globalGenerator;
    EXPECT_FALSE(play());
    for (const int interval : intervals) {
        EXPECT_EQ(interval, uniformInt(expected, 1200, 2000));
    }
    EXPECT_EQ(intervals.size(), 3U);
}

TEST_F(MatchTest, TheReplayTestRunsFastForwardWhateverTheSwitchSays) {
    letDie({{1}}, [](int /*round*/) { EXPECT_TRUE(fastForward); });
    EXPECT_FALSE(play(false, "", {.fastForward = true, .skipRoundEnd = false}));
    EXPECT_FALSE(fastForward);
    EXPECT_EQ(renderedFrames, 4) << "of 241 updates";
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

}  // namespace
}  // namespace vandrel
