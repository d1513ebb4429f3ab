#include "presentation/bitmaps.h"

#include <stdexcept>
#include <string>

#include "base/checked.h"
#include "presentation/atlas.h"
#include "presentation/drawing.h"
#include "presentation/image_index.h"

namespace vandrel {

std::array<ALLEGRO_BITMAP*, bitmapCount> bitmapTable{};

namespace {

ALLEGRO_BITMAP* loadImageFile(const ImageIndex& index, const std::string& name) {
    const std::string& path = index.pathOf(name);
    ALLEGRO_BITMAP* image = al_load_bitmap(path.c_str());
    if (image == nullptr) {
        throw std::runtime_error("Error loading " + path);
    }
    return image;
}

bool isSmall(ALLEGRO_BITMAP* image) {
    return al_get_bitmap_width(image) <= atlasImageLimit && al_get_bitmap_height(image) <= atlasImageLimit;
}

void loadImage(const ImageIndex& index, int id) {
    ALLEGRO_BITMAP* image = loadImageFile(index, checkedAt(bitmapNames, id));
    al_convert_mask_to_alpha(image, al_map_rgb(255, 0, 255));
    if (isSmall(image)) {
        ALLEGRO_BITMAP* part = copyIntoAtlas(image);
        destroyBitmap(image);
        image = part;
    }
    checkedAt(bitmapTable, id) = image;
}

}  // namespace

void loadBitmaps(std::optional<int> id) {
    const BatchPause pause;
    const ImageIndex index(".");
    ALLEGRO_STATE before;
    al_store_state(&before, ALLEGRO_STATE_NEW_BITMAP_PARAMETERS);
    al_set_new_bitmap_format(ALLEGRO_PIXEL_FORMAT_ANY_WITH_ALPHA);
    al_set_new_bitmap_flags(ALLEGRO_CONVERT_BITMAP);
    if (id) {
        loadImage(index, *id);
    } else {
        for (int each = 0; each < bitmapCount; ++each) {
            checkedAt(bitmapTable, each) = nullptr;
            if (!isLazyBitmap(static_cast<BitmapIds>(each))) {
                loadImage(index, each);
            }
        }
    }
    al_restore_state(&before);
}

void releaseBitmapCaches() {
    releaseCanvas();
}

ALLEGRO_BITMAP* getBitmap(BitmapIds id) {
    const int index = bitmapIndex(id);
    if (checkedAt(bitmapTable, index) == nullptr && isLazyBitmap(id)) {
        loadBitmaps(index);
    }
    return checkedAt(bitmapTable, index);
}

int bitmapWidth(BitmapIds id) {
    return al_get_bitmap_width(getBitmap(id));
}

int bitmapHeight(BitmapIds id) {
    return al_get_bitmap_height(getBitmap(id));
}

}  // namespace vandrel
