#include "presentation/recolour_shader.h"

#include <allegro5/allegro_opengl.h>

#include <stdexcept>
#include <string>

#include "presentation/drawing.h"

namespace vandrel {

bool shaderActive = false;

namespace {

ALLEGRO_SHADER* shader = nullptr;

// What the shader was last told, so that a batch from one atlas page is not broken up by telling it again.
int toldWidth = 0;
int toldHeight = 0;

// The language differs from platform to platform; this is the one place that says which sources are used.
constexpr const char* vertexSource = "shaders/vertex.glsl";
constexpr const char* pixelSource = "shaders/pixel_recolour.glsl";

[[noreturn]] void failWith(const std::string& text) {
    const std::string log = al_get_shader_log(shader);
    destroyRecolourShader();
    throw std::runtime_error(text + log);
}

// A compiler may drop a uniform that has no effect, and setting it then fails: that is no error.
void setColour(const char* uniform, const ALLEGRO_COLOR& colour) {
    const float channels[4] = {colour.r, colour.g, colour.b, 1.0f};
    al_set_shader_float_vector(uniform, 4, channels, 1);
}

}  // namespace

void createRecolourShader() {
    shader = al_create_shader(ALLEGRO_SHADER_AUTO);
    if (shader == nullptr) {
        throw std::runtime_error("Could not create shader");
    }
    if (!al_attach_shader_source_file(shader, ALLEGRO_VERTEX_SHADER, vertexSource) ||
        !al_attach_shader_source_file(shader, ALLEGRO_PIXEL_SHADER, pixelSource)) {
        failWith("al_attach_shader_source_file failed: ");
    }
    if (!al_build_shader(shader)) {
        failWith("al_build_shader failed: ");
    }
}

void destroyRecolourShader() {
    if (shader != nullptr) {
        al_destroy_shader(shader);
        shader = nullptr;
    }
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
