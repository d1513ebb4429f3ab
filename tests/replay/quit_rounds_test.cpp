// Rounds that are quit: whatever happens in the update that was never recorded, the playback ends there and holds.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "match/options/game_options.h"
#include "players/player.h"
#include "replay/tool/commands.h"
#include "replay/tool/headless_playback.h"
#include "replay/unit/proof.h"
#include "replay_bytes.h"
#include "shell/log.h"

namespace vandrel {
namespace {

// A small deathmatch in which the dead come back after a second.
void recordQuitRound(const std::string& path, int frames, Words words) {
    gameOptions = GameOptions{};
    words.insert(words.begin(), {"play-random", "--mode", "Deathmatch", "--arena", "Tiny", "--set", "respawnTime=1",
                                 "--frames", std::to_string(frames), path});
    testing::internal::CaptureStdout();
    const int status = runReplayTool(words);
    testing::internal::GetCapturedStdout();
    ASSERT_EQ(status, 0);
}

TEST(QuitRounds, HoldWhenSomebodyComesBackInTheUpdateBehindTheLast) {
    setDebugOutput(nullptr);
    const ScratchFolder folder;
    int comebacks = 0;
    for (int frames = 155; frames <= 165; ++frames) {
        SCOPED_TRACE(frames);
        const std::string path = folder.file(std::to_string(frames) + ".replay");
        recordQuitRound(path, frames, {"--players", "6", "--bombs-every", "20", "--seed", "3"});
        HeadlessPlayback playback(path);
        bool firstWasDead = false;
        bool runs = true;
        while (runs) {
            firstWasDead = players.front()->dead;
            ASSERT_NO_THROW(runs = playback.step());
        }
        comebacks += firstWasDead && !players.front()->dead ? 1 : 0;
        EXPECT_EQ(playback.end(), PlaybackEnd::EndMark);
        playback.requireAllPlayed();
        EXPECT_NO_THROW(playback.finish()) << "nothing of the verification is left over";
    }
    EXPECT_EQ(comebacks, 1) << "one of the rounds is quit right before the first player's return";
}

// While everybody is dead nothing is recorded, so playback meets the mark at the first of those updates. The text tells
// of who came back in the last of them, and that is proved too.
TEST(QuitRounds, AreProvedToTheLastLineWhereTheLastUpdatesHoldOnlyAReturn) {
    setDebugOutput(nullptr);
    const ScratchFolder folder;
    std::int64_t provedBehindRecords = 0;
    for (int frames = 150; frames <= 156; ++frames) {
        SCOPED_TRACE(frames);
        const std::string path = folder.file(std::to_string(frames) + ".replay");
        recordQuitRound(path, frames, {"--players", "2", "--bombs-every", "5", "--seed", "1"});
        HeadlessPlayback playback(path);
        const auto mark = static_cast<long long>(std::filesystem::file_size(path)) - 1;
        bool runs = true;
        while (runs) {
            const bool behindRecords = playback.position() == mark;
            const std::int64_t before = proof.positions;
            ASSERT_NO_THROW(runs = playback.step());
            provedBehindRecords += behindRecords ? proof.positions - before : 0;
        }
        EXPECT_EQ(playback.end(), PlaybackEnd::EndMark);
        playback.requireAllPlayed();
        EXPECT_NO_THROW(playback.finish()) << "nothing of the verification is left over";
    }
    EXPECT_GE(provedBehindRecords, 1) << "one of the rounds is quit right behind a return";
}

}  // namespace
}  // namespace vandrel
