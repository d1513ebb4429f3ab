// A file written in one go. Every writer of pictures and sounds ends here.
#pragma once

#include <filesystem>
#include <string_view>

namespace vandrel::art {

// Makes the file's folder if need be, and replaces what was there. Throws std::runtime_error with the path when it
// cannot be written.
void writeWholeFile(const std::filesystem::path& path, std::string_view bytes);

}  // namespace vandrel::art
