// A picture in memory, eight bits a channel with alpha, of any size. Recipes draw on it with its own pixel operations,
// with shapes (shapes.h), with hand-written maps (pixel_map.h) and letters (letters.h), and write it with png_file.h.
#pragma once

#include <cstddef>
#include <vector>

#include "painter/palette.h"

namespace vandrel::art {

class Canvas {
  public:
    // A canvas of `width` x `height` pixels, all `fill`. Throws std::invalid_argument unless both are at least 1.
    Canvas(int width, int height, Colour fill = clear);

    int width() const { return width_; }
    int height() const { return height_; }
    bool contains(int x, int y) const { return x >= 0 && y >= 0 && x < width_ && y < height_; }

    // The pixel at (x, y); transparent outside the canvas, so that neighbours can be asked for freely.
    Colour at(int x, int y) const;
    bool visible(int x, int y) const { return at(x, y).alpha != 0; }

    // Replaces the pixel; outside the canvas nothing happens, so that shapes may hang over the edge.
    void set(int x, int y, Colour colour);
    // Lays `colour` over the pixel with `opacity` 0..1 (times the colour's own alpha). For soft, large pictures.
    void blend(int x, int y, Colour colour, float opacity);

    void fill(Colour colour);
    void fillRect(int x, int y, int width, int height, Colour colour);
    // A straight one-pixel line, both ends included.
    void line(int x0, int y0, int x1, int y1, Colour colour);

    // Lays the visible pixels of `source` over this one with its top left corner at (x, y), alpha blended.
    void draw(const Canvas& source, int x = 0, int y = 0);
    // Makes every visible pixel of `stencil` (laid at (x, y)) transparent here.
    void erase(const Canvas& stencil, int x = 0, int y = 0);

    Canvas mirrored() const;               // left and right exchanged
    Canvas flipped() const;                // top and bottom exchanged
    Canvas turned() const;                 // a quarter turn clockwise; width and height change places
    Canvas shifted(int dx, int dy) const;  // same size; what leaves is lost, what enters is transparent
    Canvas scaled(int factor) const;       // each pixel becomes factor x factor pixels
    Canvas cropped(int x, int y, int width, int height) const;
    Canvas reduced(int width, int height) const;  // averaged down to a smaller size; alpha is averaged too

    void replace(Colour from, Colour to);  // every pixel of exactly `from`
    // Every transparent pixel with a visible neighbour above, below, left or right becomes `colour`.
    void outline(Colour colour = palette::ink);
    // The same, but only for pixels for which `allowed(x, y)` holds: where two pictures join, no line may cross.
    template <typename Predicate>
    void outlineWhere(Colour colour, Predicate allowed) {
        const Canvas before = *this;
        for (int y = 0; y < height_; ++y) {
            for (int x = 0; x < width_; ++x) {
                if (!before.visible(x, y) && before.touchesVisible(x, y) && allowed(x, y)) {
                    set(x, y, colour);
                }
            }
        }
    }
    // Makes every pixel with alpha of at least `threshold` opaque and every other one transparent.
    void hardenAlpha(int threshold = 128);

    std::size_t countVisible() const;
    std::size_t count(Colour colour) const;

    bool operator==(const Canvas&) const = default;

  private:
    bool touchesVisible(int x, int y) const {
        return visible(x - 1, y) || visible(x + 1, y) || visible(x, y - 1) || visible(x, y + 1);
    }

    int width_;
    int height_;
    std::vector<Colour> pixels_;
};

}  // namespace vandrel::art
