#include "input/controls_manager.h"

#include <allegro5/keycodes.h>

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "input/keyboard_controls.h"

namespace vandrel {
namespace {

// Whatever is no keyboard is a controller to the menus.
bool isController(const std::shared_ptr<Controls>& device) {
    return dynamic_cast<const KeyboardControls*>(device.get()) == nullptr;
}

}  // namespace

std::unique_ptr<ControlsManager> theControlsManager;

ControlsManager::ControlsManager()
    // Each in the order of ControlInput.
    : keySets{{ALLEGRO_KEY_UP, ALLEGRO_KEY_DOWN, ALLEGRO_KEY_LEFT, ALLEGRO_KEY_RIGHT, ALLEGRO_KEY_RCTRL,
               ALLEGRO_KEY_RSHIFT},
              {ALLEGRO_KEY_W, ALLEGRO_KEY_S, ALLEGRO_KEY_A, ALLEGRO_KEY_D, ALLEGRO_KEY_LCTRL, ALLEGRO_KEY_LSHIFT},
              {ALLEGRO_KEY_I, ALLEGRO_KEY_K, ALLEGRO_KEY_J, ALLEGRO_KEY_L, ALLEGRO_KEY_N, ALLEGRO_KEY_M},
              {ALLEGRO_KEY_T, ALLEGRO_KEY_G, ALLEGRO_KEY_F, ALLEGRO_KEY_H, ALLEGRO_KEY_C, ALLEGRO_KEY_V}} {
    rescan();
}

bool ControlsManager::rescan() {
    if (!devices.empty()) {
        return false;
    }
    const std::size_t total = std::min<std::size_t>(keySets.size(), maxDevices);
    for (std::size_t i = 0; i < total; ++i) {
        devices.push_back(std::make_shared<KeyboardControls>(keySets[i]));
    }
    return true;
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
        if (includeHeldController && isHeldByPlayer) {
            const auto held = std::ranges::find_if(devices, [this](const std::shared_ptr<Controls>& device) {
                return isController(device) && isHeldByPlayer(*device);
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
