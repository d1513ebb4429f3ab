// The platform's joysticks, call for call, and nothing more: what the numbers mean is decided by JoystickControls, and
// which devices there are by ControlsManager. Behind an interface, so that tests can plug and pull pads of their own.
#pragma once

#include <allegro5/allegro.h>

#include <string>

namespace vandrel {

// The platform owns what it points to, and keeps it until the process ends: a joystick that has gone is not active, and
// one that comes back may bring the same handle.
using JoystickHandle = ALLEGRO_JOYSTICK*;

// Handles are never null. Names that the platform does not give are empty.
class JoystickDriver {
  public:
    JoystickDriver() = default;
    JoystickDriver(const JoystickDriver&) = delete;
    JoystickDriver& operator=(const JoystickDriver&) = delete;
    virtual ~JoystickDriver() = default;

    // Once, before all else; false if the platform fails. From then on it tells of devices that come and go.
    virtual bool install() = 0;
    // Has handles, their number and who is active follow what was plugged in and pulled.
    virtual void reconfigure() = 0;

    virtual int count() const = 0;
    virtual JoystickHandle joystick(int index) const = 0;
    virtual bool isActive(JoystickHandle handle) const = 0;
    virtual std::string name(JoystickHandle handle) const = 0;

    virtual int stickCount(JoystickHandle handle) const = 0;
    virtual std::string stickName(JoystickHandle handle, int stick) const = 0;
    // A stick that knows only its ends, such as a directional pad.
    virtual bool isDigital(JoystickHandle handle, int stick) const = 0;
    virtual int axisCount(JoystickHandle handle, int stick) const = 0;
    virtual std::string axisName(JoystickHandle handle, int stick, int axis) const = 0;
    virtual int buttonCount(JoystickHandle handle) const = 0;
    virtual std::string buttonName(JoystickHandle handle, int button) const = 0;

    // As it is at this moment.
    virtual ALLEGRO_JOYSTICK_STATE state(JoystickHandle handle) const = 0;
};

// The real one. `queue` gets an event when joysticks come or go.
class AllegroJoystickDriver final : public JoystickDriver {
  public:
    explicit AllegroJoystickDriver(ALLEGRO_EVENT_QUEUE* queue);

    bool install() override;
    void reconfigure() override;
    int count() const override;
    JoystickHandle joystick(int index) const override;
    bool isActive(JoystickHandle handle) const override;
    std::string name(JoystickHandle handle) const override;
    int stickCount(JoystickHandle handle) const override;
    std::string stickName(JoystickHandle handle, int stick) const override;
    bool isDigital(JoystickHandle handle, int stick) const override;
    int axisCount(JoystickHandle handle, int stick) const override;
    std::string axisName(JoystickHandle handle, int stick, int axis) const override;
    int buttonCount(JoystickHandle handle) const override;
    std::string buttonName(JoystickHandle handle, int button) const override;
    ALLEGRO_JOYSTICK_STATE state(JoystickHandle handle) const override;

  private:
    ALLEGRO_EVENT_QUEUE* queue_;
};

}  // namespace vandrel
