// A round from the automatic options to its end, by the steps of a match, with random sources that start anew. What
// must hold in every round is required after every update.
#pragma once

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "arena/level_generation.h"
#include "arena/sparks.h"
#include "base/random.h"
#include "match/match_players.h"
#include "match/options/automatic_options.h"
#include "match/options/name_tables.h"
#include "match/round_start.h"
#include "shell/frame_counter.h"
#include "shell/switches.h"
#include "support/round_fixture.h"

namespace vandrel {

class WholeRound {
  public:
    WholeRound(const GameOptions& chosen, int playerCount, int teamCount, unsigned seed = 1)
        : optionsBefore_(gameOptions), outputBefore_(setDebugOutput(nullptr)), keys_(seed) {
        gameOptions = chosen;
        gameOptions.numPlayers = playerCount;
        seedGameRand(seed);
        globalGenerator.seed(seed);
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
        startRound(*game_);
        game_->shrinkCountdown = std::min(game_->shrinkCountdown, longestWait);
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

    void step() {
        game_->update(roundOver_, replayEnded_, nullptr);
        advanceSparks();
        ++frameCounter;
        requireOrder();
    }
    // Steps until `done`; false if the round ends before that.
    template <class Done>
    bool stepUntil(Done done) {
        while (!roundOver_ && frameCounter < longestRound) {
            step();
            if (done()) {
                return true;
            }
        }
        return false;
    }
    // To the end, with people who press at random, and to the winners.
    Winners finish() {
        stepUntil([this] {
            pressAtRandom();
            return testing::Test::HasFailure();
        });
        EXPECT_TRUE(roundOver_) << "after " << frameCounter << " updates";
        return game_->getWinners();
    }
    // Ends the round's own objects; the teams stay.
    void drop() { game_ = nullptr; }

    std::size_t flamesSeen = 0;  // in each update all there are

  private:
    static constexpr int longestRound = 10'000;  // updates
    static constexpr int longestWait = 150;      // updates before the warning of the walls
    static constexpr int slowLookEvery = 10;     // updates between two looks at every square
    static constexpr int bombsGone = 600;        // updates after which the bombs of who died have burst

    void pressAtRandom() {
        for (std::size_t i = 0; i < static_cast<std::size_t>(gameOptions.numPlayers); ++i) {
            if (uniformInt(keys_, 0, 14) == 0) {
                const int direction = uniformInt(keys_, 0, 4);
                const int buttons = uniformInt(keys_, 0, 11);
                static_cast<ScriptedControls&>(*players[i]->controls).held = {
                    direction == 0, direction == 1, direction == 2, direction == 3, buttons == 0, buttons == 1};
            }
        }
    }

    void requireOrder() {
        SCOPED_TRACE(fmt::format("update {}", static_cast<int>(frameCounter)));
        requirePlayersInOrder();
        requireTeamsAndFlagsInOrder();
        if (frameCounter % slowLookEvery == 0) {
            requireSquaresInOrder();
        }
        flamesSeen += game_->explosions.size();
        for (const Explosion& flame : game_->explosions) {
            EXPECT_TRUE(isInsideGrid(flame.square()));
        }
    }
    void requirePlayersInOrder() {
        int snakes = 0;
        int livingAISnakes = 0;
        deadFor_.resize(players.size());
        for (std::size_t i = 0; i < players.size(); ++i) {
            const Player& player = *players[i];
            snakes += player.isSnake() ? 1 : 0;
            livingAISnakes += player.isAI && !player.dead ? 1 : 0;
            deadFor_[i] = player.dead ? deadFor_[i] + 1 : 0;
            EXPECT_TRUE(deadFor_[i] != bombsGone || countBombs(player) == 0) << "bombs of dead player " << player.num;
            EXPECT_TRUE(player.dead || isInnerSquare(player.square())) << "player " << player.num;
            EXPECT_FALSE(player.crawling && player.isSnake() && !player.dead) << "player " << player.num;
            EXPECT_LE(player.speed, gameOptions.speedCap) << "player " << player.num;
        }
        EXPECT_EQ(Player::snakesInPlay(), snakes);
        EXPECT_LE(livingAISnakes, std::max(gameOptions.snakesAtOnce, 0));
    }
    void requireTeamsAndFlagsInOrder() {
        for (const Team& team : teams) {
            EXPECT_EQ(team.displayedScore + pointsUnderWay(team), team.score);
            for (const auto& member : team.members) {
                EXPECT_FALSE(member.expired());
            }
        }
        for (const Flag& flag : game_->flags) {
            const auto carrier = flag.carrier.lock();
            EXPECT_FALSE(flag.inBase && carrier != nullptr);
            EXPECT_TRUE(carrier == nullptr || flag.team < 0 || flag.team != carrier->team);
        }
    }
    void requireSquaresInOrder() {
        for (int x = 0; x < grid_squares_x; ++x) {
            for (int y = 0; y < grid_squares_y; ++y) {
                const int kind = squareGrid.at(x, y);
                const int bonus = bonusGrid.at(x, y);
                EXPECT_TRUE(isKnownKind(kind) && (kind == SquareKind::EdgeWall || isInnerSquare({x, y})) &&
                            bonus >= 0 && bonus < bonusCount && bonus != Bonus::Death)
                    << Square{x, y} << " kind " << kind << " bonus " << bonus;
            }
        }
        for (const auto& player : players) {
            // Bombs of an earlier life may lie there too, so the count can be lower, never higher.
            EXPECT_LE(player->bombsPlaced, countBombs(*player)) << "player " << player->num;
        }
    }
    static bool isKnownKind(int kind) {
        return (kind >= SquareKind::Empty && kind <= SquareKind::HardWallHitTwice) ||
               (kind >= SquareKind::WallCrumbling && kind < SquareKind::WallCrumbled) ||
               (kind >= SquareKind::HardWallCrumbling && kind < SquareKind::HardWallCrumbled);
    }
    int pointsUnderWay(const Team& team) const {
        int points = 0;
        for (const auto& toast : game_->toasts) {
            const auto* score = dynamic_cast<const DisplayScoreToast*>(toast.get());
            points += score != nullptr && score->team == &team ? score->points : 0;
        }
        return points;
    }

    GameOptions optionsBefore_;
    DebugOutput outputBefore_;
    std::mt19937 keys_;
    std::unique_ptr<Game> game_;
    std::vector<int> deadFor_;
    bool roundOver_ = false;
    bool replayEnded_ = false;
};

}  // namespace vandrel
