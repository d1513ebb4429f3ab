// Any bytes at all as what lies beside a sound replay, or as a replay that a command of vandrel-replay is given. They
// hold, differ or are refused, and nothing worse. The first byte chooses the role of the others. Built with clang it is
// a libFuzzer target; with `VANDREL_FUZZ_PROOFS_CORPUS` it takes the files and folders that it is given, once each.
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "replay/tool/commands.h"

namespace {

const char* const soundReplay = VANDREL_SOURCE_DIR "/tests/replays/1.1.1.2.replay";

// A folder of this process, with a copy of the sound replay. It goes with the process.
class Folder {
  public:
    Folder() {
        std::string name = (std::filesystem::temp_directory_path() / "vandrel-fuzz-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) {
            std::perror("temporary folder");
            std::abort();
        }
        path_ = name;
        std::filesystem::copy_file(soundReplay, replay());
    }
    ~Folder() { std::filesystem::remove_all(path_); }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    std::string replay() const { return (path_ / "1.1.1.2.replay").string(); }
    std::string given() const { return (path_ / "given").string(); }

  private:
    std::filesystem::path path_;
};

void verifyWith(const std::string& beside, const std::string& bytes) {
    std::ofstream(beside, std::ios::binary) << bytes;
    vandrel::runReplayTool({"verify", beside.substr(0, beside.rfind('.'))});
    std::filesystem::remove(beside);
}

void take(const std::uint8_t* data, std::size_t size) {
    static const Folder folder;
    constexpr std::array<const char*, 3> proofs{".verify", ".verifyZ", ".digest"};
    if (size == 0) {
        return;
    }
    const std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    const std::size_t role = data[0] % (proofs.size() + 1);
    if (role < proofs.size()) {
        verifyWith(folder.replay() + proofs[role], bytes);
        return;
    }
    std::ofstream(folder.given(), std::ios::binary) << bytes;
    vandrel::runReplayTool({"info", folder.given()});
    vandrel::runReplayTool({"trace", "--to", "100", folder.given()});
    vandrel::runReplayTool({"digest", "--fields", "--at", "100", folder.given()});
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    take(data, size);
    return 0;
}

#ifdef VANDREL_FUZZ_PROOFS_CORPUS
int main(int argc, char** argv) {
    int taken = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
            std::ifstream file(entry.path(), std::ios::binary);
            const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
            take(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
            ++taken;
        }
    }
    return taken > 0 ? 0 : 1;
}
#endif
