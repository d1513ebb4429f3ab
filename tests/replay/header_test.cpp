// The head of a replay: where each field lies, what comes back of it, and what is refused, there and behind it.
#include <gmock/gmock.h>

#include <sstream>

#include "arena/arena.h"
#include "base/version.h"
#include "players/player.h"
#include "replay/tool/headless_playback.h"
#include "replay/tool/headless_recording.h"
#include "replay/unit/header.h"
#include "replay_bytes.h"
#include "shell/log.h"
#include "shell/switches.h"

namespace vandrel {
namespace {

using testing::StartsWith;
using testing::ThrowsMessage;

// A recorded round of Capture the Flag on the smallest arena, three players, four frames, every option with a value of
// its own.
class RecordedHeader : public testing::Test {
  protected:
    void SetUp() override {
        setDebugOutput(nullptr);
        fillTeamPalettes();
        path_ = folder_.file("3.1.1.2.replay");
        gameOptions = GameOptions{};
        gameOptions.gameMode = GameMode::CaptureTheFlag;
        gameOptions.numPlayers = 3;
        gameOptions.arenaSize = 1;
        RandomRoundSettings settings;
        settings.path = path_;
        settings.adjustResolved = [this] { setOptions(); };
        HeadlessRecording round(settings);
        players[1]->look = {4, 0x01020304, {}};
        for (int frame = 0; frame < 4; ++frame) {
            round.step();
        }
        round.finish();
        bytes_ = readFile(path_);
    }

    void setOptions() {
        GameOptions& o = gameOptions;
        o.updaterate = 120;
        o.shrinkingOn = true;
        o.initialSpeed = 3;
        o.snailSeconds = 9;
        o.remoteHoldToArm = true;
        o.rocketExplosionDelay = false;
        o.startWithShield = true;
        o.speedCap = 7;
        o.shrinkSpeedFrames = 11;
        o.shrinkStyleResolved = 3;
        o.singleFlag = true;
        o.everythingKotH = false;
        o.playerKillPoints = 21;
        o.snakeHurtPoints = 22;
        o.snakeKillPoints = 23;
        o.flagCapturePoints = 24;
        o.snakeCount = 31;
        o.snakesAtOnce = 32;
        o.snakePreparationFrames = 0x00030201;
        o.snakeSpawnFrames = 34;
        o.snakeSpeed = 5;
        o.respawnWallsResolved = {true, 41, 42, 43, 44};
        o.respawnTime = 12;
        o.snakeStartLength = 13;
        o.majorStunTime = 51;
        o.minorStunTime = 52;
        o.frameMultiplier = 2;
        o.auctionInterval = 600;
        o.timeBeforeShrinkingFrames = 1234;
    }

    // The text of what loading or setting up this file throws; empty if nothing is thrown.
    std::string failureOf(const std::string& bytes) {
        writeFile(path_, bytes);
        try {
            const HeadlessPlayback playback(path_);
            return "";
        } catch (const std::exception& failure) {
            return failure.what();
        }
    }

    ScratchFolder folder_;
    std::string path_;
    std::string bytes_;
};

TEST_F(RecordedHeader, HasEveryFieldInItsPlace) {
    const std::vector<std::pair<std::size_t, std::string>> fields{
        {0, byte(2) + byte(16) + byte(0) + byte(1) + int32(120)},
        {8, byte(3) + byte(19) + byte(11) + byte(1) + byte(3) + byte(9)},
        {14, byte(1) + byte(1) + byte(0) + byte(0) + byte(1) + byte(7) + byte(11) + byte(3) + byte(1)},
        {23, byte(1) + byte(1) + byte(1) + byte(1) + byte(0) + byte(1)},
        {29, byte(21) + byte(22) + byte(23) + byte(24)},
        {33, int32(31) + int32(32) + byte(1) + byte(2) + byte(3) + byte(0) + int32(34)},
        {49, byte(1) + byte(5) + byte(1)},
        {52, byte(1) + int32(41) + int32(42) + int32(43) + int32(44)},
        {69, byte(12) + byte(1) + byte(13) + int32(51) + int32(52) + int32(2) + int32(600)},
        {88, "@@@" + byte(13)},
        // Two teams: the first red with players 0 and 2, the second blue with player 1.
        {92, byte(2) + int32(255) + int32(0) + int32(0) + int32(2) + int32(0) + int32(2)},
        {117, int32(0) + int32(0) + int32(255) + int32(1) + int32(1)},
    };
    for (const auto& [offset, expected] : fields) {
        EXPECT_EQ(bytes_.substr(offset, expected.size()), expected) << "at " << offset;
    }
    constexpr std::size_t playersBegin = 137;
    constexpr std::size_t playerSize = 28;
    EXPECT_EQ(bytes_.substr(playersBegin, 4), int32(0));
    EXPECT_EQ(bytes_.substr(playersBegin + playerSize, 4), int32(1));
    const std::size_t roundBegin = playersBegin + 3 * playerSize + 3;
    EXPECT_EQ(bytes_.substr(roundBegin - 3, 3), "***");
    EXPECT_EQ(bytes_.substr(roundBegin, 5), int32(1234) + byte(1));
    const std::size_t gridBegin = roundBegin + 21;
    EXPECT_EQ(bytes_.substr(gridBegin, 2), byte(2) + byte(0)) << "the corner is an edge wall";
    const std::size_t gridEnd = gridBegin + 2U * 19 * 11;
    EXPECT_EQ(bytes_.substr(gridEnd, 7), "ENDGRID");
    EXPECT_EQ(bytes_.substr(gridEnd + 7, 16), int32(32) + int32(32) + int32(17 * 32) + int32(9 * 32));
    EXPECT_EQ(bytes_.substr(gridEnd + 31, 5), "ENDPP");
    EXPECT_EQ(bytes_.size(), gridEnd + 36 + 4 * 3 * 2 + 1)
        << "two bytes for each player on each frame, and the end mark";
    EXPECT_EQ(bytes_.back(), 119);
}

TEST_F(RecordedHeader, ComesBackAsItWasWritten) {
    std::istringstream stream(bytes_);
    stream.exceptions(std::ios::badbit | std::ios::failbit | std::ios::eofbit);
    int version = 0;
    const std::vector<PlayerSetup> setups = loadReplayHeader(stream, version);
    const GameOptions loaded = gameOptions;
    EXPECT_EQ(version, replayOutputVersion);
    gameOptions = GameOptions{};
    gameOptions.gameMode = GameMode::CaptureTheFlag;
    gameOptions.numPlayers = 3;
    setOptions();
    const auto was = listStoredOptions({gameOptions, {19, 11}, version});
    const auto is = listStoredOptions({loaded, {grid_squares_x, grid_squares_y}, version});
    ASSERT_EQ(was.size(), is.size());
    for (std::size_t i = 0; i < was.size(); ++i) {
        EXPECT_EQ(was[i].value, is[i].value) << was[i].name;
    }
    EXPECT_EQ(loaded.winsNeeded, GameOptions{}.winsNeeded) << "what is not stored starts afresh";
    EXPECT_FALSE(loaded.wallPercent.has_value());
    ASSERT_EQ(setups.size(), 3U);
    EXPECT_EQ(setups[2].team, 0);
    EXPECT_EQ(setups[1].team, 1);
    ASSERT_EQ(teams.size(), 2U);
    EXPECT_EQ(toRGB(teams[1].colour), (RGB{0, 0, 255}));
    EXPECT_TRUE(teams[1].members.empty()) << "there are no players yet";
    EXPECT_EQ(reaches.flag, 13.0f);
}

TEST_F(RecordedHeader, IsRefusedWhereANumberIsOneThatNoReleaseWrote) {
    const std::vector<std::tuple<std::size_t, std::string, std::string>> faults{
        {4, int32(0), "Replay field updaterate has the value 0"},
        {8, byte(0), "Replay field numPlayers has the value 0"},
        {8, byte(101), "Replay field numPlayers has the value 101"},
        {9, byte(4), "Replay field grid_squares_x has the value 4"},
        {10, byte(128), "Replay field grid_squares_y has the value -128"},
        {22, byte(7), "Replay field gameMode has the value 7"},
        {33, int32(2'000'000'000), "Replay field snakeCount has the value 2000000000"},
        {80, int32(0), "Replay field frameMultiplier has the value 0"},
        {92, byte(101), "Replay field teams has the value 101"},
        {93, int32(256), "Replay field colour has the value 256"},
        {105, int32(1'000'000'000), "Replay field team members has the value 1000000000"},
        {109, int32(9), "Replay field team member has the value 9"},
        {137, int32(119), "Replay field player number has the value 119"},
        {141, int32(-1), "Replay field skin has the value -1"},
        {229, int32(-5), "Replay field hillLeft has the value -5"},
        {245, byte(9), "Replay field square kind has the value 9"},
        {246, byte(22), "Replay field square bonus has the value 22"},
        {670, int32(-1), "Replay field player x has the value -1"},
    };
    for (const auto& [offset, value, text] : faults) {
        std::string changed = bytes_;
        changed.replace(offset, value.size(), value);
        EXPECT_EQ(failureOf(changed), text) << "at " << offset;
    }
}

TEST_F(RecordedHeader, IsRefusedWithTheMarkerThatIsWrong) {
    for (const std::string marker : {"@@@", "***", "ENDGRID", "ENDPP"}) {
        std::string changed = bytes_;
        changed[changed.find(marker) + marker.size() - 1] = '?';
        const std::string found = marker.substr(0, marker.size() - 1) + "?";
        EXPECT_EQ(failureOf(changed), "matchedMarker " + marker + " failed:\n" + found);
    }
}

TEST_F(RecordedHeader, OfALaterReleaseIsNotRead) {
    const std::vector<std::pair<int, std::string>> refusals{
        {replayOutputVersion + 1, "Replay from future version of game: 1.1.3; this build reads up to 1.1.2"},
        {0x7FFFFFFF, "Replay from future version of game: 127.4095.4095; this build reads up to 1.1.2"},
        {-1, "Invalid replay version: " + versionText(-1) + "; this build reads up to 1.1.2"},
    };
    for (const auto& [version, text] : refusals) {
        std::istringstream stream(int32(version) + bytes_.substr(4));
        int found = 0;
        EXPECT_FALSE(readGameOptions(stream, found).has_value());
        EXPECT_EQ(found, version);
        EXPECT_EQ(failureOf(stream.str()), text);
    }
}

// Any byte of the head may be anything: the round then plays, ends early or is refused, and nothing worse.
TEST_F(RecordedHeader, SurvivesAnyByte) {
    const std::size_t headerEnd = bytes_.find("***") + 3;
    int refused = 0;
    int played = 0;
    for (std::size_t offset = 0; offset < headerEnd; ++offset) {
        for (const int value : {0, 127, 255}) {
            std::string changed = bytes_;
            changed[offset] = static_cast<char>(value);
            writeFile(path_, changed);
            try {
                HeadlessPlayback playback(path_);
                while (playback.step()) {
                }
                ++played;
            } catch (const std::exception&) {
                ++refused;
            }
        }
    }
    EXPECT_EQ(readFile(path_).size(), bytes_.size()) << "playing changes no file";
    EXPECT_GT(played, 100);
    EXPECT_GT(refused, 100);
}

TEST_F(RecordedHeader, OfAnotherArenaThanTheOptionsSayIsNotWritten) {
    gameOptions.arenaSizeResolved = 2;
    grid_squares_x = 19;
    grid_squares_y = 11;
    std::ostringstream stream;
    EXPECT_THAT(
        [&] { writeReplayHeader(stream); },
        ThrowsMessage<std::runtime_error>(StartsWith("Assertion failed: 'arenaSize.y == grid_squares_y' at line ")));
}

TEST(RecordedAuction, OfAPowerupThatNoReleaseHadIsRefused) {
    setDebugOutput(nullptr);
    const ScratchFolder folder;
    RandomRoundSettings settings;
    settings.path = folder.file("4.1.1.2.replay");
    settings.adjustResolved = [] {
        gameOptions.auctionInterval = 100;
        players[0]->cash = 1;
    };
    gameOptions = GameOptions{};
    gameOptions.numPlayers = 2;
    {
        HeadlessRecording round(settings);
        round.step();
        round.finish();
    }
    std::string bytes = readFile(settings.path);
    const auto update = static_cast<std::size_t>(HeadlessPlayback(settings.path).position());
    bytes.at(bytes.find('A', update) + 1) = bonusCount;
    writeFile(settings.path, bytes);
    HeadlessPlayback playback(settings.path);
    EXPECT_THAT([&] { playback.step(); },
                ThrowsMessage<std::runtime_error>("Replay field auction bonus has the value 22"));
}

}  // namespace
}  // namespace vandrel
