// One input device as players and menus see it: nine logical inputs that are polled, never driven by events. Here are
// the interface and the two devices that need no platform; keyboards and joysticks have files of their own.
#pragma once

#include <cstddef>
#include <string>

namespace vandrel {

// The values index the key sets and are the arguments of buttonText. `ControlInputNames` names them.
enum class ControlInput : int {
    Up = 0,
    Down = 1,
    Left = 2,
    Right = 3,
    Fire = 4,
    Button2 = 5,
    Pause = 6,
    ChangeSkin = 7,
    ChangeColour = 8,
};

inline constexpr std::size_t controlInputCount = static_cast<std::size_t>(ControlInput::ChangeColour) + 1;

// A device is always held by a shared pointer: a player keeps a device that has gone until the match ends, and the
// device then answers false.
class Controls {
  public:
    Controls() = default;
    Controls(const Controls&) = delete;
    Controls& operator=(const Controls&) = delete;
    virtual ~Controls() = default;

    virtual bool isConnected() const = 0;
    virtual bool upPressed() const = 0;
    virtual bool downPressed() const = 0;
    virtual bool leftPressed() const = 0;
    virtual bool rightPressed() const = 0;
    virtual bool bombPressed() const = 0;
    virtual bool button2Pressed() const = 0;
    virtual bool pausePressed() const = 0;
    virtual bool skinPressed() const { return false; }
    virtual bool colourPressed() const { return false; }

    // Lines, parted by "\n", that tell a player which device this is.
    virtual std::string description() const = 0;

    // The name of the button or key behind a logical input, for hints on the screen.
    virtual std::string buttonText(ControlInput input) const = 0;

    virtual std::string debugName() const { return "?"; }

    // Whether both stand for one device. A pad that was pulled and put back is in the list as a new object, beside the
    // one that its player kept.
    virtual bool isSameDevice(const Controls& other) const { return this == &other; }
};

// What the two devices share that nobody presses.
class InertControls : public Controls {
  public:
    bool isConnected() const override { return true; }
    bool upPressed() const override { return false; }
    bool downPressed() const override { return false; }
    bool leftPressed() const override { return false; }
    bool rightPressed() const override { return false; }
    bool bombPressed() const override { return false; }
    bool button2Pressed() const override { return false; }
    bool pausePressed() const override { return false; }
    std::string description() const override;
    std::string buttonText(ControlInput input) const override;
};

// The device of an AI snake, one for each.
class NoControls final : public InertControls {};

// Stands where the platform's own controller service would bring its devices in.
class SteamInputControls final : public InertControls {};

}  // namespace vandrel
