// The icon of the window, out of an icon file whose images are stored as PNG.
#pragma once

#include <allegro5/allegro.h>

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace vandrel {

// One image of an icon file: its width in pixels, and where its bytes lie in the file.
struct IconEntry {
    int size = 0;
    std::uint32_t offset = 0;
    std::uint32_t length = 0;

    friend bool operator==(const IconEntry&, const IconEntry&) = default;
};

// The directory at the head of an icon file; empty for anything that is none.
std::vector<IconEntry> readIconDirectory(std::span<const std::uint8_t> file);

// The image whose size is nearest to `size`, the first of equals; empty for none.
std::optional<IconEntry> nearestIcon(const std::vector<IconEntry>& entries, int size);

// Gives the window the images nearest to 256 and to 16 pixels. A file that is missing or cannot be read leaves the icon
// as it is.
void setWindowIcon(ALLEGRO_DISPLAY* display, const std::string& path);

}  // namespace vandrel
