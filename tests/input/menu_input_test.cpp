#include "input/menu_input.h"

#include <allegro5/keycodes.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "input/controls_manager.h"
#include "input/keyboard.h"
#include "input/keyboard_controls.h"
#include "shell/switches.h"
#include "support/key_latches.h"
#include "support/round_fixture.h"

namespace vandrel::test {
namespace {

class InputTest : public testing::Test {
  protected:
    InputTest() {
        setKeyState([this](int keycode) { return keys.contains(keycode); });
        theControlsManager = std::make_unique<ControlsManager>();
        createSteamListener();
    }

    ~InputTest() override {
        steamListenerFlag = nullptr;
        theSteamListener.reset();
        letGoOfAllKeys();
        theControlsManager.reset();
        menuControlMode = MenuControlMode::KeyboardAndAnyController;
    }

    std::shared_ptr<ScriptedControls> addController() {
        auto controller = std::make_shared<ScriptedControls>();
        theControlsManager->devices.push_back(controller);
        return controller;
    }

    std::set<int> keys;
};

constexpr int anyController = MenuControlMode::KeyboardAndAnyController;

TEST_F(InputTest, TheFourKeySetsAnswerForTheirKeysOnly) {
    using Query = bool (Controls::*)() const;
    const Query queries[] = {&Controls::upPressed,    &Controls::downPressed, &Controls::leftPressed,
                             &Controls::rightPressed, &Controls::bombPressed, &Controls::button2Pressed};
    // The library's numbers, in the order of the queries.
    const int keycodes[4][6] = {
        {84, 85, 82, 83, 218, 216}, {23, 19, 1, 4, 217, 215}, {9, 11, 10, 12, 14, 13}, {20, 7, 6, 8, 3, 22}};
    ASSERT_EQ(theControlsManager->devices.size(), 4U);
    for (int pressedSet = 0; pressedSet < 4; ++pressedSet) {
        for (int pressed = 0; pressed < 6; ++pressed) {
            keys = {keycodes[pressedSet][pressed]};
            for (int set = 0; set < 4; ++set) {
                for (int query = 0; query < 6; ++query) {
                    const Controls& device = *theControlsManager->devices[static_cast<std::size_t>(set)];
                    EXPECT_EQ((device.*queries[query])(), set == pressedSet && query == pressed)
                        << "key " << keycodes[pressedSet][pressed] << ", set " << set << ", query " << query;
                }
            }
        }
    }
    keys = {ALLEGRO_KEY_ESCAPE};
    for (const std::shared_ptr<Controls>& device : theControlsManager->devices) {
        EXPECT_TRUE(device->pausePressed());
        EXPECT_FALSE(device->skinPressed() || device->colourPressed());
        EXPECT_TRUE(device->isConnected());
        EXPECT_EQ(device->debugName(), "?");
    }
    const DeviceList before = theControlsManager->devices;
    EXPECT_FALSE(theControlsManager->rescan());
    EXPECT_FALSE(theControlsManager->poll());
    EXPECT_EQ(theControlsManager->devices, before) << "scans after the first leave the keyboards alone";
}

TEST_F(InputTest, InertDevicesAnswerNothing) {
    theControlsManager->addSteamInputControls();
    const NoControls none;
    for (const Controls* device : {static_cast<const Controls*>(&none),
                                   static_cast<const Controls*>(theControlsManager->devices.back().get())}) {
        EXPECT_TRUE(device->isConnected());
        EXPECT_FALSE(device->upPressed() || device->downPressed() || device->leftPressed() || device->rightPressed() ||
                     device->bombPressed() || device->button2Pressed() || device->pausePressed() ||
                     device->skinPressed() || device->colourPressed());
        EXPECT_EQ(device->description() + device->buttonText(ControlInput::Fire), "");
        EXPECT_EQ(device->debugName(), "?");
    }
}

TEST_F(InputTest, MenuDevicesByModeAndHolder) {
    const auto first = addController();
    const auto second = addController();
    theControlsManager->listHolders = [&second] { return std::vector<DeviceHolder>{{0, second}}; };
    struct Case {
        int mode;
        bool includeHeld;
        DeviceList expected;
    };
    for (const Case& c :
         {Case{0, false, {}}, Case{0, true, {}}, Case{1, false, {first}}, Case{1, true, {first, second}},
          Case{2, false, {first, second}}, Case{2, true, {first, second}}, Case{3, true, {}}, Case{-1, true, {}}}) {
        EXPECT_EQ(theControlsManager->menuDevices(c.mode, c.includeHeld), c.expected) << c.mode << c.includeHeld;
    }
    theControlsManager->listHolders = [] {
        std::vector<DeviceHolder> holders;
        for (const std::shared_ptr<Controls>& device : theControlsManager->devices) {
            holders.push_back({0, device});
        }
        return holders;
    };
    EXPECT_EQ(theControlsManager->menuDevices(1, true), (DeviceList{first, first})) << "keyboards do not count as held";
    theControlsManager->listHolders = {};
    EXPECT_EQ(theControlsManager->menuDevices(1, true), DeviceList{first}) << "no match";
    theControlsManager->devices.resize(4);
    EXPECT_TRUE(theControlsManager->menuDevices(1, true).empty());
}

TEST_F(InputTest, AControllerStandsForKeysAndDirections) {
    const auto controller = addController();
    struct Case {
        const char* what;
        HeldKeys held;
        std::set<int> keyDown, keyDownWithPause, direction;
    };
    const std::set<int> confirm{ALLEGRO_KEY_ENTER, ALLEGRO_KEY_SPACE, ALLEGRO_KEY_Y};
    const Case cases[] = {
        {"fire", {.fire = true}, confirm, confirm, {}},
        {"button 2", {.button2 = true}, {ALLEGRO_KEY_ESCAPE}, {}, {}},
        {"pause", {.pause = true}, {}, {ALLEGRO_KEY_ESCAPE}, {}},
        {"left", {.left = true}, {}, {}, {ALLEGRO_KEY_LEFT}},
        {"right", {.right = true}, {}, {}, {ALLEGRO_KEY_RIGHT}},
        {"up", {.up = true}, {}, {}, {ALLEGRO_KEY_UP}},
        {"down", {.down = true}, {}, {}, {ALLEGRO_KEY_DOWN}},
    };
    const auto answering = [](const std::function<bool(int)>& query) {
        std::set<int> found;
        for (int keycode = 1; keycode < ALLEGRO_KEY_MAX; ++keycode) {
            if (query(keycode)) {
                found.insert(keycode);
            }
        }
        return found;
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        controller->held = c.held;
        EXPECT_EQ(answering([](int key) { return menuKeyDown(key, anyController, false, false); }), c.keyDown);
        EXPECT_EQ(answering([](int key) { return menuKeyDown(key, anyController, false, true); }), c.keyDownWithPause);
        EXPECT_EQ(answering([](int key) { return menuDirectionDown(key, anyController, false); }), c.direction);
        EXPECT_TRUE(answering([](int key) { return menuKeyDown(key, 0, true, false); }).empty()) << "keyboard only";
        EXPECT_TRUE(answering([](int key) { return menuDirectionDown(key, 0, true); }).empty());
    }
    controller->held = {};
    keys = {ALLEGRO_KEY_LEFT, ALLEGRO_KEY_B};
    EXPECT_EQ(answering([](int key) { return menuKeyDown(key, 0, false, false); }), keys);
    EXPECT_EQ(answering([](int key) { return menuDirectionDown(key, 0, false); }), keys);
}

TEST_F(InputTest, APressRisesOnceAndIsRememberedOverScreens) {
    const auto controller = addController();
    const auto pressed = [](int keycode) { return menuKeyPressed(keycode, anyController, false); };
    keys = {ALLEGRO_KEY_ENTER};
    EXPECT_TRUE(pressed(ALLEGRO_KEY_ENTER));
    EXPECT_FALSE(pressed(ALLEGRO_KEY_ENTER));
    EXPECT_FALSE(pressed(ALLEGRO_KEY_SPACE)) << "its own latch, and not down";
    keys.clear();
    controller->held = {.fire = true};
    EXPECT_FALSE(pressed(ALLEGRO_KEY_ENTER)) << "never seen up: the device takes over from the key";
    EXPECT_TRUE(pressed(ALLEGRO_KEY_SPACE)) << "one press answers for each of its keys";
    EXPECT_TRUE(pressed(ALLEGRO_KEY_Y));
    controller->held = {};
    EXPECT_FALSE(pressed(ALLEGRO_KEY_ENTER));
    controller->held = {.fire = true};
    EXPECT_TRUE(pressed(ALLEGRO_KEY_ENTER));
    controller->held = {};
    keys = {ALLEGRO_KEY_SPACE};
    EXPECT_FALSE(pressed(ALLEGRO_KEY_SPACE)) << "the latch changes only when it is asked";
}

TEST_F(InputTest, AReleaseIsToldOnce) {
    EXPECT_FALSE(wasKeyReleased(ALLEGRO_KEY_F8)) << "never down";
    keys = {ALLEGRO_KEY_F8};
    EXPECT_FALSE(wasKeyReleased(ALLEGRO_KEY_F8));
    EXPECT_FALSE(wasKeyReleased(ALLEGRO_KEY_F8));
    keys.clear();
    EXPECT_FALSE(wasKeyReleased(ALLEGRO_KEY_F7));
    EXPECT_TRUE(wasKeyReleased(ALLEGRO_KEY_F8));
    EXPECT_FALSE(wasKeyReleased(ALLEGRO_KEY_F8));

    keys = {ALLEGRO_KEY_F8};
    EXPECT_FALSE(wasKeyReleased(ALLEGRO_KEY_F8));
    letGoOfKeys();
    keys.clear();
    EXPECT_FALSE(wasKeyReleased(ALLEGRO_KEY_F8)) << "another window has taken the key, nobody has let go of it";
}

TEST_F(InputTest, AnOverlayHidesTheKeyboardAndFreezesTheLatches) {
    keys = {ALLEGRO_KEY_ENTER, ALLEGRO_KEY_F8};
    EXPECT_TRUE(menuKeyPressed(ALLEGRO_KEY_ENTER, anyController, false));
    EXPECT_FALSE(wasKeyReleased(ALLEGRO_KEY_F8));
    theSteamListener->overlayActive = true;
    EXPECT_FALSE(isKeyDown(ALLEGRO_KEY_ENTER));
    keys.clear();
    EXPECT_FALSE(menuKeyPressed(ALLEGRO_KEY_ENTER, anyController, false));
    EXPECT_FALSE(wasKeyReleased(ALLEGRO_KEY_F8));
    theSteamListener->overlayActive = false;
    keys = {ALLEGRO_KEY_ENTER};
    EXPECT_FALSE(menuKeyPressed(ALLEGRO_KEY_ENTER, anyController, false)) << "still latched";
    EXPECT_TRUE(wasKeyReleased(ALLEGRO_KEY_F8)) << "the release is told once the overlay has gone";
}

TEST_F(InputTest, PauseIsEscapeOrAnAdmittedPauseButton) {
    const auto first = addController();
    const auto second = addController();
    bool secondPlays = true;
    theControlsManager->listHolders = [&] {
        return secondPlays ? std::vector<DeviceHolder>{{0, second}} : std::vector<DeviceHolder>{};
    };
    EXPECT_FALSE(pauseCheck());
    for (const int mode : {0, 1, 2}) {
        menuControlMode = mode;
        keys = {ALLEGRO_KEY_ESCAPE};
        second->held = {};
        EXPECT_TRUE(pauseCheck()) << mode;
        keys.clear();
        second->held = {.pause = true};
        EXPECT_EQ(pauseCheck(), mode != 0) << mode;
    }
    menuControlMode = 1;
    secondPlays = false;
    EXPECT_FALSE(pauseCheck());
    first->held = {.pause = true};
    EXPECT_TRUE(pauseCheck());
}

}  // namespace
}  // namespace vandrel::test
