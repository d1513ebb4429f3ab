#include "input/joystick_controls.h"

#include <fmt/format.h>

#include <boost/algorithm/string/classification.hpp>
#include <boost/algorithm/string/join.hpp>
#include <boost/algorithm/string/split.hpp>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <utility>
#include <vector>

#include "base/checked.h"
#include "input/pad_numbering.h"
#include "shell/log.h"

namespace vandrel {
namespace {

constexpr int noAxis = -1;
constexpr float pressedBeyond = 0.5f;  // of the way to the end of an axis

// What stands for a logical input: a button by the rules' number and, for a direction, an axis and its sign.
struct PadInput {
    int button;
    int axis = noAxis;
    float direction = 0.0f;
};

// In the order of ControlInput.
constexpr std::array<PadInput, controlInputCount> padInputs{{
    {13, 1, -1.0f},
    {12, 1, 1.0f},
    {11, 0, -1.0f},
    {10, 0, 1.0f},
    {0},
    {1},
    {9},
    {2},
    {3},
}};

const PadInput& padInput(ControlInput input) {
    return checkedAt(padInputs, static_cast<int>(input));
}

}  // namespace

bool xinputDpadEnabled = true;

JoystickControls::JoystickControls(std::shared_ptr<const JoystickDriver> driver, JoystickHandle handle, bool quiet)
    : driver_(std::move(driver)), handle_(handle) {
    if (handle_ != nullptr) {
        const ALLEGRO_JOYSTICK_STATE state = driver_->state(handle_);
        for (std::size_t stick = 0; stick < untouched_.size(); ++stick) {
            for (std::size_t axis = 0; axis < untouched_[stick].size(); ++axis) {
                untouched_[stick][axis] = state.stick[stick].axis[axis];
            }
        }
    }
    if (!quiet) {
        logText(fmt::format("Init JoystickControls {}\n", debugName()));
    }
}

bool JoystickControls::isConnected() const {
    return handle_ != nullptr && driver_->isActive(handle_);
}

bool JoystickControls::upPressed() const {
    return isPressed(ControlInput::Up);
}
bool JoystickControls::downPressed() const {
    return isPressed(ControlInput::Down);
}
bool JoystickControls::leftPressed() const {
    return isPressed(ControlInput::Left);
}
bool JoystickControls::rightPressed() const {
    return isPressed(ControlInput::Right);
}
bool JoystickControls::bombPressed() const {
    return isPressed(ControlInput::Fire);
}
bool JoystickControls::button2Pressed() const {
    return isPressed(ControlInput::Button2);
}
bool JoystickControls::pausePressed() const {
    return isPressed(ControlInput::Pause);
}
bool JoystickControls::skinPressed() const {
    return isPressed(ControlInput::ChangeSkin);
}
bool JoystickControls::colourPressed() const {
    return isPressed(ControlInput::ChangeColour);
}

std::string JoystickControls::description() const {
    return handle_ != nullptr ? driver_->name(handle_) : "";
}

std::string JoystickControls::buttonText(ControlInput input) const {
    if (handle_ == nullptr || padInput(input).axis != noAxis) {
        return {};
    }
    const int index = driverIndex(input).value();
    std::string name = driver_->buttonName(handle_, index);
    std::vector<std::string> words;
    boost::split(words, name, boost::is_any_of(" "));
    if (words.size() < 2) {
        return name;
    }
    const std::string& last = words.back();
    int number = 0;
    const auto [end, error] = std::from_chars(last.data(), last.data() + last.size(), number);
    if (error != std::errc{} || end != last.data() + last.size() || number != index) {
        return name;
    }
    words.back() = std::to_string(index + 1);
    return boost::join(words, " ");
}

std::string JoystickControls::debugName() const {
    return fmt::format("{} {:x}", description(), reinterpret_cast<std::uintptr_t>(handle_));
}

bool JoystickControls::isSameDevice(const Controls& other) const {
    const auto* const joystick = dynamic_cast<const JoystickControls*>(&other);
    return joystick != nullptr && joystick->handle_ == handle_;
}

bool JoystickControls::isPressed(ControlInput input) const {
    if (!isConnected()) {
        return false;
    }
    const PadInput& wanted = padInput(input);
    if (wanted.axis != noAxis) {
        if (axisPressed(wanted.axis, wanted.direction)) {
            return true;
        }
        if (!xinputDpadEnabled) {
            return false;
        }
    }
    const std::optional<int> index = driverIndex(input);
    return index.has_value() && buttonDown(*index);
}

// The sticks behind the first are not asked, unless they are a directional pad: some of their axes are triggers, which
// rest at their negative end.
bool JoystickControls::axisPressed(int axis, float direction) const {
    const ALLEGRO_JOYSTICK_STATE state = driver_->state(handle_);
    const int sticks = driver_->stickCount(handle_);
    for (int stick = 0; stick < sticks; ++stick) {
        if ((stick != 0 && !driver_->isDigital(handle_, stick)) || driver_->axisCount(handle_, stick) <= axis) {
            continue;
        }
        const float position = state.stick[stick].axis[axis];
        if (hasMoved(stick, axis, position) && direction * position > pressedBeyond) {
            return true;
        }
    }
    return false;
}

bool JoystickControls::hasMoved(int stick, int axis, float position) const {
    std::optional<float>& untouched = untouched_.at(static_cast<std::size_t>(stick)).at(static_cast<std::size_t>(axis));
    if (untouched.has_value() && !std::isnan(position) && position != *untouched) {
        untouched.reset();
    }
    return !untouched.has_value();
}

bool JoystickControls::buttonDown(int index) const {
    const ALLEGRO_JOYSTICK_STATE state = driver_->state(handle_);
    return driver_->buttonCount(handle_) > index && state.button[index] != 0;
}

bool JoystickControls::hasDigitalStick() const {
    const int sticks = driver_->stickCount(handle_);
    for (int stick = 0; stick < sticks; ++stick) {
        if (driver_->isDigital(handle_, stick)) {
            return true;
        }
    }
    return false;
}

std::optional<int> JoystickControls::driverIndex(ControlInput input) const {
    return driverButton(padInput(input).button, driver_->buttonCount(handle_), hasDigitalStick());
}

}  // namespace vandrel
