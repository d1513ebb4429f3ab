#include "shell/window_icon.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace vandrel {
namespace {

constexpr std::array<int, 2> iconSizes{256, 16};
constexpr std::size_t headerLength = 6;
constexpr std::size_t entryLength = 16;

// A little-endian number of `count` bytes.
std::uint32_t readNumber(std::span<const std::uint8_t> bytes, std::size_t at, std::size_t count) {
    std::uint32_t number = 0;
    for (std::size_t i = count; i-- > 0;) {
        number = (number << 8U) | bytes[at + i];
    }
    return number;
}

// Empty for what is no file.
std::vector<std::uint8_t> readFile(const std::string& path) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        return {};
    }
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// Null if the bytes are no picture.
ALLEGRO_BITMAP* loadIcon(const std::string& path, const IconEntry& entry) {
    ALLEGRO_FILE* file = al_fopen(path.c_str(), "rb");
    if (file == nullptr) {
        return nullptr;
    }
    al_fseek(file, entry.offset, ALLEGRO_SEEK_SET);
    ALLEGRO_BITMAP* bitmap = nullptr;
    if (ALLEGRO_FILE* slice = al_fopen_slice(file, entry.length, "r"); slice != nullptr) {
        bitmap = al_load_bitmap_f(slice, ".png");
        al_fclose(slice);
    }
    al_fclose(file);
    return bitmap;
}

}  // namespace

std::vector<IconEntry> readIconDirectory(std::span<const std::uint8_t> file) {
    constexpr std::uint32_t iconType = 1;
    if (file.size() < headerLength || readNumber(file, 0, 2) != 0 || readNumber(file, 2, 2) != iconType) {
        return {};
    }
    const std::size_t count = readNumber(file, 4, 2);
    if (file.size() < headerLength + count * entryLength) {
        return {};
    }
    std::vector<IconEntry> entries;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t at = headerLength + i * entryLength;
        IconEntry entry;
        entry.size = file[at] == 0 ? 256 : file[at];
        entry.length = readNumber(file, at + 8, 4);
        entry.offset = readNumber(file, at + 12, 4);
        if (entry.offset <= file.size() && entry.length <= file.size() - entry.offset) {
            entries.push_back(entry);
        }
    }
    return entries;
}

std::optional<IconEntry> nearestIcon(const std::vector<IconEntry>& entries, int size) {
    const auto nearest =
        std::ranges::min_element(entries, {}, [size](const IconEntry& entry) { return std::abs(entry.size - size); });
    return nearest == entries.end() ? std::nullopt : std::optional(*nearest);
}

void setWindowIcon(ALLEGRO_DISPLAY* display, const std::string& path) {
    const std::vector<IconEntry> entries = readIconDirectory(readFile(path));
    const int flagsBefore = al_get_new_bitmap_flags();
    al_set_new_bitmap_flags(ALLEGRO_MEMORY_BITMAP);
    std::vector<ALLEGRO_BITMAP*> icons;
    for (const int size : iconSizes) {
        if (const std::optional<IconEntry> entry = nearestIcon(entries, size)) {
            if (ALLEGRO_BITMAP* icon = loadIcon(path, *entry); icon != nullptr) {
                icons.push_back(icon);
            }
        }
    }
    al_set_new_bitmap_flags(flagsBefore);
    if (!icons.empty()) {
        al_set_display_icons(display, static_cast<int>(icons.size()), icons.data());
    }
    std::ranges::for_each(icons, al_destroy_bitmap);
}

}  // namespace vandrel
