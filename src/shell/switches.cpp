#include "shell/switches.h"

namespace vandrel {

bool diagnostic = false;
bool fastForward = false;
bool autoRandomControls = false;
int advanceLimit = 0;
bool vsyncEnabled = false;
bool alwaysShowFPS = false;
bool showReplayTestOptions = false;
bool replayRecordingEnabled = true;
bool verifyEnabled = true;
bool lootboxesEnabled = true;
int lootboxPoints = 0;
bool steamInputEnabled = false;

std::vector<RGB> defaultTeamColours;
std::vector<RGB> teamColours;

std::unique_ptr<SteamListener> theSteamListener;
const bool* steamListenerFlag = nullptr;

void fillTeamPalettes() {
    defaultTeamColours = {{255, 0, 0},   {0, 0, 255},     {0, 255, 0},     {255, 255, 0},   {0, 255, 255},
                          {255, 0, 255}, {255, 128, 128}, {128, 255, 128}, {128, 128, 255}, {96, 96, 96}};
    teamColours = defaultTeamColours;
}

void createSteamListener() {
    theSteamListener = std::make_unique<SteamListener>();
    steamListenerFlag = &theSteamListener->overlayActive;
}

}  // namespace vandrel
