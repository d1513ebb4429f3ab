// vandrel-replay as its user meets it: words in, text and exit status out.
#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <algorithm>
#include <sstream>

#include "base/version.h"
#include "match/options/game_options.h"
#include "replay/tool/commands.h"
#include "replay/tool/option_names.h"
#include "replay/unit/gzip.h"
#include "replay_bytes.h"

namespace vandrel {
namespace {

using testing::HasSubstr;
using testing::internal::CaptureStderr;
using testing::internal::CaptureStdout;
using testing::internal::GetCapturedStderr;
using testing::internal::GetCapturedStdout;

struct Outcome {
    int status;
    std::string output;
    std::string errors;
};

class ReplayTool : public testing::Test {
  protected:
    static Outcome run(const Words& words) {
        gameOptions = GameOptions{};
        CaptureStdout();
        CaptureStderr();
        const int status = runReplayTool(words);
        std::string output = GetCapturedStdout();
        return {status, std::move(output), GetCapturedStderr()};
    }

    Outcome record(const std::string& path, Words words = {}) {
        words.insert(words.begin(), {"play-random", "--arena", "Tiny", "--frames", "60", path});
        return run(words);
    }

    ScratchFolder folder_;
    std::string path_ = folder_.file("1.1.1.2.replay");
};

TEST_F(ReplayTool, RecordsTheSameRoundFromTheSameWords) {
    const Words words{"--mode", "koth", "--players", "5", "--seed", "9", "--set", "initialSpeed=3"};
    EXPECT_EQ(record(path_, words).status, 0);
    const std::string again = folder_.file("2.1.1.2.replay");
    const Outcome second = record(again, words);
    EXPECT_EQ(second.output, again + ": 60 frames, stopped\n");
    EXPECT_EQ(readFile(path_), readFile(again));
    EXPECT_EQ(readFile(path_ + ".verifyZ"), readFile(again + ".verifyZ"));
    EXPECT_EQ(readFile(path_)[12], 3) << "the option that was set";
    EXPECT_EQ(readFile(path_)[22], 3) << "the mode";
}

TEST_F(ReplayTool, VerifiesInThisProcessAndInOthers) {
    for (int number = 1; number <= 11; number += 5) {
        record(folder_.file(std::to_string(number) + ".1.1.2.replay"), {"--seed", std::to_string(number)});
    }
    for (const Words& jobs : {Words{}, Words{"-j", "3"}}) {
        Words words{"verify", folder_.path().string()};
        words.insert(words.begin() + 1, jobs.begin(), jobs.end());
        const Outcome outcome = run(words);
        EXPECT_EQ(outcome.status, 0) << outcome.output;
        EXPECT_THAT(outcome.output, HasSubstr("\n3 of 3 replays hold; 183 frames, 360 records compared\n"));
    }
    const std::string order = run({"verify", folder_.path().string()}).output;
    EXPECT_LT(order.find("6.1.1.2.replay"), order.find("11.1.1.2.replay")) << "by number, not by letter";
}

TEST_F(ReplayTool, FailsWhatDoesNotHold) {
    record(path_);
    const std::string good = readFile(path_);
    const auto expectFailure = [&](const std::string& text) {
        for (const Words& words : {Words{"verify", path_}, Words{"verify", "-j", "2", path_}}) {
            const Outcome outcome = run(words);
            EXPECT_EQ(outcome.status, 1);
            EXPECT_THAT(outcome.output, HasSubstr(text));
            EXPECT_THAT(outcome.output, HasSubstr("\n0 of 1 replays hold; "));
        }
    };
    writeFile(path_, good.substr(0, good.size() - 1));
    expectFailure("FAILED at frame 61: the replay breaks off without its end mark");
    writeFile(path_, good.substr(0, 50));
    expectFailure("FAILED at frame 0: ");
    writeFile(path_, good);
    const std::string text = gzipDecompress(readFile(path_ + ".verifyZ"));
    std::filesystem::remove(path_ + ".verifyZ");
    expectFailure("there is no verification file: nothing was compared");
    // The first frame of both players, the y of the second one pixel off.
    std::istringstream numbers(text);
    std::vector<int> first(6);
    for (int& number : first) {
        numbers >> number;
    }
    writeFile(path_ + ".verify",
              fmt::format("{} {} {} {} {} {} ", first[0], first[1], first[2], first[3], first[4], first[5] + 1));
    expectFailure(
        fmt::format("FAILED at frame 0, player 1: file {}, played {}: Assertion failed: 'verifyY == y' at line ",
                    first[5] + 1, first[5]));
    std::filesystem::remove(path_);
    expectFailure("cannot be opened for reading");
    std::filesystem::create_directory(path_);
    EXPECT_THAT(run({"verify", folder_.path().string()}).output, HasSubstr("is a folder"));
}

TEST_F(ReplayTool, FailsWhatIsLeftOverInTheVerificationFile) {
    record(path_);
    const std::string packed = readFile(path_ + ".verifyZ");
    const std::string text = gzipDecompress(packed);
    struct Case {
        std::string file;
        std::string failure;
    };
    for (const Case& c :
         {Case{packed + "x", ".verifyZ has 1 bytes behind its text"}, Case{packed + packed, " bytes behind its text"},
          Case{packed.substr(0, packed.size() - 8), ".verifyZ is cut short"},
          Case{gzipCompress(text + "1\n"), "the verification file has text behind END"},
          Case{gzipCompress(std::string(100'000'000, '\n')), "size of output string will use more"}}) {
        writeFile(path_ + ".verifyZ", c.file);
        const Outcome outcome = run({"verify", path_});
        EXPECT_EQ(outcome.status, 1);
        EXPECT_THAT(outcome.output, HasSubstr(c.failure));
    }
}

TEST_F(ReplayTool, UsesTheWholePlainTextWhereThePackedOneIsEmptyOrBroken) {
    record(path_);
    const std::string packed = readFile(path_ + ".verifyZ");
    const std::string text = gzipDecompress(packed);
    for (const std::string& broken : {std::string(), packed.substr(0, 4), std::string("no gzip")}) {
        writeFile(path_ + ".verifyZ", broken);
        writeFile(path_ + ".verify", text);
        const Outcome outcome = run({"verify", path_});
        EXPECT_EQ(outcome.status, 0);
        EXPECT_THAT(outcome.output, HasSubstr("; " + path_ + ".verifyZ: "));
        EXPECT_THAT(outcome.output, HasSubstr(path_ + ".verify is used instead\n"));
        writeFile(path_ + ".verify", text.substr(0, text.size() - 4));
        EXPECT_EQ(run({"verify", path_}).status, 1) << "a plain text without its last line is not whole";
    }
}

// Bytes of files and names never reach the terminal as they are.
TEST_F(ReplayTool, PrintsNeitherControlCharactersNorBrokenText) {
    const std::string name = folder_.file("a\nb: ok\x1B[2J\xFF \u00E9\u0085.replay");
    writeFile(name, "");
    const std::string shown = "a\\x0ab: ok\\x1b[2J\\xff \u00E9\\xc2\\x85.replay: ";
    for (const Words& words : {Words{"verify", name}, Words{"verify", "-j", "2", name}, Words{"info", name},
                               Words{"trace", name}, Words{"digest", name}}) {
        const Outcome outcome = run(words);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_THAT(outcome.output + outcome.errors, HasSubstr(shown));
        EXPECT_THAT(outcome.output + outcome.errors, testing::Not(HasSubstr("iostream error")));
    }
    record(name);
    EXPECT_THAT(run({"info", name}).output, HasSubstr("a\\u000ab: ok\\u001b[2J\\u00ff \u00E9\\u0085.replay\""));
}

TEST_F(ReplayTool, RefusesWhatItCouldOnlyWaitForAndTellsOfAFullOutput) {
    ASSERT_EQ(mkfifo(path_.c_str(), 0600), 0);
    for (const char* command : {"verify", "info", "trace", "digest"}) {
        const Outcome outcome = run({command, folder_.path().string() + "/1.1.1.2.replay"});
        EXPECT_EQ(outcome.status, 1) << command;
        EXPECT_THAT(outcome.output + outcome.errors, HasSubstr(path_ + ": "));
        EXPECT_THAT(outcome.output + outcome.errors, HasSubstr("is no regular file\n"));
    }
    const std::string full = folder_.file("full.replay");
    std::filesystem::create_symlink("/dev/full", full);
    EXPECT_THAT(record(full).errors, HasSubstr(full + ": cannot be written: No space left on device"));
}

TEST_F(ReplayTool, SaysOfALaterReleasesReplayThatItIsOne) {
    writeFile(path_, int32(replayVersion(9, 9, 9)));
    for (const char* command : {"info", "verify", "trace"}) {
        const Outcome outcome = run({command, path_});
        EXPECT_EQ(outcome.status, 1) << command;
        EXPECT_THAT(outcome.output + outcome.errors,
                    HasSubstr(": Replay from future version of game: 9.9.9; this build reads up to 1.1.2\n"))
            << command;
    }
}

TEST_F(ReplayTool, TellsTheHeaderAsJson) {
    record(path_, {"--mode", "CTF", "--players", "3"});
    const Outcome one = run({"info", path_});
    EXPECT_EQ(one.status, 0);
    for (const char* line : {"\"version\": \"1.1.2\",", "\"mode\": \"Capture the Flag\",", "    \"numPlayers\": 3,",
                             "    \"shrinkingOn\": true,", "    \"auctionInterval\": ", "\"flagReach\": 13,",
                             "    {\"colour\": [255, 0, 0], \"members\": [0, 2]},", "{\"number\": 2, \"team\": 0, "}) {
        EXPECT_THAT(one.output, HasSubstr(line));
    }
    const std::string broken = folder_.file("a \"quoted\" name.replay");
    writeFile(broken, "");
    const Outcome both = run({"info", path_, broken});
    EXPECT_EQ(both.status, 1);
    EXPECT_TRUE(both.output.starts_with("[{")) << both.output;
    EXPECT_EQ(std::count(both.errors.begin(), both.errors.end(), '\n'), 1);
    EXPECT_THAT(both.errors, HasSubstr(broken));
}

TEST_F(ReplayTool, TracesTheFramesAskedFor) {
    record(path_);
    const Outcome outcome = run({"trace", path_, "--from", "2", "--to", "3"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(outcome.output.starts_with("frame 2\n  records 0x")) << outcome.output;
    EXPECT_THAT(outcome.output, HasSubstr("\nframe 3\n"));
    EXPECT_THAT(outcome.output, HasSubstr("\n  player 1 x "));
    EXPECT_THAT(outcome.output, testing::Not(HasSubstr("frame 4")));
}

TEST_F(ReplayTool, RefusesWordsThatMakeNoSenseInOneLine) {
    const std::vector<std::pair<Words, std::string>> cases{
        {{}, "no command"},
        {{"explode"}, "unknown command 'explode'"},
        {{"verify"}, "no replays to look at"},
        {{"verify", "-j"}, "-j needs a value"},
        {{"verify", "-j", "0", "x"}, "-j needs a number of at least 1"},
        {{"verify", "-j", "two", "x"}, "-j needs a whole number, not 'two'"},
        {{"play-random"}, "play-random needs a file to write"},
        {{"play-random", "--players", "101", "x"}, "--players needs a number from 1 to 100"},
        {{"play-random", "--mode", "Chess", "x"}, "there is no mode 'Chess'"},
        {{"play-random", "--arena", "Round", "x"}, "there is no arena 'Round'"},
        {{"play-random", "--powerups", "Bomb,Tea", "x"}, "there is no powerup 'Tea'"},
        {{"play-random", "--set", "speed", "x"}, "--set needs NAME=VALUE, not 'speed'"},
        {{"play-random", "--set", "tea=1", "x"}, "there is no option 'tea'"},
        {{"play-random", "--set", "initialSpeed=128", "x"}, "initialSpeed takes a number from 1 to 3, not 128"},
        {{"play-random", "--set", "frameMultiplier=0", "x"}, "frameMultiplier takes a number from 1 to 100, not 0"},
        {{"play-random", "--set", "aiSearchDepth=-1", "x"}, "aiSearchDepth takes a number from 1 to 15, not -1"},
        {{"play-random", "--set", "startAsSnake=2", "x"}, "startAsSnake takes a number from 0 to 1, not 2"},
        {{"play-random", "--frames", "-1", "x"}, "--frames needs a number from 0 to "},
        {{"play-random", "--set", "a\x1B[2J=1", "x"}, "there is no option 'a\\x1b[2J'"},
        {{"digest"}, "digest needs a replay"},
        {{"digest", "--fields", "x"}, "--fields needs --at UPDATE"},
        {{"play-random", "--rate", "0", "x"}, "--rate needs a number from 1 to 1000000"},
        {{"trace"}, "trace needs a replay"},
        {{"trace", "a", "b"}, "unknown word 'b'"},
    };
    for (const auto& [words, text] : cases) {
        const Outcome outcome = run(words);
        EXPECT_EQ(outcome.status, 2) << text;
        EXPECT_THAT(outcome.errors, HasSubstr("vandrel-replay: " + text));
        EXPECT_EQ(std::count(outcome.errors.begin(), outcome.errors.end(), '\n'), 1);
        EXPECT_EQ(outcome.output, "");
    }
    for (const char* command : {"info", "verify", "play-random", "trace", "digest"}) {
        const Outcome outcome = run({command, "--help"});
        EXPECT_EQ(outcome.status, 0);
        EXPECT_TRUE(outcome.output.starts_with(std::string("Usage: vandrel-replay ") + command));
    }
}

TEST_F(ReplayTool, SaysWhereItCannotWrite) {
    const Outcome outcome = record("/no/such/folder/1.replay");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors, HasSubstr("File not open for writing - data: "));
}

TEST(OptionNames, ReachEveryKindOfField) {
    GameOptions options;
    for (const auto& [name, value] : std::vector<std::pair<std::string, int>>{{"winsNeeded", 9},
                                                                              {"shrinkingOn", 0},
                                                                              {"wallPercent", 33},
                                                                              {"gridBlocksResolved", 1},
                                                                              {"respawnWallsResolved.stopAt", 12},
                                                                              {"powerupDisabled.Snake", 1}}) {
        EXPECT_TRUE(setOptionByName(options, name, value)) << name;
        EXPECT_THAT(listOptionNames(), HasSubstr(name + " "));
    }
    EXPECT_EQ(options.winsNeeded, 9);
    EXPECT_FALSE(options.shrinkingOn);
    EXPECT_EQ(options.wallPercent, 33);
    EXPECT_EQ(options.gridBlocksResolved, true);
    EXPECT_EQ(options.respawnWallsResolved.stopAt, 12);
    EXPECT_TRUE(options.powerupDisabled[13]);
    EXPECT_FALSE(setOptionByName(options, "respawnWallsResolved", 1));
}

}  // namespace
}  // namespace vandrel
