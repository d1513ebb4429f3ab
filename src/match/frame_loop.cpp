#include "match/frame_loop.h"

#include <allegro5/allegro.h>
#include <fmt/format.h>

#include <utility>

#include "arena/game.h"
#include "arena/game_drawing.h"
#include "arena/sparks.h"
#include "frontend/pause_menu.h"
#include "input/controls_manager.h"
#include "input/keyboard.h"
#include "input/menu_input.h"
#include "presentation/drawing.h"
#include "shell/frame_counter.h"
#include "shell/frame_overlay.h"
#include "shell/frame_pump.h"
#include "shell/game_screen.h"
#include "shell/log.h"
#include "shell/profiler.h"
#include "shell/switches.h"
#include "shell/timing.h"

namespace vandrel {

namespace {

constexpr int mostUpdatesBetweenPaintings = 4;
constexpr int testUpdatesBetweenPaintings = 60;
constexpr int overlayRow = 10;  // pixels

}  // namespace

FrameLoopWorld realWorld() {
    FrameLoopWorld world;
    world.takeEvents = [](const std::function<void()>& onCloseButton) { takeEvents({}, onCloseButton); };
    world.pollDevices = [] { theControlsManager->poll(); };
    world.fastForwardToggled = [] { return wasKeyReleased(ALLEGRO_KEY_F8); };
    world.pause = [](const std::shared_ptr<Music>& music) { return pauseCheck() && pauseMenu(music, false); };
    world.paint = [](Game& game) { drawGame(game, *screen, false); };
    world.writeOverlay = [](const std::string& text, int y) { drawOverlayText(text, y, FontId::Builtin); };
    world.writeTimings = [](const std::string& text) { drawOverlayText(text, 0, timingFont()); };
    world.writeFrameRate = [] { drawFrameRate(FontId::Builtin); };
    world.present = [] { presentFrame(); };
    return world;
}

FrameLoop::FrameLoop(Game& game, std::shared_ptr<Music> music, ReplayTestOptions testOptions, std::string replayName,
                     FrameLoopWorld world)
    : game_(game),
      music_(std::move(music)),
      testOptions_(testOptions),
      replayName_(std::move(replayName)),
      world_(std::move(world)) {}

RoundEnding FrameLoop::run() {
    frameCounter = 0;
    renderedFrames = 0;
    pendingTicks = 0;
    totalTicks = 0;
    for (const char* name : {"advance", "render1", "render2"}) {
        theProfiler.addAverage(name, 1);
    }
    logText("Begin game\n");
    while (!ending_.replayEnded && !ending_.roundOver && pass()) {
    }
    return ending_;
}

bool FrameLoop::pass() {
    if (world_.fastForwardToggled()) {
        fastForward = !fastForward;
    }
    world_.takeEvents([this] { ending_.quit = true; });
    if (pendingTicks < 1 && !fastForward) {
        return !ending_.quit;
    }
    advance();
    if (wantsPainting()) {
        paintFrame();
    }
    ++frameCounter;
    if (advanceLimit >= 1 && frameCounter >= advanceLimit) {
        ending_.quit = true;
    }
    return !ending_.quit;
}

void FrameLoop::advance() {
    theProfiler.start("advance");
    world_.pollDevices();
    if (!isSuspendedByOverlay()) {
        game_.update(ending_.roundOver, ending_.replayEnded, music_);
        if (world_.pause(music_)) {
            ending_.quit = true;
        }
        advanceSparks();
    }
    advanceTime_ = theProfiler.stopAveraged("advance").second;
    if (pendingTicks > 0) {
        --pendingTicks;
    }
}

bool FrameLoop::wantsPainting() {
    if (testOptions_.fastForward) {
        return ++skipCount_ >= testUpdatesBetweenPaintings;
    }
    return pendingTicks == 0 || ++skipCount_ >= mostUpdatesBetweenPaintings;
}

void FrameLoop::paintFrame() {
    theProfiler.start("render1");
    drawCount = 0;
    skipCount_ = 0;
    pendingTicks = 0;
    world_.paint(game_);
    if (alwaysShowFPS) {
        world_.writeFrameRate();
    }
    const float render1 = theProfiler.stopAveraged("render1").second;
    theProfiler.start("render2");
    drawOverlay();
    world_.present();
    const float render2 = theProfiler.stopAveraged("render2").second;
    lastFrame_ = {advanceTime_, render1, render2};
    ++renderedFrames;
}

void FrameLoop::drawOverlay() const {
    int overlayY = 0;
    if (diagnostic) {
        const auto ms = [](float seconds) { return seconds * 1000.0f; };
        world_.writeTimings(fmt::format("Update: {:.1f}ms  Render1: {:.1f}ms  Render2: {:.1f}ms  Frame: {:.1f}ms",
                                        ms(lastFrame_.advance), ms(lastFrame_.render1), ms(lastFrame_.render2),
                                        ms(lastFrame_.sum())));
        world_.writeOverlay(fmt::format("{}", static_cast<int>(frameCounter)), overlayRow);
        world_.writeOverlay(fmt::format("{}", game_.shrinkCountdown), 2 * overlayRow);
        overlayY = 3 * overlayRow;
        if (game_.replay.playback) {
            world_.writeOverlay(replayName_, overlayY);
            overlayY += overlayRow;
        }
    }
    if (fastForward) {
        world_.writeOverlay(">>", overlayY);
    }
}

}  // namespace vandrel
