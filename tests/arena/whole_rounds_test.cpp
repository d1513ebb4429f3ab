#include <gmock/gmock.h>

#include "arena/whole_round.h"

namespace vandrel {
namespace {

using testing::IsEmpty;

// The smallest arena, walls that come as fast as they can, everything else left to the automatic options.
GameOptions shortRound(GameMode mode) {
    GameOptions options;
    options.gameMode = mode;
    options.arenaSize = 1;
    options.shrinkSpeed = 5;
    options.timeBeforeShrinking = 0;
    options.auctions = 1;
    options.respawnTime = 2;
    options.preparationTime = 1;
    options.spawnInterval = 1;
    options.snakeNumber = 3;
    return options;
}

bool endsWithTheWalls(GameMode mode) {
    return isTeamMode(mode) ? mode != GameMode::BattleRoyale : mode == GameMode::Deathmatch;
}

// What is true of the winners of any round of the mode.
void requireSoundWinners(const Winners& winners, WholeRound& round) {
    const GameMode mode = gameOptions.gameMode;
    if (endsWithTheWalls(mode)) {
        EXPECT_EQ(round.game().shrinkState, ShrinkState::Finished);
    }
    if (mode == GameMode::Classic || mode == GameMode::Deathmatch) {
        const auto& won = std::get<PlayerWinners>(winners).players;
        EXPECT_LT(won.size(), players.size()) << "not everybody wins";
        for (const auto& winner : won) {
            EXPECT_TRUE(mode == GameMode::Deathmatch || !winner->dead);
        }
        EXPECT_TRUE(mode == GameMode::Deathmatch || won.size() <= 1);
    } else {
        for (const int team : std::get<TeamWinners>(winners).teams) {
            for (const Team& other : teams) {
                EXPECT_TRUE(!endsWithTheWalls(mode) || teams.at(static_cast<std::size_t>(team)).score >= other.score);
            }
        }
    }
    round.drop();
    for (const Team& team : teams) {
        EXPECT_EQ(team.displayedScore, team.score) << "the round's end pays what is still under way";
    }
}

struct RoundCase {
    std::string name;
    GameMode mode;
    int players;
    int teams;
    void (*tune)(GameOptions& options) = [](GameOptions& /*options*/) {};
};

std::ostream& operator<<(std::ostream& out, const RoundCase& c) {
    return out << c.name;
}

const RoundCase roundCases[] = {
    {"ClassicOfTwo", GameMode::Classic, 2, 0},
    {"ClassicOfSix", GameMode::Classic, 6, 0},
    {"ClassicAsSnakes", GameMode::Classic, 4, 0, [](GameOptions& options) { options.startAsSnake = true; }},
    {"FlagsOfTwoTeams", GameMode::CaptureTheFlag, 6, 2},
    {"FlagsOfThreeTeams", GameMode::CaptureTheFlag, 6, 3},
    {"FlagsOfFourTeams", GameMode::CaptureTheFlag, 8, 4},
    {"OneFlag", GameMode::CaptureTheFlag, 6, 3, [](GameOptions& options) { options.singleFlag = true; }},
    {"RoyaleOfTwoTeams", GameMode::BattleRoyale, 4, 2},
    {"RoyaleOfThreeTeams", GameMode::BattleRoyale, 6, 3},
    {"RoyaleOfFourTeams", GameMode::BattleRoyale, 8, 4},
    {"HillOfTwoTeams", GameMode::KingOfTheHill, 4, 2},
    {"HillOfThreeTeams", GameMode::KingOfTheHill, 6, 3},
    {"HillOfFourTeams", GameMode::KingOfTheHill, 8, 4},
    {"HuntersWhoComeBack", GameMode::SnakeHunter, 3, 0},
    {"HuntersWhoDoNot", GameMode::SnakeHunter, 3, 0, [](GameOptions& options) { options.snakeHunterRespawn = false; }},
    {"DeathmatchOfFour", GameMode::Deathmatch, 4, 0},
    {"DeathmatchAtTwiceTheRate", GameMode::Deathmatch, 4, 0,
     [](GameOptions& options) { options.updaterate = 120, options.frameMultiplier = 2; }},
    {"EverythingOfTwoTeams", GameMode::Everything, 4, 2},
    {"EverythingOfThreeTeams", GameMode::Everything, 6, 3},
    {"EverythingOfFourTeams", GameMode::Everything, 8, 4},
};

class EveryMode : public testing::TestWithParam<RoundCase> {};

TEST_P(EveryMode, PlaysFromItsOptionsToItsWinners) {
    std::size_t flames = 0;
    bool snakes = false;
    for (const unsigned seed : {1U, 2U, 3U}) {
        SCOPED_TRACE(seed);
        GameOptions options = shortRound(GetParam().mode);
        options.gridBlocks = seed == 1 ? 1 : 2;
        GetParam().tune(options);
        WholeRound round(options, GetParam().players, GetParam().teams, seed);
        requireSoundWinners(round.finish(), round);
        flames += round.flamesSeen;
        snakes = gameOptions.startAsSnake;
    }
    EXPECT_TRUE(flames > 0 || snakes) << "who presses at random lays bombs";
}

INSTANTIATE_TEST_SUITE_P(Rounds, EveryMode, testing::ValuesIn(roundCases),
                         [](const auto& test) { return test.param.name; });

TEST(Everything, PlaysWithEverySubsetOfItsSwitches) {
    for (unsigned subset = 0; subset < 32; ++subset) {
        SCOPED_TRACE(subset);
        GameOptions options = shortRound(GameMode::Everything);
        options.everythingCTF = (subset & 1U) != 0;
        options.everythingBattleRoyale = (subset & 2U) != 0;
        options.everythingKotH = (subset & 4U) != 0;
        options.everythingSnakeHunter = (subset & 8U) != 0;
        options.everythingDeathmatch = (subset & 16U) != 0;
        WholeRound round(options, 4, 2, subset);
        EXPECT_EQ(round.game().flags.size(), options.everythingCTF ? 2U : 0U);
        EXPECT_EQ(round.game().hillRight != 0, options.everythingKotH);
        const Winners winners = round.finish();
        EXPECT_EQ(players.size() > 4, options.everythingSnakeHunter);
        if (!options.everythingCTF && !options.everythingKotH && !options.everythingDeathmatch) {
            EXPECT_THAT(std::get<TeamWinners>(winners).teams, IsEmpty()) << "nothing brings points";
        }
        requireSoundWinners(winners, round);
    }
}

}  // namespace
}  // namespace vandrel
