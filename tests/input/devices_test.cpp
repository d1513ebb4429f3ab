// Devices that come and go: the list of the manager, what it logs, and what a player of a running round has of it.
#include <fmt/format.h>
#include <gmock/gmock.h>

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "input/controls_manager.h"
#include "input/joystick_controls.h"
#include "input/keyboard.h"
#include "input/keyboard_controls.h"
#include "match/match_players.h"
#include "shell/frame_counter.h"
#include "shell/shell_test_tools.h"
#include "support/fake_joysticks.h"
#include "support/round_fixture.h"

namespace vandrel::test {
namespace {

std::string debugNameOf(const std::shared_ptr<FakePad>& pad) {
    return fmt::format("{} {:x}", pad->name, reinterpret_cast<std::uintptr_t>(pad->handle()));
}

std::string joined(const DeviceList& devices) {
    std::string names;
    for (const auto& device : devices) {
        const bool isKeyboard = dynamic_cast<const KeyboardControls*>(device.get()) != nullptr;
        names += (isKeyboard ? device->buttonText(ControlInput::Up) : device->description()) + " ";
    }
    return names;
}

class DevicesTest : public testing::Test {
  protected:
    DevicesTest() {
        installAllegroHeadless();
        al_install_keyboard();
        setKeyState([](int /*keycode*/) { return false; });
    }
    ~DevicesTest() override { setKeyState({}); }

    // What is logged when the platform looks at its pads, each a pad of `plugPlainPad`.
    static std::string scanLog(const std::vector<std::string>& names) {
        std::string lines = fmt::format("0: {} controllers detected:\n", names.size());
        for (const std::string& name : names) {
            lines += "0: " + name +
                     "\n0: \tSticks:\n0: \t\tLeft Thumbstick; Axes: X, Y\n0: \t\tRight Thumbstick; Axes: " +
                     "X, Y\n0: \t\tLeft Trigger; Axes: Trigger\n0: \t\tRight Trigger; Axes: Trigger\n" +
                     "0: \tButtons: A, B, X, Y, RB, LB, RT, LT, BACK, START, RIGHT, LEFT, DOWN, UP\n";
        }
        return lines;
    }
    static std::string addedLog(const std::shared_ptr<FakePad>& pad) {
        return "0: Init JoystickControls " + debugNameOf(pad) + "\n0: Added controller: " + debugNameOf(pad) + "\n";
    }

    const std::string keyboards = "UP W I T ";
    std::shared_ptr<FakeJoystickDriver> driver = std::make_shared<FakeJoystickDriver>();
};

TEST_F(DevicesTest, PadsStandBeforeTheKeyboardsAndLaterOnesBehind) {
    const auto first = driver->plugPlainPad("one");
    const auto second = driver->plugPlainPad("two");
    const CapturedLog log;
    ControlsManager manager(driver);
    EXPECT_EQ(joined(manager.devices), "one two " + keyboards);
    std::string expected = scanLog({"one", "two"}) + addedLog(first) + addedLog(second);
    EXPECT_EQ(log.text(), expected);

    EXPECT_FALSE(manager.rescan()) << "nothing came, nothing went";
    expected += scanLog({"one", "two"});
    EXPECT_EQ(log.text(), expected);

    const auto third = driver->plugPlainPad("three");
    EXPECT_TRUE(manager.rescan());
    EXPECT_EQ(joined(manager.devices), "one two " + keyboards + "three ");
    expected += scanLog({"one", "two", "three"}) + addedLog(third);
    EXPECT_EQ(log.text(), expected);

    first->plugged = false;
    third->plugged = false;
    EXPECT_TRUE(manager.rescan());
    EXPECT_EQ(joined(manager.devices), "two " + keyboards);
    expected += scanLog({"two"}) + "0: Lost joystick " + debugNameOf(first) + "\n0: Lost joystick " +
                debugNameOf(third) + "\n0: 2 controls invalidated\n";
    EXPECT_EQ(log.text(), expected);
    EXPECT_FALSE(manager.poll());
}

TEST_F(DevicesTest, AScanOfAPadWithoutNamesLogsItsEmptyRows) {
    driver->plug({.name = "", .sticks = {{.name = "", .axes = {}}}, .buttons = {}});
    const CapturedLog log;
    const ControlsManager manager(driver);
    EXPECT_EQ(log.text().substr(0, log.text().find("0: Init")),
              "0: 1 controllers detected:\n0: \n0: \tSticks:\n0: \t\t; Axes: \n0: \tButtons: \n");
}

TEST_F(DevicesTest, AtMostAHundredAreThereAndKeyboardsTakeTheirPlaceWhenPadsThatLeftThemNoneArePulled) {
    std::vector<std::shared_ptr<FakePad>> pads;
    const auto plugUpTo = [&](std::size_t count) {
        while (pads.size() < count) {
            pads.push_back(driver->plugPlainPad("p"));
        }
    };
    plugUpTo(98);
    const ControlsManager nearlyFull(driver);
    ASSERT_EQ(nearlyFull.devices.size(), 100U);
    EXPECT_EQ(nearlyFull.devices[99]->buttonText(ControlInput::Up), "W") << "two key sets find a place";
    plugUpTo(103);
    ControlsManager manager(driver);
    ASSERT_EQ(manager.devices.size(), 100U);
    EXPECT_EQ(manager.devices[99]->description(), "p");
    for (const auto& pad : pads) {
        pad->plugged = false;
    }
    EXPECT_TRUE(manager.rescan());
    EXPECT_EQ(joined(manager.devices), keyboards);
    pads.back()->plugged = true;
    EXPECT_TRUE(manager.rescan());
    EXPECT_EQ(joined(manager.devices), keyboards + "p ");
}

TEST_F(DevicesTest, APlatformWithoutJoysticksEndsTheStart) {
    driver->installs = false;
    EXPECT_THAT([&] { const ControlsManager manager(driver); },
                testing::ThrowsMessage<std::runtime_error>("al_install_joystick failed"));
}

// The pad's player walks right along the free row, another one goes on whatever happens to the pad.
TEST_F(DevicesTest, APadPulledInTheMiddleOfARoundReturnsToItsPlayer) {
    const auto pad = driver->plugPlainPad("sofa");
    ControlsManager manager(driver);
    manager.listHolders = listDeviceHolders;
    TestRound round({.size = {41, 5}});
    const auto other = round.addPlayer({1, 3});
    const auto player = round.addPlayer({1, 1});
    player->controls = manager.devices[0];
    round.hold(*other, {.right = true});
    pad->move(0, 0, 1.0f);
    round.step(10);
    const int walked = player->x;
    EXPECT_GT(walked, 32);

    const CapturedLog log;
    frameCounter = 0;
    pad->plugged = false;
    manager.rescan();
    EXPECT_EQ(log.text(), scanLog({}) + "0: Lost joystick " + debugNameOf(pad) + "\n0: 1 controls invalidated\n");
    EXPECT_EQ(joined(manager.devices), keyboards);
    EXPECT_FALSE(player->controls->isConnected());
    const int otherBefore = other->x;
    round.step(10);
    EXPECT_EQ(player->x, walked) << "no input";
    EXPECT_GT(other->x, otherBefore) << "the round goes on";

    frameCounter = 0;
    pad->plugged = true;
    manager.rescan();
    const std::string lost = log.text().substr(0, log.text().find("0: 1 controllers detected"));
    EXPECT_EQ(log.text().substr(lost.size()),
              scanLog({"sofa"}) + addedLog(pad) + "0: Player " + std::to_string(player->num) + " regained controls\n");
    ASSERT_EQ(joined(manager.devices), keyboards + "sofa ");
    EXPECT_NE(manager.devices.back(), player->controls) << "the player keeps the old device";
    const auto returned = manager.devices.back();
    EXPECT_EQ(manager.menuDevices(MenuControlMode::KeyboardAndController1, true), (DeviceList{returned, returned}))
        << "as the first controller, and as one that a player holds";
    round.step(10);
    EXPECT_GT(player->x, walked);
}

// The library itself, with whatever is plugged in here.
TEST_F(DevicesTest, TheRealPlatformIsScannedAgainAndAgain) {
    ALLEGRO_EVENT_QUEUE* queue = al_create_event_queue();
    {
        ControlsManager manager(std::make_shared<AllegroJoystickDriver>(queue));
        EXPECT_TRUE(al_is_event_source_registered(queue, al_get_joystick_event_source()));
        const auto pads = static_cast<std::size_t>(al_get_num_joysticks());
        EXPECT_EQ(manager.devices.size(), pads + 4);
        EXPECT_FALSE(manager.rescan());
        for (const auto& device : manager.devices) {
            EXPECT_TRUE(device->isConnected());
            EXPECT_FALSE(device->bombPressed());
        }
    }
    al_uninstall_joystick();
    al_destroy_event_queue(queue);
}

}  // namespace
}  // namespace vandrel::test
