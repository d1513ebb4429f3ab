// Breaks long lines by counting characters, for the menus' headings and help texts.
#pragma once

#include <string>

namespace vandrel {

// `text` with "\n" put in so that no line exceeds `width` (1 or more) characters, but for the last, which may be one
// longer: in the place of the last white space within reach, else inside a word. Breaks that the text brings along are
// counted as any other character.
std::string wordWrap(std::string text, int width);

}  // namespace vandrel
