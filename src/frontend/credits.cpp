#include "frontend/credits.h"

#include <allegro5/keycodes.h>

#include <array>
#include <cmath>
#include <string_view>

#include "frontend/title.h"
#include "input/menu_input.h"
#include "presentation/colours.h"
#include "presentation/drawing.h"
#include "presentation/text.h"
#include "shell/frame_pump.h"
#include "shell/game_screen.h"

namespace vandrel {

namespace {

struct RowStyle {
    FontId font;
    int height;
    RGB colour;
};

constexpr RowStyle pinkHeading{FontId::Font24, 33, {255, 208, 208}};
constexpr RowStyle greenHeading{FontId::Font24, 33, {208, 255, 208}};
constexpr RowStyle blueHeading{FontId::Font24, 33, {208, 208, 255}};
constexpr RowStyle mainRow{FontId::Font24, 33, white};
constexpr RowStyle smallRow{FontId::Font20, 24, white};

struct CreditsRow {
    RowStyle style;
    std::string_view text;  // an empty one makes a gap
};

constexpr CreditsRow gap{mainRow, ""};
constexpr CreditsRow makers{mainRow, "Quillmere Industries"};

constexpr int firstRowY = 190;
constexpr std::array<CreditsRow, 27> rows{{
    {pinkHeading, "Design and programming"},
    makers,
    gap,
    {greenHeading, "Graphics and animation"},
    makers,
    gap,
    {blueHeading, "Music"},
    makers,
    {smallRow, "\"Zoo\", written and synthesised by Quillmere Industries"},
    {smallRow, "\"Breakdown\", written and synthesised by Quillmere Industries"},
    {smallRow, "\"If Not Now When\", written and synthesised by Quillmere Industries"},
    {smallRow, "\"Who Likes To Party\", written and synthesised by Quillmere Industries"},
    gap,
    {pinkHeading, "Sound effects"},
    makers,
    {smallRow, "All 18 sounds, written and synthesised by Quillmere Industries"},
    gap,
    {greenHeading, "Font"},
    {mainRow, "OCR-A"},
    {smallRow, "John Sauter, public domain"},
    gap,
    {blueHeading, "Special thanks"},
    {mainRow, "everyone who brought a controller"},
    gap,
    {mainRow, "Copyright Quillmere Industries"},
    gap,
    {mainRow, "Press ESC or Button 2"},
}};

// The seal's way over the page, one step an update. Its corner stays on the screen, so it always comes back.
struct WanderingSeal {
    float angleX = 0.0f;
    float angleY = 0.0f;
    float angleSpin = 0.0f;
    float angleSize = 0.0f;
    float logoX = 0.0f;
    float logoY = 0.0f;
    float logoSpin = 0.0f;  // 255 to a full turn
    float logoSize = 1.0f;

    void update(int width, int height) {
        angleX += 0.01f;
        angleY += 0.015f;
        angleSpin += 0.007f;
        angleSize += 0.005f;
        const auto screenWidth = static_cast<float>(width);
        const auto screenHeight = static_cast<float>(height);
        logoX = std::sin(angleX) * screenWidth * 0.5f + screenWidth / 2.0f;
        logoY = std::cos(angleY) * screenHeight * 0.5f + screenHeight / 2.0f;
        logoSpin = std::sin(angleSpin) * 255.0f;
        logoSize = std::sin(angleSize) * 0.8f + 1.0f;
    }

    void draw() const {
        drawRotatedId(*screen, BitmapIds::MKR, 0, 0, static_cast<int>(logoX), static_cast<int>(logoY), logoSpin,
                      logoSize);
    }
};

void drawPage(const WanderingSeal& seal) {
    const int middle = screen->width() / 2;
    clearToBlack(*screen);
    drawTitle(*screen);
    seal.draw();
    int y = firstRowY;
    for (const auto& [style, text] : rows) {
        drawText(*screen, style.font, middle, y, toColour(style.colour), text, alignCentre);
        y += style.height;
    }
}

}  // namespace

void credits() {
    WanderingSeal seal;
    framePump([&seal] { seal.update(screen->width(), screen->height()); }, [&seal] { drawPage(seal); },
              [] { return menuKeyPressed(ALLEGRO_KEY_ESCAPE, menuControlMode, false); });
}

}  // namespace vandrel
