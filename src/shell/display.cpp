#include "shell/display.h"

#include <fmt/format.h>

#include <memory>
#include <stdexcept>

#include "presentation/drawing.h"
#include "presentation/plain_shader.h"
#include "presentation/recolour_shader.h"
#include "presentation/text.h"
#include "shell/log.h"
#include "shell/switches.h"
#include "shell/window_icon.h"

namespace vandrel {
namespace {

void announceChange(int width, int height, bool windowed) {
    if (windowed) {
        logPrintf("Changing video mode to %dx%d, windowed\n", width, height);
    } else {
        logText("Changing video mode to fullscreen window\n");
    }
    flushLog();
}

void requestFlagsAndOptions(bool windowed) {
    constexpr int vsyncOn = 1;
    constexpr int vsyncOff = 2;
    logText("Setting display flags\n");
    al_set_new_display_flags(ALLEGRO_WINDOWED | ALLEGRO_PROGRAMMABLE_PIPELINE |
                             (windowed ? 0 : ALLEGRO_FULLSCREEN_WINDOW));
    al_set_new_display_option(ALLEGRO_VSYNC, vsyncEnabled ? vsyncOn : vsyncOff, ALLEGRO_SUGGEST);
}

void createDisplay(int width, int height, int adapter) {
    al_set_new_display_adapter(adapter);
    theDisplay = al_create_display(width, height);
    forgetTarget();
    if (theDisplay == nullptr) {
        throw std::runtime_error("Failed to create display");
    }
}

void createFirstDisplay(int width, int height, int adapter) {
    logText(fmt::format("Adapter: {}\n", adapter));
    logText(fmt::format("Create display: {} {}\n", width, height));
    createDisplay(width, height, adapter);
}

void resizeDisplay(int width, int height, bool windowed) {
    logText("Resize display\n");
    if (windowed) {
        al_resize_display(theDisplay, width, height);
    }
    al_set_display_flag(theDisplay, ALLEGRO_FULLSCREEN_WINDOW, !windowed);
    if (windowed) {
        // X11 refuses another size to a window that is still fullscreen.
        al_resize_display(theDisplay, width, height);
    }
    // Without this the back buffer, which is wrapped next, keeps its old size.
    al_acknowledge_resize(theDisplay);
}

void moveToAdapter(int width, int height, int adapter) {
    logText("Destroying shaders\n");
    destroyRecolourShader();
    destroyPlainShader();
    al_unregister_event_source(eventQueue, al_get_display_event_source(theDisplay));
    al_unregister_event_source(eventQueue, al_get_keyboard_event_source());
    logText(fmt::format("Switch to adapter {}\n", adapter));
    al_destroy_display(theDisplay);
    createDisplay(width, height, adapter);
    createRecolourShader();
    createPlainShader();
    loadFonts();
}

void registerEventSources() {
    logText("Register event sources\n");
    al_register_event_source(eventQueue, al_get_display_event_source(theDisplay));
    al_register_event_source(eventQueue, al_get_keyboard_event_source());
}

void announceResult(int width, int height, bool windowed) {
    const int colourBits = al_get_display_option(theDisplay, ALLEGRO_COLOR_SIZE);
    const bool singleBuffer = al_get_display_option(theDisplay, ALLEGRO_SINGLE_BUFFER) != 0;
    logAndFlush(fmt::format("Changed video mode to {}, {} bit colour, {}\n",
                            windowed ? fmt::format("{}x{}, windowed", width, height) : "fullscreen window", colourBits,
                            singleBuffer ? "single buffered" : "non single buffered"));
}

}  // namespace

ALLEGRO_DISPLAY* theDisplay = nullptr;
ALLEGRO_EVENT_QUEUE* eventQueue = nullptr;
ALLEGRO_TIMER* frameTimer = nullptr;
int desktopWidth = 0;
int desktopHeight = 0;

bool setVideoMode(int width, int height, bool windowed, int adapter) {
    announceChange(width, height, windowed);
    requestFlagsAndOptions(windowed);
    if (adapter >= al_get_num_video_adapters() && adapter != ALLEGRO_DEFAULT_DISPLAY_ADAPTER) {
        logText(fmt::format("Adapter {} is not there: the default one is taken\n", adapter));
        adapter = ALLEGRO_DEFAULT_DISPLAY_ADAPTER;
    }
    bool created = true;
    if (theDisplay == nullptr) {
        createFirstDisplay(width, height, adapter);
    } else if (adapter == al_get_new_display_adapter()) {
        resizeDisplay(width, height, windowed);
        created = false;
    } else {
        moveToAdapter(width, height, adapter);
    }
    al_hide_mouse_cursor(theDisplay);
    if (created) {
        registerEventSources();
    }
    al_set_window_title(theDisplay, "Vandrel");
    announceResult(width, height, windowed);
    setWindowIcon(theDisplay, "vandrel.ico");
    constexpr bool owned = false;
    displayBitmap = std::make_shared<BitmapWrapper>(al_get_backbuffer(theDisplay), owned);
    renewGameScreen();
    al_convert_memory_bitmaps();
    return true;
}

void acknowledgeResize() {
    if (theDisplay == nullptr || !al_acknowledge_resize(theDisplay)) {
        return;
    }
    followDisplay(al_get_backbuffer(theDisplay));
    logPrintf("Display resized to %dx%d\n", al_get_display_width(theDisplay), al_get_display_height(theDisplay));
}

}  // namespace vandrel
