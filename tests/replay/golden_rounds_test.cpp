// The golden rounds: each plays as it was recorded, in any order, and together they reach all that a round can be. The
// proof itself is tested with faults planted in one of them.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>
#include <string_view>

#include "arena/arena.h"
#include "match/options/name_tables.h"
#include "players/player.h"
#include "replay/tool/commands.h"
#include "replay/tool/headless_playback.h"
#include "replay/tool/state_digest.h"
#include "replay/unit/gzip.h"
#include "replay/unit/proof.h"
#include "replay_bytes.h"
#include "shell/frame_counter.h"
#include "shell/log.h"

namespace vandrel {
namespace {

const std::string goldenFolder = VANDREL_SOURCE_DIR "/tests/replays";

// What rounds have been seen to be and to do.
struct Reached {
    std::set<int> modes;
    std::set<std::pair<int, int>> arenas;
    std::set<int> shrinkStyles;
    std::set<int> rates;
    std::set<std::string> powerups;
    std::set<std::string> events;
    std::set<std::string> snakeRounds;  // rounds with snakes of the computer
    std::ptrdiff_t mostSnakes = 0;      // of the computer, alive at once
    std::set<int> stylesClosed;         // the styles whose walls met
    int longestWithReturns = 0;         // updates until a wall came back for the last time

    void look(const Game& game) {
        for (const auto& toast : game.toasts) {
            for (const BonusName& bonus : bonusNames) {
                if (toast->text.starts_with(bonus.displayName)) {
                    powerups.emplace(bonus.displayName);
                }
            }
            note(toast->text.starts_with("Bid: "), "bid");
            note(toast->text == "Flag recovered", "flag recovered");
        }
        note(game.auction != nullptr, "auction");
        if (!game.pendingWalls.empty()) {
            events.emplace("respawning wall");
            longestWithReturns = std::max<int>(longestWithReturns, frameCounter);
        }
        if (game.shrinkState == ShrinkState::Finished) {
            stylesClosed.insert(gameOptions.shrinkStyleResolved.value());
        }
        mostSnakes = std::max(mostSnakes, std::count_if(players.begin(), players.end(), [](const auto& player) {
                                  return player->isAI && !player->dead;
                              }));
        for (const auto& player : players) {
            note(player->isSnake(), player->isAI ? "snake of the computer" : "human snake");
            note(player->crawling && player->reviveProgress > 0, "rescue");
            note(player->isAI && player->slowTimer > 0, "major stun");
        }
        for (const Flag& flag : game.flags) {
            note(!flag.carrier.expired(), "flag carried");
        }
    }

    void note(bool happens, const char* what) {
        if (happens) {
            events.insert(what);
        }
    }
};

// The lines of the log in which somebody wins an auction: nothing else of a round says who paid.
std::set<std::string> auctionWins;

void listenForAuctions(const char* line, std::size_t length) {
    if (std::string_view(line, length).ends_with(" wins auction\n")) {
        auctionWins.emplace(line, length);
    }
}

void playAll(const std::vector<std::string>& paths, Reached* reached) {
    for (const std::string& path : paths) {
        SCOPED_TRACE(path);
        proof = Proof{};
        DigestCheck digest(path);
        HeadlessPlayback playback(path);
        if (reached != nullptr) {
            reached->modes.insert(static_cast<int>(gameOptions.gameMode));
            reached->arenas.emplace(grid_squares_x, grid_squares_y);
            reached->shrinkStyles.insert(gameOptions.shrinkStyleResolved.value());
            reached->rates.insert(gameOptions.updaterate);
        }
        bool runs = true;
        while (runs) {
            ASSERT_NO_THROW(runs = playback.step()) << "frame " << frameCounter;
            if (reached != nullptr) {
                ASSERT_NO_THROW(digest.compare(playback.game()));
                reached->look(playback.game());
            }
        }
        playback.requireAllPlayed();
        ASSERT_NO_THROW(playback.finish());
        EXPECT_TRUE(std::filesystem::exists(digestPath(path)));
        EXPECT_GT(proof.positions, 0);
        EXPECT_GE(proof.positions, proof.inputs) << "whoever gives input is compared";
        if (reached != nullptr) {
            reached->note(playback.end() == PlaybackEnd::RoundOver, "round over");
            reached->note(playback.end() == PlaybackEnd::EndMark, "quit");
            reached->note(proof.captures > 0, "capture");
            if (std::any_of(players.begin(), players.end(), [](const auto& player) { return player->isAI; })) {
                reached->snakeRounds.insert(path);
            }
        }
    }
}

TEST(GoldenRounds, holdInEitherOrderAndTogetherReachEverything) {
    setDebugOutput(listenForAuctions);
    std::vector<std::string> paths = findReplays({goldenFolder});
    EXPECT_GE(paths.size(), 40U);
    Reached reached;
    playAll(paths, &reached);
    std::reverse(paths.begin(), paths.end());
    playAll(paths, nullptr);
    setDebugOutput(nullptr);

    EXPECT_GE(reached.snakeRounds.size(), 12U);
    EXPECT_EQ(reached.mostSnakes, 30);
    EXPECT_EQ(reached.stylesClosed, (std::set<int>{1, 2, 3}));
    EXPECT_GT(reached.longestWithReturns, 20'000);
    EXPECT_GE(auctionWins.size(), 3U) << "different people";
    EXPECT_EQ(reached.modes.size(), gameModeNames.size());
    for (std::size_t i = 1; i < arenaSizes.size(); ++i) {
        EXPECT_TRUE(reached.arenas.contains({arenaSizes[i].width, arenaSizes[i].height})) << arenaSizes[i].name;
    }
    EXPECT_EQ(reached.shrinkStyles, (std::set<int>{1, 2, 3}));
    EXPECT_EQ(reached.rates, (std::set<int>{30, 60, 120, 144}));
    for (const BonusName& bonus : bonusNames) {
        if (bonus.internalName != "None" && bonus.internalName != "Death") {
            EXPECT_TRUE(reached.powerups.contains(std::string(bonus.displayName))) << bonus.displayName;
        }
    }
    for (const char* event : {"auction", "bid", "respawning wall", "snake of the computer", "human snake", "major stun",
                              "rescue", "flag carried", "flag recovered", "capture", "round over", "quit"}) {
        EXPECT_TRUE(reached.events.contains(event)) << event;
    }
}

// A golden round in a folder of its own, to be damaged.
class PlantedFault : public testing::Test {
  protected:
    void SetUp() override {
        setDebugOutput(nullptr);
        path_ = folder_.file("10.replay");
        bytes_ = readFile(goldenFolder + "/10.1.1.2.replay");
        text_ = gzipDecompress(readFile(goldenFolder + "/10.1.1.2.replay.verifyZ"));
        verifyPlainText();
    }

    void verifyPlainText() { writeFile(path_ + ".verify", text_); }

    // The frame and the failure, or -1 and nothing.
    std::pair<int, std::string> play() {
        proof = Proof{};
        try {
            HeadlessPlayback playback(path_);
            while (playback.step()) {
            }
            playback.requireAllPlayed();
            playback.finish();
            return {-1, ""};
        } catch (const std::exception& failure) {
            return {frameCounter, failure.what()};
        }
    }

    std::size_t framesBegin() const { return bytes_.find("ENDPP") + 5; }

    ScratchFolder folder_;
    std::string path_;
    std::string bytes_;
    std::string text_;
};

TEST_F(PlantedFault, inTheTextIsFoundAtItsFramePlayerAndField) {
    writeFile(path_, bytes_);
    // The first, a middle and the last position, each in the line of its x.
    const auto lines = static_cast<std::size_t>(std::count(text_.begin(), text_.end(), '\n'));
    const std::size_t positions = (lines - 1) / 3;
    int lastFrame = -1;
    for (const std::size_t position : {std::size_t{0}, positions / 2, positions - 1}) {
        std::string changed;
        std::size_t line = 0;
        for (const char c : text_) {
            if (line == position * 3 + 1 && changed.back() == '\n') {
                changed += '1';  // in front of the number
            }
            changed += c;
            line += c == '\n' ? 1U : 0U;
        }
        writeFile(path_ + ".verify", changed);
        const auto [frame, failure] = play();
        EXPECT_NE(failure.find("'verifyX == x'"), std::string::npos) << failure;
        EXPECT_NE(failure.find("replayInput pos "), std::string::npos) << failure;
        EXPECT_EQ(std::to_string(proof.stored), "1" + std::to_string(proof.played));
        EXPECT_GT(frame, lastFrame);
        lastFrame = frame;
    }
    EXPECT_EQ(lastFrame, 1199);
}

// Left, up: a walk that was not walked shows at once, unless a wall is in the way; all bits of some records are tried.
TEST_F(PlantedFault, inOneInputBitTurnsThePlaybackRed) {
    const std::size_t records = (bytes_.size() - 1 - framesBegin()) / 2;
    for (const std::size_t first : {std::size_t{0}, records / 2}) {
        bool found = false;
        for (std::size_t record = first; record < first + 40 && !found; ++record) {
            for (const int bit : {0, 2, 1, 3}) {
                std::string changed = bytes_;
                char& bits = changed[framesBegin() + record * 2 + 1];
                bits = static_cast<char>(bits ^ (1 << bit));
                writeFile(path_, changed);
                found = found || play().first != -1;
            }
        }
        EXPECT_TRUE(found) << "from record " << first;
    }
}

TEST_F(PlantedFault, ofATextThatEndsTooSoonOrGoesOnIsFound) {
    writeFile(path_, bytes_);
    const std::string whole = text_;
    text_ = whole.substr(0, whole.size() / 2);
    verifyPlainText();
    EXPECT_NE(play().second.find("Assertion failed: '"), std::string::npos);
    text_ = "";
    verifyPlainText();
    EXPECT_NE(play().second.find("'replayData.inputVerify->good()'"), std::string::npos);
    text_ = whole.substr(0, whole.size() - 4) + "0\n0\n0\nEND\n";
    verifyPlainText();
    EXPECT_NE(play().second.find("'end == \"END\"'"), std::string::npos);
}

TEST_F(PlantedFault, ofRecordsThatAreLeftOverIsFound) {
    writeFile(path_, bytes_);
    EXPECT_EQ(play().first, -1) << "before";
    writeFile(path_, bytes_ + byte(119));
    EXPECT_NE(play().second.find("1 bytes of the replay are left over"), std::string::npos);
}

}  // namespace
}  // namespace vandrel
