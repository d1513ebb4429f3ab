// What a round leaves on disk while it is being recorded: by a process that is killed, on a disk that is full, and
// where one update has more to write than fits at once.
#include <fmt/format.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <thread>

#include "match/options/game_options.h"
#include "replay/tool/headless_playback.h"
#include "replay/tool/headless_recording.h"
#include "replay/unit/proof.h"
#include "replay/unit/streams.h"
#include "replay_bytes.h"
#include "shell/frame_counter.h"
#include "shell/log.h"

namespace vandrel {
namespace {

using namespace std::chrono_literals;

// Somewhat faster than real play; for ever.
[[noreturn]] void recordUntilKilled(const std::string& path) {
    gameOptions = GameOptions{};
    gameOptions.arenaSize = 1;
    RandomRoundSettings settings;
    settings.path = path;
    settings.bombsEvery = 0;
    HeadlessRecording round(settings);
    while (true) {
        round.step();
        std::this_thread::sleep_for(500us);
    }
}

std::uintmax_t sizeOf(const std::string& path) {
    std::error_code error;
    const auto size = std::filesystem::file_size(path, error);
    return error ? 0 : size;
}

TEST(Recording, OfAProcessThatIsKilledPlaysToItsLastWholeFrame) {
    setDebugOutput(nullptr);
    const ScratchFolder folder;
    for (int number = 1; number <= 5; ++number) {
        SCOPED_TRACE(number);
        const std::string path = folder.file(std::to_string(number) + ".replay");
        const pid_t process = fork();
        if (process == 0) {
            recordUntilKilled(path);
        }
        const std::uintmax_t setUp = 600;  // bytes; a frame of two players has four
        int status = 0;
        while (sizeOf(path) < setUp + 200) {
            ASSERT_EQ(waitpid(process, &status, WNOHANG), 0) << "it records until it is killed";
            std::this_thread::sleep_for(1ms);
        }
        kill(process, SIGKILL);
        waitpid(process, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status));

        static std::string log;
        log.clear();
        setDebugOutput([](const char* line, std::size_t length) { log.append(line, length); });
        proof = Proof{};
        HeadlessPlayback playback(path);
        ASSERT_NO_THROW(while (playback.step()){});
        setDebugOutput(nullptr);
        EXPECT_EQ(playback.end(), PlaybackEnd::CutShort);
        EXPECT_GE(static_cast<int>(frameCounter), 40);
        EXPECT_EQ(proof.positions, 2 * (frameCounter - 1)) << "the plain text holds every frame of the replay";
        EXPECT_NE(log.find("EOF (peek replayEnd)\n"), std::string::npos);
    }
}

// No file of this process may grow beyond a size while this lives, as on a full disk.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &before_);
        rlimit limit = before_;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, signalBefore_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    rlimit before_{};
    void (*signalBefore_)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

TEST(Recording, OnAFullDiskEndsTheRoundAndLeavesWhatFits) {
    setDebugOutput(nullptr);
    const ScratchFolder folder;
    gameOptions = GameOptions{};
    gameOptions.arenaSize = 1;
    RandomRoundSettings settings;
    settings.path = folder.file("1.replay");
    settings.bombsEvery = 0;
    HeadlessRecording round(settings);
    std::string failure;
    {
        const FullDisk disk(2000);
        try {
            while (round.step()) {
                std::this_thread::sleep_for(100us);
            }
        } catch (const std::ios_base::failure& error) {
            failure = error.what();
        }
        EXPECT_THROW(round.finish(), std::ios_base::failure) << "no end mark is claimed";
    }
    EXPECT_NE(failure, "") << "the round goes on without being written";
    EXPECT_LE(std::max(sizeOf(settings.path), sizeOf(settings.path + ".verify")), 2000U);
    EXPECT_EQ(sizeOf(settings.path + ".verifyZ"), 0U);
}

// What the game is told once the disk is full, where each update holds that many numbers.
std::string fullDiskFailure(int numbersInAnUpdate) {
    const ScratchFolder folder;
    std::ofstream replay(folder.file("1.replay"), std::ios::binary);
    replay.exceptions(std::ios::eofbit | std::ios::failbit | std::ios::badbit);
    std::ofstream text;
    const FullDisk disk(2000);
    RoundWriter writer(replay, text);
    try {
        while (true) {
            for (int i = 0; i < numbersInAnUpdate; ++i) {
                writeInt(&writer.replay(), i);
            }
            writer.endUpdate();
        }
    } catch (const std::ios_base::failure& failure) {
        return failure.what();
    }
}

TEST(RoundWriter, GivesTheFilesOwnFailureAtTheEndOfAnUpdateAndToWhoWaitsForRoomInOne) {
    const std::string own = fullDiskFailure(1);
    EXPECT_NE(own, "");
    EXPECT_EQ(fullDiskFailure(2'000'000), own);
}

TEST(RoundWriter, TakesAnUpdateOfAnySizeAndKeepsItsOrder) {
    const ScratchFolder folder;
    const std::string path = folder.file("1.replay");
    std::ofstream replay(path, std::ios::binary);
    std::ofstream text;
    {
        RoundWriter writer(replay, text);
        for (const int numbers : {1, 700'000, 3, 2'000'000, 0}) {
            for (int i = 0; i < numbers; ++i) {
                writeInt(&writer.replay(), i);
            }
            writer.endUpdate();
        }
        writeByte(&writer.replay(), 119);
        writer.finish();
    }
    replay.close();
    const std::string bytes = readFile(path);
    ASSERT_EQ(bytes.size(), 4U * 2'700'004U + 1);
    std::istringstream in(bytes);
    for (const int numbers : {1, 700'000, 3, 2'000'000, 0}) {
        for (int i = 0; i < numbers; ++i) {
            ASSERT_EQ(readInt(&in), i);
        }
    }
    EXPECT_EQ(readByte(&in), 119);
}

}  // namespace
}  // namespace vandrel
