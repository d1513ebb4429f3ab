// Runs one match, from the press of a start button or the choice of a replay to the return to the menu: a series of
// rounds, each with a `Game` and, when recording, a replay file of its own.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "input/controls_manager.h"
#include "match/frame_loop.h"
#include "match/round_transitions.h"

namespace vandrel {

// What a match asks of the world around it; tests put a world of their own in its place.
struct MatchWorld {
    FrameLoopWorld frames;
    // The devices of the players, in their order.
    std::function<DeviceList()> devices;
    // Lets the players and teams of the match join. False when that was left.
    std::function<bool()> joinPlayers;
    // A new random track, playing. May give null.
    std::function<std::shared_ptr<Music>()> makeMusic;
    // Stores the rate in `gameOptions` and sets the clock to it.
    std::function<void(int rate)> setUpdateRate;
    // Shows that the randomness has risen.
    std::function<void(Game& game)> showRandomness;
    RoundEndScreens roundEnd;
    // Tells that the arena is too small for the players.
    std::function<void(const std::string& text)> showNoSpace;
};

// Plays a match by `gameOptions`, or the round of the replay named `replayName`. The options are put back at the end,
// but stay as they are where an arena could not be filled. True if the match was left by quitting, in the lobby too, or
// an arena could not be filled; false if it ran to its end. The caller then brings back the menu's music and screen and
// releases the sprite cache.
bool play_the_game(bool record, const std::string& replayName, ReplayTestOptions testOptions);

// The same in the given world: without a display, a sound device or a clock, if that needs none.
bool play_the_game(bool record, const std::string& replayName, ReplayTestOptions testOptions, const MatchWorld& world);

}  // namespace vandrel
