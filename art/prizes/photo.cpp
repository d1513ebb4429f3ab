#include "prizes/photo.h"

#include <png.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <vector>

namespace vandrel::art {
namespace {

constexpr Colour cornerShade{16, 10, 30};
constexpr Colour paper{248, 242, 228};
constexpr Colour paperShade{206, 196, 176};

[[noreturn]] void refuse(png_structp, png_const_charp message) {
    throw std::runtime_error(message);
}

void ignoreWarning(png_structp, png_const_charp) {}

struct Writer {
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, refuse, ignoreWarning);
    png_infop info = png_create_info_struct(png);

    Writer() = default;
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;
    ~Writer() { png_destroy_write_struct(&png, &info); }
};

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

void encode(const Canvas& small, std::FILE* file) {
    Writer writer;
    png_init_io(writer.png, file);
    png_set_compression_level(writer.png, 9);
    // Seven rows of eight equal the one above, which this filter turns into zeros.
    png_set_filter(writer.png, PNG_FILTER_TYPE_BASE, PNG_FILTER_UP);
    png_set_IHDR(writer.png, writer.info, static_cast<png_uint_32>(small.width() * photoScale),
                 static_cast<png_uint_32>(small.height() * photoScale), 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(writer.png, writer.info);
    std::vector<std::uint8_t> row(static_cast<std::size_t>(small.width() * photoScale) * 3);
    for (int y = 0; y < small.height(); ++y) {
        auto byte = row.begin();
        for (int x = 0; x < small.width(); ++x) {
            const Colour pixel = small.at(x, y);
            for (int copy = 0; copy < photoScale; ++copy) {
                *byte++ = pixel.red;
                *byte++ = pixel.green;
                *byte++ = pixel.blue;
            }
        }
        for (int copy = 0; copy < photoScale; ++copy) {
            png_write_row(writer.png, row.data());
        }
    }
    png_write_end(writer.png, writer.info);
}

}  // namespace

Canvas newScene(Colour fill) {
    return Canvas(photoWidth, photoHeight, fill);
}

Canvas framed(const Canvas& scene) {
    Canvas photo = scene;
    for (int y = 0; y < photo.height(); ++y) {
        for (int x = 0; x < photo.width(); ++x) {
            const float dx = (static_cast<float>(x) + 0.5f) / static_cast<float>(photo.width()) - 0.5f;
            const float dy = (static_cast<float>(y) + 0.5f) / static_cast<float>(photo.height()) - 0.5f;
            // In five steps, so that the darkening stays in the manner of the pixels.
            const float depth = std::clamp((std::hypot(dx, dy) - 0.46f) * 5.0f, 0.0f, 1.0f);
            photo.blend(x, y, cornerShade, std::floor(depth * 5.0f) / 5.0f * 0.42f);
        }
    }
    const int width = photo.width(), height = photo.height();
    const auto band = [&](int inset, int thickness, Colour upper, Colour lower) {
        photo.fillRect(inset, inset, width - inset * 2, thickness, upper);
        photo.fillRect(inset, inset, thickness, height - inset * 2, upper);
        photo.fillRect(inset, height - inset - thickness, width - inset * 2, thickness, lower);
        photo.fillRect(width - inset - thickness, inset, thickness, height - inset * 2, lower);
    };
    band(frameThickness - 1, 1, palette::ink, palette::stoneDark);
    band(1, frameThickness - 2, paper, paperShade);
    band(0, 1, palette::goldDark, palette::brickDark);
    return photo;
}

void writePhoto(const Canvas& scene, const std::filesystem::path& path) {
    if (path.has_parent_path()) {
        std::filesystem::create_directories(path.parent_path());
    }
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(path.c_str(), "wb"));
    if (!file) {
        throw std::runtime_error("Could not write " + path.string());
    }
    encode(framed(scene), file.get());
    if (std::fflush(file.get()) != 0) {
        throw std::runtime_error("Could not write " + path.string());
    }
}

}  // namespace vandrel::art
