#include "presentation/plain_shader.h"

#include "presentation/shader_building.h"

namespace vandrel {

namespace {

ALLEGRO_SHADER* shader = nullptr;

}  // namespace

void createPlainShader() {
    shader = buildShader("shaders/pixel_plain.glsl");
}

void destroyPlainShader() {
    destroyShader(shader);
}

void startPlainDrawing() {
    if (shader != nullptr) {
        al_use_shader(shader);
    }
}

void stopPlainDrawing() {
    if (shader != nullptr) {
        al_use_shader(nullptr);
    }
}

}  // namespace vandrel
