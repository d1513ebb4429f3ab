// Every layout that a release ever wrote, made by a writer of its own that knows the history only from the format's
// description, and played to its end.
#include <gtest/gtest.h>

#include <algorithm>

#include "arena/arena.h"
#include "base/version.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "replay/tool/headless_playback.h"
#include "replay_bytes.h"
#include "shell/frame_counter.h"
#include "shell/log.h"

namespace vandrel {
namespace {

// What an old release would have written of a round in which nobody touches anything.
struct OldRound {
    int version = 0;
    GameMode mode = GameMode::Classic;
    int players = 2;
    int side = 9;  // squares
    int frames = 5;
};

constexpr int v(int minor, int patch) {
    return replayVersion(0, minor, patch);
}

class OldWriter {
  public:
    explicit OldWriter(const OldRound& round) : round_(round) {}

    std::string write() {
        options();
        teams();
        players();
        bytes_ += "***";
        roundSection();
        grid();
        for (int frame = 0; frame < round_.frames; ++frame) {
            for (int player = 0; player < round_.players; ++player) {
                bytes_ += byte(player) + byte(0);
            }
        }
        return bytes_ + byte(119);
    }

  private:
    bool from(int version) const { return round_.version >= version; }
    void when(bool stored, const std::string& bytes) { bytes_ += stored ? bytes : ""; }
    bool isTeamRound() const { return round_.mode == GameMode::CaptureTheFlag; }

    void options() {
        bytes_ += int32(round_.version);
        when(from(v(97, 1)), int32(120));  // updaterate
        bytes_ += byte(round_.players) + byte(round_.side) + byte(round_.side);
        bytes_ += byte(0) + byte(3) + byte(8) + byte(0) + byte(1) + byte(1);  // shrinkingOn to rocketExplosionDelay
        when(from(10), byte(0));                                              // startAsSnake
        when(from(v(95, 19)), byte(0));                                       // startWithShield
        when(from(v(95, 24)), byte(5));                                       // speedCap
        bytes_ += byte(14);                                                   // shrinkSpeedFrames
        when(from(v(95, 25)), byte(2));                                       // shrinkStyleResolved
        when(!from(5), int32(777));                                           // timeBeforeShrinkingFrames
        when(from(1), byte(static_cast<int>(round_.mode)));
        when(from(7), byte(0));  // singleFlag
        when(from(replayVersion(1, 0, 9)), std::string("\1\0\1\0\1", 5) + byte(2) + byte(3) + byte(4) + byte(6));
        when(from(v(95, 13)), int32(3) + int32(2) + int32(600) + int32(300));
        when(from(v(95, 22)), byte(1));  // snakeHunterRespawn
        when(from(v(95, 23)), byte(4));  // snakeSpeed
        when(from(v(96, 5)), byte(1));   // bombPowerupResetsBombType
        when(from(v(96, 7)), byte(0) + int32(10) + int32(20) + int32(30) + int32(40));
        when(from(v(96, 12)), byte(7));                 // respawnTime
        when(from(v(97, 5)), byte(1));                  // minorStunEnabled
        when(from(v(97, 6)), byte(9));                  // snakeStartLength
        when(from(v(97, 8)), int32(170) + int32(110));  // stun times
        when(from(v(97, 12)), int32(2));                // frameMultiplier
        when(from(replayVersion(1, 0, 2)), int32(0));   // auctionInterval
        when(from(v(95, 13)), "@@@");
        when(from(2), byte(13));  // flag reach
    }

    void teams() {
        if (!from(4) || (from(6) && !isTeamRound())) {
            return;
        }
        const int count = isTeamRound() ? 2 : 0;
        bytes_ += byte(count);
        for (int team = 0; team < count; ++team) {
            bytes_ += from(v(95, 11)) ? int32(255) + int32(0) + int32(team) : int32(99);
            when(from(8), int32(1) + int32(team));
        }
        for (int player = 0; player < round_.players && !from(v(95, 5)); ++player) {
            bytes_ += from(8) ? int32(99) : byte(count == 0 ? -1 : player % count);
        }
    }

    void players() {
        for (int player = 0; player < round_.players && from(v(95, 5)); ++player) {
            when(from(v(95, 6)), int32(player));
            when(from(v(95, 7)), int32(2) + int32(0));
            bytes_ += from(v(95, 11)) ? int32(1) + int32(2) + int32(3) : int32(99);
            when(from(replayVersion(1, 0, 2)), int32(40));
        }
    }

    void roundSection() {
        when(from(5), int32(888));
        when(from(v(95, 8)), byte(0) + int32(0) + int32(0) + int32(0) + int32(0));
    }

    void grid() {
        for (int x = 0; x < round_.side; ++x) {
            for (int y = 0; y < round_.side; ++y) {
                const bool edge = x == 0 || y == 0 || x == round_.side - 1 || y == round_.side - 1;
                bytes_ += byte(edge ? 2 : 0) + byte(0);
            }
        }
        bytes_ += "ENDGRID";
        if (!from(5)) {
            return;
        }
        const int far = (round_.side - 2) * 32;
        for (int player = 0; player < round_.players; ++player) {
            bytes_ += int32(player == 0 ? 32 : far) + int32(player == 0 ? 32 : far);
        }
        bytes_ += "ENDPP";
    }

    OldRound round_;
    std::string bytes_;
};

class OldLayouts : public testing::TestWithParam<OldRound> {
  protected:
    void SetUp() override {
        setDebugOutput(nullptr);
        path_ = folder_.file("1.replay");
        bytes_ = OldWriter(GetParam()).write();
        writeFile(path_, bytes_);
    }

    ScratchFolder folder_;
    std::string path_;
    std::string bytes_;
};

TEST_P(OldLayouts, playsToItsEndMark) {
    HeadlessPlayback playback(path_);
    while (playback.step()) {
    }
    EXPECT_EQ(playback.end(), PlaybackEnd::EndMark);
    EXPECT_EQ(static_cast<int>(frameCounter), GetParam().frames + 1);
    playback.requireAllPlayed();
    playback.finish();
}

TEST_P(OldLayouts, givesStoredFieldsTheirValueAndOthersWhatTheirTimeImplied) {
    const int version = GetParam().version;
    const auto expectField = [&](int since, int actual, int stored, int absent, const char* name) {
        EXPECT_EQ(actual, version >= since ? stored : absent) << name;
    };
    const HeadlessPlayback playback(path_);
    EXPECT_EQ(playback.version(), version);
    expectField(v(97, 1), gameOptions.updaterate, 120, 60, "updaterate");
    expectField(v(95, 24), gameOptions.speedCap, 5, 8, "speedCap");
    expectField(v(95, 25), gameOptions.shrinkStyleResolved.value(), 2, 1, "shrinkStyleResolved");
    expectField(5, gameOptions.timeBeforeShrinkingFrames.value(), 888, 777, "timeBeforeShrinkingFrames");
    expectField(1, static_cast<int>(gameOptions.gameMode), static_cast<int>(GetParam().mode), 0, "gameMode");
    expectField(7, gameOptions.singleFlag, 0, 1, "singleFlag");
    expectField(replayVersion(1, 0, 9), gameOptions.everythingDeathmatch, 1, 0, "everythingDeathmatch");
    expectField(replayVersion(1, 0, 9), gameOptions.flagCapturePoints, 6, 1, "flagCapturePoints");
    expectField(v(95, 13), gameOptions.snakesAtOnce, 2, -999, "snakesAtOnce");
    expectField(v(95, 22), gameOptions.snakeHunterRespawn, 1, 0, "snakeHunterRespawn");
    expectField(v(95, 23), gameOptions.snakeSpeed, 4, 3, "snakeSpeed");
    expectField(v(96, 5), gameOptions.bombPowerupResetsBombType, 1, 0, "bombPowerupResetsBombType");
    expectField(v(96, 7), gameOptions.respawnWallsResolved.stopAt, 30, 0, "stopAt");
    expectField(v(96, 12), gameOptions.respawnTime, 7, 10, "respawnTime");
    expectField(v(97, 5), gameOptions.minorStunEnabled, 1, 0, "minorStunEnabled");
    expectField(v(97, 6), gameOptions.snakeStartLength, 9, 4, "snakeStartLength");
    expectField(v(97, 8), gameOptions.minorStunTime, 110, 180, "minorStunTime");
    expectField(v(97, 12), gameOptions.frameMultiplier, 2, 1, "frameMultiplier");
    expectField(2, static_cast<int>(reaches.flag), 13, 8, "flag reach");
    expectField(v(95, 8), playback.game().shrinkAllowed, 0, 1, "shrinkAllowed");
    expectField(replayVersion(1, 0, 2), players.at(1)->cash, 40, 0, "cash");
    expectField(5, players.at(0)->x, 32, 0, "player x");
    EXPECT_EQ(gameOptions.initialSpeed, 3);
}

TEST_P(OldLayouts, findsTheTeams) {
    const HeadlessPlayback playback(path_);
    const bool inTeams = GetParam().mode == GameMode::CaptureTheFlag && GetParam().version >= 4;
    ASSERT_EQ(players.size(), 2U);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(players[static_cast<std::size_t>(i)]->team, inTeams ? i : -1);
    }
    if (inTeams) {
        ASSERT_EQ(teams.size(), 2U);
        EXPECT_EQ(teams[1].members.size(), 1U);
    }
}

class CutShort : public OldLayouts {};

TEST_P(CutShort, endsEarlyAtEveryByte) {
    for (std::size_t length = 0; length < bytes_.size(); ++length) {
        writeFile(path_, bytes_.substr(0, length));
        try {
            HeadlessPlayback playback(path_);
            while (playback.step()) {
            }
            EXPECT_EQ(playback.end(), PlaybackEnd::CutShort) << length;
        } catch (const std::ios_base::failure&) {
            EXPECT_LT(length, bytes_.size() - static_cast<std::size_t>(GetParam().frames * 4))
                << "only a header may be short";
        }
    }
}

std::vector<OldRound> everyLayout() {
    std::vector<OldRound> rounds;
    for (const int version : {0,
                              1,
                              2,
                              3,
                              4,
                              5,
                              6,
                              7,
                              8,
                              9,
                              10,
                              v(95, 4),
                              v(95, 5),
                              v(95, 6),
                              v(95, 7),
                              v(95, 8),
                              v(95, 10),
                              v(95, 11),
                              v(95, 12),
                              v(95, 13),
                              v(95, 19),
                              v(95, 22),
                              v(95, 23),
                              v(95, 24),
                              v(95, 25),
                              v(96, 5),
                              v(96, 7),
                              v(96, 12),
                              v(97, 1),
                              v(97, 5),
                              v(97, 6),
                              v(97, 8),
                              v(97, 12),
                              replayVersion(1, 0, 2),
                              replayVersion(1, 0, 9),
                              replayVersion(1, 0, 10),
                              replayVersion(1, 0, 12),
                              replayOutputVersion}) {
        rounds.push_back({version});
        if (version >= 4) {
            rounds.push_back({version, GameMode::CaptureTheFlag});
        }
    }
    return rounds;
}

std::string nameOf(const testing::TestParamInfo<OldRound>& test) {
    std::string name = versionText(test.param.version) + (test.param.mode == GameMode::Classic ? "" : "_teams");
    std::replace(name.begin(), name.end(), '.', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(, OldLayouts, testing::ValuesIn(everyLayout()), nameOf);
INSTANTIATE_TEST_SUITE_P(, CutShort,
                         testing::Values(OldRound{3}, OldRound{v(95, 4), GameMode::CaptureTheFlag}, OldRound{v(95, 10)},
                                         OldRound{replayOutputVersion, GameMode::CaptureTheFlag}),
                         nameOf);

}  // namespace
}  // namespace vandrel
