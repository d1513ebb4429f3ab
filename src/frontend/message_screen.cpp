#include "frontend/message_screen.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <boost/algorithm/string.hpp>

#include "input/menu_input.h"
#include "presentation/colours.h"
#include "presentation/drawing.h"
#include "presentation/text.h"
#include "shell/frame_pump.h"
#include "shell/game_screen.h"

namespace vandrel {

namespace {

constexpr int rowHeight = 44;

void drawRows(const std::vector<std::string>& rows) {
    clearToBlack(*screen);
    int y = screen->height() / 2 - static_cast<int>(rows.size()) * rowHeight + rowHeight;
    for (const std::string& row : rows) {
        drawText(*screen, FontId::Font30, screen->width() / 2, y, toColour(white), row, alignCentre);
        y += rowHeight;
    }
}

}  // namespace

bool msgScreen(const std::vector<std::string>& lines, int okKey, int cancelKey) {
    std::vector<std::string> rows;
    boost::algorithm::split(rows, fmt::format("{}", fmt::join(lines, "\n")), [](char c) { return c == '\n'; });
    bool ok = false;
    const auto isDone = [&ok, okKey, cancelKey] {
        ok = menuKeyPressed(okKey, menuControlMode, false);
        // Both are asked, so that neither press is left over for the next screen.
        const bool cancel = cancelKey != noCancelKey && menuKeyPressed(cancelKey, menuControlMode, false);
        return ok || cancel;
    };
    framePump([] {}, [&rows] { drawRows(rows); }, isDone);
    return ok;
}

}  // namespace vandrel
