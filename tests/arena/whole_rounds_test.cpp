#include <fmt/format.h>
#include <gmock/gmock.h>

#include <algorithm>
#include <random>

#include "arena/level_generation.h"
#include "arena/sparks.h"
#include "base/random.h"
#include "match/match_players.h"
#include "match/options/automatic_options.h"
#include "match/options/name_tables.h"
#include "shell/frame_counter.h"
#include "shell/switches.h"
#include "support/round_fixture.h"

namespace vandrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int longestRound = 10'000;  // updates

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

// The same with nothing in the arena but the players, and no auctions.
GameOptions bareRound(GameMode mode) {
    GameOptions options = shortRound(mode);
    options.gridBlocks = 1;
    options.wallDensity = 0;
    options.powerupDensity = 0;
    options.auctions = 0;
    options.respawnWalls = {};
    return options;
}

bool isKnownKind(int kind) {
    return (kind >= SquareKind::Empty && kind <= SquareKind::HardWallHitTwice) ||
           (kind >= SquareKind::WallCrumbling && kind < SquareKind::WallCrumbled) ||
           (kind >= SquareKind::HardWallCrumbling && kind < SquareKind::HardWallCrumbled);
}

bool squaresAreInOrder() {
    for (int x = 0; x < grid_squares_x; ++x) {
        for (int y = 0; y < grid_squares_y; ++y) {
            const int kind = squareGrid.at(x, y);
            const int bonus = bonusGrid.at(x, y);
            if (!isKnownKind(kind) || (kind != SquareKind::EdgeWall && !isInnerSquare({x, y})) || bonus < 0 ||
                bonus >= bonusCount || bonus == Bonus::Death) {
                return false;
            }
        }
    }
    return true;
}

// A round from the automatic options to its end, by the steps of a match, with random sources that start anew. What
// must hold in every round is required after every update.
class WholeRound {
  public:
    WholeRound(const GameOptions& chosen, int playerCount, int teamCount, unsigned seed = 1)
        : optionsBefore_(gameOptions), outputBefore_(setDebugOutput(nullptr)), keys_(seed) {
        gameOptions = chosen;
        gameOptions.numPlayers = playerCount;
        seedGameRand(seed);
        globalGenerator.seed(seed);
        frameCounter = 0;
        reaches = Reaches{};
        fillTeamPalettes();
        clearMatch();
        teams.resize(static_cast<std::size_t>(teamCount));
        std::vector<std::shared_ptr<Controls>> devices;
        for (int i = 0; i < playerCount; ++i) {
            devices.push_back(std::make_shared<ScriptedControls>());
        }
        makeQuickStartPlayers(devices);
        makeSnakeHunterTeams();
        automaticOptions();
        game_ = std::make_unique<Game>(PackagedReplayData{});
        const ArenaSize& size = arenaSizes.at(static_cast<std::size_t>(gameOptions.arenaSizeResolved.value()));
        setUpRound({size.width, size.height}, {}, *game_, false);
        game_->shrinkCountdown = std::min(gameOptions.timeBeforeShrinkingFrames.value(), longestWait);
        game_->aiSnakeCountdown = gameOptions.snakePreparationFrames;
        game_->aiSnakesLeft = gameOptions.snakeCount;
        for (const auto& player : players) {
            player->startRound();
        }
        sparks.clear();
    }
    ~WholeRound() {
        game_ = nullptr;
        clearMatch();
        sparks.clear();
        frameCounter = 0;
        gameOptions = optionsBefore_;
        setDebugOutput(outputBefore_);
    }
    WholeRound(const WholeRound&) = delete;
    WholeRound& operator=(const WholeRound&) = delete;

    Game& game() { return *game_; }
    HeldKeys& keys(std::size_t player) { return static_cast<ScriptedControls&>(*players.at(player)->controls).held; }

    void step(int updates = 1) {
        for (int i = 0; i < updates; ++i) {
            game_->update(roundOver, replayEnded_, nullptr);
            advanceSparks();
            ++frameCounter;
            requireOrder();
        }
    }
    // Steps until `done`; false if the round ends before that.
    template <class Done>
    bool stepUntil(Done done) {
        while (!roundOver && frameCounter < longestRound) {
            step();
            if (done()) {
                return true;
            }
        }
        return false;
    }
    // To the end, and to the winners. With `random` the humans press at random.
    Winners finish(bool random) {
        while (!roundOver && frameCounter < longestRound && !testing::Test::HasFailure()) {
            if (random) {
                pressAtRandom();
            }
            step();
        }
        EXPECT_TRUE(roundOver) << "after " << frameCounter << " updates";
        return game_->getWinners();
    }
    // Holds the keys that lead there, along x first, until the player stands on the square's corner.
    bool walk(std::size_t player, Square square) {
        const Pixel target = squareToPixel(square);
        const bool arrived = stepUntil([&] {
            const Pixel at = players[player]->position();
            keys(player) = {};
            keys(player).left = at.x > target.x;
            keys(player).right = at.x < target.x;
            keys(player).up = at.x == target.x && at.y > target.y;
            keys(player).down = at.x == target.x && at.y < target.y;
            return at == target;
        });
        keys(player) = {};
        return arrived;
    }
    // Ends the round's own objects; the teams stay.
    void drop() { game_ = nullptr; }

    bool roundOver = false;
    std::size_t flamesSeen = 0;  // in each update all there are

  private:
    static constexpr int longestWait = 150;   // updates before the warning of the walls
    static constexpr int slowLookEvery = 10;  // updates between two looks at every square
    static constexpr int bombsGone = 600;     // updates after which the bombs of who died have burst

    void pressAtRandom() {
        for (std::size_t i = 0; i < static_cast<std::size_t>(gameOptions.numPlayers); ++i) {
            if (uniformInt(keys_, 0, 14) == 0) {
                const int direction = uniformInt(keys_, 0, 4);
                const int buttons = uniformInt(keys_, 0, 11);
                keys(i) = {direction == 0, direction == 1, direction == 2, direction == 3, buttons == 0, buttons == 1};
            }
        }
    }

    void requireOrder() {
        int snakes = 0;
        int livingAISnakes = 0;
        deadFor_.resize(players.size());
        for (std::size_t i = 0; i < players.size(); ++i) {
            const Player& player = *players[i];
            snakes += player.isSnake() ? 1 : 0;
            livingAISnakes += player.isAI && !player.dead ? 1 : 0;
            deadFor_[i] = player.dead ? deadFor_[i] + 1 : 0;
            if (deadFor_[i] == bombsGone) {
                EXPECT_EQ(countBombs(player), 0) << "bombs of dead player " << player.num << when();
            }
            EXPECT_TRUE(player.dead || isInnerSquare(player.square())) << "player " << player.num << when();
            EXPECT_FALSE(player.crawling && player.isSnake() && !player.dead) << "player " << player.num << when();
            EXPECT_LE(player.speed, gameOptions.speedCap) << "player " << player.num << when();
        }
        if (frameCounter % slowLookEvery == 0) {
            EXPECT_TRUE(squaresAreInOrder()) << when();
            for (const auto& player : players) {
                // Bombs of an earlier life may lie there too, so the count can be lower, never higher.
                EXPECT_LE(player->bombsPlaced, countBombs(*player)) << "player " << player->num << when();
            }
        }
        flamesSeen += game_->explosions.size();
        for (const Explosion& flame : game_->explosions) {
            EXPECT_TRUE(isInsideGrid(flame.square())) << when();
        }
        EXPECT_EQ(Player::snakesInPlay(), snakes) << when();
        EXPECT_LE(livingAISnakes, std::max(gameOptions.snakesAtOnce, 0)) << when();
        for (std::size_t i = 0; i < teams.size(); ++i) {
            EXPECT_EQ(teams[i].displayedScore + pointsUnderWay(teams[i]), teams[i].score) << "team " << i << when();
            for (const auto& member : teams[i].members) {
                ASSERT_NE(member.lock(), nullptr);
            }
        }
        for (const Flag& flag : game_->flags) {
            const auto carrier = flag.carrier.lock();
            EXPECT_FALSE(flag.inBase && carrier != nullptr) << when();
            EXPECT_TRUE(carrier == nullptr || flag.team < 0 || flag.team != carrier->team) << when();
        }
    }
    int pointsUnderWay(const Team& team) const {
        int points = 0;
        for (const auto& toast : game_->toasts) {
            const auto* score = dynamic_cast<const DisplayScoreToast*>(toast.get());
            points += score != nullptr && score->team == &team ? score->points : 0;
        }
        return points;
    }
    static std::string when() { return fmt::format(", update {}", static_cast<int>(frameCounter)); }

    GameOptions optionsBefore_;
    DebugOutput outputBefore_;
    std::mt19937 keys_;
    std::unique_ptr<Game> game_;
    std::vector<int> deadFor_;
    bool replayEnded_ = false;
};

bool isWonByPlayers(GameMode mode) {
    return mode == GameMode::Classic || mode == GameMode::Deathmatch;
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
    if (isWonByPlayers(mode)) {
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
    void (*tune)(GameOptions& options) = nullptr;
};

std::ostream& operator<<(std::ostream& out, const RoundCase& c) {
    return out << c.name;
}

class EveryMode : public testing::TestWithParam<RoundCase> {};

TEST_P(EveryMode, PlaysFromItsOptionsToItsWinners) {
    std::size_t flames = 0;
    bool snakes = false;
    for (const unsigned seed : {1U, 2U, 3U}) {
        SCOPED_TRACE(seed);
        GameOptions options = shortRound(GetParam().mode);
        options.gridBlocks = seed == 1 ? 1 : 2;
        if (GetParam().tune != nullptr) {
            GetParam().tune(options);
        }
        WholeRound round(options, GetParam().players, GetParam().teams, seed);
        requireSoundWinners(round.finish(true), round);
        flames += round.flamesSeen;
        snakes = gameOptions.startAsSnake;
    }
    EXPECT_TRUE(flames > 0 || snakes) << "who presses at random lays bombs";
}

INSTANTIATE_TEST_SUITE_P(Rounds, EveryMode,
                         testing::Values(RoundCase{"ClassicOfTwo", GameMode::Classic, 2, 0},
                                         RoundCase{"ClassicOfSix", GameMode::Classic, 6, 0},
                                         RoundCase{"ClassicAsSnakes", GameMode::Classic, 4, 0,
                                                   [](GameOptions& options) { options.startAsSnake = true; }},
                                         RoundCase{"FlagsOfTwoTeams", GameMode::CaptureTheFlag, 6, 2},
                                         RoundCase{"FlagsOfThreeTeams", GameMode::CaptureTheFlag, 6, 3},
                                         RoundCase{"FlagsOfFourTeams", GameMode::CaptureTheFlag, 8, 4},
                                         RoundCase{"OneFlag", GameMode::CaptureTheFlag, 6, 3,
                                                   [](GameOptions& options) { options.singleFlag = true; }},
                                         RoundCase{"RoyaleOfTwoTeams", GameMode::BattleRoyale, 4, 2},
                                         RoundCase{"RoyaleOfThreeTeams", GameMode::BattleRoyale, 6, 3},
                                         RoundCase{"RoyaleOfFourTeams", GameMode::BattleRoyale, 8, 4},
                                         RoundCase{"HillOfTwoTeams", GameMode::KingOfTheHill, 4, 2},
                                         RoundCase{"HillOfThreeTeams", GameMode::KingOfTheHill, 6, 3},
                                         RoundCase{"HillOfFourTeams", GameMode::KingOfTheHill, 8, 4},
                                         RoundCase{"HuntersWhoComeBack", GameMode::SnakeHunter, 3, 0},
                                         RoundCase{"HuntersWhoDoNot", GameMode::SnakeHunter, 3, 0,
                                                   [](GameOptions& options) { options.snakeHunterRespawn = false; }},
                                         RoundCase{"DeathmatchOfFour", GameMode::Deathmatch, 4, 0},
                                         RoundCase{"DeathmatchAtTwiceTheRate", GameMode::Deathmatch, 4, 0,
                                                   [](GameOptions& options) {
                                                       options.updaterate = 120;
                                                       options.frameMultiplier = 2;
                                                   }},
                                         RoundCase{"EverythingOfTwoTeams", GameMode::Everything, 4, 2},
                                         RoundCase{"EverythingOfThreeTeams", GameMode::Everything, 6, 3},
                                         RoundCase{"EverythingOfFourTeams", GameMode::Everything, 8, 4}),
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
        const Winners winners = round.finish(true);
        EXPECT_EQ(players.size() > 4, options.everythingSnakeHunter);
        if (!options.everythingCTF && !options.everythingKotH && !options.everythingDeathmatch) {
            EXPECT_THAT(std::get<TeamWinners>(winners).teams, IsEmpty()) << "nothing brings points";
        }
        requireSoundWinners(winners, round);
    }
}

TEST(WholeRounds, AFlagIsFetchedAndCarriedHomeAndWins) {
    WholeRound round(bareRound(GameMode::CaptureTheFlag), 2, 2);
    ASSERT_TRUE(round.walk(0, {1, 1}));
    players[1]->stopTimer = 1000;  // the defender sleeps
    ASSERT_TRUE(round.walk(0, flagHome(round.game().flags[1])));
    EXPECT_EQ(round.game().flags[1].carrier.lock(), players[0]);
    ASSERT_TRUE(round.walk(0, teams[0].base()));
    EXPECT_EQ(teams[0].score, 1);
    EXPECT_EQ(round.game().shrinkState, ShrinkState::Warning);
    EXPECT_THAT(std::get<TeamWinners>(round.finish(false)).teams, ElementsAre(0));
}

TEST(WholeRounds, WhoStandsOnTheHillLongestWins) {
    WholeRound round(bareRound(GameMode::KingOfTheHill), 3, 3);
    ASSERT_TRUE(round.walk(1, {9, 5}));
    const int scored = teams[1].score;
    round.step(180);
    EXPECT_EQ(teams[1].score, scored + 3);
    EXPECT_THAT(std::get<TeamWinners>(round.finish(false)).teams, ElementsAre(1));
}

TEST(WholeRounds, ARoyaleTeamRescuesItsOwnAndTheOtherIsWipedOut) {
    WholeRound round(bareRound(GameMode::BattleRoyale), 4, 2);
    const PackagedReplayData live;
    Player& fallen = *players[2];
    round.step(10);
    players[0]->x = fallen.x + 32;
    players[0]->y = fallen.y;
    fallen.hurt(DeathReason::Explosion, live, nullptr);
    EXPECT_TRUE(fallen.crawling);
    round.step(179);
    EXPECT_TRUE(fallen.crawling);
    round.step();
    EXPECT_FALSE(fallen.crawling) << "rescued after 180 frames";
    EXPECT_FALSE(fallen.dead);

    players[1]->hurt(DeathReason::Explosion, live, nullptr);
    round.step(5);
    EXPECT_FALSE(players[1]->dead) << "a mate can still come";
    EXPECT_EQ(round.game().roundEndCountdown, -1);
    players[3]->hurt(DeathReason::Explosion, live, nullptr);
    round.step();
    EXPECT_TRUE(players[1]->dead);
    EXPECT_TRUE(players[3]->dead);
    EXPECT_EQ(round.game().roundEndCountdown, 240);
    EXPECT_THAT(std::get<TeamWinners>(round.finish(false)).teams, ElementsAre(0));
    EXPECT_EQ(frameCounter, 10 + 180 + 6 + 240);
}

TEST(WholeRounds, TheKillersOfADeathmatchShareItWhenTheyTie) {
    WholeRound round(bareRound(GameMode::Deathmatch), 3, 0);
    const auto kill = [&](std::size_t killer) {
        ASSERT_TRUE(round.stepUntil([&] { return !players[2]->dead && !players[2]->shield; }));
        placeBomb(players[2]->square(), players[killer], 0);
        round.step();
        EXPECT_TRUE(players[2]->dead);
        EXPECT_EQ(players[killer]->kills, 1);
    };
    kill(0);
    kill(1);
    EXPECT_THAT(std::get<PlayerWinners>(round.finish(false)).players, ElementsAre(players[0], players[1]));
}

TEST(WholeRounds, TheHuntIsLostWithTheLastHunterUnlessTheyComeBack) {
    for (const bool comeBack : {false, true}) {
        GameOptions options = bareRound(GameMode::SnakeHunter);
        options.snakeHunterRespawn = comeBack;
        WholeRound round(options, 2, 0);
        ASSERT_TRUE(round.stepUntil([] { return players.size() == 3; }));
        EXPECT_EQ(teams[1].members.size(), 1U);
        players[0]->die();
        players[1]->die();
        round.step(121);
        EXPECT_EQ(players[0]->dead, !comeBack) << "after two seconds";
        EXPECT_EQ(round.game().roundEndCountdown != -1, !comeBack);
        if (!comeBack) {
            EXPECT_THAT(std::get<TeamWinners>(round.finish(false)).teams, ElementsAre(1));
        }
    }
}

TEST(WholeRounds, TheHuntIsWonWithTheLastSnake) {
    WholeRound round(bareRound(GameMode::SnakeHunter), 2, 0);
    for (std::size_t snake = 2; snake < 5; ++snake) {
        ASSERT_TRUE(round.stepUntil([&] { return players.size() > snake; }));
        EXPECT_EQ(round.game().roundEndCountdown, -1);
        players[snake]->die();
    }
    EXPECT_THAT(std::get<TeamWinners>(round.finish(false)).teams, ElementsAre(0));
    EXPECT_EQ(players.size(), 5U);
}

}  // namespace
}  // namespace vandrel
