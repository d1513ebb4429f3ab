#include "presentation/word_wrap.h"

#include <algorithm>
#include <cctype>

namespace vandrel {

namespace {

bool isBlank(char character) {
    return std::isspace(static_cast<unsigned char>(character)) != 0;
}

}  // namespace

std::string wordWrap(std::string text, int width) {
    std::size_t start = 0;
    while (start < text.size()) {
        const std::size_t last = text.size() - 1;
        const std::size_t end = std::min(start + static_cast<std::size_t>(width), last);
        if (end == last) {
            return text;
        }
        std::size_t lineBreak = end;
        while (lineBreak > start && !isBlank(text[lineBreak])) {
            --lineBreak;
        }
        if (lineBreak > start) {
            text[lineBreak] = '\n';
        } else {
            lineBreak = end;
            text.insert(end, 1, '\n');
        }
        start = lineBreak + 1;
    }
    return text;
}

}  // namespace vandrel
