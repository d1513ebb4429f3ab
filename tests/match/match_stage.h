// Whole matches in a world of the test's own: every pass of the frame loop brings one tick, nothing is painted, and the
// test says what befalls each round. Files go to a folder that is removed. The tests of the match driver use it.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "arena/game.h"
#include "base/random.h"
#include "match/match_players.h"
#include "match/options/game_options.h"
#include "match/play_the_game.h"
#include "players/player.h"
#include "presentation/play_sample.h"
#include "shell/frame_counter.h"
#include "shell/log.h"
#include "shell/shell_test_tools.h"
#include "shell/switches.h"
#include "shell/timing.h"
#include "shell/update_rate.h"
#include "support/round_fixture.h"

namespace vandrel {

// What a match asks of its music.
struct MusicCalls {
    int made = 0;
    int faded = 0;
    int stopped = 0;
};

class CountedMusic final : public Music {
  public:
    explicit CountedMusic(MusicCalls& calls) : calls_(calls) { ++calls_.made; }
    void setVolume(int /*volume*/) override {}
    void fadeTo(float /*seconds*/, int /*volume*/) override { ++calls_.faded; }
    void stop() override { ++calls_.stopped; }

  private:
    MusicCalls& calls_;
};

// A score table that was shown: the scores of its rows before and after the round.
struct ShownTable {
    std::vector<int> before;
    std::vector<int> after;
    bool noWinner;
    std::string text;
};

using Wins = std::vector<int>;

// A match on the smallest arena with nothing in it, two players, and nothing to be drawn by the automatic options.
inline GameOptions bareMatchOptions() {
    GameOptions options;
    options.arenaSize = 1;
    options.shrinkStyle = 1;
    options.shrinkSpeed = 5;
    options.timeBeforeShrinking = 3;
    options.gridBlocks = 1;
    options.wallDensity = 0;
    options.powerupDensity = 0;
    options.auctions = 0;
    options.randomnessIncrease = 0;
    options.winsNeeded = 1;
    options.quickStartPlayers = 1;
    options.respawnWalls = {};
    return options;
}

class MatchStage : public testing::Test {
  protected:
    MatchStage() : optionsBefore_(gameOptions), outputBefore_(setDebugOutput(keepLine)) {
        logLines().clear();
        gameOptions = bareMatchOptions();
        fillTeamPalettes();
        verifyEnabled = true;
        for (int i = 0; i < 8; ++i) {
            devices_.push_back(std::make_shared<ScriptedControls>());
        }
    }
    ~MatchStage() override {
        clearMatch();
        setDebugOutput(outputBefore_);
        setSamplePlayer(nullptr);
        gameOptions = optionsBefore_;
        reaches = Reaches{};
        fastForward = false;
        diagnostic = false;
        lootboxesEnabled = true;
        advanceLimit = 0;
        frameCounter = 0;
    }

    // Lines of the log so far, without the number of the frame.
    static std::vector<std::string>& logLines() {
        static std::vector<std::string> lines;
        return lines;
    }
    static int timesLogged(const std::string& line) {
        return static_cast<int>(std::count(logLines().begin(), logLines().end(), line));
    }

    // Called before each update, with the round's number from 0.
    std::function<void(int round)> onUpdate;
    // Lets players join, where there is no quick start. False leaves the match.
    std::function<bool()> joinPlayers;
    // The update of every round at which the window's close button is pressed.
    int closeAtUpdate = -1;

    // Round after round of Classic in which these players die in the first update. What stood on the score table when
    // each round began is kept. A match that should have ended and did not is quit. `besides` is called behind it in
    // every update.
    void letDie(const std::vector<std::vector<int>>& victims, const std::function<void(int round)>& besides = {}) {
        onUpdate = [this, victims, besides](int round) {
            if (frameCounter == 0) {
                Wins& wins = winsAtStart.emplace_back();
                for (const auto& player : players) {
                    wins.push_back(player->wins);
                }
                closeAtUpdate = round < static_cast<int>(victims.size()) ? -1 : 1;
                for (const int number : closeAtUpdate == 1 ? Wins{} : victims[static_cast<std::size_t>(round)]) {
                    players.at(static_cast<std::size_t>(number))->die();
                }
            }
            if (besides) {
                besides(round);
            }
        };
    }
    std::vector<Wins> winsAtStart;

    bool play(bool record = false, const std::string& replayName = {}, ReplayTestOptions testOptions = {}) {
        return play_the_game(record, replayName, testOptions, world());
    }

    MatchWorld world() {
        MatchWorld world;
        world.frames.takeEvents = [this](const std::function<void()>& onCloseButton) {
            ++pendingTicks;
            ++totalTicks;
            if (frameCounter == closeAtUpdate) {
                onCloseButton();
            }
            if (++updates_ > mostUpdates) {
                ADD_FAILURE() << "the matches do not end";
                onCloseButton();
            }
        };
        world.frames.pollDevices = [this] {
            if (onUpdate) {
                onUpdate(rounds() - 1);
            }
        };
        world.frames.fastForwardToggled = [] { return false; };
        world.frames.pause = [](const std::shared_ptr<Music>& /*music*/) { return false; };
        world.frames.paint = [](Game& /*game*/) {};
        world.frames.writeOverlay = [](const std::string& /*text*/, int /*y*/) {};
        world.frames.writeTimings = [](const std::string& /*text*/) {};
        world.frames.writeFrameRate = [] {};
        world.frames.present = [] {};
        world.devices = [this] { return devices_; };
        world.joinPlayers = [this] { return joinPlayers(); };
        world.makeMusic = [this] { return std::make_shared<CountedMusic>(music); };
        world.setUpdateRate = [this](int rate) {
            gameOptions.updaterate = rate;
            gameOptions.frameMultiplier = frameMultiplierOf(rate);
            rates.push_back(rate);
        };
        world.showRandomness = [this](Game& /*game*/) { shownRandomness.push_back(gameOptions.randomness); };
        world.roundEnd.trophyRoom = [this](const std::vector<ScoringEntity>& entities, bool noWinner,
                                           const std::string& text) {
            ShownTable& table = tables.emplace_back(ShownTable{{}, {}, noWinner, text});
            for (const ScoringEntity& entity : entities) {
                table.before.push_back(entity.previousScore);
                table.after.push_back(entity.score);
            }
        };
        world.roundEnd.lootboxRoom = [this] { tablesAtLootboxes.push_back(tables.size()); };
        world.showNoSpace = [this](const std::string& text) { noSpaceTexts.push_back(text); };
        return world;
    }

    // Rounds begun so far in all matches of the test.
    static int rounds() { return timesLogged("Begin game\n"); }

    MusicCalls music;
    std::vector<int> rates;  // every update rate that was set
    std::vector<int> shownRandomness;
    std::vector<std::string> noSpaceTexts;
    std::vector<ShownTable> tables;
    std::vector<std::size_t> tablesAtLootboxes;  // how many tables had been shown at each count of the cash
    test::ScratchDirectory folder;               // holds the replays

  private:
    static constexpr int mostUpdates = 50'000;

    static void keepLine(const char* line, std::size_t length) {
        const std::string text(line, length);
        logLines().push_back(text.substr(text.find(": ") + 2));
    }

    GameOptions optionsBefore_;
    DebugOutput outputBefore_;
    DeviceList devices_;
    int updates_ = 0;
};

}  // namespace vandrel
