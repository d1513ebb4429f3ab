#include "files/whole_file.h"

#include <fstream>
#include <stdexcept>

namespace vandrel::art {

void writeWholeFile(const std::filesystem::path& path, std::string_view bytes) {
    if (path.has_parent_path()) {
        std::filesystem::create_directories(path.parent_path());
    }
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) {
        throw std::runtime_error("Could not write " + path.string());
    }
}

}  // namespace vandrel::art
