#include "presentation/atlas.h"

#include <map>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

#include "presentation/atlas_layout.h"
#include "presentation/drawing.h"

namespace vandrel {

namespace {

// Every system that can run the game has textures of this size; a longer wall strip gets a bitmap of its own.
constexpr int pageSize = 2048;

// Pages live until the process ends, as the images on them do.
struct Atlas {
    AtlasLayout layout{pageSize};
    std::vector<BitmapWrapper*> pages;
    std::unordered_map<ALLEGRO_BITMAP*, AtlasPlace> places;
};

Atlas& atlas() {
    static Atlas* const theAtlas = new Atlas;
    return *theAtlas;
}

std::map<std::pair<int, int>, std::unique_ptr<BitmapWrapper>> canvases;

const ALLEGRO_COLOR transparent{0.0f, 0.0f, 0.0f, 0.0f};

const BitmapWrapper& pageOf(const AtlasPlace& place) {
    std::vector<BitmapWrapper*>& pages = atlas().pages;
    while (static_cast<int>(pages.size()) <= place.page) {
        pages.push_back(new BitmapWrapper(pageSize, pageSize, true));
        clearTo(*pages.back(), transparent);
    }
    return *pages[static_cast<unsigned>(place.page)];
}

// Takes the place of what is there, transparency included.
void replacePixels(ALLEGRO_BITMAP* source, const BitmapWrapper& target, int x, int y) {
    setTarget(target);
    const BatchPause pause;
    al_set_blender(ALLEGRO_ADD, ALLEGRO_ONE, ALLEGRO_ZERO);
    al_draw_bitmap(source, static_cast<float>(x), static_cast<float>(y), 0);
    al_set_blender(ALLEGRO_ADD, ALLEGRO_ONE, ALLEGRO_INVERSE_ALPHA);
}

const BitmapWrapper& canvasOf(int width, int height) {
    std::unique_ptr<BitmapWrapper>& canvas = canvases[{width, height}];
    if (!canvas) {
        canvas = std::make_unique<BitmapWrapper>(width, height, false);
    }
    return *canvas;
}

}  // namespace

ALLEGRO_BITMAP* copyIntoAtlas(ALLEGRO_BITMAP* source) {
    const std::optional<AtlasPlace> place =
        atlas().layout.place(al_get_bitmap_width(source), al_get_bitmap_height(source));
    if (!place) {
        return nullptr;
    }
    const BitmapWrapper& page = pageOf(*place);
    replacePixels(source, page, place->x, place->y);
    ALLEGRO_BITMAP* part = al_create_sub_bitmap(page.bitmap, place->x, place->y, place->width, place->height);
    atlas().places.emplace(part, *place);
    return part;
}

void destroyBitmap(ALLEGRO_BITMAP* bitmap) {
    const auto found = atlas().places.find(bitmap);
    if (found != atlas().places.end()) {
        atlas().layout.release(found->second);
        atlas().places.erase(found);
    }
    const BatchPause pause;
    if (al_get_target_bitmap() == bitmap) {
        forgetTarget();
    }
    al_destroy_bitmap(bitmap);
}

std::shared_ptr<BitmapWrapper> composePicture(int width, int height,
                                              const std::function<void(const BitmapWrapper&)>& paint) {
    const BitmapWrapper& canvas = canvasOf(width, height);
    clearTo(canvas, transparent);
    paint(canvas);
    if (ALLEGRO_BITMAP* part = copyIntoAtlas(canvas.bitmap)) {
        return std::make_shared<BitmapWrapper>(part, true);
    }
    // Too long for a page: the canvas itself is the picture, and the next one gets a new canvas.
    const auto found = canvases.find({width, height});
    std::shared_ptr<BitmapWrapper> picture = std::move(found->second);
    canvases.erase(found);
    return picture;
}

void releaseCanvases() {
    canvases.clear();
}

}  // namespace vandrel
