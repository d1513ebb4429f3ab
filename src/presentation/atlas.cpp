#include "presentation/atlas.h"

#include <optional>
#include <unordered_map>
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

// What every picture is composed on, in its top left corner: as wide as a page, and as high as the highest picture yet.
std::unique_ptr<BitmapWrapper> canvas;

const ALLEGRO_COLOR transparent{0.0f, 0.0f, 0.0f, 0.0f};

const BitmapWrapper& pageOf(const AtlasPlace& place) {
    std::vector<BitmapWrapper*>& pages = atlas().pages;
    while (static_cast<int>(pages.size()) <= place.page) {
        pages.push_back(new BitmapWrapper(pageSize, pageSize, true));
        clearTo(*pages.back(), transparent);
    }
    return *pages[static_cast<unsigned>(place.page)];
}

// Clears the place and the border round it, in which pixels of a larger picture may be left.
void clearPlace(const BitmapWrapper& page, const AtlasPlace& place) {
    setTarget(page);
    const BatchPause pause;
    al_set_clipping_rectangle(place.x - atlasBorder, place.y - atlasBorder, place.width + 2 * atlasBorder,
                              place.height + 2 * atlasBorder);
    al_clear_to_color(transparent);
    al_reset_clipping_rectangle();
}

// Takes the place of what is there, transparency included.
void replacePixels(ALLEGRO_BITMAP* source, const BitmapWrapper& target, int x, int y) {
    setTarget(target);
    const BatchPause pause;
    al_set_blender(ALLEGRO_ADD, ALLEGRO_ONE, ALLEGRO_ZERO);
    al_draw_bitmap(source, static_cast<float>(x), static_cast<float>(y), 0);
    al_set_blender(ALLEGRO_ADD, ALLEGRO_ONE, ALLEGRO_INVERSE_ALPHA);
}

// The corner of the canvas of that size, to be let go before the next picture is composed.
BitmapWrapper cornerOfCanvas(int width, int height) {
    if (!canvas || canvas->height() < height) {
        canvas.reset();
        canvas = std::make_unique<BitmapWrapper>(pageSize, height, false);
    }
    return {al_create_sub_bitmap(canvas->bitmap, 0, 0, width, height), true};
}

}  // namespace

ALLEGRO_BITMAP* copyIntoAtlas(ALLEGRO_BITMAP* source) {
    const std::optional<AtlasPlace> place =
        atlas().layout.place(al_get_bitmap_width(source), al_get_bitmap_height(source));
    if (!place) {
        return nullptr;
    }
    const BitmapWrapper& page = pageOf(*place);
    clearPlace(page, *place);
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
    const auto paintOn = [&paint](const BitmapWrapper& blank) {
        clearTo(blank, transparent);
        paint(blank);
    };
    if (!atlas().layout.fits(width, height)) {
        auto picture = std::make_shared<BitmapWrapper>(width, height, false);
        paintOn(*picture);
        return picture;
    }
    const BitmapWrapper corner = cornerOfCanvas(width, height);
    paintOn(corner);
    return std::make_shared<BitmapWrapper>(copyIntoAtlas(corner.bitmap), true);
}

void releaseCanvas() {
    canvas.reset();
}

}  // namespace vandrel
