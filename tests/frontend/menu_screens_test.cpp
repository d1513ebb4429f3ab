// The rows of the settings, and what becomes of their values.
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "frontend/accessibility_menus.h"
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

    static CmdButtonBase& row(const VandrelMenu& menu, const std::string& text) {
        const auto found = std::ranges::find_if(menu.entries(), [&](const auto& entry) {
            return !entry->isHeading() && entry->text().substr(0, text.size()) == text;
        });
        if (found == menu.entries().end()) {
            throw std::runtime_error("no row " + text);
        }
        return **found;
    }

    MenuContext context{1920};
};

// What a player reads from top to bottom: the way to a menu by its rows, and what stands on it, "#" before a heading.
TEST_F(MenuScreens, EverySettingStandsInItsPlace) {
    struct Case {
        std::vector<std::string> way;
        std::vector<std::string> rows;
    };
    const Case cases[] = {
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
    for (const Case& c : cases) {
        context.stack.menus.clear();
        context.stack.push(settingsMenu(context));
        for (const std::string& step : c.way) {
            row(*context.stack.menus.back(), step).press();
        }
        std::vector<std::string> shown;
        for (const auto& entry : context.stack.menus.back()->entries()) {
            shown.push_back((entry->isHeading() ? "# " : "") + entry->text());
        }
        EXPECT_EQ(shown, c.rows);
    }
}

TEST_F(MenuScreens, TheFirstRunIsMarkedByItsQuestion) {
    EXPECT_FALSE(hasConfigKey("lootbox", "catsEnabled"));
    const auto first = phobiasMenu(context, true);
    EXPECT_TRUE(hasConfigKey("lootbox", "catsEnabled"));
    EXPECT_EQ(first->entries().back()->text(), "Done");
    EXPECT_EQ(phobiasMenu(context, false)->entries().back()->text(), "Back");
    const bool before = dogsEnabled.get();
    row(*first, "Dogs: ").press();
    EXPECT_EQ(row(*first, "Dogs: ").text(), before ? "Dogs: Off" : "Dogs: On");
    EXPECT_EQ(getConfigBool("lootbox", "dogsEnabled", before), !before);
    row(*first, "Dogs: ").press();
}

TEST_F(MenuScreens, ValuesOfTheFileThatNoMenuOffersStayUntilTheyAreStepped) {
    menuControlMode = 7;
    EXPECT_EQ(row(*settingsMenu(context), "Menu control mode").valueText(), "7");
    EXPECT_EQ(getConfigInt("controls", "menuControlMode", -1), 7) << "stored as it was when the menu closed";
    row(*settingsMenu(context), "Menu control mode").increase();
    EXPECT_EQ(getConfigInt("controls", "menuControlMode", -1), MenuControlMode::KeyboardAndController1);

    setConfigInt("accessibility", "bgcol", -3);
    setConfigInt("accessibility", "ghostOpacity", std::numeric_limits<int>::max());
    const auto menu = accessibilityMenu(context);
    row(*menu, "Load").press();
    EXPECT_EQ(row(*menu, "In-game").valueText(), "-3");
    row(*menu, "In-game").decrease();
    EXPECT_EQ(row(*menu, "In-game").valueText(), "Grey");
    row(*menu, "Ghost opacity").increase();
    EXPECT_EQ(row(*menu, "Ghost opacity").valueText(), "0");
}

TEST_F(MenuScreens, AccessibilityIsSavedLoadedAndReset) {
    const auto menu = accessibilityMenu(context);
    for (int i = 0; i < 13; ++i) {
        row(*menu, "Ghost opacity").increase();
    }
    EXPECT_EQ(accessibility.ghostOpacity, 16) << "from 64 by sixteens to 240, then round by 0";
    row(*menu, "Recolour bombs").press();
    row(*menu, "Save").press();
    row(*menu, "Recolour bombs").press();
    row(*menu, "Load").press();
    EXPECT_TRUE(accessibility.recolourBombs);

    const RGB player = playerColours().front();
    editablePlayerColours().front() = {1, 2, 3};
    teamColours.front() = {1, 2, 3};
    EXPECT_EQ(playerColours().front(), (RGB{1, 2, 3}));
    row(*menu, "Reset to defaults").press();
    EXPECT_EQ(accessibility, AccessibilitySettings{});
    EXPECT_EQ(teamColours, defaultTeamColours);
    EXPECT_EQ(playerColours().front(), player);
    EXPECT_EQ(getConfigInt("accessibility", "ghostOpacity", -1), 16) << "what was saved stays";

    for (void (CmdButtonBase::*key)() : {&CmdButtonBase::press, &CmdButtonBase::decrease, &CmdButtonBase::increase}) {
        const std::string before = row(*menu, "Auto-load").text();
        (row(*menu, "Auto-load").*key)();
        EXPECT_NE(row(*menu, "Auto-load").text(), before);
    }
    row(*menu, "Auto-load").press();
}

}  // namespace
}  // namespace vandrel
