// The frame loop of a round: built like the frame pump, but it updates and paints the game directly, knows fast forward
// and the window's close button, and never runs more than four updates between two paintings.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "presentation/music.h"

namespace vandrel {

class Game;

// How a replay is to be run through quickly.
struct ReplayTestOptions {
    bool fastForward = false;   // without waiting for ticks, painting every 60th update
    bool skipRoundEnd = false;  // without the screens at the end of the round
};

// How the loop ended. More than one may be set.
struct RoundEnding {
    bool quit = false;
    bool roundOver = false;
    bool replayEnded = false;
};

// What the loop asks of the world around it; tests put a world of their own in its place.
struct FrameLoopWorld {
    // Empties the event queue into the tick counters and calls its argument for the window's close button.
    std::function<void(const std::function<void()>& onCloseButton)> takeEvents;
    // The devices' turn, once an update.
    std::function<void()> pollDevices;
    // Whether F8 was released since it was last asked.
    std::function<bool()> fastForwardToggled;
    // Shows the pause menu if somebody asks for it; true to quit.
    std::function<bool(const std::shared_ptr<Music>& music)> pause;
    // Paints the arena into the game bitmap.
    std::function<void(Game& game)> paint;
    // Writes a line of the overlay over the picture, `y` pixels from its top, and the line of timings across it.
    std::function<void(const std::string& text, int y)> writeOverlay;
    std::function<void(const std::string& text)> writeTimings;
    // Writes the frame rate over the picture.
    std::function<void()> writeFrameRate;
    // Shows the game bitmap.
    std::function<void()> present;
};

// The world of the real game: event queue, devices, keyboard, display.
FrameLoopWorld realWorld();

// Seconds. What the overlay shows are those of the last frame that was finished: a frame's own are not known while it
// is drawn.
struct FrameTimings {
    float advance = 0.0f;
    float render1 = 0.0f;
    float render2 = 0.0f;

    float sum() const { return advance + render1 + render2; }
};

class FrameLoop {
  public:
    // `replayName` is shown in diagnostic mode; empty in a new game. `music` may be null.
    FrameLoop(Game& game, std::shared_ptr<Music> music, ReplayTestOptions testOptions, std::string replayName,
              FrameLoopWorld world);

    // Runs the round to its end. Resets the counters of frames and ticks first.
    RoundEnding run();

  private:
    // One pass; false to leave the loop.
    bool pass();
    void advance();
    bool wantsPainting();
    void paintFrame();
    void drawOverlay() const;

    Game& game_;
    std::shared_ptr<Music> music_;
    ReplayTestOptions testOptions_;
    std::string replayName_;
    FrameLoopWorld world_;
    RoundEnding ending_;
    int skipCount_ = 0;
    float advanceTime_ = 0.0f;  // seconds, of the latest update
    FrameTimings lastFrame_;
};

}  // namespace vandrel
