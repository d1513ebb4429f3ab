#include "presentation/text.h"

#include <allegro5/allegro_ttf.h>

#include <array>
#include <cstddef>
#include <stdexcept>

#include "presentation/drawing.h"
#include "presentation/word_wrap.h"

namespace vandrel {

namespace {

constexpr int wrapWidth = 30;  // characters
constexpr const char* fontFile = "fonts/OCRA.ttf";

// By `FontId`.
std::array<ALLEGRO_FONT*, static_cast<std::size_t>(FontId::Font64) + 1> fonts{};

ALLEGRO_FONT*& slotOf(FontId id) {
    return fonts[static_cast<unsigned>(id)];
}

ALLEGRO_FONT* loadFont(int size) {
    return al_load_ttf_font(fontFile, size, ALLEGRO_TTF_MONOCHROME);
}

}  // namespace

void loadFonts() {
    for (ALLEGRO_FONT*& font : fonts) {
        if (font != nullptr) {
            al_destroy_font(font);
            font = nullptr;
        }
    }
    slotOf(FontId::Builtin) = al_create_builtin_font();
    slotOf(FontId::Font30) = loadFont(30);
    slotOf(FontId::Font24) = loadFont(24);
    slotOf(FontId::Font20) = loadFont(20);
    slotOf(FontId::Font64) = loadFont(64);
    for (const ALLEGRO_FONT* font : fonts) {
        if (font == nullptr) {
            throw std::runtime_error("Error loading fonts!");
        }
    }
}

ALLEGRO_FONT* fontHandle(FontId id) {
    return slotOf(id);
}

void drawText(const BitmapWrapper& target, FontId font, int x, int y, ALLEGRO_COLOR colour, std::string_view text,
              int align) {
    setTarget(target);
    ALLEGRO_USTR_INFO info;
    const ALLEGRO_USTR* characters = al_ref_buffer(&info, text.data(), text.size());
    al_draw_ustr(fontHandle(font), colour, static_cast<float>(x), static_cast<float>(y), align, characters);
}

void drawWrappedText(const BitmapWrapper& target, const std::string& text, int x, int y, int rowHeight,
                     ALLEGRO_COLOR colour) {
    const std::string wrapped = wordWrap(text, wrapWidth);
    std::size_t start = 0;
    while (true) {
        const std::size_t lineBreak = wrapped.find('\n', start);
        const std::string_view line = std::string_view(wrapped).substr(start, lineBreak - start);
        drawText(target, FontId::Font30, x, y, colour, line);
        if (lineBreak == std::string::npos) {
            return;
        }
        y += rowHeight;
        start = lineBreak + 1;
    }
}

}  // namespace vandrel
