#include "replay/tool/printable.h"

#include <fmt/format.h>

#include <boost/algorithm/string.hpp>
#include <boost/locale/utf.hpp>
#include <ios>

namespace vandrel {

namespace {

namespace utf = boost::locale::utf;

// C0, DEL and C1.
bool isControl(utf::code_point point) {
    return point < 0x20 || (point >= 0x7F && point < 0xA0);
}

// Copies the characters of `text`. Calls `escape(bytes, point)` for each that must not be printed; `point` is the
// character, or the byte where it is no valid UTF-8.
template <class Escape>
std::string escaped(std::string_view text, Escape escape) {
    std::string result;
    const char* const end = text.data() + text.size();
    for (const char* position = text.data(); position != end;) {
        const char* next = position;
        utf::code_point point = utf::utf_traits<char>::decode(next, end);
        const bool valid = utf::is_valid_codepoint(point);
        if (!valid) {
            next = position + 1;
            point = static_cast<unsigned char>(*position);
        }
        const std::string_view bytes(position, static_cast<std::size_t>(next - position));
        result += valid && !isControl(point) ? std::string(bytes) : escape(bytes, point);
        position = next;
    }
    return result;
}

}  // namespace

std::string printable(std::string_view text) {
    return escaped(text, [](std::string_view bytes, utf::code_point) {
        std::string escapes;
        for (const char byte : bytes) {
            escapes += fmt::format("\\x{:02x}", static_cast<unsigned char>(byte));
        }
        return escapes;
    });
}

std::string jsonQuoted(std::string_view text) {
    const std::string marked =
        boost::replace_all_copy(boost::replace_all_copy(std::string(text), "\\", "\\\\"), "\"", "\\\"");
    const auto escape = [](std::string_view, utf::code_point point) { return fmt::format("\\u{:04x}", point); };
    return '"' + escaped(marked, escape) + '"';
}

std::string failureText(const std::exception& failure) {
    if (dynamic_cast<const std::ios_base::failure*>(&failure) != nullptr) {
        return "the file breaks off";
    }
    return printable(boost::replace_all_copy(boost::trim_right_copy(std::string(failure.what())), "\n", "; "));
}

}  // namespace vandrel
