#include "shell/timing.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <thread>

#include "match/options/game_options.h"
#include "shell/display.h"
#include "shell/profiler.h"
#include "shell/shell_test_tools.h"
#include "shell/update_rate.h"

namespace vandrel::test {
namespace {

TEST(TimingTest, TheRateFigureSaysSixtyWhenEveryTickIsRendered) {
    struct Case {
        int rendered;
        int ticks;
        float expected;
    };
    for (const Case& c : {Case{120, 120, 60.0f}, Case{60, 120, 30.0f}, Case{1, 50, 1.2f}, Case{0, 7, 0.0f}}) {
        renderedFrames = c.rendered;
        totalTicks = c.ticks;
        EXPECT_FLOAT_EQ(frameRateFigure(), c.expected) << c.rendered << " of " << c.ticks;
    }
    renderedFrames = 0;
    totalTicks = 0;
}

TEST(UpdateRateTest, EachRateHasItsMultiplierAndARunningTimer) {
    installAllegroHeadless();
    eventQueue = al_create_event_queue();
    struct Case {
        int rate;
        int multiplier;
    };
    for (const Case& c :
         {Case{15, 1}, Case{30, 1}, Case{45, 1}, Case{60, 1}, Case{120, 2}, Case{144, 2}, Case{240, 1}, Case{1, 1}}) {
        GameOptions options;
        setUpdateRate(c.rate, options);
        EXPECT_EQ(options.updaterate, c.rate);
        EXPECT_EQ(options.frameMultiplier, c.multiplier) << c.rate;
        EXPECT_DOUBLE_EQ(al_get_timer_speed(frameTimer), 1.0 / c.rate);
        EXPECT_TRUE(al_get_timer_started(frameTimer));
    }
    GameOptions options;
    setUpdateRate(144, options);
    ALLEGRO_EVENT event;
    ASSERT_TRUE(al_wait_for_event_timed(eventQueue, &event, 5.0f)) << "the timer is not on the queue";
    EXPECT_EQ(event.type, static_cast<ALLEGRO_EVENT_TYPE>(ALLEGRO_EVENT_TIMER));
    EXPECT_EQ(event.timer.source, frameTimer) << "an event of a timer that has been replaced";
    al_destroy_timer(frameTimer);
    frameTimer = nullptr;
    al_destroy_event_queue(eventQueue);
    eventQueue = nullptr;
}

TEST(ProfilerTest, AWatchGivesSecondsOnce) {
    Profiler profiler;
    profiler.start("a");
    profiler.start("b");
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    const double a = profiler.stop("a");
    profiler.start("a");
    EXPECT_LT(profiler.stop("a"), a) << "started again";
    EXPECT_GE(a, 0.02);
    EXPECT_GE(profiler.stop("b"), 0.02) << "it ran on";
    EXPECT_EQ(profiler.stop("a"), 0.0) << "it does not run";
}

TEST(ProfilerTest, AnAverageForgetsWhatLeftItsWindow) {
    Profiler profiler;
    profiler.addAverage("pass", 2);
    const auto sample = [&profiler](int milliseconds) {
        profiler.start("pass");
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
        return profiler.stopAveraged("pass");
    };
    const auto [first, firstAverage] = sample(40);
    EXPECT_FLOAT_EQ(firstAverage, static_cast<float>(first));
    const auto [second, secondAverage] = sample(1);
    EXPECT_NEAR(secondAverage, (first + second) / 2, 1e-5);
    const auto [third, thirdAverage] = sample(1);
    EXPECT_NEAR(thirdAverage, (second + third) / 2, 1e-5);
    profiler.addAverage("pass", 5);
    const auto [fourth, fourthAverage] = sample(1);
    EXPECT_FLOAT_EQ(fourthAverage, static_cast<float>(fourth)) << "begun again";
}

TEST(ProfilerTest, AnAverageThatWasNotBegunIsAnError) {
    Profiler profiler;
    profiler.start("pass");
    try {
        profiler.stopAveraged("pass");
        FAIL();
    } catch (const std::out_of_range& failure) {
        EXPECT_STREQ(failure.what(), "invalid unordered_map<K, T> key");
    }
}

}  // namespace
}  // namespace vandrel::test
