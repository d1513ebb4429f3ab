// The rows of the settings, and what becomes of their values.
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "frontend/accessibility_menus.h"
#include "frontend/menu_rows.h"
#include "frontend/screen_stage.h"
#include "frontend/settings_menus.h"
#include "players/player_look.h"
#include "shell/accessibility.h"
#include "shell/config.h"
#include "shell/switches.h"

namespace vandrel {
namespace {

class MenuScreens : public ScreenStage {
  protected:
    MenuScreens() {
        openConfig("vandrel.cfg");
        accessibility = AccessibilitySettings{};
        fillTeamPalettes();
    }

    ~MenuScreens() override {
        accessibility = AccessibilitySettings{};
        fillTeamPalettes();
        invalidatePlayerColours();
        menuControlMode = MenuControlMode::KeyboardAndAnyController;
    }

    MenuContext context{1920};
};

// What a player reads from top to bottom: the way to a menu by its rows, and what stands on it, "#" before a heading.
TEST_F(MenuScreens, EverySettingStandsInItsPlace) {
    const std::pair<std::vector<std::string>, std::vector<std::string>> menus[] = {
        {{},
         {"# Settings", "Display", "Sound", "Replays", "Accessibility", "Phobias", "Debug", "Menu control mode",
          "Profile", "Back"}},
        {{"Display"},
         {"# Display settings", "Screen resolution", "High frame rate options", "Show FPS", "VSync", "Back"}},
        {{"Display", "High frame rate options"},
         {"# High frame rate settings", "# Warning: high refresh rate modes are experimental and", "# may have bugs.",
          "# Some aspects of gameplay and balance will be different,", "# especially at 144Hz",
          "# Not compatible with slow motion mode.", "60Hz (default)", "120Hz", "144Hz", "Back"}},
        {{"Replays"}, {"# Replay settings", "Record replay data", "Show replay test option", "Back"}},
        {{"Accessibility"},
         {"# Accessibility settings", "In-game background colour", "Edit team colours", "Edit player colours",
          "Outline around players", "Edit player outline colour", "Recolour bombs", "Edit bomb colour",
          "Ghost opacity (0=invisible, max 255)", "Flashing background settings", "Slow motion options",
          "# Save/load accessibility settings", "# Note: player/team colours and slow",
          "# motion options are not saved", "Auto-load on startup: Off", "Load", "Save", "Reset to defaults", "Back"}},
        {{"Accessibility", "Slow motion options"},
         {"# Slow motion settings", "Quarter speed", "Half speed", "Three quarter speed", "Normal speed", "Back"}},
        {{"Phobias"},
         {"# This game includes photos of cats, dogs and", "# other animals. If you have a phobia of any of",
          "# these animals, you can choose not to see them.", "Cats: On", "Dogs: On", "Hamsters: On", "Owls: On",
          "Ferrets: On", "Back"}},
        {{"Debug"},
         {"# Debug options - not recommended for most players", "Diagnostic mode", "Show player controller debug",
          "Set lootbox points", "Go to lootbox room (loot boxes must be enabled)", "Show Quick Start option: Off",
          "Back"}},
    };
    for (const auto& [way, rows] : menus) {
        context.stack.menus.clear();
        context.stack.push(settingsMenu(context));
        for (const std::string& step : way) {
            rowOf(*context.stack.menus.back(), step).press();
        }
        EXPECT_EQ(textsOf(*context.stack.menus.back()), rows);
    }
}

TEST_F(MenuScreens, TheFirstRunIsMarkedByItsQuestion) {
    EXPECT_FALSE(hasConfigKey("lootbox", "catsEnabled"));
    const auto first = phobiasMenu(context, true);
    EXPECT_TRUE(hasConfigKey("lootbox", "catsEnabled"));
    EXPECT_EQ(first->entries().back()->text(), "Done");
    EXPECT_EQ(phobiasMenu(context, false)->entries().back()->text(), "Back");
    const bool before = dogsEnabled.get();
    rowOf(*first, "Dogs: ").press();
    EXPECT_EQ(rowOf(*first, "Dogs: ").text(), before ? "Dogs: Off" : "Dogs: On");
    EXPECT_EQ(getConfigBool("lootbox", "dogsEnabled", before), !before);
    rowOf(*first, "Dogs: ").press();
}

TEST_F(MenuScreens, ValuesOfTheFileThatNoMenuOffersStayUntilTheyAreStepped) {
    menuControlMode = 7;
    EXPECT_EQ(rowOf(*settingsMenu(context), "Menu control mode").valueText(), "7");
    EXPECT_EQ(getConfigInt("controls", "menuControlMode", -1), 7) << "stored as it was when the menu closed";
    rowOf(*settingsMenu(context), "Menu control mode").increase();
    EXPECT_EQ(getConfigInt("controls", "menuControlMode", -1), MenuControlMode::KeyboardAndController1);

    setConfigInt("accessibility", "bgcol", -3);
    setConfigInt("accessibility", "ghostOpacity", std::numeric_limits<int>::max());
    const auto menu = accessibilityMenu(context);
    rowOf(*menu, "Load").press();
    EXPECT_EQ(rowOf(*menu, "In-game").valueText(), "-3");
    rowOf(*menu, "In-game").decrease();
    EXPECT_EQ(rowOf(*menu, "In-game").valueText(), "Grey");
    rowOf(*menu, "Ghost opacity").increase();
    EXPECT_EQ(rowOf(*menu, "Ghost opacity").valueText(), "0");
}

TEST_F(MenuScreens, AccessibilityIsSavedLoadedAndReset) {
    const auto menu = accessibilityMenu(context);
    for (int i = 0; i < 13; ++i) {
        rowOf(*menu, "Ghost opacity").increase();
    }
    EXPECT_EQ(accessibility.ghostOpacity, 16) << "from 64 by sixteens to 240, then round by 0";
    rowOf(*menu, "Recolour bombs").press();
    rowOf(*menu, "Save").press();
    rowOf(*menu, "Recolour bombs").press();
    rowOf(*menu, "Load").press();
    EXPECT_TRUE(accessibility.recolourBombs);

    const RGB player = playerColours().front();
    editablePlayerColours().front() = {1, 2, 3};
    teamColours.front() = {1, 2, 3};
    EXPECT_EQ(playerColours().front(), (RGB{1, 2, 3}));
    rowOf(*menu, "Reset to defaults").press();
    EXPECT_EQ(accessibility, AccessibilitySettings{});
    EXPECT_EQ(teamColours, defaultTeamColours);
    EXPECT_EQ(playerColours().front(), player);
    EXPECT_EQ(getConfigInt("accessibility", "ghostOpacity", -1), 16) << "what was saved stays";

    for (void (CmdButtonBase::*key)() : {&CmdButtonBase::press, &CmdButtonBase::decrease, &CmdButtonBase::increase}) {
        const std::string before = rowOf(*menu, "Auto-load").text();
        (rowOf(*menu, "Auto-load").*key)();
        EXPECT_NE(rowOf(*menu, "Auto-load").text(), before);
    }
    rowOf(*menu, "Auto-load").press();
}

}  // namespace
}  // namespace vandrel
