#include "shell/frame_pump.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>
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

    // A letter an event: Tick, Joysticks changed, Key down, and of the display: Close, Lost, Found.
    void emit(std::string_view letters) {
        const std::map<char, int> types{{'T', ALLEGRO_EVENT_TIMER},        {'J', ALLEGRO_EVENT_JOYSTICK_CONFIGURATION},
                                        {'K', ALLEGRO_EVENT_KEY_DOWN},     {'C', ALLEGRO_EVENT_DISPLAY_CLOSE},
                                        {'L', ALLEGRO_EVENT_DISPLAY_LOST}, {'F', ALLEGRO_EVENT_DISPLAY_FOUND}};
        for (const char letter : letters) {
            ALLEGRO_EVENT event{};
            event.type = static_cast<ALLEGRO_EVENT_TYPE>(types.at(letter));
            ASSERT_TRUE(al_emit_user_event(&source, &event, nullptr));
        }
    }

    // Runs the pump until it has been asked `passes` times; gives the calls that it made: Update, Render, and Joysticks
    // changed.
    static std::string pump(int passes = 100) {
        std::string calls;
        int asked = 0;
        framePump([&] { calls += 'U'; }, [&] { calls += 'R'; }, [&] { return ++asked > passes; },
                  [&] { calls += 'J'; });
        return calls;
    }

    ALLEGRO_EVENT_SOURCE source{};
    CapturedLog captured;
};

TEST_F(FramePumpTest, EventsBecomeUpdatesAndAFrame) {
    struct Case {
        const char* what;
        int pendingBefore;
        std::string events;
        int passes;
        std::string calls;
        int pendingAfter;
        int ticks;
        std::string logged = "";
    };
    const Case cases[] = {
        {"no tick", 0, "", 100, "", 0, 0},
        {"a tick", 0, "T", 100, "UR", 0, 1},
        {"a backlog", 0, "TTTT", 100, "UUUUR", 0, 4},
        {"the longest", 0, "TTTTT", 100, "UUUUUR", 0, 5},
        {"ticks that are dropped count as well", 0, std::string(50, 'T'), 100, "UUUUUR", 0, 50},
        {"ticks left from before are used, but not counted", 3, "", 100, "UUUR", 0, 0},
        {"done between updates: the rest is what the next screen finds", 0, std::string(50, 'T'), 2, "UU", 48, 50},
        {"joysticks are seen to before the next update", 0, "TJ", 100, "JUR", 0, 1,
         "0: ALLEGRO_EVENT_JOYSTICK_CONFIGURATION\n"},
        {"other events are logged or dropped", 0, "TCLKF", 100, "UR", 0, 1,
         "0: ALLEGRO_EVENT_DISPLAY_LOST\n0: ALLEGRO_EVENT_DISPLAY_FOUND\n"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const CapturedLog log;
        pendingTicks = c.pendingBefore;
        totalTicks = 900;
        renderedFrames = 800;
        emit(c.events);
        EXPECT_EQ(pump(c.passes), c.calls);
        EXPECT_EQ(std::tuple(pendingTicks, totalTicks, renderedFrames),
                  std::tuple(c.pendingAfter, c.ticks, std::ranges::count(c.calls, 'R')));
        // The list of devices tells of itself behind the line of the pump.
        const bool devicesLog = c.events.find('J') != std::string::npos;
        EXPECT_EQ(devicesLog ? log.text().substr(0, c.logged.size()) : log.text(), c.logged);
    }
    emit("JT");
    int asked = 0;
    EXPECT_NO_THROW(framePump([] {}, [] {}, [&asked] { return ++asked > 5; })) << "the fourth closure may be empty";
}

TEST_F(FramePumpTest, TicksThatArriveDuringUpdatesAndRendersAreTakenUp) {
    std::string calls;
    int asked = 0;
    emit("TT");
    const auto update = [&] {
        calls += 'U';
        emit(calls == "U" ? "T" : "");
    };
    const auto render = [&] {
        calls += 'R';
        emit(calls.size() == 4 ? "TTTTTT" : "");
    };
    framePump(update, render, [&] { return ++asked > 50; });
    EXPECT_EQ(calls, "UUURUUUUUR");
}

TEST_F(FramePumpTest, DoneOnEntryDoesNothingButLetsGoOfTheClosures) {
    emit("TTT");
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

TEST_F(FramePumpTest, AnOverlaySkipsOnlyTheUpdates) {
    createSteamListener();
    theSteamListener->overlayActive = true;
    emit("TT");
    EXPECT_EQ(pump(), "R");
    EXPECT_EQ(totalTicks, 2);
    theSteamListener->overlayActive = false;
    emit("T");
    EXPECT_EQ(pump(), "UR");
}

TEST_F(FramePumpTest, TheCloseButtonReachesWhoeverAsksForIt) {
    int closed = 0;
    emit("TTC");
    takeEvents({}, [&closed] { ++closed; });
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(pendingTicks, 2);
}

TEST_F(FramePumpTest, AScreenInsideAScreenUsesTheSameTicks) {
    std::string calls;
    int asked = 0;
    emit("TTTTT");
    const auto update = [&] {
        calls += 'U';
        if (calls == "U") {
            int innerAsked = 0;
            framePump([&] { calls += 'u'; }, [&] { calls += 'r'; }, [&] { return ++innerAsked > 20; });
            emit("TTT");
        }
    };
    framePump(
        update, [&] { calls += 'R'; }, [&] { return ++asked > 20; });
    // The inner pump finds all five; the outer update that it ran in then counts as one more than there were.
    EXPECT_EQ(calls, "UuuuuurUUR");
    EXPECT_EQ(totalTicks, 3);
}

TEST_F(FramePumpTest, TheAverageIsLoggedAtTheEnd) {
    int rendered = 0;
    int asked = 0;
    emit("TT");
    framePump([] {}, [&] { emit(++rendered == 1 ? "TT" : ""); }, [&] { return ++asked > 100; }, {}, true);
    EXPECT_EQ(captured.text(), "0: Average FPS: 30.0\n");
}

TEST_F(FramePumpTest, WhatAClosureThrowsPassesThrough) {
    emit("T");
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
