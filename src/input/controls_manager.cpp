#include "input/controls_manager.h"

#include <allegro5/keycodes.h>
#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>

#include "base/checked.h"
#include "input/joystick_controls.h"
#include "input/joystick_driver.h"
#include "input/keyboard_controls.h"
#include "shell/log.h"

namespace vandrel {
namespace {

bool isController(const std::shared_ptr<Controls>& device) {
    return !isKeyboard(*device);
}

bool isJoystick(const std::shared_ptr<Controls>& device, JoystickHandle handle) {
    const auto* const joystick = dynamic_cast<const JoystickControls*>(device.get());
    return joystick != nullptr && joystick->handle() == handle;
}

// The names that `name` gives for 0 up to `count`, in a row.
template <class Name>
std::string listed(int count, Name&& name) {
    std::string row;
    for (int i = 0; i < count; ++i) {
        row += (i == 0 ? "" : ", ") + name(i);
    }
    return row;
}

// Enough to tell from a player's log how the platform sees a pad.
void logJoysticks(const JoystickDriver& driver) {
    const int count = driver.count();
    logPrintf("%d controllers detected:\n", count);
    for (int i = 0; i < count; ++i) {
        const JoystickHandle handle = driver.joystick(i);
        logText(driver.name(handle) + "\n");
        logText("\tSticks:\n");
        const int sticks = driver.stickCount(handle);
        for (int stick = 0; stick < sticks; ++stick) {
            const std::string axes =
                listed(driver.axisCount(handle, stick), [&](int axis) { return driver.axisName(handle, stick, axis); });
            logText("\t\t" + driver.stickName(handle, stick) + "; Axes: " + axes + "\n");
        }
        const std::string buttons =
            listed(driver.buttonCount(handle), [&](int button) { return driver.buttonName(handle, button); });
        logText("\tButtons: " + buttons + "\n");
    }
}

}  // namespace

std::unique_ptr<ControlsManager> theControlsManager;

ControlsManager::ControlsManager(std::shared_ptr<JoystickDriver> joysticks)
    // Each in the order of ControlInput.
    : keySets{{ALLEGRO_KEY_UP, ALLEGRO_KEY_DOWN, ALLEGRO_KEY_LEFT, ALLEGRO_KEY_RIGHT, ALLEGRO_KEY_RCTRL,
               ALLEGRO_KEY_RSHIFT},
              {ALLEGRO_KEY_W, ALLEGRO_KEY_S, ALLEGRO_KEY_A, ALLEGRO_KEY_D, ALLEGRO_KEY_LCTRL, ALLEGRO_KEY_LSHIFT},
              {ALLEGRO_KEY_I, ALLEGRO_KEY_K, ALLEGRO_KEY_J, ALLEGRO_KEY_L, ALLEGRO_KEY_N, ALLEGRO_KEY_M},
              {ALLEGRO_KEY_T, ALLEGRO_KEY_G, ALLEGRO_KEY_F, ALLEGRO_KEY_H, ALLEGRO_KEY_C, ALLEGRO_KEY_V}},
      joysticks_(std::move(joysticks)) {
    rescan();
}

bool ControlsManager::rescan() {
    if (joysticks_ != nullptr) {
        scanPlatform();
        logJoysticks(*joysticks_);
    }
    const bool anyLost = removeLostDevices();
    // Also where as many pads as there may be devices, which leave no place for keyboards, were pulled at once.
    if (devices.empty()) {
        makeFirstDevices();
        return true;
    }
    const bool anyNew = addNewJoysticks();
    return anyLost || anyNew;
}

void ControlsManager::scanPlatform() {
    if (isInstalled_) {
        joysticks_->reconfigure();
        return;
    }
    if (!joysticks_->install()) {
        throw std::runtime_error("al_install_joystick failed");
    }
    isInstalled_ = true;
}

void ControlsManager::makeFirstDevices() {
    const int joystickDevices = joystickCount();
    const int total = std::min(joystickDevices + static_cast<int>(keySets.size()), maxDevices);
    devices.reserve(static_cast<std::size_t>(total));
    for (int i = 0; i < total; ++i) {
        if (i < joystickDevices) {
            devices.push_back(std::make_shared<JoystickControls>(joysticks_, joysticks_->joystick(i)));
            logText(fmt::format("Added controller: {}\n", devices.back()->debugName()));
        } else {
            devices.push_back(std::make_shared<KeyboardControls>(checkedAt(keySets, i - joystickDevices)));
        }
    }
}

bool ControlsManager::removeLostDevices() {
    const auto isLost = [](const std::shared_ptr<Controls>& device) { return !device->isConnected(); };
    for (const std::shared_ptr<Controls>& device : devices) {
        if (isLost(device)) {
            logText(fmt::format("Lost joystick {}\n", device->debugName()));
        }
    }
    const int lost = static_cast<int>(std::erase_if(devices, isLost));
    if (lost != 0) {
        logPrintf("%d controls invalidated\n", lost);
    }
    return lost != 0;
}

bool ControlsManager::addNewJoysticks() {
    bool changed = false;
    const int count = joystickCount();
    for (int i = 0; i < count; ++i) {
        const JoystickHandle handle = joysticks_->joystick(i);
        const auto drivesIt = [handle](const std::shared_ptr<Controls>& device) { return isJoystick(device, handle); };
        if (std::ranges::any_of(devices, drivesIt)) {
            continue;
        }
        devices.push_back(std::make_shared<JoystickControls>(joysticks_, handle));
        logText(fmt::format("Added controller: {}\n", devices.back()->debugName()));
        changed = true;
        // Their own device of the same handle answers again; the new one in the list is not for them.
        for (const DeviceHolder& holder : holders()) {
            if (drivesIt(holder.controls)) {
                logText(fmt::format("Player {} regained controls\n", holder.num));
            }
        }
    }
    return changed;
}

std::vector<DeviceHolder> ControlsManager::holders() const {
    return listHolders ? listHolders() : std::vector<DeviceHolder>{};
}

int ControlsManager::joystickCount() const {
    return joysticks_ != nullptr ? joysticks_->count() : 0;
}

bool ControlsManager::poll() {
    return false;
}

DeviceList ControlsManager::menuDevices(int controlMode, bool includeHeldController) const {
    DeviceList admitted;
    if (controlMode == MenuControlMode::KeyboardAndAnyController) {
        std::ranges::copy_if(devices, std::back_inserter(admitted), isController);
    } else if (controlMode == MenuControlMode::KeyboardAndController1) {
        if (const auto first = std::ranges::find_if(devices, isController); first != devices.end()) {
            admitted.push_back(*first);
        }
        if (includeHeldController) {
            const std::vector<DeviceHolder> players = holders();
            const auto held = std::ranges::find_if(devices, [&players](const std::shared_ptr<Controls>& device) {
                return isController(device) && std::ranges::any_of(players, [&device](const DeviceHolder& holder) {
                           return holder.controls->isSameDevice(*device);
                       });
            });
            if (held != devices.end()) {
                admitted.push_back(*held);
            }
        }
    }
    return admitted;
}

void ControlsManager::addSteamInputControls() {
    devices.push_back(std::make_shared<SteamInputControls>());
}

}  // namespace vandrel
