#include "shell/frame_overlay.h"

#include <fmt/format.h>

#include <algorithm>
#include <string>

#include "presentation/text.h"
#include "shell/game_screen.h"
#include "shell/timing.h"

namespace vandrel {
namespace {

constexpr double millisecondsPerSecond = 1000.0;
constexpr double shortestFrame = 0.0001;  // seconds; a first frame has no frame before it

void drawInCorner(FontId font, const std::string& text) {
    drawText(*screen, font, 0, 0, al_map_rgb(255, 255, 255), text);
}

}  // namespace

void drawFrameRate(FontId font) {
    drawInCorner(font, fmt::format("{:.2f}fps", frameRateFigure()));
}

FontId timingFont() {
    return gameScreenWidth > displayBitmap->width() ? FontId::Font30 : FontId::Builtin;
}

void drawTimingLine(const FrameTimes& times) {
    drawInCorner(timingFont(),
                 fmt::format("Update: {:.1f}ms  Render1: {:.1f}ms  Render2: {:.1f}ms  Frame: {:.1f}ms  "
                             "Equivalent FPS: {:.1f}",
                             times.update * millisecondsPerSecond, times.render1 * millisecondsPerSecond,
                             times.previousRender2 * millisecondsPerSecond, times.previousFrame * millisecondsPerSecond,
                             1.0 / std::max(times.previousFrame, shortestFrame)));
}

}  // namespace vandrel
