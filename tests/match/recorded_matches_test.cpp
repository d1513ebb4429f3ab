#include <gmock/gmock.h>

#include <filesystem>
#include <sstream>

#include "match/match_stage.h"
#include "replay/unit/replay_names.h"
#include "replay/unit/streams.h"
#include "replay/unit/verify_files.h"
#include "shell/paths.h"

namespace vandrel {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> replayFiles() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(replaysDir())) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

// Rounds of Classic with two players, of whom the first walks to and fro and lays bombs until one of them dies.
class RecordedMatchTest : public MatchStage {
  protected:
    RecordedMatchTest() {
        gameOptions.updaterate = 120;
        gameOptions.frameMultiplier = 2;
        onUpdate = [](int /*round*/) {
            HeldKeys& keys = static_cast<ScriptedControls&>(*players.at(0)->controls).held;
            keys.fire = frameCounter % 60 >= 30;
            keys.right = frameCounter % 40 < 5;
            keys.left = frameCounter % 40 >= 35;
        };
    }

    // Records one round to its own end; gives its path.
    std::string recordRound() {
        EXPECT_FALSE(play(true));
        const auto replays = getAllReplays(false);
        EXPECT_EQ(replays.size(), 1U);
        EXPECT_EQ(timesLogged("Creating replay: " + replays.at(0).path + "\n"), 1);
        forgetTheMatch();
        return replays.at(0).path;
    }
    // From here on no keys are held, and the options are others: the replay has to bring all of it.
    void forgetTheMatch() {
        onUpdate = nullptr;
        logLines().clear();
        rates.clear();
        gameOptions = bareMatchOptions();
        gameOptions.gameMode = GameMode::Deathmatch;
        gameOptions.arenaSize = 3;
        gameOptions.numPlayers = 5;
    }
    static std::string verifyText(const std::string& replay) {
        std::ostringstream text;
        text << openVerifyInput(replay)->rdbuf();
        return text.str();
    }
    static void replaceVerifyText(const std::string& replay, const std::string& text) {
        fs::remove(compressedVerifyPath(replay));
        test::writeFile(plainVerifyPath(replay), text);
    }
};

TEST_F(RecordedMatchTest, KeepsAReplayAndItsProofOfEveryRound) {
    gameOptions.winsNeeded = 2;
    letDie({{1}, {1}});
    EXPECT_FALSE(play(true));
    const auto replays = getAllReplays(true);
    ASSERT_EQ(replays.size(), 2U);
    for (const ReplayInfo& replay : replays) {
        EXPECT_THAT(replay.errors, IsEmpty());
        EXPECT_EQ(replay.numPlayers, 2);
        EXPECT_EQ(static_cast<unsigned char>(test::fileText(replay.path).back()), replayEndMark);
        EXPECT_TRUE(fs::exists(compressedVerifyPath(replay.path)));
        EXPECT_FALSE(fs::exists(plainVerifyPath(replay.path)));
        EXPECT_TRUE(verifyText(replay.path).ends_with("END\n")) << verifyText(replay.path);
    }
    EXPECT_EQ(replays[0].number, replays[1].number + 1);
}

TEST_F(RecordedMatchTest, FinishesTheFilesOfARoundThatWasQuit) {
    closeAtUpdate = 50;
    EXPECT_TRUE(play(true));
    const auto replays = getAllReplays(true);
    ASSERT_EQ(replays.size(), 1U);
    EXPECT_EQ(static_cast<unsigned char>(test::fileText(replays[0].path).back()), replayEndMark);
    EXPECT_TRUE(verifyText(replays[0].path).ends_with("END\n"));
    EXPECT_FALSE(fs::exists(plainVerifyPath(replays[0].path)));

    closeAtUpdate = -1;
    forgetTheMatch();
    EXPECT_FALSE(play(true, replays[0].path));
    EXPECT_EQ(timesLogged("Replay ended early\n"), 1) << "its end mark comes before the round's own end";
    EXPECT_EQ(timesLogged("Round over\n"), 0);
    EXPECT_EQ(frameCounter, 52) << "the update that meets the mark still runs";
}

TEST_F(RecordedMatchTest, WritesNothingWithRecordingOffAndNoProofWithVerificationOff) {
    letDie({{1}});
    EXPECT_FALSE(play(false));
    EXPECT_THAT(replayFiles(), IsEmpty());
    verifyEnabled = false;
    logLines().clear();
    EXPECT_FALSE(play(true));
    EXPECT_EQ(replayFiles().size(), 1U);
}

TEST_F(RecordedMatchTest, PlaysItsReplayToTheSameEndAtItsOwnRate) {
    const std::string replay = recordRound();
    const auto before = replayFiles();
    int updates = 0;
    int numPlayers = 0;
    onUpdate = [&](int /*round*/) {
        ++updates;
        numPlayers = gameOptions.numPlayers;
        EXPECT_EQ(gameOptions.gameMode, GameMode::Classic);
    };
    EXPECT_FALSE(play(true, replay));
    EXPECT_EQ(logLines().front(), "New game, replay: " + replay + "\n");
    EXPECT_EQ(timesLogged("Loading replay: " + replay + "\n"), 1);
    EXPECT_EQ(timesLogged("Round over\n"), 1);
    EXPECT_EQ(timesLogged("Replay ended early\n"), 0);
    EXPECT_EQ(rounds(), 1);
    EXPECT_GT(updates, 480) << "two times 240 at this rate, behind the death";
    EXPECT_EQ(numPlayers, 2);
    EXPECT_THAT(rates, ElementsAre(120, 60));
    EXPECT_EQ(gameOptions.gameMode, GameMode::Deathmatch);
    EXPECT_EQ(gameOptions.numPlayers, 5);
    EXPECT_EQ(replayFiles(), before) << "playing a replay records nothing";
    ASSERT_EQ(tables.size(), 2U) << "one when it was recorded, one now";
    EXPECT_EQ(tables[1].after, tables[0].after);

    onUpdate = nullptr;
    EXPECT_FALSE(play(true, replay, {.fastForward = false, .skipRoundEnd = true}));
    EXPECT_EQ(tables.size(), 2U);
}

// Releases before the multiplier was stored played high rates with 1.
TEST_F(RecordedMatchTest, KeepsTheMultiplierOfTheFileWhateverItsRate) {
    gameOptions.frameMultiplier = 1;
    const std::string replay = recordRound();
    int multiplier = 0;
    onUpdate = [&](int /*round*/) { multiplier = gameOptions.frameMultiplier; };
    EXPECT_FALSE(play(true, replay));
    EXPECT_EQ(timesLogged("Round over\n"), 1);
    EXPECT_EQ(multiplier, 1);
    EXPECT_THAT(rates, ElementsAre(120, 60));
}

TEST_F(RecordedMatchTest, RequiresThatTheProofIsUsedUpAtTheEndOfAReplay) {
    const std::string replay = recordRound();
    const std::string proof = verifyText(replay);
    replaceVerifyText(replay, proof.substr(0, proof.size() - 4));
    EXPECT_THROW(play(true, replay), std::exception) << "the END is missing";
    replaceVerifyText(replay, "0\n32\n32\n" + proof);
    EXPECT_THROW(play(true, replay), std::exception) << "the proof is that of another round";
    replaceVerifyText(replay, proof.substr(0, proof.size() - 4));
    gameOptions = bareMatchOptions();
    closeAtUpdate = 10;
    EXPECT_TRUE(play(true, replay)) << "who quits has not seen the end";
}

TEST_F(RecordedMatchTest, EndsACutReplayEarlyWithoutScoring) {
    const std::string replay = recordRound();
    const std::string bytes = test::fileText(replay);
    test::writeFile(replay, bytes.substr(0, bytes.size() - 100));
    EXPECT_FALSE(play(true, replay));
    EXPECT_EQ(timesLogged("Replay ended early\n"), 1);
    EXPECT_EQ(timesLogged("Round over\n"), 0);
    EXPECT_EQ(gameOptions.gameMode, GameMode::Deathmatch) << "the options are put back";
}

TEST_F(RecordedMatchTest, AFileThatIsNoReplayIsAFailureThatTheCallerSees) {
    const std::string path = folder.path + "/none.replay";
    test::writeFile(path, "no");
    EXPECT_THROW(play(true, path), std::ios_base::failure);
    EXPECT_THAT([&] { play(true, folder.path + "/missing.replay"); },
                testing::ThrowsMessage<std::runtime_error>("File not open for reading"));
}

}  // namespace
}  // namespace vandrel
