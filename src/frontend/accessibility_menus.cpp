#include "frontend/accessibility_menus.h"

#include <fmt/format.h>

#include <array>
#include <string>
#include <vector>

#include "frontend/menu_edit_colour.h"
#include "frontend/rate_menus.h"
#include "match/options/name_tables.h"
#include "players/player_look.h"
#include "shell/accessibility.h"
#include "shell/config.h"
#include "shell/switches.h"

namespace vandrel {

namespace {

constexpr int mostOpacity = 255;
constexpr int opacityStep = 16;

constexpr std::array<const char*, 8> flashingHeadings{"Flashing background settings",
                                                      "This game features a flashing background, with a",
                                                      "period of about 1Hz, when shrinking is about to",
                                                      "begin. According to the UK Epilepsy Society it",
                                                      "is uncommon for flashing images below a rate of 3Hz",
                                                      "to trigger seizures in people with photosensitive",
                                                      "epilepsy. However, if you wish you may turn off the",
                                                      "flashing background."};

void resetToDefaults() {
    accessibility = AccessibilitySettings{};
    teamColours = defaultTeamColours;
    invalidatePlayerColours();
}

// A row for each colour, painted in it. The list keeps its place and length while the menu is open.
void addColours(VandrelMenu& menu, int x, std::vector<RGB>& colours, const char* whose) {
    for (std::size_t i = 0; i < colours.size(); ++i) {
        RGB* const colour = &colours[i];
        menu.addAction(
            x, fmt::format("Edit {} {} colour", whose, i + 1), [colour] { menuEditColour(*colour); }, {}, colour);
    }
}

std::shared_ptr<VandrelMenu> teamColoursMenu(MenuContext& context) {
    auto menu = std::make_shared<VandrelMenu>(&layoutDefault);
    addColours(*menu, context.x, teamColours, "team");
    addBack(*menu, context.x, context.stack);
    return menu;
}

std::shared_ptr<VandrelMenu> playerColoursMenu(MenuContext& context) {
    auto menu = std::make_shared<VandrelMenu>(&layoutDefault);
    menu->addHeading(context.headingX, "Note - player colours are reset on");
    menu->addHeading(context.headingX, "changing background colour");
    addColours(*menu, context.x, editablePlayerColours(), "player");
    addBack(*menu, context.x, context.stack);
    return menu;
}

std::shared_ptr<VandrelMenu> flashingMenu(MenuContext& context) {
    auto menu = std::make_shared<VandrelMenu>(&layoutDefault);
    for (const char* heading : flashingHeadings) {
        menu->addHeading(context.headingX, heading);
    }
    menu->addBool(context.x, "Flashing background", &accessibility.flashingEnabled, context.offOnNames);
    addBack(*menu, context.x, context.stack);
    return menu;
}

void addLooks(VandrelMenu& menu, MenuContext& context) {
    MenuStack& stack = context.stack;
    const int x = context.x;
    menu.addEnum(x, "In-game background colour", &accessibility.bgcol, 0, static_cast<int>(BackgroundNames.size()) - 1,
                 makeNameList(BackgroundNames));
    menu.addAction(x, "Edit team colours", [&] { stack.push(teamColoursMenu(context)); });
    menu.addAction(x, "Edit player colours", [&] { stack.push(playerColoursMenu(context)); });
    menu.addBool(x, "Outline around players", &accessibility.outlineEnabled, context.offOnNames);
    menu.addAction(x, "Edit player outline colour", [] { menuEditColour(accessibility.outlineCol); });
    menu.addBool(x, "Recolour bombs", &accessibility.recolourBombs, context.offOnNames);
    menu.addAction(x, "Edit bomb colour", [] { menuEditColour(accessibility.newBombCol); });
    menu.addInt(x, "Ghost opacity (0=invisible, max 255)", &accessibility.ghostOpacity, 0, mostOpacity, opacityStep);
    menu.addAction(x, "Flashing background settings", [&] { stack.push(flashingMenu(context)); });
}

void addSaving(VandrelMenu& menu, MenuContext& context) {
    menu.addHeading(context.headingX, "Save/load accessibility settings");
    menu.addHeading(context.headingX, "Note: player/team colours and slow");
    menu.addHeading(context.headingX, "motion options are not saved");
    const auto flip = [](CmdButtonAction&) { autoLoadAccessibility.toggle(); };
    const auto autoLoad = menu.addAction(
        context.x, [] { return std::string("Auto-load on startup: ") + (autoLoadAccessibility.get() ? "On" : "Off"); },
        flip);
    autoLoad->setLeftAction(flip);
    autoLoad->setRightAction(flip);
    menu.addAction(context.x, "Load", [] { loadAccessibility(accessibility); });
    menu.addAction(context.x, "Save", [] { saveAccessibility(accessibility); });
    menu.addAction(context.x, "Reset to defaults", resetToDefaults);
}

}  // namespace

std::shared_ptr<VandrelMenu> accessibilityMenu(MenuContext& context) {
    auto menu = std::make_shared<VandrelMenu>(&layoutDefault);
    menu->addHeading(context.headingX, "Accessibility settings");
    addLooks(*menu, context);
    menu->addGap();
    menu->addAction(context.x, "Slow motion options", [&] { context.stack.push(slowMotionMenu(context)); });
    menu->addGap();
    addSaving(*menu, context);
    menu->addGap();
    addBack(*menu, context.x, context.stack);
    return menu;
}

}  // namespace vandrel
