#include "frontend/menu_screen_mode.h"

#include <allegro5/allegro.h>
#include <fmt/format.h>

#include <set>
#include <string>
#include <utility>

#include "frontend/message_screen.h"
#include "frontend/title.h"
#include "frontend/vandrel_menu.h"
#include "input/menu_input.h"
#include "presentation/colours.h"
#include "presentation/drawing.h"
#include "presentation/text.h"
#include "shell/config.h"
#include "shell/display.h"
#include "shell/frame_overlay.h"
#include "shell/frame_pump.h"
#include "shell/log.h"
#include "shell/switches.h"

namespace vandrel {

namespace {

constexpr int leastWidth = 800;  // pixels
constexpr int leastHeight = 600;
constexpr Pixel currentModeAt{50, 200};
constexpr Pixel selectedModeAt{50, 350};
constexpr int textRowHeight = 30;

// A mode as the player chooses it. The size of a fullscreen window is the monitor's, and its own is only kept.
struct ScreenMode {
    bool windowed = false;
    int width = 0;  // pixels
    int height = 0;
    int display = ALLEGRO_DEFAULT_DISPLAY_ADAPTER;
};

ScreenMode presentMode() {
    return {(al_get_new_display_flags() & ALLEGRO_FULLSCREEN_WINDOW) == 0, al_get_display_width(theDisplay),
            al_get_display_height(theDisplay), al_get_new_display_adapter()};
}

void apply(const ScreenMode& mode) {
    setVideoMode(mode.width, mode.height, mode.windowed, mode.display);
}

std::string windowLabel(int width, int height) {
    return fmt::format("Windowed, {}x{}", width, height);
}

// Only who has several monitors is told which.
std::string fullscreenLabel(int display) {
    if (al_get_num_video_adapters() < 2) {
        return "Fullscreen window";
    }
    return display == ALLEGRO_DEFAULT_DISPLAY_ADAPTER ? "Fullscreen window (default display)"
                                                      : fmt::format("Fullscreen window (display {})", display + 1);
}

std::string labelOf(const ScreenMode& mode) {
    return mode.windowed ? windowLabel(mode.width, mode.height) : fullscreenLabel(mode.display);
}

void storeMode(const ScreenMode& mode) {
    setConfigInt("video", "width", mode.width);
    setConfigInt("video", "height", mode.height);
    setConfigInt("video", "windowed", mode.windowed ? 1 : 0);
    setConfigInt("video", "display", mode.display);
}

void applyAndConfirm(ScreenMode& selection) {
    const ScreenMode before = presentMode();
    apply(selection);
    if (msgScreen({"Confirm screen mode change", "Y or bomb button to confirm", "ESC or Button 2 to undo"},
                  ALLEGRO_KEY_Y, ALLEGRO_KEY_ESCAPE)) {
        logText("Mode change confirmed\n");
        storeMode(selection);
        return;
    }
    logText("Mode change cancelled\n");
    apply(before);
    selection.windowed = before.windowed;
    selection.display = before.display;
}

void addFullscreenRow(VandrelMenu& menu, int x, ScreenMode& selection, int display) {
    menu.addAction(x, fullscreenLabel(display), [&selection, display] {
        selection.windowed = false;
        selection.display = display;
    });
}

void addFullscreenRows(VandrelMenu& menu, int x, ScreenMode& selection) {
    addFullscreenRow(menu, x, selection, ALLEGRO_DEFAULT_DISPLAY_ADAPTER);
    const int displays = al_get_num_video_adapters();
    for (int display = 0; displays >= 2 && display < displays; ++display) {
        addFullscreenRow(menu, x, selection, display);
    }
}

// In the platform's order, which lists a size once for each refresh rate.
void addWindowRows(VandrelMenu& menu, int x, ScreenMode& selection) {
    std::set<std::pair<int, int>> listed;
    const int count = al_get_num_display_modes();
    for (int i = 0; i < count; ++i) {
        ALLEGRO_DISPLAY_MODE mode;
        if (al_get_display_mode(i, &mode) == nullptr || mode.width < leastWidth || mode.height < leastHeight ||
            !listed.emplace(mode.width, mode.height).second) {
            continue;
        }
        menu.addAction(x, windowLabel(mode.width, mode.height), [&selection, width = mode.width, height = mode.height] {
            selection.width = width;
            selection.height = height;
            selection.windowed = true;
        });
    }
}

void drawScreenMode(const VandrelMenu& menu, const ScreenMode& selection) {
    clearToBlack(*screen);
    drawTitle(*screen);
    menu.draw(*screen);
    drawWrappedText(*screen, "Current mode: " + labelOf(presentMode()), currentModeAt.x, currentModeAt.y, textRowHeight,
                    toColour(white));
    drawWrappedText(*screen, "Selected mode: " + labelOf(selection), selectedModeAt.x, selectedModeAt.y, textRowHeight,
                    toColour(white));
    if (alwaysShowFPS) {
        drawFrameRate(FontId::Font30);
    }
}

}  // namespace

void menuScreenMode() {
    ScreenMode selection = presentMode();
    selection.display = ALLEGRO_DEFAULT_DISPLAY_ADAPTER;
    bool done = false;
    VandrelMenu menu(&layoutScreenMode);
    const int x = usualRowX(screen->width());
    addFullscreenRows(menu, x, selection);
    addWindowRows(menu, x, selection);
    menu.addAction(x, "Apply", [&selection] { applyAndConfirm(selection); });
    menu.addAction(x, "Previous", [&done] { done = true; });
    const auto update = [&] {
        done = done || menuKeyPressed(ALLEGRO_KEY_ESCAPE, menuControlMode, false);
        menu.update(screen->height() - 1);
    };
    framePump(
        update, [&] { drawScreenMode(menu, selection); }, [&] { return done; });
}

}  // namespace vandrel
