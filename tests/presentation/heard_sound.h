// The stage for tests that listen: a server that plays into nothing, a working directory with tones for samples and
// tracks, and the game's own sound brought up on both.
#pragma once

#include <allegro5/allegro.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "presentation/sound.h"
#include "shell/log.h"
#include "support/null_sound_server.h"

namespace vandrel::test {

inline constexpr int sampleTone = 500;  // Hz, of every sample at normal speed
// The one that outlasts `SoundRecording::waitForLevel` at any speed played here, so that its end is not taken for
// silence.
inline constexpr SampleIds longSample = SampleIds::Gong2;
inline constexpr double longSampleSeconds = 45;

// A track of this tone, written by `writeTone`, is heard this loud at full volume: the library mixes a stream as
// centred between two sides.
inline constexpr int trackTone = 500;
inline constexpr double fullTrack = 32'000.0 / 32'768 * 0.7071;

inline void wait(int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

// The middle of the levels in the stretches `from` to `to` (10 ms each, `to` excluded): a gap of the sound system on a
// busy machine does not move it.
inline double middle(const std::vector<double>& levels, std::size_t from, std::size_t to) {
    const std::size_t end = std::min(to, levels.size());
    if (from >= end) {
        return 0;
    }
    std::vector<double> part(levels.begin() + static_cast<std::ptrdiff_t>(from),
                             levels.begin() + static_cast<std::ptrdiff_t>(end));
    std::nth_element(part.begin(), part.begin() + static_cast<std::ptrdiff_t>(part.size() / 2), part.end());
    return part[part.size() / 2];
}

// The first stretch from `from` on that meets the test, or the number of stretches.
inline std::size_t firstStretch(const std::vector<double>& levels, std::size_t from, const auto& test) {
    while (from < levels.size() && !test(levels[from])) {
        ++from;
    }
    return from;
}

// What `attempt` complains of when it does so five times in a row, else nothing. A busy machine may hold the sound up
// in the middle of what is measured; it does not do so time and again, and a fault does.
inline std::string lastingComplaint(const auto& attempt) {
    std::string complaint = attempt();
    for (int again = 1; again < 5 && !complaint.empty(); ++again) {
        complaint = attempt();
    }
    return complaint;
}

// The server and the library behind the tests that listen, from the first of them to the end of the run. The library's
// audio does not survive being taken down and brought up again, so each test brings up the game's sound on what is
// there.
class SoundStage : public testing::Environment {
  public:
    void TearDown() override {
        if (server) {
            al_uninstall_system();
            server.reset();
        }
    }
    static void bringUp() {
        if (!server) {
            server.emplace();
            ASSERT_TRUE(al_install_system(ALLEGRO_VERSION_INT, nullptr));
        }
    }

  private:
    static inline std::optional<NullSoundServer> server;
};

class HeardSound : public testing::Test {
  protected:
    static void SetUpTestSuite() { SoundStage::bringUp(); }

    void SetUp() override {
        outputBefore = setDebugOutput(nullptr);
        directoryBefore = std::filesystem::current_path();
        std::string pattern = (std::filesystem::temp_directory_path() / "vandrel-heard-XXXXXX").string();
        folder = mkdtemp(pattern.data());
        std::filesystem::create_directory(folder / "newSound");
        writeTone(folder / "tone.wav", sampleTone, 4);
        writeTone(folder / "longTone.wav", sampleTone, longSampleSeconds);
        for (std::size_t id = 0; id < sampleNames.size(); ++id) {
            const char* tone = static_cast<SampleIds>(id) == longSample ? "longTone.wav" : "tone.wav";
            std::filesystem::copy_file(folder / tone, folder / "newSound" / (std::string(sampleNames[id]) + ".wav"));
        }
        std::filesystem::current_path(folder);
    }

    void TearDown() override {
        shutdownSound();
        std::filesystem::current_path(directoryBefore);
        std::filesystem::remove_all(folder);
        setDebugOutput(outputBefore);
    }

    std::filesystem::path folder;

  private:
    static inline testing::Environment* const stage = testing::AddGlobalTestEnvironment(new SoundStage);
    std::filesystem::path directoryBefore;
    DebugOutput outputBefore = nullptr;
};

}  // namespace vandrel::test
