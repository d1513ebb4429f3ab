// The thin layer through which everything is painted: the target first, then whole pixels. Main thread only, and nobody
// else changes the platform's target bitmap.
#pragma once

#include <allegro5/allegro.h>

#include <vector>

#include "base/vector2.h"
#include "presentation/bitmap_ids.h"
#include "presentation/bitmap_wrapper.h"

namespace vandrel {

// Bitmaps drawn since the match driver last cleared it: plain, tinted by alpha only, and scaled ones.
extern int drawCount;

// Makes `target` the bitmap that is drawn to; nothing happens if it is already. Needed only before platform calls of
// one's own and before the recolour shader: every function here does it.
void setTarget(const BitmapWrapper& target);

// To be called when the platform changed its target by itself, as creating or destroying a display does.
void forgetTarget();

// While one of these lives, bitmaps of the same atlas page are sent to the platform together. What is drawn, and in
// which order, does not change; platform calls of one's own in between need a `BatchPause`. May be nested, on one
// target or on several.
class DrawingBatch {
  public:
    explicit DrawingBatch(const BitmapWrapper& target);
    DrawingBatch(const DrawingBatch&) = delete;
    DrawingBatch& operator=(const DrawingBatch&) = delete;
    ~DrawingBatch();

  private:
    bool wasHeld_;
};

// Sends what a batch has collected so far, for the length of this object: around a change of the platform's drawing
// state.
class BatchPause {
  public:
    BatchPause();
    BatchPause(const BatchPause&) = delete;
    BatchPause& operator=(const BatchPause&) = delete;
    ~BatchPause();

  private:
    bool paused_;
};

void clearTo(const BitmapWrapper& target, ALLEGRO_COLOR colour);
void clearToBlack(const BitmapWrapper& target);

inline constexpr int flipHorizontally = 1;
inline constexpr int opaque = 255;

// `flip` is 0 or `flipHorizontally`. An `alpha` below 255 dims colour and alpha alike.
void drawBitmap(const BitmapWrapper& target, ALLEGRO_BITMAP* bitmap, int x, int y, int flip = 0, int alpha = opaque);
void drawWrapper(const BitmapWrapper& source, const BitmapWrapper& target, int x, int y, int alpha = opaque);
void drawId(const BitmapWrapper& target, BitmapIds id, int x, int y, int flip = 0);
void drawTinted(const BitmapWrapper& target, ALLEGRO_BITMAP* bitmap, int x, int y, int red, int green, int blue,
                int alpha);

// Angles of turned bitmaps: 255 make a full turn.
inline constexpr float anglePerRadian = 40.58451f;

// Turned by `angle` and scaled about the source's pixel (`centreX`, `centreY`), which lands at (`x`, `y`).
void drawRotated(const BitmapWrapper& target, ALLEGRO_BITMAP* bitmap, int centreX, int centreY, int x, int y,
                 float angle, float scale, int alpha = opaque);
void drawRotatedId(const BitmapWrapper& target, BitmapIds id, int centreX, int centreY, int x, int y, float angle,
                   float scale, int alpha = opaque);

// Not to be used under the recolour shader.
void drawScaled(const BitmapWrapper& target, ALLEGRO_BITMAP* bitmap, int sourceX, int sourceY, int sourceWidth,
                int sourceHeight, int x, int y, int width, int height);
void drawScaledId(const BitmapWrapper& target, BitmapIds id, int sourceX, int sourceY, int sourceWidth,
                  int sourceHeight, int x, int y, int width, int height);

struct ColouredPixel {
    int x = 0;
    int y = 0;
    ALLEGRO_COLOR colour{};
};

// Primitives. Rectangles span from (x1, y1) to (x2, y2); angles of an arc are in radians, clockwise from the right.
void drawArc(const BitmapWrapper& target, int x, int y, int radius, float startAngle, float angle, ALLEGRO_COLOR colour,
             float thickness);
void drawEllipse(const BitmapWrapper& target, int x, int y, int radiusX, int radiusY, ALLEGRO_COLOR colour);
void drawFilledEllipse(const BitmapWrapper& target, int x, int y, int radiusX, int radiusY, ALLEGRO_COLOR colour);
void drawLine(const BitmapWrapper& target, int x1, int y1, int x2, int y2, ALLEGRO_COLOR colour, float thickness);
void drawRectangle(const BitmapWrapper& target, int x1, int y1, int x2, int y2, ALLEGRO_COLOR colour, float thickness);
void drawFilledRectangle(const BitmapWrapper& target, int x1, int y1, int x2, int y2, ALLEGRO_COLOR colour);
void drawFilledTriangle(const BitmapWrapper& target, Pixel a, Pixel b, Pixel c, ALLEGRO_COLOR colour);
void putPixel(const BitmapWrapper& target, int x, int y, ALLEGRO_COLOR colour);
// Many single pixels at once.
void putPixels(const BitmapWrapper& target, const std::vector<ColouredPixel>& pixels);
ALLEGRO_COLOR getPixel(const BitmapWrapper& source, int x, int y);

// The byte value of one channel.
unsigned char colourRed(ALLEGRO_COLOR colour);
unsigned char colourGreen(ALLEGRO_COLOR colour);
unsigned char colourBlue(ALLEGRO_COLOR colour);

}  // namespace vandrel
