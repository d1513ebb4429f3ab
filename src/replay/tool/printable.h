// Text from files and names of files, made fit for a terminal, a line of output or JSON.
#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace vandrel {

// `text` with every control character and every byte that is no valid UTF-8 as "\xNN", two hexadecimal digits each. So
// it is one line, and no terminal obeys it.
std::string printable(std::string_view text);

// `text` as a JSON string with its quotes. Control characters become "\u00NN"; so do bytes that are no valid UTF-8.
std::string jsonQuoted(std::string_view text);

// What went wrong, in words, on one line. The library's "iostream error" becomes "the file breaks off".
std::string failureText(const std::exception& failure);

}  // namespace vandrel
