#include "shell/profile_screen.h"

#include <allegro5/allegro.h>
#include <fmt/format.h>

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <string>

#include "base/random.h"
#include "input/menu_input.h"
#include "presentation/colours.h"
#include "presentation/drawing.h"
#include "presentation/text.h"
#include "shell/frame_pump.h"
#include "shell/game_screen.h"
#include "shell/log.h"
#include "shell/paths.h"

namespace vandrel {
namespace {

constexpr std::array<const char*, 2> passTitles{"Testing unbuffered file performance",
                                                "Testing buffered file performance"};
constexpr int writesPerPass = 0x20000;
constexpr int picturesPerFrame = 4000;
constexpr int pictureColumns = 1921;  // from one edge of the menu screen to the other, the edges included
constexpr int pictureRows = 1081;

void announcePass(std::size_t pass) {
    constexpr int rowHeight = 40;
    const int centre = gameScreenWidth / 2;
    const int top = gameScreenHeight / 2 - rowHeight;
    clearToBlack(*screen);
    drawText(*screen, FontId::Font30, centre, top, toColour(white), passTitles[pass], alignCentre);
    drawText(*screen, FontId::Font30, centre, top + rowHeight, toColour(white), "This will take about 1-5 seconds",
             alignCentre);
    presentFrame();
}

// Writes the counter again and again, as a replay writes its records; gives the seconds. Pass 0 has no stream buffer.
double timeWrites(std::size_t pass) {
    std::ofstream file;
    if (pass == 0) {
        file.rdbuf()->pubsetbuf(nullptr, 0);
    }
    file.exceptions(std::ios::badbit | std::ios::failbit | std::ios::eofbit);
    file.open(appDataDir() + "/" + std::to_string(pass) + ".test.bin", std::ios::out | std::ios::binary);
    const auto start = std::chrono::high_resolution_clock::now();
    for (std::int32_t i = 0; i < writesPerPass; ++i) {
        file.write(reinterpret_cast<const char*>(&i), sizeof i);
        file.flush();
    }
    file.close();
    const auto end = std::chrono::high_resolution_clock::now();
    constexpr double nanosecondsPerSecond = 1e9;
    return static_cast<double>(std::chrono::nanoseconds(end - start).count()) / nanosecondsPerSecond;
}

void drawPictures(const std::array<double, 2>& seconds) {
    clearToBlack(*screen);
    {
        const DrawingBatch batch(*screen);
        for (int i = 0; i < picturesPerFrame; ++i) {
            const int x = gameRand() % pictureColumns;
            const int y = gameRand() % pictureRows;
            drawId(*screen, BitmapIds::Snail, x, y);
        }
    }
    drawText(*screen, FontId::Font30, 0, 100, toColour(white), "Unbuffered/buffered file stream results:");
    drawText(*screen, FontId::Font30, 0, 180, toColour(white), fmt::format("{}", seconds[0]));
    drawText(*screen, FontId::Font30, 0, 260, toColour(white), fmt::format("{}", seconds[1]));
}

}  // namespace

void profile() {
    logText("Profiling unbuffered and buffered file streams\n");
    std::array<double, 2> seconds{};
    for (std::size_t pass = 0; pass < seconds.size(); ++pass) {
        announcePass(pass);
        seconds[pass] = timeWrites(pass);
        logText(fmt::format("{}\n", seconds[pass]));
    }
    logText("Profile\n");
    bool done = false;
    constexpr bool includeHeldController = false;
    constexpr bool logAverageFps = true;
    constexpr bool showTimings = true;
    framePump([&] { done = menuKeyPressed(ALLEGRO_KEY_ESCAPE, menuControlMode, includeHeldController); },
              [&] { drawPictures(seconds); }, [&] { return done; }, {}, logAverageFps, showTimings);
}

}  // namespace vandrel
