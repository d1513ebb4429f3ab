#include "shell/frame_pump.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "input/controls_manager.h"
#include "shell/display.h"
#include "shell/frame_counter.h"
#include "shell/shell_test_tools.h"
#include "shell/switches.h"
#include "shell/timing.h"

namespace vandrel::test {
namespace {

// A queue into which the test puts the events itself, and bitmaps in memory in the place of a display.
class FramePumpTest : public testing::Test {
  protected:
    FramePumpTest() {
        installAllegroHeadless();
        eventQueue = al_create_event_queue();
        al_init_user_event_source(&source);
        al_register_event_source(eventQueue, &source);
        theControlsManager = std::make_unique<ControlsManager>();
        gameScreenWidth = 40;
        gameScreenHeight = 30;
        screen = std::make_shared<BitmapWrapper>(40, 30, false);
        displayBitmap = std::make_shared<BitmapWrapper>(80, 60, false);
        pendingTicks = 0;
        totalTicks = 0;
        renderedFrames = 0;
        frameCounter = 0;
    }

    ~FramePumpTest() override {
        steamListenerFlag = nullptr;
        theSteamListener.reset();
        theControlsManager.reset();
        screen.reset();
        displayBitmap.reset();
        al_destroy_event_queue(eventQueue);
        eventQueue = nullptr;
        al_destroy_user_event_source(&source);
    }

    void emit(int type, int count = 1) {
        for (int i = 0; i < count; ++i) {
            ALLEGRO_EVENT event{};
            event.type = static_cast<ALLEGRO_EVENT_TYPE>(type);
            ASSERT_TRUE(al_emit_user_event(&source, &event, nullptr));
        }
    }

    // Runs the pump until it has been asked `passes` times; gives the calls that it made: U, R and C for a change of
    // the controllers.
    std::string pump(int passes = 100, bool logAverageFps = false) {
        std::string calls;
        int asked = 0;
        framePump([&] { calls += 'U'; }, [&] { calls += 'R'; }, [&] { return ++asked > passes; }, [&] { calls += 'C'; },
                  logAverageFps);
        return calls;
    }

    ALLEGRO_EVENT_SOURCE source{};
    CapturedLog captured;
};

TEST_F(FramePumpTest, BacklogsOfTicks) {
    struct Case {
        int ticks;
        const char* calls;
        int rendered;
    };
    for (const Case& c : {Case{0, "", 0}, Case{1, "UR", 1}, Case{2, "UUR", 1}, Case{4, "UUUUR", 1},
                          Case{5, "UUUUUR", 1}, Case{6, "UUUUUR", 1}, Case{50, "UUUUUR", 1}}) {
        SCOPED_TRACE(c.ticks);
        emit(ALLEGRO_EVENT_TIMER, c.ticks);
        EXPECT_EQ(pump(), c.calls);
        EXPECT_EQ(pendingTicks, 0);
        EXPECT_EQ(totalTicks, c.ticks) << "dropped ticks count as well";
        EXPECT_EQ(renderedFrames, c.rendered);
    }
}

TEST_F(FramePumpTest, TicksThatArriveDuringUpdatesAndRendersAreTakenUp) {
    std::string calls;
    int asked = 0;
    emit(ALLEGRO_EVENT_TIMER, 2);
    const auto update = [&] {
        calls += 'U';
        if (calls == "U") {
            emit(ALLEGRO_EVENT_TIMER);
        }
    };
    const auto render = [&] {
        calls += 'R';
        if (calls.size() == 4) {
            emit(ALLEGRO_EVENT_TIMER, 6);
        }
    };
    framePump(update, render, [&] { return ++asked > 50; });
    EXPECT_EQ(calls, "UUURUUUUUR");
}

TEST_F(FramePumpTest, TicksLeftFromBeforeAreUsedAndTheCountersBeginAnew) {
    pendingTicks = 3;
    totalTicks = 900;
    renderedFrames = 800;
    EXPECT_EQ(pump(), "UUUR");
    EXPECT_EQ(totalTicks, 0);
    EXPECT_EQ(renderedFrames, 1);
}

TEST_F(FramePumpTest, DoneOnEntryDoesNothingButLetsGoOfTheClosures) {
    emit(ALLEGRO_EVENT_TIMER, 3);
    std::vector<std::string> released;
    const auto token = [&released](const char* name) {
        return std::shared_ptr<int>(new int(0), [&released, name](const int* held) {
            delete held;
            released.emplace_back(name);
        });
    };
    framePump([held = token("update")] { FAIL(); }, [held = token("render")] { FAIL(); },
              [held = token("isDone")] { return true; }, [held = token("onControllersChanged")] { FAIL(); });
    EXPECT_EQ(released, (std::vector<std::string>{"update", "render", "isDone", "onControllersChanged"}));
    EXPECT_EQ(totalTicks, 0) << "no event is taken";
}

TEST_F(FramePumpTest, IsDoneIsAskedBetweenTheUpdatesOfABacklog) {
    emit(ALLEGRO_EVENT_TIMER, 50);
    EXPECT_EQ(pump(2), "UU");
    EXPECT_EQ(pendingTicks, 48) << "what the next screen finds";
}

TEST_F(FramePumpTest, AnOverlaySkipsOnlyTheUpdates) {
    createSteamListener();
    theSteamListener->overlayActive = true;
    emit(ALLEGRO_EVENT_TIMER, 2);
    EXPECT_EQ(pump(), "R");
    EXPECT_EQ(totalTicks, 2);
    theSteamListener->overlayActive = false;
    emit(ALLEGRO_EVENT_TIMER);
    EXPECT_EQ(pump(), "UR");
}

TEST_F(FramePumpTest, ControllersAreSeenToBeforeTheNextUpdate) {
    emit(ALLEGRO_EVENT_TIMER);
    emit(ALLEGRO_EVENT_JOYSTICK_CONFIGURATION);
    EXPECT_EQ(pump(), "CUR");
    EXPECT_EQ(captured.text().rfind("0: ALLEGRO_EVENT_JOYSTICK_CONFIGURATION\n", 0), 0U) << captured.text();
    emit(ALLEGRO_EVENT_JOYSTICK_CONFIGURATION);
    emit(ALLEGRO_EVENT_TIMER);
    int asked = 0;
    EXPECT_NO_THROW(framePump([] {}, [] {}, [&asked] { return ++asked > 5; })) << "the fourth closure may be empty";
}

TEST_F(FramePumpTest, OtherEventsAreLoggedOrDropped) {
    emit(ALLEGRO_EVENT_DISPLAY_CLOSE);
    emit(ALLEGRO_EVENT_DISPLAY_LOST);
    emit(ALLEGRO_EVENT_KEY_DOWN);
    emit(ALLEGRO_EVENT_DISPLAY_FOUND);
    emit(ALLEGRO_EVENT_TIMER);
    EXPECT_EQ(pump(), "UR");
    EXPECT_EQ(captured.text(), "0: ALLEGRO_EVENT_DISPLAY_LOST\n0: ALLEGRO_EVENT_DISPLAY_FOUND\n");
}

TEST_F(FramePumpTest, TheCloseButtonReachesWhoeverAsksForIt) {
    int closed = 0;
    emit(ALLEGRO_EVENT_TIMER, 2);
    emit(ALLEGRO_EVENT_DISPLAY_CLOSE);
    takeEvents({}, [&closed] { ++closed; });
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(pendingTicks, 2);
}

TEST_F(FramePumpTest, AScreenInsideAScreenUsesTheSameTicks) {
    std::string calls;
    int asked = 0;
    emit(ALLEGRO_EVENT_TIMER, 5);
    const auto update = [&] {
        calls += 'U';
        if (calls == "U") {
            int innerAsked = 0;
            framePump([&] { calls += 'u'; }, [&] { calls += 'r'; }, [&] { return ++innerAsked > 20; });
            emit(ALLEGRO_EVENT_TIMER, 3);
        }
    };
    framePump(
        update, [&] { calls += 'R'; }, [&] { return ++asked > 20; });
    // The inner pump finds all five; the outer update that it ran in then counts as one more than there were.
    EXPECT_EQ(calls, "UuuuuurUUR");
    EXPECT_EQ(totalTicks, 3);
}

TEST_F(FramePumpTest, TheAverageIsLoggedAtTheEnd) {
    std::string calls;
    int asked = 0;
    emit(ALLEGRO_EVENT_TIMER, 2);
    const auto render = [&] {
        if (++asked < 1000) {
            asked = 1000;
            emit(ALLEGRO_EVENT_TIMER, 2);
        }
    };
    framePump([] {}, render, [&] { return ++asked > 1100; }, {}, true);
    EXPECT_EQ(captured.text(), "0: Average FPS: 30.0\n");
}

TEST_F(FramePumpTest, WhatAClosureThrowsPassesThrough) {
    emit(ALLEGRO_EVENT_TIMER);
    EXPECT_THROW(framePump([] { throw std::domain_error("x"); }, [] {}, [] { return false; }), std::domain_error);
    pendingTicks = 1;
    EXPECT_THROW(framePump(
                     {}, [] {}, [] { return false; }),
                 std::bad_function_call);
    pendingTicks = 1;
    EXPECT_THROW(framePump([] {}, {}, [] { return false; }), std::bad_function_call);
    EXPECT_THROW(framePump([] {}, [] {}, {}), std::bad_function_call);
}

}  // namespace
}  // namespace vandrel::test
