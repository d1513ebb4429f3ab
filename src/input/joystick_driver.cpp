#include "input/joystick_driver.h"

namespace vandrel {
namespace {

std::string textOf(const char* name) {
    return name != nullptr ? name : "";
}

}  // namespace

AllegroJoystickDriver::AllegroJoystickDriver(ALLEGRO_EVENT_QUEUE* queue) : queue_(queue) {}

bool AllegroJoystickDriver::install() {
    if (!al_install_joystick()) {
        return false;
    }
    al_register_event_source(queue_, al_get_joystick_event_source());
    return true;
}

void AllegroJoystickDriver::reconfigure() {
    al_reconfigure_joysticks();
}

int AllegroJoystickDriver::count() const {
    return al_get_num_joysticks();
}

JoystickHandle AllegroJoystickDriver::joystick(int index) const {
    return al_get_joystick(index);
}

bool AllegroJoystickDriver::isActive(JoystickHandle handle) const {
    return al_get_joystick_active(handle);
}

std::string AllegroJoystickDriver::name(JoystickHandle handle) const {
    return textOf(al_get_joystick_name(handle));
}

int AllegroJoystickDriver::stickCount(JoystickHandle handle) const {
    return al_get_joystick_num_sticks(handle);
}

std::string AllegroJoystickDriver::stickName(JoystickHandle handle, int stick) const {
    return textOf(al_get_joystick_stick_name(handle, stick));
}

bool AllegroJoystickDriver::isDigital(JoystickHandle handle, int stick) const {
    return (al_get_joystick_stick_flags(handle, stick) & ALLEGRO_JOYFLAG_DIGITAL) != 0;
}

int AllegroJoystickDriver::axisCount(JoystickHandle handle, int stick) const {
    return al_get_joystick_num_axes(handle, stick);
}

std::string AllegroJoystickDriver::axisName(JoystickHandle handle, int stick, int axis) const {
    return textOf(al_get_joystick_axis_name(handle, stick, axis));
}

int AllegroJoystickDriver::buttonCount(JoystickHandle handle) const {
    return al_get_joystick_num_buttons(handle);
}

std::string AllegroJoystickDriver::buttonName(JoystickHandle handle, int button) const {
    return textOf(al_get_joystick_button_name(handle, button));
}

ALLEGRO_JOYSTICK_STATE AllegroJoystickDriver::state(JoystickHandle handle) const {
    ALLEGRO_JOYSTICK_STATE state;
    al_get_joystick_state(handle, &state);
    return state;
}

}  // namespace vandrel
