// The digest of the whole state: what it sees that positions do not show, and what is refused as a digest.
#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "replay/tool/commands.h"
#include "replay/tool/state_digest.h"
#include "replay/unit/gzip.h"
#include "replay_bytes.h"
#include "support/round_fixture.h"

namespace vandrel {
namespace {

using testing::HasSubstr;
using testing::internal::CaptureStderr;
using testing::internal::CaptureStdout;
using testing::internal::GetCapturedStderr;
using testing::internal::GetCapturedStdout;

const std::string goldenFolder = VANDREL_SOURCE_DIR "/tests/replays/";

// A snake, a bomb, a flame, a powerup, a flag, a team, an auction and both kinds of moving walls.
class StateDigests : public testing::Test {
  protected:
    StateDigests() {
        round_.addTeam({2, 2});
        walker_ = round_.addPlayer({3, 3}, 0);
        snake_ = round_.addSnake({9, 5}, Facing::Left, 4, true);
        snake_->snakeParts.assign(2, {288, 160, Facing::Left});
        snake_->snakeHistory.assign(2, {288, 160});
        placeBomb({5, 5}, walker_, 50);
        bonusGrid.at(7, 7) = Bonus::Range;
        game_.explosions.push_back({.owner = walker_, .x = 3, .y = 7, .dx = 1, .timer = 4});
        game_.flags.push_back({64, 64, 0, {}, true});
        game_.shrinkCursors.push_back({1, 1, 1, 0});
        game_.pendingWalls.push_back({4, 4, 9});
        game_.auction = std::make_unique<Auction>();
    }

    TestRound round_{{.mode = GameMode::CaptureTheFlag}};
    Game& game_ = round_.game();
    std::shared_ptr<Player> walker_;
    std::shared_ptr<Player> snake_;
};

TEST_F(StateDigests, ShowEachChangeInItsGroup) {
    struct Change {
        std::string groups;
        std::function<void()> make;
    };
    const std::vector<Change> changes{
        {"players", [&] { walker_->cash += 1; }},
        {"players", [&] { walker_->facing = Facing::Up; }},
        {"players", [&] { snake_->minorStunTimer = 1; }},
        {"players", [&] { std::swap(walker_->startX, walker_->startY), walker_->startX += 1; }},
        {"snakes", [&] { std::get<Facing>(snake_->snakeParts.back()) = Facing::Up; }},
        {"snakes", [&] { snake_->snakeHistory.pop_front(); }},
        {"squares", [&] { squareGrid.set(8, 8, SquareKind::HardWall); }},
        {"powerups", [&] { bonusGrid.at(7, 7) = Bonus::None; }},
        {"powerups", [&] { bonusGrid.at(7, 8) = Bonus::Range; }},
        {"bombs", [&] { ++bombGrid.edit(5, 5).fuse; }},
        {"bombs", [&] { bombGrid.edit(5, 5).owner = snake_; }},
        {"", [&] { bombGrid.edit(5, 5).direction = Facing::Left; }},  // of the last rocket on the square
        {"bombs", [&] { bombGrid.edit(5, 5).kind = BombKind::Rocket; }},
        {"bombs", [&] { bombGrid.edit(5, 5).direction = Facing::Up; }},
        {"flames", [&] { ++game_.explosions.front().timer; }},
        {"flags and teams", [&] { game_.flags.front().carrier = walker_; }},
        {"flags and teams", [&] { ++teams.front().score; }},
        {"flags and teams", [&] { ++game_.hillLeft; }},
        {"walls", [&] { ++game_.shrinkCountdown; }},
        {"walls", [&] { game_.shrinkCursors.front().dy = 1; }},
        {"walls", [&] { --game_.pendingWalls.front().frames; }},
        {"auction", [&] { game_.auction->bidder = walker_; }},
        {"auction", [&] { game_.auction.reset(); }},
        {"counters", [&] { ++game_.nextWaveId; }},
        {"random sources", [&] { game_.spawnRng.discard(1); }},
        {"random sources", [&] { game_.legacyRespawnRng.discard(1); }},
        {"", [&] { walker_->animFrame = 3; }},  // only seen
    };
    StateDigest before = digestOf(game_);
    for (std::size_t i = 0; i < changes.size(); ++i) {
        changes[i].make();
        const StateDigest after = digestOf(game_);
        EXPECT_EQ(differingGroups(before, after), changes[i].groups) << "change " << i;
        before = after;
    }
}

// One field of each kind must not cancel out another's: equal values in other places are another state.
TEST_F(StateDigests, TellPlacesApart) {
    const auto other = round_.addPlayer({5, 7}, 0);
    walker_->cash = 2;
    other->cash = 5;
    const StateDigest before = digestOf(game_);
    std::swap(walker_->cash, other->cash);
    EXPECT_EQ(differingGroups(before, digestOf(game_)), "players");
}

struct Outcome {
    int status;
    std::string text;  // of both outputs
};

Outcome run(const Words& words) {
    gameOptions = GameOptions{};
    CaptureStdout();
    CaptureStderr();
    const int status = runReplayTool(words);
    std::string text = GetCapturedStdout();
    return {status, text + GetCapturedStderr()};
}

class DigestFiles : public testing::Test {
  protected:
    // Copies a golden round with its proofs.
    void takeGolden(const std::string& round) {
        for (const char* ending : {"", ".verifyZ", ".digest"}) {
            std::filesystem::copy_file(goldenFolder + round + ending, path_ + ending,
                                       std::filesystem::copy_options::overwrite_existing);
        }
    }
    Outcome verify() { return run({"verify", path_}); }

    ScratchFolder folder_;
    std::string path_ = folder_.file("1.1.1.2.replay");
};

// One bit of an input record changed. The living still stand where they stood in every update.
TEST_F(DigestFiles, CatchWhatPositionsDoNotShow) {
    struct Case {
        const char* round;
        std::size_t place;
        char was;
        char changed;
        const char* found;
    };
    for (const Case& c : {
             Case{"1.1.1.2.replay", 801, 5, 4, "in update 45: players; 'digest --fields --at 45' lists it"},
             Case{"38.1.1.2.replay", 8479, 5, 7, "in update 1243: players; "},
             Case{"16.1.1.2.replay", 7970, 15, 31, "in update 429: players, bombs; "},
         }) {
        SCOPED_TRACE(c.round);
        takeGolden(c.round);
        std::string bytes = readFile(path_);
        ASSERT_EQ(bytes[c.place], c.was);
        bytes[c.place] = c.changed;
        writeFile(path_, bytes);
        EXPECT_THAT(verify().text, HasSubstr(std::string("the state differs from the digest ") + c.found));
        std::filesystem::remove(digestPath(path_));
        EXPECT_EQ(verify().status, 0) << "without the digest";
    }
}

TEST_F(DigestFiles, AreWrittenOnceAndHold) {
    takeGolden("1.1.1.2.replay");
    const std::string golden = readFile(digestPath(path_));
    EXPECT_EQ(run({"digest", path_}).text, "vandrel-replay: " + path_ + ": its digest is there already\n");
    std::filesystem::remove(digestPath(path_));
    EXPECT_EQ(run({"digest", path_}).status, 0);
    EXPECT_EQ(gzipDecompress(readFile(digestPath(path_))), gzipDecompress(golden));
    EXPECT_EQ(verify().status, 0);

    const std::string fields = run({"digest", "--fields", "--at", "45", path_}).text;
    EXPECT_THAT(fields, HasSubstr("\nplayers: player 1 0 cash = 0\n"));
    EXPECT_THAT(run({"digest", "--fields", "--at", "99999", path_}).text, HasSubstr("updates"));

    std::filesystem::remove(digestPath(path_));
    writeFile(path_, readFile(path_) + "w");
    EXPECT_THAT(run({"digest", path_}).text, HasSubstr("1 bytes of the replay are left over"));
    EXPECT_FALSE(std::filesystem::exists(digestPath(path_)));
}

TEST_F(DigestFiles, FailWhereTheyDoNotFitTheRound) {
    takeGolden("1.1.1.2.replay");
    const std::string packed = readFile(digestPath(path_));
    const RoundDigest digest = unpackDigest(packed);
    const auto expectFailure = [&](const std::string& file, const std::string& text) {
        writeFile(digestPath(path_), file);
        const Outcome outcome = verify();
        EXPECT_EQ(outcome.status, 1);
        EXPECT_THAT(outcome.text, HasSubstr(text));
    };
    RoundDigest changed = digest;
    changed.updates.pop_back();
    const std::string updates = std::to_string(digest.updates.size());
    expectFailure(packDigest(changed), fmt::format("the digest ends before update {}", changed.updates.size()));
    changed = digest;
    changed.updates.push_back({});
    expectFailure(packDigest(changed), "the round ended after " + updates + " updates, the digest tells of");
    changed = digest;
    changed.updates.back()[3] ^= 1U;
    expectFailure(packDigest(changed), fmt::format("in update {}: powerups;", digest.updates.size() - 1));
    changed = digest;
    changed.replayChecksum += 1;
    expectFailure(packDigest(changed), "has other bytes");
    expectFailure(packed.substr(0, packed.size() / 2), digestPath(path_) + ": ");
    expectFailure("", digestPath(path_) + ": is no digest that this version reads");
    expectFailure(gzipCompress("vandrel-digest 2\n"), ": is no digest that this version reads");
}

}  // namespace
}  // namespace vandrel
