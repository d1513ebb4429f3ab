#include "shell/log.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <iterator>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <tuple>
#include <utility>

#include "shell/assertion.h"
#include "shell/fatal_signals.h"
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

TEST_F(LogTest, LinesCarryTheFrameBringTheirOwnNewlineAndKeepTheirPerCentSigns) {
    openLog();
    logText("first\n");
    frameCounter = 1234;
    logPrintf("%d of %s", 3, "seven");
    ++frameCounter;
    std::ostringstream stream;
    stream << " stream " << 5 << '\n';
    logStream(stream);
    logTrace("%x %%\n");
    logText("/home/100%n/%s%d\n");
    logAndFlush("50%\n");
    const std::string expected =
        "0: first\n1234: 3 of seven1235:  stream 5\n1235: %x %%\n1235: /home/100%n/%s%d\n1235: 50%\n";
    EXPECT_EQ(fileText(logPath()), expected);
    EXPECT_EQ(captured.text(), expected);
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(LogTest, LongMessagesAreCutAndStillTerminated) {
    // A line holds 19,999 characters, its prefix included.
    const std::tuple<const char*, std::size_t, int, std::size_t> cases[] = {
        {"shorter", 19'995, 7, 19'998},
        {"fits", 19'996, 7, 19'999},
        {"one too many behind the prefix", 19'997, 7, 19'999},
        {"too long for the message", 30'000, 7, 19'999},
        {"longer prefix", 19'996, 100'000, 19'999},
    };
    for (const auto& [what, messageLength, frame, lineLength] : cases) {
        const CapturedLog line;
        frameCounter = frame;
        logText(std::string(messageLength, 'x'));
        const std::string prefix = std::to_string(frame) + ": ";
        EXPECT_EQ(line.text(), prefix + std::string(lineLength - prefix.size(), 'x')) << what;
    }
}

TEST_F(LogTest, AFailedCreateIsToldInABoxAndLinesStillReachTheDebugger) {
    std::filesystem::create_directories(logPath());
    openLog();
    writeFile(data.path + "/file", "");
    const ScopedEnvironment blocked("XDG_DATA_HOME", data.path + "/file");
    openLog();
    logText("nobody writes this down\n");
    logAndFlush("nor this\n");
    const std::pair<std::string, std::string> box("Warning: couldn't create log file", "");
    EXPECT_THAT(boxes.shown, testing::ElementsAre(box, box)) << "a log that is a folder, a folder that is a file";
    EXPECT_EQ(captured.text(), "0: nobody writes this down\n0: nor this\n");
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

TEST_F(LogTest, ADeathBySignalLeavesTheLastLinesAndItsCause) {
    const auto die = [] {
        openLog();
        std::signal(SIGFPE, SIG_DFL);  // not a sanitizer's own report
        logFatalSignals();
        logText("the last line\n");
        std::raise(SIGFPE);
    };
    EXPECT_EXIT(die(), testing::KilledBySignal(SIGFPE), "");
    EXPECT_EQ(fileText(logPath()), "0: the last line\nThe process is ended by SIGFPE\n");
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

    const int line = __LINE__ + 2;  // of the first of them
    const std::function<void()> failing[] = {
        [] { VANDREL_CHECK(1 > 2, "c == 'A'"); },
        [&] { VANDREL_CHECK_AT(false, "abs(xDir) < 2", position()); },
        [] { VANDREL_CHECK_AT(false, "verifyX == x", std::optional<long long>()); },
    };
    const std::string says[] = {
        fmt::format("Assertion failed: 'c == 'A'' at line {}\n", line),
        fmt::format("Assertion failed: 'abs(xDir) < 2' at line {}\nreplayInput pos 4711\n", line + 1),
        fmt::format("Assertion failed: 'verifyX == x' at line {}\n", line + 2),
    };
    std::string inLog;
    for (std::size_t i = 0; i < std::size(says); ++i) {
        EXPECT_THAT(failing[i], testing::ThrowsMessage<std::runtime_error>(says[i]));
        inLog += "0: " + says[i];
        EXPECT_EQ(fileText(logPath()), inLog);
    }
}

}  // namespace
}  // namespace vandrel::test
