#include "frontend/settings_menus.h"

#include "frontend/accessibility_menus.h"
#include "frontend/lootbox_room.h"
#include "frontend/menu_audio.h"
#include "frontend/menu_screen_mode.h"
#include "frontend/rate_menus.h"
#include "input/controls_manager.h"
#include "input/menu_input.h"
#include "match/options/name_tables.h"
#include "players/players_drawing.h"
#include "shell/config.h"
#include "shell/profile_screen.h"
#include "shell/switches.h"

namespace vandrel {

namespace {

void storeSettings() {
    setConfigInt("controls", "menuControlMode", menuControlMode);
    setConfigInt("other", "replayRecordingEnabled", replayRecordingEnabled ? 1 : 0);
    setConfigInt("other", "showReplayTestOptions", showReplayTestOptions ? 1 : 0);
    setConfigInt("other", "alwaysShowFPS", alwaysShowFPS ? 1 : 0);
}

std::shared_ptr<VandrelMenu> displayMenu(MenuContext& context) {
    auto menu = std::make_shared<VandrelMenu>(&layoutDefault);
    menu->addHeading(context.headingX, "Display settings");
    menu->addAction(context.x, "Screen resolution", [] { menuScreenMode(); });
    menu->addAction(context.x, "High frame rate options",
                    [&context] { context.stack.push(highFrameRateMenu(context)); });
    menu->addBool(context.x, "Show FPS", &alwaysShowFPS, context.offOnNames);
    menu->addBool(context.x, "VSync", &vsyncEnabled, context.offOnNames);
    addBack(*menu, context.x, context.stack);
    return menu;
}

std::shared_ptr<VandrelMenu> replaySettingsMenu(MenuContext& context) {
    auto menu = std::make_shared<VandrelMenu>(&layoutDefault);
    menu->addHeading(context.headingX, "Replay settings");
    menu->addBool(context.x, "Record replay data", &replayRecordingEnabled, context.offOnNames);
    menu->addBool(context.x, "Show replay test option", &showReplayTestOptions, context.offOnNames);
    addBack(*menu, context.x, context.stack);
    return menu;
}

std::shared_ptr<VandrelMenu> debugMenu(MenuContext& context) {
    constexpr int mostPoints = 1000;
    auto menu = std::make_shared<VandrelMenu>(&layoutDefault);
    menu->addHeading(context.headingX, "Debug options - not recommended for most players");
    menu->addBool(context.x, "Diagnostic mode", &diagnostic, context.offOnNames);
    menu->addBool(context.x, "Show player controller debug", &showControllerDebug, context.offOnNames);
    menu->addInt(context.x, "Set lootbox points", &lootboxPoints, 0, mostPoints, 1);
    menu->addAction(context.x, "Go to lootbox room (loot boxes must be enabled)", [] { lootboxRoom(); });
    addEntry(showQuickStartOption, *menu, context.x);
    addBack(*menu, context.x, context.stack);
    return menu;
}

}  // namespace

std::shared_ptr<VandrelMenu> settingsMenu(MenuContext& context) {
    auto menu = std::make_shared<VandrelMenu>(&layoutDefault, storeSettings);
    MenuStack& stack = context.stack;
    const int x = context.x;
    menu->addHeading(context.headingX, "Settings");
    menu->addAction(x, "Display", [&] { stack.push(displayMenu(context)); });
    menu->addAction(x, "Sound", [] { menuAudio(nullptr, nullptr, {}); });
    menu->addAction(x, "Replays", [&] { stack.push(replaySettingsMenu(context)); });
    menu->addAction(x, "Accessibility", [&] { stack.push(accessibilityMenu(context)); });
    menu->addAction(x, "Phobias", [&] { stack.push(phobiasMenu(context, false)); });
    menu->addAction(x, "Debug", [&] { stack.push(debugMenu(context)); });
    menu->addEnum(x, "Menu control mode", &menuControlMode, MenuControlMode::KeyboardAndController1,
                  MenuControlMode::KeyboardAndAnyController, makeNameList(MenuControlModeNames));
    menu->addAction(x, "Profile", [] { profile(); });
    addBack(*menu, x, stack);
    return menu;
}

std::shared_ptr<VandrelMenu> phobiasMenu(MenuContext& context, bool firstRun) {
    auto menu = std::make_shared<VandrelMenu>(&layoutDefault);
    for (const char* line :
         {"This game includes photos of cats, dogs and", "other animals. If you have a phobia of any of",
          "these animals, you can choose not to see them."}) {
        menu->addHeading(context.headingX, line);
    }
    setConfigInt(catsEnabled.section, catsEnabled.key, catsEnabled.get() ? 1 : 0);
    for (ConfigOptionWrapper<bool>* option :
         {&catsEnabled, &dogsEnabled, &hamstersEnabled, &owlsEnabled, &ferretsEnabled}) {
        addEntry(*option, *menu, context.x);
    }
    addBack(*menu, context.x, context.stack, firstRun ? "Done" : "Back");
    return menu;
}

}  // namespace vandrel
