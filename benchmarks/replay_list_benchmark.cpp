// How long the replay menu takes to open over a very full folder, and what it holds in memory.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "frontend/replay_browser.h"
#include "replay/unit/replay_names.h"
#include "shell/paths.h"

namespace vandrel {
namespace {

constexpr int fileCount = 10'000;

// A folder with that many copies of a recorded round, each with its verification file; gone with the program.
class FullFolder {
  public:
    FullFolder() {
        std::filesystem::remove_all(home_);
        std::filesystem::create_directories(home_);
        setenv("XDG_DATA_HOME", home_.c_str(), 1);
        const std::string source = VANDREL_SOURCE_DIR "/tests/replays/14.1.1.2.replay";
        const std::string folder = replaysDir();
        for (int number = 0; number < fileCount; ++number) {
            const std::string copy = folder + "/" + std::to_string(number) + ".1.1.2.replay";
            std::filesystem::copy_file(source, copy);
            std::ofstream(copy + ".verifyZ") << number;
        }
    }
    ~FullFolder() { std::filesystem::remove_all(home_); }
    FullFolder(const FullFolder&) = delete;
    FullFolder& operator=(const FullFolder&) = delete;

  private:
    std::filesystem::path home_ = std::filesystem::temp_directory_path() / "vandrel-replay-list-benchmark";
};

// Bytes of this process that are in memory.
double residentBytes() {
    constexpr double page = 4096;
    std::ifstream status("/proc/self/statm");
    double total = 0;
    double resident = 0;
    status >> total >> resident;
    return resident * page;
}

void listReplays(benchmark::State& state) {
    const bool readHeaders = state.range(0) != 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(getAllReplays(readHeaders));
    }
    state.SetItemsProcessed(state.iterations() * fileCount);
}

void openReplayMenu(benchmark::State& state) {
    MenuContext context(1920);
    const double before = residentBytes();
    std::shared_ptr<VandrelMenu> menu;
    for (auto _ : state) {
        menu = replayMenu(context);
    }
    state.counters["MB"] = (residentBytes() - before) / 1e6;
    state.SetItemsProcessed(state.iterations() * fileCount);
}

BENCHMARK(openReplayMenu)->Unit(benchmark::kMillisecond);
BENCHMARK(listReplays)->ArgName("headers")->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vandrel

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    const vandrel::FullFolder folder;
    benchmark::RunSpecifiedBenchmarks();
}
