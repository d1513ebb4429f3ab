#include "presentation/drawing.h"

#include <allegro5/allegro_primitives.h>

#include "presentation/bitmaps.h"
#include "presentation/colours.h"
#include "presentation/plain_shader.h"
#include "presentation/recolour_shader.h"

namespace vandrel {

int drawCount = 0;

namespace {

ALLEGRO_BITMAP* currentTarget = nullptr;

// A display change leaves memory bitmaps behind, which would be drawn slowly ever after. Without a display there is
// nothing better to be had.
void heal(ALLEGRO_BITMAP* bitmap) {
    if ((al_get_bitmap_flags(bitmap) & ALLEGRO_MEMORY_BITMAP) == 0 || al_get_current_display() == nullptr) {
        return;
    }
    const BatchPause pause;
    ALLEGRO_STATE before;
    al_store_state(&before, ALLEGRO_STATE_NEW_BITMAP_PARAMETERS);
    al_set_new_bitmap_format(ALLEGRO_PIXEL_FORMAT_ANY_WITH_ALPHA);
    al_set_new_bitmap_flags(ALLEGRO_CONVERT_BITMAP);
    al_convert_bitmap(bitmap);
    al_restore_state(&before);
}

// What every draw of a bitmap begins with.
void prepareDraw(const BitmapWrapper& target, ALLEGRO_BITMAP* source) {
    heal(target.bitmap);
    heal(source);
    setTarget(target);
    if (shaderActive) {
        setShaderSource(source);
    }
}

ALLEGRO_COLOR tintOf(int alpha) {
    const auto byte = static_cast<unsigned char>(alpha);
    return al_map_rgba(byte, byte, byte, byte);
}

// Primitives are drawn at once by the platform, also while bitmaps are collected.
class PrimitiveScope {
  public:
    explicit PrimitiveScope(const BitmapWrapper& target) { setTarget(target); }

  private:
    BatchPause pause_;
};

float real(int value) {
    return static_cast<float>(value);
}

// The plain shader belongs to the bitmap that is drawn to, so it comes off before the target changes and goes on behind
// it; the recolour shader, while it is on, stays.
void beginCollecting() {
    if (!shaderActive) {
        startPlainDrawing();
    }
    al_hold_bitmap_drawing(true);
}

void endCollecting() {
    al_hold_bitmap_drawing(false);
    if (!shaderActive) {
        stopPlainDrawing();
    }
}

}  // namespace

void setTarget(const BitmapWrapper& target) {
    if (currentTarget == target.bitmap && al_get_target_bitmap() == target.bitmap) {
        return;
    }
    const BatchPause pause;
    al_set_target_bitmap(target.bitmap);
    currentTarget = target.bitmap;
}

void forgetTarget() {
    currentTarget = nullptr;
}

DrawingBatch::DrawingBatch(const BitmapWrapper& target) : wasHeld_(al_is_bitmap_drawing_held()) {
    setTarget(target);
    if (!wasHeld_) {
        beginCollecting();
    }
}

DrawingBatch::~DrawingBatch() {
    if (!wasHeld_) {
        endCollecting();
    }
}

BatchPause::BatchPause() : paused_(al_is_bitmap_drawing_held()) {
    if (paused_) {
        endCollecting();
    }
}

BatchPause::~BatchPause() {
    if (paused_) {
        beginCollecting();
    }
}

void clearTo(const BitmapWrapper& target, ALLEGRO_COLOR colour) {
    const PrimitiveScope scope(target);
    al_clear_to_color(colour);
}

void clearToBlack(const BitmapWrapper& target) {
    clearTo(target, toColour(black));
}

void drawBitmap(const BitmapWrapper& target, ALLEGRO_BITMAP* bitmap, int x, int y, int flip, int alpha) {
    prepareDraw(target, bitmap);
    const int flags = (flip & flipHorizontally) != 0 ? ALLEGRO_FLIP_HORIZONTAL : 0;
    if (alpha == opaque) {
        al_draw_bitmap(bitmap, real(x), real(y), flags);
    } else {
        al_draw_tinted_bitmap(bitmap, tintOf(alpha), real(x), real(y), flags);
    }
    ++drawCount;
}

void drawWrapper(const BitmapWrapper& source, const BitmapWrapper& target, int x, int y, int alpha) {
    drawBitmap(target, source.bitmap, x, y, 0, alpha);
}

void drawId(const BitmapWrapper& target, BitmapIds id, int x, int y, int flip) {
    drawBitmap(target, getBitmap(id), x, y, flip);
}

void drawTinted(const BitmapWrapper& target, ALLEGRO_BITMAP* bitmap, int x, int y, int red, int green, int blue,
                int alpha) {
    prepareDraw(target, bitmap);
    const ALLEGRO_COLOR tint = al_map_rgba(static_cast<unsigned char>(red), static_cast<unsigned char>(green),
                                           static_cast<unsigned char>(blue), static_cast<unsigned char>(alpha));
    al_draw_tinted_bitmap(bitmap, tint, real(x), real(y), 0);
}

void drawRotated(const BitmapWrapper& target, ALLEGRO_BITMAP* bitmap, int centreX, int centreY, int x, int y,
                 float angle, float scale, int alpha) {
    prepareDraw(target, bitmap);
    al_draw_tinted_scaled_rotated_bitmap(bitmap, tintOf(alpha), real(centreX), real(centreY), real(x), real(y), scale,
                                         scale, angle / anglePerRadian, 0);
}

void drawRotatedId(const BitmapWrapper& target, BitmapIds id, int centreX, int centreY, int x, int y, float angle,
                   float scale, int alpha) {
    drawRotated(target, getBitmap(id), centreX, centreY, x, y, angle, scale, alpha);
}

void drawScaled(const BitmapWrapper& target, ALLEGRO_BITMAP* bitmap, int sourceX, int sourceY, int sourceWidth,
                int sourceHeight, int x, int y, int width, int height) {
    heal(target.bitmap);
    heal(bitmap);
    setTarget(target);
    al_draw_scaled_bitmap(bitmap, real(sourceX), real(sourceY), real(sourceWidth), real(sourceHeight), real(x), real(y),
                          real(width), real(height), 0);
    ++drawCount;
}

void drawScaledId(const BitmapWrapper& target, BitmapIds id, int sourceX, int sourceY, int sourceWidth,
                  int sourceHeight, int x, int y, int width, int height) {
    drawScaled(target, getBitmap(id), sourceX, sourceY, sourceWidth, sourceHeight, x, y, width, height);
}

void drawArc(const BitmapWrapper& target, int x, int y, int radius, float startAngle, float angle, ALLEGRO_COLOR colour,
             float thickness) {
    const PrimitiveScope scope(target);
    al_draw_arc(real(x), real(y), real(radius), startAngle, angle, colour, thickness);
}

void drawEllipse(const BitmapWrapper& target, int x, int y, int radiusX, int radiusY, ALLEGRO_COLOR colour) {
    const PrimitiveScope scope(target);
    al_draw_ellipse(real(x), real(y), real(radiusX), real(radiusY), colour, 1.0f);
}

void drawFilledEllipse(const BitmapWrapper& target, int x, int y, int radiusX, int radiusY, ALLEGRO_COLOR colour) {
    const PrimitiveScope scope(target);
    al_draw_filled_ellipse(real(x), real(y), real(radiusX), real(radiusY), colour);
}

void drawLine(const BitmapWrapper& target, int x1, int y1, int x2, int y2, ALLEGRO_COLOR colour, float thickness) {
    const PrimitiveScope scope(target);
    al_draw_line(real(x1), real(y1), real(x2), real(y2), colour, thickness);
}

void drawRectangle(const BitmapWrapper& target, int x1, int y1, int x2, int y2, ALLEGRO_COLOR colour, float thickness) {
    const PrimitiveScope scope(target);
    al_draw_rectangle(real(x1), real(y1), real(x2), real(y2), colour, thickness);
}

void drawFilledRectangle(const BitmapWrapper& target, int x1, int y1, int x2, int y2, ALLEGRO_COLOR colour) {
    const PrimitiveScope scope(target);
    al_draw_filled_rectangle(real(x1), real(y1), real(x2), real(y2), colour);
}

void drawFilledTriangle(const BitmapWrapper& target, Pixel a, Pixel b, Pixel c, ALLEGRO_COLOR colour) {
    const PrimitiveScope scope(target);
    al_draw_filled_triangle(real(a.x), real(a.y), real(b.x), real(b.y), real(c.x), real(c.y), colour);
}

// The platform's coordinates are corners of pixels, so a point is half a pixel inside.
void putPixel(const BitmapWrapper& target, int x, int y, ALLEGRO_COLOR colour) {
    const PrimitiveScope scope(target);
    al_draw_pixel(real(x) + 0.5f, real(y) + 0.5f, colour);
}

void putPixels(const BitmapWrapper& target, const std::vector<ColouredPixel>& pixels) {
    if (pixels.empty()) {
        return;
    }
    std::vector<ALLEGRO_VERTEX> vertices;
    vertices.reserve(pixels.size());
    for (const ColouredPixel& pixel : pixels) {
        vertices.push_back({real(pixel.x) + 0.5f, real(pixel.y) + 0.5f, 0.0f, 0.0f, 0.0f, pixel.colour});
    }
    const PrimitiveScope scope(target);
    al_draw_prim(vertices.data(), nullptr, nullptr, 0, static_cast<int>(vertices.size()), ALLEGRO_PRIM_POINT_LIST);
}

ALLEGRO_COLOR getPixel(const BitmapWrapper& source, int x, int y) {
    const BatchPause pause;
    return al_get_pixel(source.bitmap, x, y);
}

unsigned char colourRed(ALLEGRO_COLOR colour) {
    unsigned char red, green, blue;
    al_unmap_rgb(colour, &red, &green, &blue);
    return red;
}

unsigned char colourGreen(ALLEGRO_COLOR colour) {
    unsigned char red, green, blue;
    al_unmap_rgb(colour, &red, &green, &blue);
    return green;
}

unsigned char colourBlue(ALLEGRO_COLOR colour) {
    unsigned char red, green, blue;
    al_unmap_rgb(colour, &red, &green, &blue);
    return blue;
}

}  // namespace vandrel
