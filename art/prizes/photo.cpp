#include "prizes/photo.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "files/whole_file.h"
#include "painter/png_file.h"

namespace vandrel::art {
namespace {

constexpr Colour cornerShade{16, 10, 30};
constexpr Colour paper{248, 242, 228};
constexpr Colour paperShade{206, 196, 176};

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
    const Canvas photo = framed(scene);
    // Seven rows of eight equal the one above, which this filter turns into zeros.
    const PngForm form{photo.width() * photoScale, photo.height() * photoScale, false, PngFilter::Up};
    writeWholeFile(path, encodePng(form, [&](int y, std::vector<std::uint8_t>& row) {
                       for (int x = 0; x < form.width; ++x) {
                           const Colour pixel = photo.at(x / photoScale, y / photoScale);
                           row.insert(row.end(), {pixel.red, pixel.green, pixel.blue});
                       }
                   }));
}

}  // namespace vandrel::art
