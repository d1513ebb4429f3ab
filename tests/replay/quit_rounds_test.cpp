// Rounds that are quit: whatever happens in the update that was never recorded, the playback ends there and holds.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "match/options/game_options.h"
#include "players/player.h"
#include "replay/tool/commands.h"
#include "replay/tool/headless_playback.h"
#include "replay_bytes.h"
#include "shell/log.h"

namespace vandrel {
namespace {

TEST(QuitRounds, HoldWhenSomebodyComesBackInTheUpdateBehindTheLast) {
    setDebugOutput(nullptr);
    const ScratchFolder folder;
    int comebacks = 0;
    for (int frames = 155; frames <= 165; ++frames) {
        SCOPED_TRACE(frames);
        gameOptions = GameOptions{};
        const std::string path = folder.file(std::to_string(frames) + ".replay");
        testing::internal::CaptureStdout();
        const int status = runReplayTool({"play-random", "--mode", "Deathmatch", "--players", "6", "--arena", "Tiny",
                                          "--set", "respawnTime=1", "--bombs-every", "20", "--frames",
                                          std::to_string(frames), "--seed", "3", path});
        testing::internal::GetCapturedStdout();
        ASSERT_EQ(status, 0);
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

}  // namespace
}  // namespace vandrel
