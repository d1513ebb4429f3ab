#include "presentation/plain_shader.h"

#include <stdexcept>
#include <string>

#include "presentation/shader_building.h"
#include "shell/log.h"

namespace vandrel {

namespace {

ALLEGRO_SHADER* shader = nullptr;

}  // namespace

void createPlainShader() {
    try {
        shader = buildShader("shaders/pixel_plain.glsl");
    } catch (const std::runtime_error& failure) {
        logText(std::string("Drawing without the plain shader, which is slower: ") + failure.what() + "\n");
    }
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
