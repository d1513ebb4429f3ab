#include "match/round_transitions.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <map>

#include "match/match_stage.h"

namespace vandrel {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::Field;

struct Rise {
    int increase;
    int start;
};

// Nothing else draws from the global generator here, so its sequence tells when a match drew.
class RandomnessTest : public MatchStage, public testing::WithParamInterface<Rise> {};

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

    std::vector<std::string> expectedHeads;  // a rise is seen by the options of the round after the one it is shown in
    std::vector<int> shown;
    std::vector<int> expectedPitches;
    int randomness = GetParam().start;
    for (int round = 0; round < roundCount; ++round) {
        expectedHeads.push_back(fmt::format("New round; randomness {}\n", randomness));
        const bool drawn = round != 0 && GetParam().increase != 0 && randomness < 2;
        if (drawn && canonicalFloat(expectedGenerator) * static_cast<float>(GetParam().increase) > 0.8f) {
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
    EXPECT_EQ(heads, expectedHeads);
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
        const bool snakesWin = mode == GameMode::SnakeHunter;
        TestRound round({.mode = mode});
        round.addTeam({1, 5});
        round.addTeam({13, 5});
        const auto human = round.addPlayer({3, 5}, 0);
        const auto snake = round.addSnake({9, 5}, Facing::Right, 4, true);
        teams[1].members.push_back(snake);
        human->dead = human->remoteActive = human->crawling = true;
        gameOptions.winsNeeded = 1;
        std::string shown;
        const auto trophyRoom = [&](const std::vector<ScoringEntity>& entities, bool noWinner, const std::string&) {
            shown += "trophies ";
            EXPECT_EQ(noWinner, !snakesWin);
            EXPECT_THAT(entities.back().players, ElementsAre(snake));
            EXPECT_THAT(players, ElementsAre(human, snake));
            EXPECT_FALSE(human->dead || human->remoteActive);
            EXPECT_EQ(human->crawling, mode != GameMode::Everything);
        };
        const auto lootboxRoom = [&] {
            shown += "boxes ";
            EXPECT_THAT(players, ElementsAre(human));
        };
        EXPECT_EQ(finishRound(round.game(), "", {trophyRoom, lootboxRoom}), snakesWin) << "in their own mode";
        EXPECT_EQ(shown, snakesWin ? "trophies boxes " : "trophies ");
        EXPECT_THAT(players, ElementsAre(human));
        EXPECT_EQ(teams[1].members.size(), snakesWin ? 0U : 1U);
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
    const auto isRow = [](int before, int after, const auto& members) {
        return AllOf(Field(&ScoringEntity::previousScore, before), Field(&ScoringEntity::score, after),
                     Field(&ScoringEntity::players, members));
    };
    const auto byTeam = scoreRound(TeamWinners{{1}});
    EXPECT_THAT(byTeam, ElementsAre(isRow(4, 4, ElementsAre(left)), isRow(0, 1, ElementsAre(right, second))));
    EXPECT_EQ(byTeam[1].teamColour.value().b, 1.0f);
    EXPECT_EQ(teams[1].wins, 1);

    const auto byPlayer = scoreRound(PlayerWinners{{right}});
    EXPECT_THAT(byPlayer, ElementsAre(isRow(0, 0, ElementsAre(left)), isRow(2, 3, ElementsAre(right)),
                                      isRow(0, 0, ElementsAre(second))));
    EXPECT_FALSE(byPlayer[1].teamColour.has_value());
    EXPECT_EQ(right->wins, 3);
}

}  // namespace
}  // namespace vandrel
