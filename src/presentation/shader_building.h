// How the shaders of the game are made of their sources, which lie in shaders/ under the working directory.
#pragma once

#include <allegro5/allegro.h>

namespace vandrel {

// A shader of the ordinary vertex source and of this pixel source, to be freed with `destroyShader`. Needs a
// display. Throws std::runtime_error "Could not create shader", "al_attach_shader_source_file failed: LOG" or
// "al_build_shader failed: LOG".
ALLEGRO_SHADER* buildShader(const char* pixelSource);

// Frees the shader and leaves null; does nothing to a null one. To be called before its display goes.
void destroyShader(ALLEGRO_SHADER*& shader);

}  // namespace vandrel
