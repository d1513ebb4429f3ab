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

inline constexpr int maxDevices = 100;

using DeviceList = std::vector<std::shared_ptr<Controls>>;

// A player of the match, as far as devices go.
struct DeviceHolder {
    int num = 0;  // of the player
    std::shared_ptr<Controls> controls;
};

class JoystickDriver;

class ControlsManager {
  public:
    // Makes the four key sets and scans for devices. Without a driver there are keyboards only. Throws
    // std::runtime_error "al_install_joystick failed".
    explicit ControlsManager(std::shared_ptr<JoystickDriver> joysticks = nullptr);

    // Brings the list in step with what is plugged in, and logs all of it. True if the list changed. The first scan
    // puts the joysticks in, then a keyboard device for each key set, up to `maxDevices` of both; a joystick found
    // later comes last of all. A device that has gone leaves the list, but not the player who holds it. A list that has
    // lost its last device is made anew as by the first scan, so it is never empty.
    bool rescan();

    // Once per update: gives devices that no event announces their turn. True if the list changed. There are none.
    bool poll();

    // The devices that a menu control mode admits beside the keyboard, which menus always read directly. With
    // `includeHeldController`, mode 1 also admits the first controller that a player of the match holds; it may then
    // stand twice.
    DeviceList menuDevices(int controlMode, bool includeHeldController) const;

    // Makes an inert device for the platform's own controller service and appends it.
    void addSteamInputControls();

    // Lists the players of the match, in their order. The match driver sets it; until then nobody holds a device.
    std::function<std::vector<DeviceHolder>()> listHolders;

    std::vector<std::vector<int>> keySets;
    DeviceList devices;

  private:
    std::vector<DeviceHolder> holders() const;
    int joystickCount() const;
    void scanPlatform();
    void makeFirstDevices();
    bool removeLostDevices();
    bool addNewJoysticks();

    std::shared_ptr<JoystickDriver> joysticks_;
    bool isInstalled_ = false;
};

extern std::unique_ptr<ControlsManager> theControlsManager;

}  // namespace vandrel
