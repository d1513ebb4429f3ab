#include "match/frame_loop.h"

#include <gtest/gtest.h>

#include <chrono>
#include <deque>
#include <string>
#include <thread>
#include <vector>

#include "shell/frame_counter.h"
#include "shell/switches.h"
#include "shell/timing.h"
#include "support/round_fixture.h"

namespace vandrel {
namespace {

using Overlay = std::pair<std::string, int>;

// A world whose clock ticks as the test says: each time the loop empties the event queue the next count of ticks has
// come.
class FrameLoopTest : public testing::Test {
  protected:
    FrameLoopTest() {
        fastForward = false;
        round_.game().shrinkCountdown = 10'000;
    }
    ~FrameLoopTest() override {
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
        story_.clear();
        return FrameLoop(round_.game(), nullptr, testOptions, "", world()).run();
    }

    TestRound round_{{.mode = GameMode::Deathmatch}};
    std::deque<int> ticks_;
    std::string story_;
    std::vector<Overlay> overlay_;
    std::chrono::milliseconds updateTakes_{0};
    int toggleAtPass_ = -1;
    int pauseAtFrame_ = -1;
};

TEST_F(FrameLoopTest, PaintsBehindTheUpdatesThatWaitAndDropsWhatIsMoreThanFour) {
    struct Case {
        const char* what;
        std::deque<int> ticks;
        const char* story;
        int rendered;
    };
    for (const Case& c :
         {Case{"the machine keeps up", {1, 0, 1, 0, 0, 1}, "upupup", 3}, Case{"ticks wait", {3, 0, 0}, "uuup", 1},
          Case{"skipped paintings are counted anew", {2, 0, 9, 0, 0, 0, 0}, "uupuuuup", 2},
          Case{"many ticks wait", {50, 0, 0, 0, 0, 0, 1}, "uuuupup", 2}}) {
        SCOPED_TRACE(c.what);
        EXPECT_TRUE(run(c.ticks).quit);
        EXPECT_EQ(story_, c.story);
        EXPECT_EQ(renderedFrames, c.rendered);
        EXPECT_EQ(frameCounter, std::count(story_.begin(), story_.end(), 'u'));
    }
    EXPECT_EQ(totalTicks, 51) << "dropped ticks still count for the frame rate";
}

TEST_F(FrameLoopTest, FastForwardRunsWithoutTicksAndPaintsEachUpdate) {
    fastForward = true;
    run({0, 0, 0});
    EXPECT_EQ(story_.substr(0, 6), "upupup");
    ASSERT_FALSE(overlay_.empty());
    EXPECT_EQ(overlay_.front(), (Overlay{">>", 0}));
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

TEST_F(FrameLoopTest, DiagnosticModeShowsTimingsFrameAndShrinkCountdown) {
    diagnostic = true;
    fastForward = true;
    advanceLimit = 2;
    updateTakes_ = std::chrono::milliseconds(2);
    run({0, 0, 0});
    ASSERT_GE(overlay_.size(), 4U);
    EXPECT_EQ(overlay_[0], (Overlay{"Update: 0.0ms  Render1: 0.0ms  Render2: 0.0ms  Frame: 0.0ms", 0}))
        << "no frame was finished before the first, however long its own update took";
    EXPECT_EQ(overlay_[1], (Overlay{"0", 10}));
    EXPECT_EQ(overlay_[2], (Overlay{"9999", 20}));
    EXPECT_EQ(overlay_[3], (Overlay{">>", 30}));
}

}  // namespace
}  // namespace vandrel
