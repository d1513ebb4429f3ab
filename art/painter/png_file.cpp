#include "painter/png_file.h"

#include <png.h>

#include <stdexcept>

#include "files/whole_file.h"

namespace vandrel::art {
namespace {

[[noreturn]] void refuse(png_structp, png_const_charp message) {
    throw std::runtime_error(std::string("PNG: ") + message);
}

void ignoreWarning(png_structp, png_const_charp) {}

void append(png_structp png, png_bytep bytes, std::size_t count) {
    static_cast<std::string*>(png_get_io_ptr(png))->append(reinterpret_cast<const char*>(bytes), count);
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

int filterBits(PngFilter filter) {
    switch (filter) {
        case PngFilter::Up:
            return PNG_FILTER_UP;
        case PngFilter::All:
            return PNG_ALL_FILTERS;
        case PngFilter::None:
            break;
    }
    return PNG_FILTER_NONE;
}

}  // namespace

std::string encodePng(const PngForm& form,
                      const std::function<void(int y, std::vector<std::uint8_t>& row)>& appendRow) {
    std::string bytes;
    Writer writer;
    png_set_write_fn(writer.png, &bytes, append, flushNothing);
    png_set_compression_level(writer.png, 9);
    png_set_filter(writer.png, PNG_FILTER_TYPE_BASE, filterBits(form.filter));
    png_set_IHDR(writer.png, writer.info, static_cast<png_uint_32>(form.width), static_cast<png_uint_32>(form.height),
                 8, form.alpha ? PNG_COLOR_TYPE_RGB_ALPHA : PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(writer.png, writer.info);
    std::vector<std::uint8_t> row;
    for (int y = 0; y < form.height; ++y) {
        row.clear();
        appendRow(y, row);
        png_write_row(writer.png, row.data());
    }
    png_write_end(writer.png, writer.info);
    return bytes;
}

std::string encodePng(const Canvas& canvas) {
    constexpr int widestUnfiltered = 256;
    const PngFilter filter = canvas.width() > widestUnfiltered ? PngFilter::All : PngFilter::None;
    return encodePng({canvas.width(), canvas.height(), true, filter}, [&](int y, std::vector<std::uint8_t>& row) {
        for (int x = 0; x < canvas.width(); ++x) {
            const Colour pixel = canvas.at(x, y);
            row.insert(row.end(), {pixel.red, pixel.green, pixel.blue, pixel.alpha});
        }
    });
}

void writePng(const Canvas& canvas, const std::filesystem::path& path) {
    writeWholeFile(path, encodePng(canvas));
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
