// The process-wide switches: set by the configuration, the command line and the menus, read everywhere. Beside them
// stand the team palette and the flag with which a platform overlay would suspend the game.
#pragma once

#include <memory>
#include <vector>

#include "base/colour.h"

namespace vandrel {

extern bool diagnostic;              // timings and other extra information on the screens
extern bool fastForward;             // run a match without waiting for ticks; cleared when a match ends
extern bool autoRandomControls;      // humans are driven by random input
extern int advanceLimit;             // if at least 1, a round is quit once its frame counter reaches it
extern bool vsyncEnabled;            // asked for when a display is created
extern bool alwaysShowFPS;           // the rate in the top left corner
extern bool showReplayTestOptions;   // offer the replay test in the replay menu
extern bool replayRecordingEnabled;  // record a replay of every round
extern bool verifyEnabled;           // write and check verification files
extern bool lootboxesEnabled;        // offer the loot box room
extern int lootboxPoints;            // all cash ever taken in matches outside replays
extern bool steamInputEnabled;       // let the platform's own controller service stand in for joysticks; never set

// The palette that a match starts from, and the one that the colour menus edit. Both are empty until start-up fills
// them.
extern std::vector<RGB> defaultTeamColours;
extern std::vector<RGB> teamColours;

// Puts the ten factory colours into both lists.
void fillTeamPalettes();

// One byte that says whether something outside the game has the players' attention. While it is set, no key is reported
// and no screen or match is updated. It starts clear, and only a platform overlay would set it.
struct SteamListener {
    bool overlayActive = false;
};

extern std::unique_ptr<SteamListener> theSteamListener;

// The byte of the listener; null until there is one.
extern const bool* steamListenerFlag;

// Makes the listener, with its byte clear, and publishes the byte.
void createSteamListener();

// Whether updates and key queries are suspended; false while there is no listener.
inline bool isSuspendedByOverlay() {
    return steamListenerFlag != nullptr && *steamListenerFlag;
}

}  // namespace vandrel
