// Replays as plain bytes, for the tests of this room: files in a folder of their own, and numbers as the
// format has them.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace vandrel {

// A folder that goes with the test.
class ScratchFolder {
  public:
    ScratchFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "vandrel-replay-XXXXXX").string();
        path_ = mkdtemp(name.data());
    }
    ~ScratchFolder() { std::filesystem::remove_all(path_); }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    std::string file(const std::string& name) const { return (path_ / name).string(); }
    const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
};

inline std::string readFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

inline void writeFile(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

inline std::string int32(int value) {
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>(static_cast<unsigned>(value) >> shift & 0xFFU);
    }
    return bytes;
}

inline std::string byte(int value) {
    return std::string(1, static_cast<char>(value));
}

}  // namespace vandrel
