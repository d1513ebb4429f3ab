#include "presentation/shader_building.h"

#include <stdexcept>
#include <string>

namespace vandrel {

namespace {

// The language differs from platform to platform; the names of the sources say which one is used.
constexpr const char* vertexSource = "shaders/vertex.glsl";

[[noreturn]] void failWith(ALLEGRO_SHADER* shader, const std::string& text) {
    const std::string log = al_get_shader_log(shader);
    al_destroy_shader(shader);
    throw std::runtime_error(text + log);
}

}  // namespace

ALLEGRO_SHADER* buildShader(const char* pixelSource) {
    ALLEGRO_SHADER* shader = al_create_shader(ALLEGRO_SHADER_AUTO);
    if (shader == nullptr) {
        throw std::runtime_error("Could not create shader");
    }
    if (!al_attach_shader_source_file(shader, ALLEGRO_VERTEX_SHADER, vertexSource) ||
        !al_attach_shader_source_file(shader, ALLEGRO_PIXEL_SHADER, pixelSource)) {
        failWith(shader, "al_attach_shader_source_file failed: ");
    }
    if (!al_build_shader(shader)) {
        failWith(shader, "al_build_shader failed: ");
    }
    return shader;
}

void destroyShader(ALLEGRO_SHADER*& shader) {
    if (shader != nullptr) {
        al_destroy_shader(shader);
        shader = nullptr;
    }
}

}  // namespace vandrel
