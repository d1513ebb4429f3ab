#include "frontend/menu_edit_colour.h"

#include "frontend/vandrel_menu.h"
#include "presentation/drawing.h"
#include "shell/frame_pump.h"
#include "shell/game_screen.h"

namespace vandrel {

namespace {

constexpr int rowsLeftOfMiddle = 100;  // pixels
constexpr int mostOfAChannel = 255;
constexpr Pixel sampleStart{500, 200};
constexpr Pixel sampleEnd{600, 300};

struct Channels {
    int red = 0;
    int green = 0;
    int blue = 0;
};

Channels channelsOf(RGB colour) {
    return {colour.red, colour.green, colour.blue};
}

RGB colourOf(const Channels& channels) {
    return {static_cast<std::uint8_t>(channels.red), static_cast<std::uint8_t>(channels.green),
            static_cast<std::uint8_t>(channels.blue)};
}

}  // namespace

void menuEditColour(RGB& colour) {
    Channels channels = channelsOf(colour);
    bool done = false;
    VandrelMenu menu(&layoutColour);
    const int x = screen->width() / 2 - rowsLeftOfMiddle;
    menu.addInt(x, "Red", &channels.red, 0, mostOfAChannel, 1);
    menu.addInt(x, "Green", &channels.green, 0, mostOfAChannel, 1);
    menu.addInt(x, "Blue", &channels.blue, 0, mostOfAChannel, 1);
    menu.addAction(x, "Back", [&] {
        colour = colourOf(channels);
        done = true;
    });
    menu.addAction(x, "Reset", [&] { channels = channelsOf(colour); });
    const auto draw = [&] {
        clearToBlack(*screen);
        menu.draw(*screen);
        drawFilledRectangle(*screen, sampleStart.x, sampleStart.y, sampleEnd.x, sampleEnd.y,
                            toColour(colourOf(channels)));
    };
    framePump([&] { menu.update(screen->height() - 1); }, draw, [&] { return done; });
}

void menuEditColour(ALLEGRO_COLOR& colour) {
    RGB bytes = toRGB(colour);
    menuEditColour(bytes);
    colour = toColour(bytes);
}

}  // namespace vandrel
