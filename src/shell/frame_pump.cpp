#include "shell/frame_pump.h"

#include <fmt/format.h>

#include "input/controls_manager.h"
#include "input/keyboard.h"
#include "shell/display.h"
#include "shell/frame_overlay.h"
#include "shell/log.h"
#include "shell/profiler.h"
#include "shell/switches.h"
#include "shell/timing.h"

namespace vandrel {
namespace {

constexpr int maxUpdatesInARow = 5;

// One tick of the screen's logic; gives the seconds that it took.
double runUpdate(const std::function<void()>& update, const std::function<void()>& onControllersChanged) {
    theProfiler.start("update");
    if (theControlsManager->poll() && onControllersChanged) {
        onControllersChanged();
    }
    if (!isSuspendedByOverlay()) {
        update();
    }
    return theProfiler.stop("update");
}

// Paints one frame and shows it. `times` holds this pass's update time and the frame before on entry, and this frame's
// other times on return.
void runRender(const std::function<void()>& render, bool showTimings, FrameTimes& times) {
    theProfiler.start("render1");
    render();
    times.render1 = theProfiler.stop("render1");
    theProfiler.start("render2");
    if (alwaysShowFPS) {
        drawFrameRate(FontId::Font30);
    }
    if (diagnostic || showTimings) {
        drawTimingLine(times);
    }
    times.previousRender2 = theProfiler.stop("render2");
    times.previousFrame = times.update + times.render1 + times.previousRender2;
    presentFrame();
    ++renderedFrames;
}

}  // namespace

void takeEvents(const std::function<void()>& onControllersChanged, const std::function<void()>& onCloseButton) {
    ALLEGRO_EVENT event;
    while (al_get_next_event(eventQueue, &event)) {
        switch (event.type) {
            case ALLEGRO_EVENT_TIMER:
                ++pendingTicks;
                ++totalTicks;
                break;
            case ALLEGRO_EVENT_JOYSTICK_CONFIGURATION:
                logText("ALLEGRO_EVENT_JOYSTICK_CONFIGURATION\n");
                theControlsManager->rescan();
                if (onControllersChanged) {
                    onControllersChanged();
                }
                break;
            case ALLEGRO_EVENT_DISPLAY_CLOSE:
                if (onCloseButton) {
                    onCloseButton();
                }
                break;
            case ALLEGRO_EVENT_DISPLAY_RESIZE:
                acknowledgeResize();
                break;
            case ALLEGRO_EVENT_DISPLAY_SWITCH_OUT:
                letGoOfKeys();
                break;
            case ALLEGRO_EVENT_DISPLAY_LOST:
                logText("ALLEGRO_EVENT_DISPLAY_LOST\n");
                break;
            case ALLEGRO_EVENT_DISPLAY_FOUND:
                logText("ALLEGRO_EVENT_DISPLAY_FOUND\n");
                break;
            default:
                break;
        }
    }
}

void framePump(std::function<void()> update, std::function<void()> render, std::function<bool()> isDone,
               std::function<void()> onControllersChanged, bool logAverageFps, bool showTimings) {
    renderedFrames = 0;
    totalTicks = 0;
    FrameTimes times;
    int updatesInARow = 0;
    while (!isDone()) {
        takeEvents(onControllersChanged, {});
        if (pendingTicks < 1) {
            continue;
        }
        times.update = runUpdate(update, onControllersChanged);
        --pendingTicks;
        if (pendingTicks != 0 && ++updatesInARow != maxUpdatesInARow) {
            continue;
        }
        pendingTicks = 0;
        updatesInARow = 0;
        runRender(render, showTimings, times);
    }
    if (logAverageFps) {
        logText(fmt::format("Average FPS: {:.1f}\n", frameRateFigure()));
    }
    // What the closures hold is let go of here, in this order, not in whichever order the compiler ends its arguments.
    update = nullptr;
    render = nullptr;
    isDone = nullptr;
    onControllersChanged = nullptr;
}

}  // namespace vandrel
