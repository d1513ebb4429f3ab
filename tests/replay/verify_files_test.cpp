// Verification texts on disk: compressed, proved, damaged, missing; and the names and the list of replays.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>

#include "base/version.h"
#include "replay/unit/gzip.h"
#include "replay/unit/replay_names.h"
#include "replay/unit/verify_files.h"
#include "replay_bytes.h"
#include "shell/log.h"
#include "shell/switches.h"

namespace vandrel {
namespace {

using testing::ElementsAre;
using testing::SizeIs;
using testing::ThrowsMessage;

// How decompressing it fails.
void expectFailure(const std::string& text, const std::string& compressed, std::size_t limit = largestDecompressed) {
    EXPECT_THAT([&] { gzipDecompress(compressed, limit); }, ThrowsMessage<std::runtime_error>(text));
}

TEST(Gzip, givesBackWhatItTook) {
    std::string noise;
    unsigned state = 1;
    for (int i = 0; i < 300'000; ++i) {
        state = state * 1664525U + 1013904223U;
        noise += static_cast<char>(state >> 24U);
    }
    for (const std::string& text : {std::string(), std::string("END\n"), std::string(5'000'000, '7'), noise}) {
        const std::string compressed = gzipCompress(text);
        EXPECT_EQ(compressed.substr(0, 3), "\x1F\x8B\x08") << "one gzip member";
        EXPECT_EQ(gzipDecompress(compressed), text);
    }
}

TEST(Gzip, namesTheDamageAndGivesWhatCanBeHadOfACutMember) {
    const std::string text = std::string(1000, 'a') + "END\n";
    std::string compressed = gzipCompress(text);
    compressed[compressed.size() - 6] = static_cast<char>(compressed[compressed.size() - 6] ^ 1);
    expectFailure("incorrect data check", compressed);
    expectFailure("incorrect header check", "no member at all");
    EXPECT_EQ(gzipDecompress(compressed.substr(0, compressed.size() - 8)), text)
        << "only the check behind the text is gone";
    EXPECT_EQ(gzipDecompress(""), "");
}

TEST(Gzip, refusesABombBeforeItGoesOff) {
    constexpr std::size_t limit = 1'000'000;
    const std::string bomb = gzipCompress(std::string(5'000'000, '\0'));
    EXPECT_LT(bomb.size(), limit / 100);
    expectFailure("size of output string will use more memory then intended when decompressing", bomb, limit);
    expectFailure("size may use more memory than intended when decompressing", std::string(limit / 2 + 1, 'x'), limit);
    EXPECT_NO_THROW(gzipDecompress(gzipCompress(std::string(limit - 50'000, '\0')), limit));
}

class VerifyFiles : public testing::Test {
  protected:
    VerifyFiles() {
        setDebugOutput(nullptr);
        verifyEnabled = true;
    }
    ~VerifyFiles() override { verifyEnabled = true; }

    static std::string textOf(std::istream& stream) {
        return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    }

    ScratchFolder folder_;
    std::string path_ = folder_.file("4.1.1.2.replay");
};

TEST_F(VerifyFiles, areCompressedProvedAndThenAlone) {
    std::ofstream text(plainVerifyPath(path_));
    text << "0\n32\n64\n";
    finishVerifyFile(path_, text);
    EXPECT_FALSE(std::filesystem::exists(path_ + ".verify"));
    EXPECT_EQ(gzipDecompress(readFile(path_ + ".verifyZ")), "0\n32\n64\nEND\n");
    EXPECT_EQ(textOf(*openVerifyInput(path_)), "0\n32\n64\nEND\n");
}

TEST_F(VerifyFiles, openTheCompressedFormFirstAndNothingWhereNothingIs) {
    EXPECT_EQ(openVerifyInput(path_), nullptr);
    EXPECT_EQ(openVerifyInput(path_ + "/below/a/file"), nullptr);
    writeFile(path_ + ".verify", "plain");
    EXPECT_EQ(textOf(*openVerifyInput(path_)), "plain");
    writeFile(path_ + ".verifyZ", gzipCompress("compressed"));
    EXPECT_EQ(textOf(*openVerifyInput(path_)), "compressed");
    writeFile(path_ + ".verifyZ", "damaged");
    EXPECT_THROW(openVerifyInput(path_), std::runtime_error);
    verifyEnabled = false;
    EXPECT_EQ(openVerifyInput(path_), nullptr);
}

TEST_F(VerifyFiles, keepThePlainFormWhereTheOtherCannotBeWritten) {
    std::filesystem::create_directory(path_ + ".verifyZ");
    std::ofstream text(plainVerifyPath(path_));
    text << "0\n32\n64\n";
    EXPECT_THAT([&] { finishVerifyFile(path_, text); },
                ThrowsMessage<std::system_error>(testing::StartsWith("cannot write " + path_ + ".verifyZ: ")));
    EXPECT_EQ(readFile(path_ + ".verify"), "0\n32\n64\nEND\n");
}

class ReplayNames : public testing::Test {
  protected:
    void SetUp() override {
        setDebugOutput(nullptr);
        setenv("XDG_DATA_HOME", folder_.path().c_str(), 1);
        std::filesystem::create_directories(replays_);
    }

    std::string replay(const std::string& name) const { return (replays_ / name).string(); }

    ScratchFolder folder_;
    std::filesystem::path replays_ = folder_.path() / "vandrel" / "replays";
};

TEST_F(ReplayNames, countOnFromTheHighest) {
    EXPECT_EQ(newReplayName(), replay("0.1.1.2.replay"));
    std::filesystem::create_directory(replays_ / "kept");
    for (const char* name : {"3.1.1.2.replay", "kept/12.0.96.5.replay", "40.1.1.2.replay.verify", "notes.txt"}) {
        writeFile(replay(name), "");
    }
    writeFile(replay("2147483647.1.1.2.replay"), "");
    EXPECT_EQ(newReplayName(), replay("13.1.1.2.replay")) << "nothing comes behind the highest number";
    writeFile(replay("2147483646.1.1.2.replay"), "");
    EXPECT_THROW(newReplayName(), std::out_of_range) << "and nothing is overwritten";
    writeFile(replay("first.replay"), "");
    EXPECT_THROW(newReplayName(), std::invalid_argument);
}

// Two games at once, or a folder of which the list does not tell.
TEST_F(ReplayNames, areClaimedOnceEvenIfTheListDoesNotShowWhoHasThem) {
    std::filesystem::create_symlink("nowhere", replay("0.1.1.2.replay"));
    EXPECT_EQ(newReplayName(), replay("0.1.1.2.replay")) << "a dangling link is no replay";
    EXPECT_EQ(claimReplayName(), replay("1.1.1.2.replay"));
    EXPECT_EQ(claimReplayName(), replay("2.1.1.2.replay"));
    EXPECT_FALSE(std::filesystem::exists(replays_ / "nowhere"));
}

TEST_F(ReplayNames, listNewestFirstWithSizeAndHeaderOrError) {
    const std::string golden = VANDREL_SOURCE_DIR "/tests/replays/14.1.1.2.replay";
    writeFile(replay("1.1.1.2.replay"), readFile(golden));
    writeFile(replay("1.1.1.2.replay.verifyZ"), "12345");
    writeFile(replay("2.1.1.2.replay"), "");
    writeFile(replay("3.9.9.9.replay"), int32(replayVersion(9, 9, 9)));
    writeFile(replay("4.1.1.2.replay"), int32(-1));
    writeFile(replay("5.1.1.2.replay"), readFile(golden));
    std::filesystem::create_directory(replay("6.1.1.2.replay"));
    const auto start = std::filesystem::file_time_type::clock::now();
    for (const auto& info : getAllReplays(false)) {
        std::filesystem::last_write_time(info.path, start + std::chrono::seconds(info.number == 5 ? 4 : info.number));
    }
    const std::vector<ReplayInfo> all = getAllReplays(true);
    std::vector<int> numbers;
    for (const ReplayInfo& info : all) {
        numbers.push_back(info.number);
    }
    ASSERT_THAT(numbers, ElementsAre(5, 4, 3, 2, 1)) << "a folder is no replay; of equal times the higher number first";
    EXPECT_THAT(all[1].errors, ElementsAre("Invalid replay version: " + versionText(-1)));
    EXPECT_THAT(all[2].errors, ElementsAre("Replay from future version of game: 9.9.9"));
    EXPECT_THAT(all[3].errors, ElementsAre(testing::_, "One possible cause is a crash while starting a game",
                                           "You can safely delete this file"));
    EXPECT_THAT(all[4].errors, SizeIs(0));
    EXPECT_EQ(all[4].gameMode, 1);
    EXPECT_EQ(all[4].numPlayers, 8);
    EXPECT_EQ(all[4].version, replayVersion(1, 1, 2));
    EXPECT_EQ(all[4].size, std::filesystem::file_size(golden) + 5);
}

}  // namespace
}  // namespace vandrel
