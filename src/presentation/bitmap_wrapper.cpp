#include "presentation/bitmap_wrapper.h"

#include <stdexcept>

#include "presentation/atlas.h"

namespace vandrel {

namespace {

ALLEGRO_BITMAP* createBitmap(int width, int height, bool preserve, bool shrinksSmoothly) {
    ALLEGRO_STATE before;
    al_store_state(&before, ALLEGRO_STATE_NEW_BITMAP_PARAMETERS);
    al_set_new_bitmap_format(ALLEGRO_PIXEL_FORMAT_ANY_WITH_ALPHA);
    al_set_new_bitmap_flags(ALLEGRO_CONVERT_BITMAP | (preserve ? 0 : ALLEGRO_NO_PRESERVE_TEXTURE) |
                            (shrinksSmoothly ? ALLEGRO_MIN_LINEAR : 0));
    ALLEGRO_BITMAP* const bitmap = al_create_bitmap(width, height);
    al_restore_state(&before);
    if (bitmap == nullptr) {
        throw std::runtime_error("Could not create bitmap");
    }
    return bitmap;
}

}  // namespace

BitmapWrapper::BitmapWrapper(int width, int height, bool preserve, bool shrinksSmoothly)
    : bitmap(createBitmap(width, height, preserve, shrinksSmoothly)), owned(true) {}

BitmapWrapper::BitmapWrapper(ALLEGRO_BITMAP* existing, bool ownsIt) : bitmap(existing), owned(ownsIt) {}

BitmapWrapper::~BitmapWrapper() {
    // At the end of the process the platform goes before the globals do, and has freed every bitmap by then.
    if (owned && al_is_system_installed()) {
        destroyBitmap(bitmap);
    }
}

int BitmapWrapper::width() const {
    return al_get_bitmap_width(bitmap);
}

int BitmapWrapper::height() const {
    return al_get_bitmap_height(bitmap);
}

}  // namespace vandrel
