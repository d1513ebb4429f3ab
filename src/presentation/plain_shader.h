// The shader under which batches of bitmaps are drawn. The platform's own serves every kind of drawing and asks for
// each pixel which one it is; this one only lays a texture, which counts where no graphics card helps.
#pragma once

namespace vandrel {

// Needs a display. Throws as `buildShader` does. Until then batches are drawn with the platform's shader: slower, and
// the same to the pixel.
void createPlainShader();
// Does nothing when there is none. To be called before the display that it was made for goes.
void destroyPlainShader();

// Puts the shader on the current target, or takes it off again. Only batches and their pauses do so, while no bitmap
// waits to be drawn and the recolour shader is off. Primitives, which have no texture, need it off.
void startPlainDrawing();
void stopPlainDrawing();

}  // namespace vandrel
