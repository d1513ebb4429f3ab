// A platform bitmap with the knowledge of who frees it. Held by shared pointer wherever it is passed on; everything is
// drawn into one of these.
#pragma once

#include <allegro5/allegro.h>

namespace vandrel {

class BitmapWrapper {
  public:
    // A new bitmap of this size in pixels with an alpha channel, undefined in content. Without `preserve` its content
    // may be lost with the display, which suits what is painted anew each frame. With `shrinksSmoothly` its pixels are
    // mixed where it is drawn smaller; else some of them are left out. Throws std::runtime_error "Could not create
    // bitmap".
    BitmapWrapper(int width, int height, bool preserve, bool shrinksSmoothly = false);
    // Wraps what exists, such as the display's back buffer. Freed with the wrapper only when `owned`.
    BitmapWrapper(ALLEGRO_BITMAP* bitmap, bool owned);
    BitmapWrapper(const BitmapWrapper&) = delete;
    BitmapWrapper& operator=(const BitmapWrapper&) = delete;
    ~BitmapWrapper();

    int width() const;
    int height() const;

    ALLEGRO_BITMAP* bitmap;
    bool owned;
};

}  // namespace vandrel
