#include "shell/frame_overlay.h"

#include <fmt/format.h>

#include <algorithm>

#include "presentation/colours.h"
#include "presentation/text.h"
#include "shell/game_screen.h"
#include "shell/timing.h"

namespace vandrel {
namespace {

constexpr double millisecondsPerSecond = 1000.0;
constexpr double shortestFrame = 0.0001;  // seconds; a first frame has no frame before it

}  // namespace

void drawOverlayText(const std::string& text, int y, FontId font) {
    drawText(*screen, font, 0, y, toColour(white), text);
}

void drawFrameRate(FontId font) {
    drawOverlayText(fmt::format("{:.2f}fps", frameRateFigure()), 0, font);
}

FontId timingFont() {
    return gameScreenWidth > displayBitmap->width() ? FontId::Font30 : FontId::Builtin;
}

void drawTimingLine(const FrameTimes& times) {
    const std::string line =
        fmt::format("Update: {:.1f}ms  Render1: {:.1f}ms  Render2: {:.1f}ms  Frame: {:.1f}ms  Equivalent FPS: {:.1f}",
                    times.update * millisecondsPerSecond, times.render1 * millisecondsPerSecond,
                    times.previousRender2 * millisecondsPerSecond, times.previousFrame * millisecondsPerSecond,
                    1.0 / std::max(times.previousFrame, shortestFrame));
    drawOverlayText(line, 0, timingFont());
}

}  // namespace vandrel
