#include "shell/log.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

#include "shell/assertion.h"
#include "shell/frame_counter.h"
#include "shell/open_log.h"
#include "shell/paths.h"
#include "shell/shell_test_tools.h"

namespace vandrel::test {
namespace {

class LogTest : public testing::Test {
  protected:
    LogTest() { frameCounter = 0; }
    ~LogTest() override {
        closeLog();
        frameCounter = 0;
    }

    std::string logPath() const { return data.path + "/vandrel/vandrel.log"; }

    ScratchDirectory data;
    CapturedLog captured;
    CapturedBoxes boxes;
};

TEST_F(LogTest, LinesCarryTheFrameAndBringTheirOwnNewline) {
    openLog();
    logText("first\n");
    frameCounter = 1234;
    logPrintf("%d of %s", 3, "seven");
    ++frameCounter;
    std::ostringstream stream;
    stream << " stream " << 5 << '\n';
    logStream(stream);
    logTrace("trace\n");
    flushLog();
    const std::string expected = "0: first\n1234: 3 of seven1235:  stream 5\n1235: trace\n";
    EXPECT_EQ(fileText(logPath()), expected);
    EXPECT_EQ(captured.text(), expected);
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(LogTest, PerCentSignsStayAsTheyAre) {
    openLog();
    logText("/home/100%n/%s%d\n");
    logTrace("%x %%\n");
    logAndFlush("50%\n");
    EXPECT_EQ(fileText(logPath()), "0: /home/100%n/%s%d\n0: %x %%\n0: 50%\n");
}

TEST_F(LogTest, LongMessagesAreCutAndStillTerminated) {
    struct Case {
        const char* what;
        std::size_t messageLength;
        int frame;
        std::size_t lineLength;
    };
    // A line holds 19,999 characters, its prefix included.
    for (const Case& c : {Case{"fits", 19'996, 7, 19'999}, Case{"one too many behind the prefix", 19'997, 7, 19'999},
                          Case{"too long for the message", 30'000, 7, 19'999},
                          Case{"longer prefix", 19'996, 100'000, 19'999}, Case{"shorter", 19'995, 7, 19'998}}) {
        SCOPED_TRACE(c.what);
        const CapturedLog line;
        frameCounter = c.frame;
        logText(std::string(c.messageLength, 'x'));
        const std::string prefix = std::to_string(c.frame) + ": ";
        EXPECT_EQ(line.text(), prefix + std::string(c.lineLength - prefix.size(), 'x'));
    }
}

TEST_F(LogTest, AFailedCreateIsToldInABoxAndLinesStillReachTheDebugger) {
    writeFile(data.path + "/file", "");
    const ScopedEnvironment blocked("XDG_DATA_HOME", data.path + "/file");
    openLog();
    logText("nobody writes this down\n");
    logAndFlush("nor this\n");
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0], std::pair(std::string("Warning: couldn't create log file"), std::string()));
    EXPECT_EQ(captured.text(), "0: nobody writes this down\n0: nor this\n");
}

TEST_F(LogTest, ALogThatIsADirectoryCountsAsNotCreated) {
    std::filesystem::create_directories(logPath());
    openLog();
    EXPECT_EQ(boxes.shown.size(), 1U);
}

TEST_F(LogTest, ASecondStartEmptiesTheLogAndAClosedLogTakesNothing) {
    openLog();
    logText("old\n");
    closeLog();
    openLog();
    logText("new\n");
    closeLog();
    logText("late\n");
    EXPECT_EQ(fileText(logPath()), "0: new\n");
    EXPECT_EQ(captured.text(), "0: old\n0: new\n0: late\n");
}

TEST_F(LogTest, AFailedAssertionIsFlushedAndThrown) {
    openLog();
    int asked = 0;
    const auto position = [&asked]() -> std::optional<long long> {
        ++asked;
        return 4711;
    };
    VANDREL_CHECK(2 > 1, "2 > 1");
    VANDREL_CHECK_AT(2 > 1, "2 > 1", position());
    EXPECT_EQ(asked, 0) << "the position is asked for on failure only";

    std::string thrown;
    int line = 0;
    const auto failing = [&](auto check) {
        try {
            check();
            ADD_FAILURE() << "the run went on";
        } catch (const std::runtime_error& failure) {
            thrown = failure.what();
        }
    };
    failing([&] {
        line = __LINE__ + 1;
        VANDREL_CHECK(1 > 2, "c == 'A'");
    });
    const std::string first = "Assertion failed: 'c == 'A'' at line " + std::to_string(line) + "\n";
    EXPECT_EQ(thrown, first);
    EXPECT_EQ(fileText(logPath()), "0: " + first);

    failing([&] {
        line = __LINE__ + 1;
        VANDREL_CHECK_AT(false, "abs(xDir) < 2", position());
    });
    const std::string second =
        "Assertion failed: 'abs(xDir) < 2' at line " + std::to_string(line) + "\nreplayInput pos 4711\n";
    EXPECT_EQ(thrown, second);
    EXPECT_EQ(fileText(logPath()), "0: " + first + "0: " + second);

    failing([&] {
        line = __LINE__ + 1;
        VANDREL_CHECK_AT(false, "verifyX == x", std::optional<long long>());
    });
    EXPECT_EQ(thrown, "Assertion failed: 'verifyX == x' at line " + std::to_string(line) + "\n");
}

}  // namespace
}  // namespace vandrel::test
