// Any bytes at all, played as a replay: they play, end early or are refused with an exception, and nothing worse. Built
// with clang it is a libFuzzer target; with `VANDREL_FUZZ_REPLAYS_CORPUS` it plays the files and folders that it is
// given, once each.
#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "replay/tool/headless_playback.h"
#include "shell/frame_counter.h"
#include "shell/log.h"
#include "shell/switches.h"

namespace {

constexpr int mostUpdates = 1500;

// A file in memory, so that the playback opens a path as always and no disk is worn.
int memoryFile() {
    static const int file = memfd_create("replay", 0);
    return file;
}

void play(const std::uint8_t* data, std::size_t size) {
    const int file = memoryFile();
    if (ftruncate(file, 0) != 0 || pwrite(file, data, size, 0) != static_cast<ssize_t>(size)) {
        std::perror("memory file");
        std::abort();
    }
    try {
        vandrel::HeadlessPlayback playback("/proc/self/fd/" + std::to_string(file));
        while (vandrel::frameCounter < mostUpdates && playback.step()) {
        }
    } catch (const std::exception&) {
        // Refused: what most of these bytes deserve.
    }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*words*/) {
    vandrel::setDebugOutput(nullptr);
    vandrel::fillTeamPalettes();
    vandrel::verifyEnabled = false;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    play(data, size);
    return 0;
}

#ifdef VANDREL_FUZZ_REPLAYS_CORPUS
int main(int argc, char** argv) {
    LLVMFuzzerInitialize(nullptr, nullptr);
    int played = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
            std::ifstream file(entry.path(), std::ios::binary);
            const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
            play(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
            ++played;
        }
    }
    std::printf("%d inputs played\n", played);
    return played > 0 ? 0 : 1;
}
#endif
