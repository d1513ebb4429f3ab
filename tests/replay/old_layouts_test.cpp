// Every layout that a release ever wrote, made by a writer of its own that knows the history only from the format's
// description, and played to its end.
#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>
#include <vector>

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
    OldLayouts() {
        setDebugOutput(nullptr);
        writeFile(path_, bytes_);
    }

    ScratchFolder folder_;
    const std::string path_ = folder_.file("1.replay");
    const std::string bytes_ = OldWriter(GetParam()).write();
};

TEST_P(OldLayouts, playsToItsEndMark) {
    HeadlessPlayback playback(path_);
    const bool inTeams = GetParam().mode == GameMode::CaptureTheFlag && GetParam().version >= 4;
    ASSERT_EQ(players.size(), 2U);
    EXPECT_EQ(players[0]->team, inTeams ? 0 : -1);
    EXPECT_EQ(players[1]->team, inTeams ? 1 : -1);
    EXPECT_TRUE(!inTeams || (teams.size() == 2 && teams[1].members.size() == 1));
    while (playback.step()) {
    }
    EXPECT_EQ(playback.end(), PlaybackEnd::EndMark);
    EXPECT_EQ(static_cast<int>(frameCounter), GetParam().frames + 1);
    playback.requireAllPlayed();
    playback.finish();
}

TEST_P(OldLayouts, givesStoredFieldsTheirValueAndOthersWhatTheirTimeImplied) {
    const HeadlessPlayback playback(path_);
    EXPECT_EQ(playback.version(), GetParam().version);
    EXPECT_EQ(gameOptions.initialSpeed, 3);
    struct Field {
        const char* name;
        int since;
        int stored;
        int absent;
        int actual;
    };
    const GameOptions& o = gameOptions;
    for (const Field& field : {Field{"updaterate", v(97, 1), 120, 60, o.updaterate},
                               Field{"speedCap", v(95, 24), 5, 8, o.speedCap},
                               Field{"shrinkStyleResolved", v(95, 25), 2, 1, o.shrinkStyleResolved.value()},
                               Field{"timeBeforeShrinkingFrames", 5, 888, 777, o.timeBeforeShrinkingFrames.value()},
                               Field{"gameMode", 1, static_cast<int>(GetParam().mode), 0, static_cast<int>(o.gameMode)},
                               Field{"singleFlag", 7, 0, 1, o.singleFlag},
                               Field{"everythingDeathmatch", replayVersion(1, 0, 9), 1, 0, o.everythingDeathmatch},
                               Field{"flagCapturePoints", replayVersion(1, 0, 9), 6, 1, o.flagCapturePoints},
                               Field{"snakesAtOnce", v(95, 13), 2, -999, o.snakesAtOnce},
                               Field{"snakeHunterRespawn", v(95, 22), 1, 0, o.snakeHunterRespawn},
                               Field{"snakeSpeed", v(95, 23), 4, 3, o.snakeSpeed},
                               Field{"bombPowerupResetsBombType", v(96, 5), 1, 0, o.bombPowerupResetsBombType},
                               Field{"stopAt", v(96, 7), 30, 0, o.respawnWallsResolved.stopAt},
                               Field{"respawnTime", v(96, 12), 7, 10, o.respawnTime},
                               Field{"minorStunEnabled", v(97, 5), 1, 0, o.minorStunEnabled},
                               Field{"snakeStartLength", v(97, 6), 9, 4, o.snakeStartLength},
                               Field{"minorStunTime", v(97, 8), 110, 180, o.minorStunTime},
                               Field{"frameMultiplier", v(97, 12), 2, 1, o.frameMultiplier},
                               Field{"flag reach", 2, 13, 8, static_cast<int>(reaches.flag)},
                               Field{"shrinkAllowed", v(95, 8), 0, 1, playback.game().shrinkAllowed},
                               Field{"cash", replayVersion(1, 0, 2), 40, 0, players.at(1)->cash},
                               Field{"player x", 5, 32, 0, players.at(0)->x}}) {
        EXPECT_EQ(field.actual, GetParam().version >= field.since ? field.stored : field.absent) << field.name;
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

// The releases that changed what stands in the file or what is implied by its absence, and the newest.
std::vector<OldRound> everyLayout() {
    std::vector<OldRound> rounds;
    const auto add = [&](int version) {
        rounds.push_back({version});
        if (version >= 4) {
            rounds.push_back({version, GameMode::CaptureTheFlag});
        }
    };
    const std::vector<std::tuple<int, int, std::vector<int>>> patchesOf{
        {0, 0, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}},
        {0, 95, {4, 5, 6, 7, 8, 10, 11, 12, 13, 19, 22, 23, 24, 25}},
        {0, 96, {5, 7, 12}},
        {0, 97, {1, 5, 6, 8, 12}},
        {1, 0, {2, 9, 10, 12}}};
    for (const auto& [major, minor, patches] : patchesOf) {
        for (const int patch : patches) {
            add(replayVersion(major, minor, patch));
        }
    }
    add(replayOutputVersion);
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
