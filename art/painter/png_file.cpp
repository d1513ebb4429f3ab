#include "painter/png_file.h"

#include <png.h>

#include <fstream>
#include <stdexcept>
#include <string>

namespace vandrel::art {
namespace {

[[noreturn]] void refuse(png_structp, png_const_charp message) {
    throw std::runtime_error(std::string("PNG: ") + message);
}

void ignoreWarning(png_structp, png_const_charp) {}

void append(png_structp png, png_bytep bytes, std::size_t count) {
    auto& sink = *static_cast<std::vector<std::uint8_t>*>(png_get_io_ptr(png));
    sink.insert(sink.end(), bytes, bytes + count);
}

void flushNothing(png_structp) {}

struct Writer {
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, refuse, ignoreWarning);
    png_infop info = png_create_info_struct(png);

    Writer() = default;
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;
    ~Writer() { png_destroy_write_struct(&png, &info); }
};

}  // namespace

std::vector<std::uint8_t> encodePng(const Canvas& canvas) {
    std::vector<std::uint8_t> bytes;
    Writer writer;
    png_set_write_fn(writer.png, &bytes, append, flushNothing);
    png_set_compression_level(writer.png, 9);
    png_set_filter(writer.png, PNG_FILTER_TYPE_BASE, canvas.width() > 256 ? PNG_ALL_FILTERS : PNG_FILTER_NONE);
    png_set_IHDR(writer.png, writer.info, static_cast<png_uint_32>(canvas.width()),
                 static_cast<png_uint_32>(canvas.height()), 8, PNG_COLOR_TYPE_RGB_ALPHA, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(writer.png, writer.info);
    std::vector<std::uint8_t> row(static_cast<std::size_t>(canvas.width()) * 4);
    for (int y = 0; y < canvas.height(); ++y) {
        auto byte = row.begin();
        for (int x = 0; x < canvas.width(); ++x) {
            const Colour pixel = canvas.at(x, y);
            for (const std::uint8_t channel : {pixel.red, pixel.green, pixel.blue, pixel.alpha}) {
                *byte++ = channel;
            }
        }
        png_write_row(writer.png, row.data());
    }
    png_write_end(writer.png, writer.info);
    return bytes;
}

void writePng(const Canvas& canvas, const std::filesystem::path& path) {
    const std::vector<std::uint8_t> bytes = encodePng(canvas);
    if (path.has_parent_path()) {
        std::filesystem::create_directories(path.parent_path());
    }
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) {
        throw std::runtime_error("Could not write " + path.string());
    }
}

Canvas readPng(const std::filesystem::path& path) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_file(&image, path.c_str()) == 0) {
        throw std::runtime_error("Could not read " + path.string() + ": " + image.message);
    }
    image.format = PNG_FORMAT_RGBA;
    std::vector<std::uint8_t> bytes(PNG_IMAGE_SIZE(image));
    if (png_image_finish_read(&image, nullptr, bytes.data(), 0, nullptr) == 0) {
        throw std::runtime_error("Could not read " + path.string() + ": " + image.message);
    }
    Canvas canvas(static_cast<int>(image.width), static_cast<int>(image.height));
    std::size_t index = 0;
    for (int y = 0; y < canvas.height(); ++y) {
        for (int x = 0; x < canvas.width(); ++x, index += 4) {
            canvas.set(x, y, {bytes[index], bytes[index + 1], bytes[index + 2], bytes[index + 3]});
        }
    }
    return canvas;
}

}  // namespace vandrel::art
