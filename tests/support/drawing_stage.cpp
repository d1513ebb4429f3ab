#include "support/drawing_stage.h"

#include <allegro5/allegro_image.h>
#include <allegro5/allegro_primitives.h>

#include <cmath>
#include <memory>
#include <stdexcept>
#include <string_view>

#include "presentation/bitmaps.h"
#include "presentation/drawing.h"
#include "presentation/recolour_shader.h"
#include "support/virtual_display.h"

namespace vandrel {

namespace {

namespace fs = std::filesystem;

bool needsDisplay() {
    const ::testing::UnitTest& program = *::testing::UnitTest::GetInstance();
    for (int i = 0; i < program.total_test_suite_count(); ++i) {
        const ::testing::TestSuite& suite = *program.GetTestSuite(i);
        const std::string_view name = suite.name();
        if (suite.should_run() && name.size() > 9 && name.substr(name.size() - 9) == "OnDisplay") {
            return true;
        }
    }
    return false;
}

// Lives until the process ends. The server outlives the platform, which would take its loss for an error.
void startPlatform() {
    static const std::unique_ptr<VirtualDisplay> server = needsDisplay() ? std::make_unique<VirtualDisplay>() : nullptr;
    static const bool started =
        al_init() && al_init_image_addon() && al_init_primitives_addon() && al_install_keyboard();
    if (!started) {
        throw std::runtime_error("the platform library did not start");
    }
}

void startDisplay() {
    if (al_get_current_display() != nullptr) {
        return;
    }
    al_set_new_display_flags(ALLEGRO_WINDOWED | ALLEGRO_PROGRAMMABLE_PIPELINE);
    if (al_create_display(640, 480) == nullptr) {
        throw std::runtime_error("no display");
    }
    forgetTarget();
}

}  // namespace

DrawingTest::DrawingTest() : before_(fs::current_path()) {
    startPlatform();
    std::string name = (fs::temp_directory_path() / "vandrel-drawing-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) {
        throw std::runtime_error("no temporary directory");
    }
    directory_ = name;
    fs::current_path(directory_);
}

DrawingTest::~DrawingTest() {
    fs::current_path(before_);
    fs::remove_all(directory_);
}

void DrawingTest::writeImage(const std::string& path, int width, int height, const ImagePainter& paint) {
    const fs::path parent = fs::path(path).parent_path();
    if (!parent.empty()) {
        fs::create_directories(parent);
    }
    const BitmapWrapper image(width, height, true);
    clearTo(image, clearPixel);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            al_put_pixel(x, y, paint(x, y));
        }
    }
    if (!al_save_bitmap(path.c_str(), image.bitmap)) {
        throw std::runtime_error("cannot write " + path);
    }
}

void DrawingTest::loadPlainImage(int id, RGB colour, int width, int height) {
    const std::string path = std::string("images/") + bitmapNames.at(static_cast<unsigned>(id)) + ".png";
    writeImage(path, width, height, [colour](int, int) { return toColour(colour); });
    loadBitmaps(id);
}

DrawingOnDisplay::DrawingOnDisplay() {
    startDisplay();
    fs::create_directory_symlink(fs::path(VANDREL_SOURCE_DIR) / "game" / "shaders", "shaders");
}

RGB pixelAt(const BitmapWrapper& bitmap, int x, int y) {
    const ALLEGRO_COLOR colour = getPixel(bitmap, x, y);
    const auto byteOf = [](float channel) { return static_cast<std::uint8_t>(std::lround(channel * 255.0f)); };
    return {byteOf(colour.r), byteOf(colour.g), byteOf(colour.b)};
}

bool isTransparentAt(const BitmapWrapper& bitmap, int x, int y) {
    return getPixel(bitmap, x, y).a == 0.0f;
}

}  // namespace vandrel
