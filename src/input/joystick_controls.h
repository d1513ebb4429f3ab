// A pad or joystick as an input device: its first stick, its directional pad and five of its buttons. It lives on when
// the pad is pulled, answers false meanwhile, and drives on when the platform gives the pad the same handle again.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>

#include "input/controls.h"
#include "input/joystick_driver.h"

namespace vandrel {

// Whether the controllers' directional buttons steer beside their sticks. A setting without a menu entry.
extern bool xinputDpadEnabled;

class JoystickControls final : public Controls {
  public:
    // A null handle is no pad: it is never connected and never pressed. Logs the new device unless `quiet`.
    JoystickControls(std::shared_ptr<const JoystickDriver> driver, JoystickHandle handle, bool quiet = false);

    bool isConnected() const override;
    bool upPressed() const override;
    bool downPressed() const override;
    bool leftPressed() const override;
    bool rightPressed() const override;
    bool bombPressed() const override;
    bool button2Pressed() const override;
    bool pausePressed() const override;
    bool skinPressed() const override;
    bool colourPressed() const override;

    // The platform's name of the pad.
    std::string description() const override;

    // The platform's name of the button; if it counts buttons from 0, counted from 1 all the same. Empty for directions
    // and for a button that the pad lacks.
    std::string buttonText(ControlInput input) const override;

    std::string debugName() const override;
    bool isSameDevice(const Controls& other) const override;

    JoystickHandle handle() const { return handle_; }

  private:
    bool isPressed(ControlInput input) const;
    bool axisPressed(int axis, float direction) const;
    bool hasMoved(int stick, int axis, float position) const;
    bool buttonDown(int index) const;
    bool hasDigitalStick() const;
    std::optional<int> driverIndex(ControlInput input) const;

    std::shared_ptr<const JoystickDriver> driver_;
    JoystickHandle handle_;

    // Where each axis stood when the device was made; nothing once it has been found elsewhere. Only then does it
    // count: until it is touched the platform does not know where it rests. Noted by the queries themselves.
    mutable std::array<std::array<std::optional<float>, _AL_MAX_JOYSTICK_AXES>, _AL_MAX_JOYSTICK_STICKS> untouched_;
};

}  // namespace vandrel
