#include <allegro5/allegro.h>
#include <gmock/gmock.h>

#include <cstdlib>
#include <stdexcept>
#include <string>

#include "input/controls_manager.h"
#include "input/keyboard.h"
#include "input/keyboard_controls.h"
#include "shell/switches.h"

namespace vandrel::test {
namespace {

// With the real keyboard of the library, as on a machine without a display server.
class KeyboardNamesTest : public testing::Test {
  protected:
    KeyboardNamesTest() {
        unsetenv("DISPLAY");
        if (!al_is_system_installed()) {
            al_install_system(ALLEGRO_VERSION_INT, std::atexit);
        }
        al_install_keyboard();
    }

    static std::string name(int keycode) { return al_keycode_to_name(keycode); }
};

TEST_F(KeyboardNamesTest, ADescriptionIsTheKeysAsTheyLie) {
    const ControlsManager manager;
    const std::string expected = name(ALLEGRO_KEY_UP) + "\n" + name(ALLEGRO_KEY_LEFT) + " " + name(ALLEGRO_KEY_DOWN) +
                                 " " + name(ALLEGRO_KEY_RIGHT) + "\n" + name(ALLEGRO_KEY_RCTRL);
    EXPECT_EQ(manager.devices[0]->description(), expected);
    EXPECT_EQ(manager.devices[2]->description(), "I\nJ K L\nN");
}

TEST_F(KeyboardNamesTest, ButtonsAreNamedAfterTheirKeysUpToTheSecondButton) {
    const ControlsManager manager;
    const Controls& letters = *manager.devices[2];
    std::string names;
    for (const ControlInput input : {ControlInput::Up, ControlInput::Down, ControlInput::Left, ControlInput::Right,
                                     ControlInput::Fire, ControlInput::Button2}) {
        names += letters.buttonText(input);
    }
    EXPECT_EQ(names, "IKJLNM");
    for (const ControlInput input : {ControlInput::Pause, ControlInput::ChangeSkin, ControlInput::ChangeColour}) {
        EXPECT_THAT([&] { letters.buttonText(input); },
                    testing::ThrowsMessage<std::out_of_range>("invalid vector subscript"));
    }
    const KeyboardControls odd({72, 73, 71, 1, 1, 1});
    EXPECT_EQ(odd.buttonText(ControlInput::Up), name(72) == "KEY72" ? "," : name(72));
    EXPECT_EQ(odd.buttonText(ControlInput::Down), name(73) == "KEY73" ? "." : name(73));
    EXPECT_EQ(odd.buttonText(ControlInput::Left), name(71));
}

TEST_F(KeyboardNamesTest, NoKeyIsHeldOnARealKeyboardThatNobodyTouches) {
    for (const int keycode : {ALLEGRO_KEY_ESCAPE, ALLEGRO_KEY_ENTER, ALLEGRO_KEY_A}) {
        EXPECT_FALSE(isKeyDown(keycode));
    }
}

}  // namespace
}  // namespace vandrel::test
