// Every input device of the process, in the order in which players and menus number them. One instance, made at
// start-up.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "input/controls.h"

namespace vandrel {

// How the keyboard and the controllers share the menus. A setting of the configuration; other values admit no
// controller.
namespace MenuControlMode {
inline constexpr int KeyboardOnly = 0;
inline constexpr int KeyboardAndController1 = 1;
inline constexpr int KeyboardAndAnyController = 2;
}  // namespace MenuControlMode

inline constexpr const char* menuControlModeNames[] = {"Keyboard only", "Keyboard and Controller 1",
                                                       "Keyboard and any controller"};

inline constexpr int maxDevices = 100;

using DeviceList = std::vector<std::shared_ptr<Controls>>;

class ControlsManager {
  public:
    // Makes the four key sets and scans for devices.
    ControlsManager();

    // Brings the list in step with what is there. True if it changed. The first scan puts the keyboard devices in, one
    // for each key set.
    bool rescan();

    // Once per update: gives devices that are not driven by events their turn. True if the list changed.
    bool poll();

    // The devices that a menu control mode admits beside the keyboard, which menus always read directly. With
    // `includeHeldController`, mode 1 also admits the first controller that a player of the match holds; it may then
    // stand twice.
    DeviceList menuDevices(int controlMode, bool includeHeldController) const;

    // Makes an inert device for the platform's own controller service and appends it.
    void addSteamInputControls();

    // Tells whether some player of the match holds a device. The match driver sets it; until then nobody holds any.
    std::function<bool(const Controls& device)> isHeldByPlayer;

    std::vector<std::vector<int>> keySets;
    DeviceList devices;
};

extern std::unique_ptr<ControlsManager> theControlsManager;

}  // namespace vandrel
