#include "shell/timing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <thread>
#include <tuple>
#include <utility>

#include "match/options/game_options.h"
#include "shell/display.h"
#include "shell/profiler.h"
#include "shell/shell_test_tools.h"
#include "shell/update_rate.h"

namespace vandrel::test {
namespace {

TEST(TimingTest, TheRateFigureSaysSixtyWhenEveryTickIsRendered) {
    for (const auto& [rendered, ticks, expected] :
         {std::tuple{120, 120, 60.0f}, {60, 120, 30.0f}, {1, 50, 1.2f}, {0, 7, 0.0f}}) {
        renderedFrames = rendered;
        totalTicks = ticks;
        EXPECT_FLOAT_EQ(frameRateFigure(), expected) << rendered << " of " << ticks;
    }
    renderedFrames = 0;
    totalTicks = 0;
}

TEST(UpdateRateTest, EachRateHasItsMultiplierAndARunningTimer) {
    installAllegroHeadless();
    eventQueue = al_create_event_queue();
    GameOptions options;
    for (const auto& [rate, multiplier] : {std::pair{15, 1}, {60, 1}, {120, 2}, {240, 1}, {1, 1}, {144, 2}}) {
        setUpdateRate(rate, options);
        EXPECT_EQ(options.updaterate, rate);
        EXPECT_EQ(options.frameMultiplier, multiplier) << rate;
        EXPECT_DOUBLE_EQ(al_get_timer_speed(frameTimer), 1.0 / rate);
        EXPECT_TRUE(al_get_timer_started(frameTimer));
    }
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
    profiler.start("one without a window");
    EXPECT_THAT([&] { profiler.stopAveraged("one without a window"); },
                testing::ThrowsMessage<std::out_of_range>("invalid unordered_map<K, T> key"));
}

}  // namespace
}  // namespace vandrel::test
