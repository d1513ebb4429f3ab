// One of the key sets on the shared keyboard as an input device.
#pragma once

#include <string>
#include <vector>

#include "input/controls.h"

namespace vandrel {

class KeyboardControls final : public Controls {
  public:
    // Six keycodes, indexed by ControlInput from Up to Button2. Pause is Escape in every set.
    explicit KeyboardControls(std::vector<int> keySet);

    bool isConnected() const override { return true; }
    bool upPressed() const override;
    bool downPressed() const override;
    bool leftPressed() const override;
    bool rightPressed() const override;
    bool bombPressed() const override;
    bool button2Pressed() const override;
    bool pausePressed() const override;

    // The keys as they lie under the hand: Up; Left, Down, Right; Fire.
    std::string description() const override;

    // Throws std::out_of_range "invalid vector subscript" behind Button2.
    std::string buttonText(ControlInput input) const override;

  private:
    int key(ControlInput input) const;
    std::string name(ControlInput input) const;

    std::vector<int> keys;
};

// Whether the device is a key set. Whatever is none is a controller to menus and to the lobby.
bool isKeyboard(const Controls& device);

}  // namespace vandrel
