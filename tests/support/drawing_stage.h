// What a test of painting stands on: the platform library, with a real display only for the suites that ask for one,
// and a working directory of its own with images that the test draws.
#pragma once

#include <allegro5/allegro.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>

#include "base/colour.h"
#include "presentation/bitmap_wrapper.h"

namespace vandrel {

// A pixel with nothing in it.
inline constexpr ALLEGRO_COLOR clearPixel{0.0f, 0.0f, 0.0f, 0.0f};

using ImagePainter = std::function<ALLEGRO_COLOR(int x, int y)>;

// Without a display bitmaps live in memory, and what is painted can be read all the same.
class DrawingTest : public ::testing::Test {
  protected:
    DrawingTest();
    ~DrawingTest() override;

    // Writes a PNG of this size into the working directory; directories in `path` are made.
    static void writeImage(const std::string& path, int width, int height, const ImagePainter& paint);
    // Writes and loads the images with these numbers, each in one colour.
    static void loadPlainImage(int id, RGB colour, int width = 32, int height = 32);

  private:
    std::filesystem::path before_;
    std::filesystem::path directory_;
};

// The names of these suites end in "OnDisplay": the stage looks for that before the platform is started.
class DrawingOnDisplay : public DrawingTest {
  protected:
    DrawingOnDisplay();
};

// The colour of a pixel as bytes.
RGB pixelAt(const BitmapWrapper& bitmap, int x, int y);
bool isTransparentAt(const BitmapWrapper& bitmap, int x, int y);

// For readable failures.
inline std::ostream& operator<<(std::ostream& out, const RGB& colour) {
    return out << '(' << int{colour.red} << ", " << int{colour.green} << ", " << int{colour.blue} << ')';
}

}  // namespace vandrel
