// Pads that a test plugs in, pulls and holds, in the place of the platform's. Like the real ones they come and go only
// when the joysticks are reconfigured, and a pad that is plugged in again brings the handle that it had.
#pragma once

#include <allegro5/allegro.h>
#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "input/joystick_driver.h"

namespace vandrel::test {

struct FakeStick {
    std::string name;
    bool digital = false;
    std::vector<std::string> axes{"X", "Y"};
};

struct FakePad {
    std::string name;
    std::vector<FakeStick> sticks;
    std::vector<std::string> buttons;
    ALLEGRO_JOYSTICK_STATE state{};
    bool plugged = true;
    bool active = false;

    JoystickHandle handle() { return reinterpret_cast<JoystickHandle>(this); }

    void move(int stick, int axis, float position) { state.stick[stick].axis[axis] = position; }
    void hold(int button) { state.button[button] = 32767; }
    void release() { state = {}; }
};

class FakeJoystickDriver final : public JoystickDriver {
  public:
    bool installs = true;  // what install answers

    // As the pads of the rules' numbers: two sticks, two triggers, and a directional pad of buttons.
    std::shared_ptr<FakePad> plugPlainPad(const std::string& name) {
        return plug(
            {.name = name,
             .sticks = {{.name = "Left Thumbstick"},
                        {.name = "Right Thumbstick"},
                        {.name = "Left Trigger", .axes = {"Trigger"}},
                        {.name = "Right Trigger", .axes = {"Trigger"}}},
             .buttons = {"A", "B", "X", "Y", "RB", "LB", "RT", "LT", "BACK", "START", "RIGHT", "LEFT", "DOWN", "UP"}});
    }

    // As a driver shows a pad that numbers by event codes: the triggers share sticks with the right stick's axes.
    std::shared_ptr<FakePad> plugEventCodePad(const std::string& name, int buttons) {
        FakePad pad{.name = name,
                    .sticks = {{.name = "Stick 1"},
                               {.name = "Stick 2"},
                               {.name = "Stick 3"},
                               {.name = "Stick 4", .digital = true}},
                    .buttons = {}};
        for (int i = 1; i <= buttons; ++i) {
            pad.buttons.push_back(fmt::format("B{}", i));
        }
        return plug(std::move(pad));
    }

    std::shared_ptr<FakePad> plug(FakePad pad) {
        pads_.push_back(std::make_shared<FakePad>(std::move(pad)));
        return pads_.back();
    }

    bool install() override {
        reconfigure();
        return installs;
    }
    void reconfigure() override {
        for (const auto& pad : pads_) {
            pad->active = pad->plugged;
        }
    }

    int count() const override {
        return static_cast<int>(std::ranges::count_if(pads_, [](const auto& pad) { return pad->active; }));
    }
    JoystickHandle joystick(int index) const override {
        for (const auto& pad : pads_) {
            if (pad->active && index-- == 0) {
                return pad->handle();
            }
        }
        return nullptr;
    }
    bool isActive(JoystickHandle handle) const override { return of(handle).active; }
    std::string name(JoystickHandle handle) const override { return of(handle).name; }
    int stickCount(JoystickHandle handle) const override { return static_cast<int>(of(handle).sticks.size()); }
    std::string stickName(JoystickHandle handle, int stick) const override { return at(handle, stick).name; }
    bool isDigital(JoystickHandle handle, int stick) const override { return at(handle, stick).digital; }
    int axisCount(JoystickHandle handle, int stick) const override {
        return static_cast<int>(at(handle, stick).axes.size());
    }
    std::string axisName(JoystickHandle handle, int stick, int axis) const override {
        return at(handle, stick).axes.at(static_cast<std::size_t>(axis));
    }
    int buttonCount(JoystickHandle handle) const override { return static_cast<int>(of(handle).buttons.size()); }
    std::string buttonName(JoystickHandle handle, int button) const override {
        return button < buttonCount(handle) ? of(handle).buttons.at(static_cast<std::size_t>(button)) : "";
    }
    ALLEGRO_JOYSTICK_STATE state(JoystickHandle handle) const override { return of(handle).state; }

  private:
    static const FakePad& of(JoystickHandle handle) { return *reinterpret_cast<const FakePad*>(handle); }
    static const FakeStick& at(JoystickHandle handle, int stick) {
        return of(handle).sticks.at(static_cast<std::size_t>(stick));
    }

    std::vector<std::shared_ptr<FakePad>> pads_;
};

}  // namespace vandrel::test
