#include "presentation/recolour_shader.h"

#include <allegro5/allegro_opengl.h>

#include "presentation/drawing.h"
#include "presentation/shader_building.h"

namespace vandrel {

bool shaderActive = false;

namespace {

ALLEGRO_SHADER* shader = nullptr;

// What the shader was last told, so that a batch from one atlas page is not broken up by telling it again.
int toldWidth = 0;
int toldHeight = 0;

// A compiler may drop a uniform that has no effect, and setting it then fails: that is no error.
void setColour(const char* uniform, const ALLEGRO_COLOR& colour) {
    const float channels[4] = {colour.r, colour.g, colour.b, 1.0f};
    al_set_shader_float_vector(uniform, 4, channels, 1);
}

}  // namespace

void createRecolourShader() {
    shader = buildShader("shaders/pixel_recolour.glsl");
}

void destroyRecolourShader() {
    destroyShader(shader);
}

void useRecolourShader(const RecolourSettings& settings) {
    const BatchPause pause;
    al_use_shader(shader);
    al_set_shader_bool("enableRecolour", settings.newCol.has_value());
    if (settings.newCol) {
        setColour("baseCol", settings.baseCol);
        setColour("newCol", *settings.newCol);
    }
    al_set_shader_bool("baseColAny", settings.baseColAny);
    al_set_shader_bool("doDarkCol", settings.doDarkCol);
    al_set_shader_bool("outline", settings.outlineCol.has_value());
    if (settings.outlineCol) {
        setColour("outlineCol", *settings.outlineCol);
    }
    toldWidth = 0;
    toldHeight = 0;
    shaderActive = true;
}

void stopRecolourShader() {
    const BatchPause pause;
    al_use_shader(nullptr);
    shaderActive = false;
}

void setShaderSource(ALLEGRO_BITMAP* bitmap) {
    // A part of an atlas page is sampled in the page's texture: one pixel further is one over the page's size.
    ALLEGRO_BITMAP* parent = al_get_parent_bitmap(bitmap);
    int width = 0;
    int height = 0;
    if (!al_get_opengl_texture_size(parent != nullptr ? parent : bitmap, &width, &height) ||
        (width == toldWidth && height == toldHeight)) {
        return;
    }
    const BatchPause pause;
    al_set_shader_float("width", static_cast<float>(width));
    al_set_shader_float("height", static_cast<float>(height));
    toldWidth = width;
    toldHeight = height;
}

}  // namespace vandrel
