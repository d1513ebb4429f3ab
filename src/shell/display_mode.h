// Which size and kind of display start-up asks for, given what is configured and what the platform lists.
#pragma once

#include <vector>

namespace vandrel {

// A mode as the platform lists it; pixels and Hz.
struct DisplayMode {
    int width = 0;
    int height = 0;
    int refreshRate = 0;

    friend auto operator<=>(const DisplayMode&, const DisplayMode&) = default;
};

// What a display is made as: a window of that size, or a window that fills the screen.
struct DisplayChoice {
    int width = 0;
    int height = 0;
    bool windowed = false;

    friend bool operator==(const DisplayChoice&, const DisplayChoice&) = default;
};

// The configured choice if its size is listed; otherwise, for a window, the largest listed size below the desktop's;
// otherwise the whole desktop. Logs a line when the configured size is not listed.
DisplayChoice chooseDisplayMode(const DisplayChoice& configured, std::vector<DisplayMode> modes, int desktopWidth,
                                int desktopHeight);

}  // namespace vandrel
