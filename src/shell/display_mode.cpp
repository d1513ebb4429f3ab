#include "shell/display_mode.h"

#include <algorithm>
#include <cstddef>

#include "shell/log.h"

namespace vandrel {

DisplayChoice chooseDisplayMode(const DisplayChoice& configured, std::vector<DisplayMode> modes, int desktopWidth,
                                int desktopHeight) {
    const DisplayChoice wholeDesktop{.width = desktopWidth, .height = desktopHeight, .windowed = false};
    const bool listed = std::ranges::any_of(modes, [&](const DisplayMode& mode) {
        return mode.width == configured.width && mode.height == configured.height;
    });
    if (listed) {
        return configured.width != 0 && configured.height != 0 ? configured : wholeDesktop;
    }
    logText(
        "Config screen resolution is invalid - trying desktop res (fullscreen) or first resolution below desktop "
        "(windowed)\n");
    if (!configured.windowed) {
        return wholeDesktop;
    }
    // Platforms list their modes in different orders. The last entry is never taken: it is the desktop's own mode or
    // above.
    std::ranges::sort(modes);
    for (std::size_t i = modes.size(); i-- > 1;) {
        const DisplayMode& mode = modes[i - 1];
        if (mode.width < desktopWidth && mode.height < desktopHeight) {
            return {.width = mode.width, .height = mode.height, .windowed = true};
        }
    }
    return wholeDesktop;
}

}  // namespace vandrel
