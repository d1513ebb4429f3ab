#include "painter/canvas.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace vandrel::art {

Canvas::Canvas(int width, int height, Colour fill) : width_(width), height_(height) {
    if (width < 1 || height < 1) {
        throw std::invalid_argument("A canvas needs a width and a height of at least 1");
    }
    pixels_.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), fill);
}

Colour Canvas::at(int x, int y) const {
    if (!contains(x, y)) {
        return clear;
    }
    return pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x)];
}

void Canvas::set(int x, int y, Colour colour) {
    if (contains(x, y)) {
        pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x)] = colour;
    }
}

void Canvas::blend(int x, int y, Colour colour, float opacity) {
    if (!contains(x, y)) {
        return;
    }
    const float over = std::clamp(opacity, 0.0f, 1.0f) * static_cast<float>(colour.alpha) / 255.0f;
    if (over <= 0.0f) {
        return;
    }
    const Colour under = at(x, y);
    const float underAlpha = static_cast<float>(under.alpha) / 255.0f * (1.0f - over);
    const float alpha = over + underAlpha;
    const auto channel = [&](std::uint8_t top, std::uint8_t bottom) {
        return static_cast<std::uint8_t>(
            (static_cast<float>(top) * over + static_cast<float>(bottom) * underAlpha) / alpha + 0.5f);
    };
    set(x, y,
        {channel(colour.red, under.red), channel(colour.green, under.green), channel(colour.blue, under.blue),
         static_cast<std::uint8_t>(alpha * 255.0f + 0.5f)});
}

void Canvas::fill(Colour colour) {
    std::fill(pixels_.begin(), pixels_.end(), colour);
}

void Canvas::fillRect(int x, int y, int width, int height, Colour colour) {
    for (int row = y; row < y + height; ++row) {
        for (int column = x; column < x + width; ++column) {
            set(column, row, colour);
        }
    }
}

void Canvas::line(int x0, int y0, int x1, int y1, Colour colour) {
    const int steps = std::max(std::abs(x1 - x0), std::abs(y1 - y0));
    for (int step = 0; step <= steps; ++step) {
        const float part = steps == 0 ? 0.0f : static_cast<float>(step) / static_cast<float>(steps);
        const float x = static_cast<float>(x0) + static_cast<float>(x1 - x0) * part;
        const float y = static_cast<float>(y0) + static_cast<float>(y1 - y0) * part;
        set(static_cast<int>(x + (x < 0.0f ? -0.5f : 0.5f)), static_cast<int>(y + (y < 0.0f ? -0.5f : 0.5f)), colour);
    }
}

void Canvas::draw(const Canvas& source, int x, int y) {
    for (int row = 0; row < source.height_; ++row) {
        for (int column = 0; column < source.width_; ++column) {
            const Colour colour = source.at(column, row);
            if (colour.alpha == 255) {
                set(x + column, y + row, colour);
            } else if (colour.alpha != 0) {
                blend(x + column, y + row, colour, 1.0f);
            }
        }
    }
}

void Canvas::erase(const Canvas& stencil, int x, int y) {
    for (int row = 0; row < stencil.height_; ++row) {
        for (int column = 0; column < stencil.width_; ++column) {
            if (stencil.visible(column, row)) {
                set(x + column, y + row, clear);
            }
        }
    }
}

Canvas Canvas::mirrored() const {
    Canvas result(width_, height_);
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            result.set(width_ - 1 - x, y, at(x, y));
        }
    }
    return result;
}

Canvas Canvas::flipped() const {
    Canvas result(width_, height_);
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            result.set(x, height_ - 1 - y, at(x, y));
        }
    }
    return result;
}

Canvas Canvas::turned() const {
    Canvas result(height_, width_);
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            result.set(height_ - 1 - y, x, at(x, y));
        }
    }
    return result;
}

Canvas Canvas::shifted(int dx, int dy) const {
    Canvas result(width_, height_);
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            result.set(x + dx, y + dy, at(x, y));
        }
    }
    return result;
}

Canvas Canvas::scaled(int factor) const {
    Canvas result(width_ * factor, height_ * factor);
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            result.fillRect(x * factor, y * factor, factor, factor, at(x, y));
        }
    }
    return result;
}

Canvas Canvas::cropped(int x, int y, int width, int height) const {
    Canvas result(width, height);
    for (int row = 0; row < height; ++row) {
        for (int column = 0; column < width; ++column) {
            result.set(column, row, at(x + column, y + row));
        }
    }
    return result;
}

Canvas Canvas::reduced(int width, int height) const {
    Canvas result(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int left = x * width_ / width;
            const int right = std::max(left + 1, (x + 1) * width_ / width);
            const int top = y * height_ / height;
            const int bottom = std::max(top + 1, (y + 1) * height_ / height);
            unsigned red = 0, green = 0, blue = 0, alpha = 0;
            for (int row = top; row < bottom; ++row) {
                for (int column = left; column < right; ++column) {
                    const Colour pixel = at(column, row);
                    red += static_cast<unsigned>(pixel.red) * pixel.alpha;
                    green += static_cast<unsigned>(pixel.green) * pixel.alpha;
                    blue += static_cast<unsigned>(pixel.blue) * pixel.alpha;
                    alpha += pixel.alpha;
                }
            }
            if (alpha != 0) {
                const auto pixels = static_cast<unsigned>((right - left) * (bottom - top));
                result.set(x, y,
                           {static_cast<std::uint8_t>(red / alpha), static_cast<std::uint8_t>(green / alpha),
                            static_cast<std::uint8_t>(blue / alpha), static_cast<std::uint8_t>(alpha / pixels)});
            }
        }
    }
    return result;
}

void Canvas::replace(Colour from, Colour to) {
    std::replace(pixels_.begin(), pixels_.end(), from, to);
}

void Canvas::outline(Colour colour) {
    outlineWhere(colour, [](int, int) { return true; });
}

void Canvas::hardenAlpha(int threshold) {
    for (Colour& pixel : pixels_) {
        if (pixel.alpha >= threshold) {
            pixel.alpha = 255;
        } else {
            pixel = clear;
        }
    }
}

std::size_t Canvas::countVisible() const {
    return static_cast<std::size_t>(
        std::count_if(pixels_.begin(), pixels_.end(), [](const Colour& pixel) { return pixel.alpha != 0; }));
}

std::size_t Canvas::count(Colour colour) const {
    return static_cast<std::size_t>(std::count(pixels_.begin(), pixels_.end(), colour));
}

}  // namespace vandrel::art
