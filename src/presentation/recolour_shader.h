// The one shader of the game: it gives the grey sprites of players their colours and outlines, and bombs the colour of
// the accessibility settings. Its sources are hand-written and lie in shaders/ under the working directory.
#pragma once

#include <allegro5/allegro.h>

#include <optional>

namespace vandrel {

// Of the colours only red, green and blue count.
struct RecolourSettings {
    ALLEGRO_COLOR baseCol{};                  // what is replaced in the source
    bool baseColAny = false;                  // every visible pixel is replaced
    std::optional<ALLEGRO_COLOR> newCol;      // nothing is replaced without one
    std::optional<ALLEGRO_COLOR> outlineCol;  // transparent pixels beside visible ones, inside each image, get it
    bool doDarkCol = false;                   // darker greys than `baseCol` become darker shades
};

// Needs a display. Throws as `buildShader` does.
void createRecolourShader();
// Does nothing when there is none. To be called before the display that it was made for goes.
void destroyRecolourShader();

// The shader works on the current target only: `setTarget` comes first, and the target does not change until
// `stopRecolourShader`.
void useRecolourShader(const RecolourSettings& settings);
void stopRecolourShader();

// Whether drawing goes through the shader now.
extern bool shaderActive;

// Tells the shader the size of the texture in which the next bitmap lies, so that it finds neighbouring pixels.
void setShaderSource(ALLEGRO_BITMAP* bitmap);

}  // namespace vandrel
