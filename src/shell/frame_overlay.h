// The figures that the frame pump and the match draw over the finished picture: the frame rate and the timings.
#pragma once

#include <string>

#include "presentation/font_id.h"

namespace vandrel {

// Seconds. The last two are those of the frame before: a frame's own are not known yet while it is drawn.
struct FrameTimes {
    double update = 0.0;
    double render1 = 0.0;
    double previousRender2 = 0.0;
    double previousFrame = 0.0;
};

// A line of the overlay, in white at the left edge, `y` pixels from the top.
void drawOverlayText(const std::string& text, int y, FontId font);

// The frame rate figure in the top left corner.
void drawFrameRate(FontId font = FontId::Builtin);

// The font of the timing line: large if the game screen is wider than the display, so that it can be read when scaled
// down.
FontId timingFont();

// The timing line, across the top.
void drawTimingLine(const FrameTimes& times);

}  // namespace vandrel
