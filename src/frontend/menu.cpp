#include "frontend/menu.h"

#include <allegro5/keycodes.h>

#include <algorithm>
#include <string>
#include <utility>

#include "base/version.h"
#include "frontend/main_menu.h"
#include "frontend/menu_stack.h"
#include "frontend/settings_menus.h"
#include "frontend/title.h"
#include "frontend/title_figure.h"
#include "input/keyboard.h"
#include "input/menu_input.h"
#include "match/options/game_options.h"
#include "presentation/colours.h"
#include "presentation/drawing.h"
#include "presentation/ogg_music.h"
#include "presentation/text.h"
#include "shell/config.h"
#include "shell/frame_pump.h"
#include "shell/game_screen.h"

namespace vandrel {

namespace {

constexpr int leastPlayers = 2;
constexpr float figureStep = 0.1f;  // radians an update
constexpr int versionCellWidth = 24;
constexpr int versionAboveBottom = 42;

struct ContactLine {
    const char* text;
    int aboveBottom;
};

constexpr ContactLine contactLines[] = {{"www.quillmere.example", 100}, {"@quillmere", 50}};

void update(MenuContext& context, TitleFigure& figure) {
    const bool escape = menuKeyPressed(ALLEGRO_KEY_ESCAPE, menuControlMode, false);
    // The key also leaves the root, which ends the game; a controller's button leaves all menus but the root.
    context.stack.takeLeave(escape, isKeyDown(ALLEGRO_KEY_ESCAPE));
    gameOptions.numPlayers = std::max(gameOptions.numPlayers, leastPlayers);
    if (!context.stack.menus.empty()) {
        context.stack.update(screen->height() - 1);
    } else if (!context.pending.empty()) {
        context.stack.push(std::move(context.pending.front()));
        context.pending.pop();
        if (context.pending.empty()) {
            context.welcomePending = false;
        }
    } else {
        context.quit = true;
    }
    figure.clock += figureStep;
}

void drawVersion() {
    const std::string text = versionText(replayOutputVersion);
    const int width = versionCellWidth * static_cast<int>(text.size());
    drawText(*screen, FontId::Font30, screen->width() - width, screen->height() - versionAboveBottom, toColour(white),
             text);
}

void draw(const MenuContext& context, const TitleFigure& figure) {
    clearToBlack(*screen);
    if (!context.welcomePending) {
        drawTitleWithCaption(*screen);
    }
    if (!context.stack.menus.empty()) {
        context.stack.menus.back()->draw(*screen);
    }
    if (context.welcomePending) {
        return;
    }
    figure.draw(*screen);
    drawVersion();
    if (context.stack.menus.size() == 1) {
        for (const ContactLine& line : contactLines) {
            drawText(*screen, FontId::Font30, screen->width() / 2, screen->height() - line.aboveBottom, toColour(white),
                     line.text, alignCentre);
        }
    }
}

}  // namespace

void menu() {
    TitleFigure figure;
    setGameScreenSlot(menuScreenSlot);
    MenuContext context(screen->width());
    context.music = makeMenuMusic();
    if (!hasConfigKey(catsEnabled.section, catsEnabled.key)) {
        context.welcomePending = true;
        context.pending.push(phobiasMenu(context, true));
    }
    context.pending.push(mainMenu(context));
    framePump([&] { update(context, figure); }, [&] { draw(context, figure); }, [&] { return context.quit; });
}

}  // namespace vandrel
