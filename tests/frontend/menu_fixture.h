// What a test of menus holds in its hands: the keyboard, controllers, and an ear for the samples. All latches are empty
// before and after each test.
#pragma once

#include <allegro5/keycodes.h>
#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <vector>

#include "frontend/vandrel_menu.h"
#include "input/controls_manager.h"
#include "input/keyboard.h"
#include "input/menu_input.h"
#include "presentation/play_sample.h"
#include "support/key_latches.h"
#include "support/round_fixture.h"

namespace vandrel::test {

class MenuTest : public testing::Test {
  protected:
    MenuTest() {
        setKeyState([this](int keycode) { return keys.contains(keycode); });
        theControlsManager = std::make_unique<ControlsManager>();
        heard().clear();
        setSamplePlayer([](SampleIds id, int volume, int pan, int speed) {
            heard().push_back({id, volume, pan, speed});
        });
        keyRepeatDelay = 10;
        keyRepeatCount = 0;
    }

    ~MenuTest() override {
        letGoOfAllKeys();
        theControlsManager.reset();
        setSamplePlayer(nullptr);
        menuControlMode = MenuControlMode::KeyboardAndAnyController;
    }

    // A device that counts as a controller, behind those there are.
    static std::shared_ptr<ScriptedControls> addController() {
        auto controller = std::make_shared<ScriptedControls>();
        theControlsManager->devices.push_back(controller);
        return controller;
    }

    // One update with the keys held, after as many as it takes until input is read again.
    void press(VandrelMenu& menu, const std::set<int>& held) {
        idle(menu);
        keys = held;
        menu.update(limit);
        keys.clear();
    }

    // Downward, row by row.
    void choose(VandrelMenu& menu, int row) {
        for (int steps = 0; menu.selected() != row && steps < 100; ++steps) {
            press(menu, {ALLEGRO_KEY_DOWN});
        }
    }

    void update(VandrelMenu& menu, int updates) const {
        for (int i = 0; i < updates; ++i) {
            menu.update(limit);
        }
    }
    // Updates with nothing held, until every wait is over.
    void idle(VandrelMenu& menu) {
        keys.clear();
        update(menu, 11);
    }

    static std::vector<HeardSample>& heard() {
        static std::vector<HeardSample> samples;
        return samples;
    }

    std::set<int> keys;
    int limit = 1079;
};

}  // namespace vandrel::test
