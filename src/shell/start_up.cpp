#include "shell/start_up.h"

#include <allegro5/allegro.h>
#include <allegro5/allegro_font.h>
#include <allegro5/allegro_image.h>
#include <allegro5/allegro_primitives.h>
#include <allegro5/allegro_ttf.h>

#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <stdexcept>
#include <vector>

#include "base/random.h"
#include "base/version.h"
#include "input/controls_manager.h"
#include "input/joystick_controls.h"
#include "input/joystick_driver.h"
#include "input/menu_input.h"
#include "match/options/game_options.h"
#include "presentation/bitmaps.h"
#include "presentation/colours.h"
#include "presentation/drawing.h"
#include "presentation/plain_shader.h"
#include "presentation/recolour_shader.h"
#include "presentation/sound.h"
#include "presentation/text.h"
#include "shell/accessibility.h"
#include "shell/command_line.h"
#include "shell/config.h"
#include "shell/display.h"
#include "shell/display_mode.h"
#include "shell/large_blocks.h"
#include "shell/log.h"
#include "shell/paths.h"
#include "shell/switches.h"
#include "shell/timing.h"
#include "shell/update_rate.h"

// A build that is to be the same byte for byte gives a date and a time of its own.
#ifndef VANDREL_BUILD_DATE
#define VANDREL_BUILD_DATE __DATE__
#endif
#ifndef VANDREL_BUILD_TIME
#define VANDREL_BUILD_TIME __TIME__
#endif

namespace vandrel {
namespace {

// What the configuration says of things that are made once, during start-up.
struct StartSettings {
    DisplayChoice display;
    int adapter = ALLEGRO_DEFAULT_DISPLAY_ADAPTER;
    int soundEffectsVolume = 0;
    int musicVolume = 0;
};

void bringUpPlatform() {
    logText("SteamListener init\n");
    createSteamListener();
    logText("Allegro init\n");
    if (!al_install_system(ALLEGRO_VERSION_INT, std::atexit)) {
        throw std::runtime_error("al_install_system failed");
    }
    logText("Registering trace handler\n");
    al_register_trace_handler(logTrace);
    al_init_image_addon();
    al_install_keyboard();
    eventQueue = al_create_event_queue();
    al_init_primitives_addon();
    logPrintf("Vandrel %s Compiled on %s at %s\n", versionText(replayOutputVersion).c_str(), VANDREL_BUILD_DATE,
              VANDREL_BUILD_TIME);
}

StartSettings readStartSettings() {
    StartSettings settings;
    settings.display.width = getConfigInt("video", "width", 0);
    settings.display.height = getConfigInt("video", "height", 0);
    settings.display.windowed = getConfigBool("video", "windowed", false);
    settings.adapter = getConfigInt("video", "display", ALLEGRO_DEFAULT_DISPLAY_ADAPTER);
    settings.soundEffectsVolume = getConfigInt("sound", "soundEffectsVolume", 60);
    settings.musicVolume = getConfigInt("sound", "musicVolume", 100);
    return settings;
}

int readUpdateRate() {
    constexpr int normalRate = 60;
    const int rate = getConfigInt("video", "updaterate", normalRate);
    // There is no timer of any other rate.
    return rate >= 1 && rate <= highestUpdateRate ? rate : normalRate;
}

// What lasts as long as the process.
void readSwitches() {
    vsyncEnabled = getConfigBool("video", "vsync", false);
    gameOptions.updaterate = readUpdateRate();
    menuControlMode = getConfigInt("controls", "menuControlMode", MenuControlMode::KeyboardAndAnyController);
    xinputDpadEnabled = getConfigBool("controls", "xinputDpadEnabled", true);
    diagnostic = getConfigBool("other", "diagnostic", false);
    autoRandomControls = getConfigBool("other", "autoRandomControls", false);
    replayRecordingEnabled = getConfigBool("other", "replayRecordingEnabled", true);
    showReplayTestOptions = getConfigBool("other", "showReplayTestOptions", false);
    alwaysShowFPS = getConfigBool("other", "alwaysShowFPS", false);
    lootboxesEnabled = getConfigBool("lootbox", "lootboxesEnabled", true);
    lootboxPoints = getConfigInt("lootbox", "lootboxPoints", 0);
    steamInputEnabled = false;
}

void readDesktopSize() {
    ALLEGRO_MONITOR_INFO monitor;
    desktopWidth = 0;
    desktopHeight = 0;
    // Without a monitor the record is not filled in.
    if (al_get_monitor_info(0, &monitor)) {
        desktopWidth = monitor.x2 - monitor.x1;
        desktopHeight = monitor.y2 - monitor.y1;
    }
    logPrintf("Detected desktop resolution: %dx%d\n", desktopWidth, desktopHeight);
}

// In the platform's order.
std::vector<DisplayMode> listDisplayModes() {
    logText("Available gfx modes:\n");
    std::vector<DisplayMode> modes;
    const int count = al_get_num_display_modes();
    for (int i = 0; i < count; ++i) {
        ALLEGRO_DISPLAY_MODE mode;
        if (al_get_display_mode(i, &mode) != nullptr) {
            logPrintf("%dx%d, format: %x, %dHz\n", mode.width, mode.height, static_cast<unsigned>(mode.format),
                      mode.refresh_rate);
            modes.push_back({.width = mode.width, .height = mode.height, .refreshRate = mode.refresh_rate});
        }
    }
    return modes;
}

void bringUpDisplay(const StartSettings& settings) {
    readDesktopSize();
    const DisplayChoice choice = chooseDisplayMode(settings.display, listDisplayModes(), desktopWidth, desktopHeight);
    setVideoMode(choice.width, choice.height, choice.windowed, settings.adapter);
    clearToBlack(*screen);
    clearToBlack(*displayBitmap);
}

void loadAssets() {
    loadBitmaps();
    createRecolourShader();
    createPlainShader();
    al_init_font_addon();
    al_init_ttf_addon();
    loadFonts();
}

void showSplash() {
    constexpr int above = 80;  // pixels from the top of the text to the middle
    constexpr double rest = 1.5;
    drawText(*displayBitmap, FontId::Font64, displayBitmap->width() / 2, displayBitmap->height() / 2 - above,
             toColour(white), "QUILLMERE INDUSTRIES", alignCentre);
    al_flip_display();
    al_rest(rest);
}

void startTicking() {
    pendingTicks = 0;
    totalTicks = 0;
    setUpdateRate(gameOptions.updaterate, gameOptions);
}

}  // namespace

void init(int argc, const char* const* argv) {
    keepLargeBlocksApart();
    bringUpPlatform();
    logText("Getting config settings\n");
    openConfig(appDataDir() + "/vandrel.cfg");
    const StartSettings settings = readStartSettings();
    readSwitches();
    if (autoLoadAccessibility.get()) {
        loadAccessibility(accessibility);
    }
    processCommandLine(argc, argv);
    initSound(settings.soundEffectsVolume, settings.musicVolume);
    seedGameRand(static_cast<std::uint32_t>(std::time(nullptr)));
    bringUpDisplay(settings);
    loadAssets();
    showSplash();
    theControlsManager = std::make_unique<ControlsManager>(std::make_shared<AllegroJoystickDriver>(eventQueue));
    startTicking();
    fillTeamPalettes();
}

}  // namespace vandrel
