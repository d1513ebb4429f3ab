#include "input/joystick_controls.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "shell/shell_test_tools.h"
#include "support/fake_joysticks.h"

namespace vandrel::test {
namespace {

// What a device answers, a letter for each query in the order of ControlInput.
std::string pressed(const Controls& device) {
    std::string letters;
    letters += device.upPressed() ? "u" : "";
    letters += device.downPressed() ? "d" : "";
    letters += device.leftPressed() ? "l" : "";
    letters += device.rightPressed() ? "r" : "";
    letters += device.bombPressed() ? "B" : "";
    letters += device.button2Pressed() ? "2" : "";
    letters += device.pausePressed() ? "P" : "";
    letters += device.skinPressed() ? "S" : "";
    letters += device.colourPressed() ? "C" : "";
    return letters;
}

class JoystickControlsTest : public testing::Test {
  protected:
    ~JoystickControlsTest() override { xinputDpadEnabled = true; }

    JoystickControls deviceOf(const std::shared_ptr<FakePad>& pad) {
        driver->reconfigure();
        return {driver, pad->handle(), true};
    }

    std::shared_ptr<FakeJoystickDriver> driver = std::make_shared<FakeJoystickDriver>();
};

TEST_F(JoystickControlsTest, EachButtonOfEachShapeDoesItsOwn) {
    struct Case {
        std::shared_ptr<FakePad> pad;
        std::vector<std::string> byButton;
    };
    const std::string no;
    FakePad fifteenButtons{.name = "fifteen without a digital stick", .sticks = {{}}, .buttons = {}};
    fifteenButtons.buttons.resize(15);
    const Case cases[] = {
        {driver->plugPlainPad("plain"), {"B", "2", "S", "C", no, no, no, no, no, "P", "r", "l", "d", "u"}},
        {driver->plugEventCodePad("two", 2), {"B", "2"}},
        {driver->plugEventCodePad("ten", 10), {"B", "2", "S", "C", no, no, no, no, no, "P"}},
        {driver->plugEventCodePad("eleven", 11), {"B", "2", "S", "C", no, no, no, "P"}},
        {driver->plugEventCodePad("thirteen", 13), {"B", "2", "S", "C", no, no, no, no, no, "P"}},
        {driver->plugEventCodePad("fourteen", 14), {"B", "2", "S", "C", no, no, no, no, no, "P"}},
        {driver->plugEventCodePad("fifteen", 15), {"B", "2", no, "S", "C", no, no, no, no, no, no, "P"}},
        {driver->plug(fifteenButtons), {"B", "2", no, "S", "C", no, no, no, no, no, no, "P"}},
    };
    for (const Case& c : cases) {
        const JoystickControls device = deviceOf(c.pad);
        for (std::size_t button = 0; button < 32; ++button) {
            c.pad->release();
            c.pad->hold(static_cast<int>(button));
            EXPECT_EQ(pressed(device), button < c.byButton.size() ? c.byButton[button] : no)
                << c.pad->name << ", button " << button;
        }
    }
}

TEST_F(JoystickControlsTest, AStickSteersBeyondHalfOfItsWay) {
    const auto pad = driver->plugPlainPad("plain");
    const JoystickControls device = deviceOf(pad);
    struct Case {
        int axis;
        float position;
        const char* expected;
    };
    for (const Case& c : {Case{0, 0.5f, ""}, Case{0, 0.51f, "r"}, Case{0, -0.5f, ""}, Case{0, -0.51f, "l"},
                          Case{1, 0.5f, ""}, Case{1, 0.51f, "d"}, Case{1, -0.5f, ""}, Case{1, -1.0f, "u"},
                          Case{0, std::nanf(""), ""}, Case{2, 1.0f, ""}}) {
        pad->release();
        pad->move(0, c.axis, c.position);
        EXPECT_EQ(pressed(device), c.expected) << "axis " << c.axis << " at " << c.position;
    }
    pad->move(0, 0, 0.9f);
    pad->move(0, 1, -0.9f);
    EXPECT_EQ(pressed(device), "ur");
}

TEST_F(JoystickControlsTest, OnlyTheFirstStickAndDirectionalPadsSteer) {
    const auto pad = driver->plugEventCodePad("eleven", 11);
    const JoystickControls device = deviceOf(pad);
    for (const int other : {1, 2}) {  // the right stick and the triggers, at rest once they are touched
        pad->move(other, 0, -1.0f);
        pad->move(other, 1, -1.0f);
    }
    EXPECT_EQ(pressed(device), "");
    pad->move(3, 0, 1.0f);
    EXPECT_EQ(pressed(device), "r");
    xinputDpadEnabled = false;
    EXPECT_EQ(pressed(device), "r") << "that setting is about buttons";
}

TEST_F(JoystickControlsTest, WithoutTheDirectionalButtonsTheSticksStillSteer) {
    const auto pad = driver->plugPlainPad("plain");
    const JoystickControls device = deviceOf(pad);
    for (int button = 10; button < 14; ++button) {
        pad->hold(button);
    }
    EXPECT_EQ(pressed(device), "udlr");
    xinputDpadEnabled = false;
    EXPECT_EQ(pressed(device), "");
    pad->hold(9);
    pad->move(0, 0, -1.0f);
    EXPECT_EQ(pressed(device), "lP");
}

TEST_F(JoystickControlsTest, AnAxisCountsOnceItHasMoved) {
    const auto pad = driver->plugEventCodePad("eleven", 11);
    pad->move(0, 0, -1.0f);  // where the platform finds it, not where somebody pushed it
    pad->move(0, 1, 1.0f);
    const JoystickControls device = deviceOf(pad);
    EXPECT_EQ(pressed(device), "");
    pad->move(0, 0, -0.9f);
    EXPECT_EQ(pressed(device), "l");
    pad->move(0, 0, -1.0f);
    EXPECT_EQ(pressed(device), "l") << "back where it was, and moved all the same";
}

TEST_F(JoystickControlsTest, APadWithoutSticksOrWithASingleAxisLacksThemOnly) {
    const auto bare = driver->plug({.name = "bare", .sticks = {}, .buttons = {"A"}});
    const auto wheel = driver->plug({.name = "wheel", .sticks = {{.name = "Wheel", .axes = {"X"}}}, .buttons = {}});
    const JoystickControls bareDevice = deviceOf(bare);
    const JoystickControls wheelDevice = deviceOf(wheel);
    for (const auto& pad : {bare, wheel}) {
        pad->hold(0);
        pad->move(0, 0, 1.0f);
        pad->move(0, 1, 1.0f);
    }
    EXPECT_EQ(pressed(bareDevice), "B");
    EXPECT_EQ(pressed(wheelDevice), "r");
    EXPECT_EQ(wheelDevice.buttonText(ControlInput::Fire), "");
}

TEST_F(JoystickControlsTest, ADeviceThatHasGoneAnswersFalseUntilItReturns) {
    const auto pad = driver->plugPlainPad("plain");
    const JoystickControls device = deviceOf(pad);
    pad->move(0, 0, -1.0f);
    pad->hold(9);
    EXPECT_EQ(pressed(device), "lP");
    pad->plugged = false;
    EXPECT_TRUE(device.isConnected()) << "the platform has not looked yet";
    driver->reconfigure();
    EXPECT_FALSE(device.isConnected());
    EXPECT_EQ(pressed(device), "");
    pad->plugged = true;
    driver->reconfigure();
    EXPECT_EQ(pressed(device), "lP");

    const JoystickControls none(driver, nullptr, true);
    EXPECT_FALSE(none.isConnected());
    EXPECT_EQ(pressed(none) + none.description() + none.buttonText(ControlInput::Fire), "");
}

TEST_F(JoystickControlsTest, HintsNameTheButtonThatIsMeant) {
    const auto named = [this](const std::vector<std::string>& buttons) {
        return deviceOf(driver->plug({.name = "named", .sticks = {}, .buttons = buttons}))
            .buttonText(ControlInput::Fire);
    };
    struct Case {
        const char* name;
        const char* shown;
    };
    for (const Case& c :
         {Case{"Button 0", "Button 1"}, Case{"Button 1", "Button 1"}, Case{"Big Red Button 0", "Big Red Button 1"},
          Case{"Button 00", "Button 1"}, Case{"Button X", "Button X"}, Case{"Button 0x", "Button 0x"},
          Case{"Button 99999999999999999999", "Button 99999999999999999999"}, Case{"Button 0 ", "Button 0 "},
          Case{"0", "0"}, Case{"B", "B"}, Case{"", ""}}) {
        EXPECT_EQ(named({c.name}), c.shown);
    }

    const auto all = [](const Controls& device) {
        std::string texts;
        for (const ControlInput input : {ControlInput::Fire, ControlInput::Button2, ControlInput::Pause,
                                         ControlInput::ChangeSkin, ControlInput::ChangeColour}) {
            texts += device.buttonText(input) + " ";
        }
        return texts;
    };
    const JoystickControls plain = deviceOf(driver->plugPlainPad("plain"));
    EXPECT_EQ(all(plain), "A B START X Y ");
    EXPECT_EQ(all(deviceOf(driver->plugEventCodePad("eleven", 11))), "B1 B2 B8 B3 B4 ");
    EXPECT_EQ(all(deviceOf(driver->plugEventCodePad("thirteen", 13))), "B1 B2 B10 B3 B4 ");
    EXPECT_EQ(all(deviceOf(driver->plugEventCodePad("fifteen", 15))), "B1 B2 B12 B4 B5 ");
    for (const ControlInput direction :
         {ControlInput::Up, ControlInput::Down, ControlInput::Left, ControlInput::Right}) {
        EXPECT_EQ(plain.buttonText(direction), "");
    }

    std::vector<std::string> counted;
    for (int i = 0; i < 15; ++i) {
        counted.push_back(fmt::format("Button {}", i));
    }
    EXPECT_EQ(
        deviceOf(driver->plug({.name = "counted", .sticks = {}, .buttons = counted})).buttonText(ControlInput::Pause),
        "Button 12")
        << "counted by the platform, so compared with its number";
}

TEST_F(JoystickControlsTest, ADeviceTellsWhichItIs) {
    const auto pad = driver->plugPlainPad("Sofa pad");
    const std::string debugName = fmt::format("Sofa pad {:x}", reinterpret_cast<std::uintptr_t>(pad->handle()));
    const CapturedLog log;
    const JoystickControls quiet(driver, pad->handle(), true);
    EXPECT_EQ(log.text(), "");
    const JoystickControls device(driver, pad->handle());
    EXPECT_EQ(log.text(), "0: Init JoystickControls " + debugName + "\n");
    EXPECT_EQ(device.description(), "Sofa pad");
    EXPECT_EQ(device.debugName(), debugName);
}

}  // namespace
}  // namespace vandrel::test
