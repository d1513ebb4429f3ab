#include "match/frame_loop.h"

#include <gtest/gtest.h>

#include <chrono>
#include <deque>
#include <string>
#include <thread>
#include <vector>

#include "arena/game.h"
#include "arena/level_generation.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "shell/frame_counter.h"
#include "shell/log.h"
#include "shell/switches.h"
#include "shell/timing.h"

namespace vandrel {
namespace {

// A world whose clock ticks as the test says: each time the loop empties the event queue the next count of ticks has
// come.
class FrameLoopTest : public testing::Test {
  protected:
    void SetUp() override {
        setDebugOutput([](const char* /*line*/, std::size_t /*length*/) {});
        gameOptions = GameOptions{};
        gameOptions.auctionInterval = 0;
        gameOptions.timeBeforeShrinkingFrames = 10'000;
        gameOptions.gameMode = GameMode::Deathmatch;
        players.clear();
        teams.clear();
        resizeArena({19, 11});
        game_ = std::make_unique<Game>(PackagedReplayData{});
        game_->shrinkCountdown = 10'000;
        fastForward = false;
        diagnostic = false;
        advanceLimit = 0;
    }
    void TearDown() override {
        game_ = nullptr;
        gameOptions = GameOptions{};
        fastForward = false;
        diagnostic = false;
        advanceLimit = 0;
    }

    // The story is told as letters: u an update, p a painting.
    FrameLoopWorld world() {
        FrameLoopWorld world;
        world.takeEvents = [this](const std::function<void()>& onCloseButton) {
            if (ticks_.empty()) {
                onCloseButton();
                return;
            }
            pendingTicks += ticks_.front();
            totalTicks += ticks_.front();
            ticks_.pop_front();
        };
        world.pollDevices = [this] {
            story_ += 'u';
            std::this_thread::sleep_for(updateTakes_);
        };
        world.fastForwardToggled = [this] {
            const bool toggled = toggleAtPass_ == 0;
            --toggleAtPass_;
            return toggled;
        };
        world.pause = [this](const std::shared_ptr<Music>& /*music*/) { return frameCounter == pauseAtFrame_; };
        world.paint = [this](Game& /*game*/) { story_ += 'p'; };
        world.writeOverlay = [this](const std::string& text, int y) { overlay_.emplace_back(text, y); };
        world.writeTimings = [this](const std::string& text) { overlay_.emplace_back(text, 0); };
        world.writeFrameRate = [] {};
        world.present = [] {};
        return world;
    }

    RoundEnding run(std::deque<int> ticks, ReplayTestOptions testOptions = {}) {
        ticks_ = std::move(ticks);
        return FrameLoop(*game_, nullptr, testOptions, "", world()).run();
    }

    std::unique_ptr<Game> game_;
    std::deque<int> ticks_;
    std::string story_;
    std::vector<std::pair<std::string, int>> overlay_;
    std::chrono::milliseconds updateTakes_{0};
    int toggleAtPass_ = -1;
    int pauseAtFrame_ = -1;
};

TEST_F(FrameLoopTest, PaintsAfterEachUpdateWhenTheMachineKeepsUp) {
    EXPECT_TRUE(run({1, 0, 1, 0, 0, 1}).quit);
    EXPECT_EQ(story_, "upupup");
    EXPECT_EQ(frameCounter, 3);
}

TEST_F(FrameLoopTest, RunsTheTicksThatWaitBeforeItPaints) {
    run({3, 0, 0});
    EXPECT_EQ(story_, "uuup");
}

TEST_F(FrameLoopTest, NeverRunsMoreThanFourUpdatesBetweenPaintingsAndDropsTheRest) {
    run({50, 0, 0, 0, 0, 0, 1});
    EXPECT_EQ(story_, "uuuupup");
    EXPECT_EQ(totalTicks, 51) << "dropped ticks still count for the frame rate";
    EXPECT_EQ(renderedFrames, 2);
}

TEST_F(FrameLoopTest, CountsSkippedPaintingsAnewAfterEachPainting) {
    run({2, 0, 9, 0, 0, 0, 0});
    EXPECT_EQ(story_, "uupuuuup");
}

TEST_F(FrameLoopTest, FastForwardRunsWithoutTicksAndPaintsEachUpdate) {
    fastForward = true;
    run({0, 0, 0});
    EXPECT_EQ(story_.substr(0, 6), "upupup");
    ASSERT_FALSE(overlay_.empty());
    EXPECT_EQ(overlay_.front(), std::make_pair(std::string(">>"), 0));
}

TEST_F(FrameLoopTest, F8TogglesFastForward) {
    toggleAtPass_ = 2;
    run({0, 0, 0, 0});
    EXPECT_EQ(story_.substr(0, 4), "upup") << "two passes wait, then updates run without ticks";
    EXPECT_TRUE(fastForward);
}

TEST_F(FrameLoopTest, TheReplayTestPaintsEverySixtiethUpdate) {
    fastForward = true;
    advanceLimit = 150;
    run(std::deque<int>(200, 0), {.fastForward = true, .skipRoundEnd = true});
    EXPECT_EQ(story_, std::string(60, 'u') + 'p' + std::string(60, 'u') + 'p' + std::string(30, 'u'));
}

TEST_F(FrameLoopTest, AnAdvanceLimitOfOneQuitsAfterOneUpdate) {
    advanceLimit = 1;
    EXPECT_TRUE(run({1, 1, 1}).quit);
    EXPECT_EQ(frameCounter, 1);
}

TEST_F(FrameLoopTest, PauseQuitsAtTheEndOfItsUpdate) {
    pauseAtFrame_ = 2;
    const RoundEnding ending = run({1, 1, 1, 1, 1});
    EXPECT_TRUE(ending.quit);
    EXPECT_FALSE(ending.roundOver);
    EXPECT_EQ(frameCounter, 3);
}

TEST_F(FrameLoopTest, EndsTwoHundredFortyUpdatesAfterTheRoundWasDecided) {
    gameOptions.gameMode = GameMode::Classic;
    gameOptions.numPlayers = 1;  // nobody is left to win against from the first update on
    fastForward = true;
    const RoundEnding ending = run(std::deque<int>(400, 0));
    EXPECT_TRUE(ending.roundOver);
    EXPECT_FALSE(ending.quit);
    EXPECT_EQ(frameCounter, 241);
}

TEST_F(FrameLoopTest, DiagnosticModeShowsTimingsFrameAndShrinkCountdown) {
    diagnostic = true;
    fastForward = true;
    advanceLimit = 2;
    updateTakes_ = std::chrono::milliseconds(2);
    run({0, 0, 0});
    ASSERT_GE(overlay_.size(), 4U);
    EXPECT_EQ(overlay_[0],
              std::make_pair(std::string("Update: 0.0ms  Render1: 0.0ms  Render2: 0.0ms  Frame: 0.0ms"), 0))
        << "no frame was finished before the first, however long its own update took";
    EXPECT_EQ(overlay_[1], std::make_pair(std::string("0"), 10));
    EXPECT_EQ(overlay_[2], std::make_pair(std::string("9999"), 20));
    EXPECT_EQ(overlay_[3], std::make_pair(std::string(">>"), 30));
}

}  // namespace
}  // namespace vandrel
