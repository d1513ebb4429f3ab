#include "shell/command_line.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <functional>
#include <stdexcept>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "match/options/game_options.h"
#include "shell/frame_counter.h"
#include "shell/guard.h"
#include "shell/open_log.h"
#include "shell/paths.h"
#include "shell/shell_test_tools.h"
#include "shell/switches.h"

namespace vandrel::test {
namespace {

class CommandLineTest : public testing::Test {
  protected:
    CommandLineTest() { clear(); }
    ~CommandLineTest() override { clear(); }

    static void clear() {
        diagnostic = false;
        fastForward = false;
        autoRandomControls = false;
        advanceLimit = 0;
        frameCounter = 0;
    }

    static void process(std::vector<const char*> arguments) {
        arguments.insert(arguments.begin(), "vandrel");
        processCommandLine(static_cast<int>(arguments.size()), arguments.data());
    }

    CapturedLog captured;
};

TEST_F(CommandLineTest, SwitchesAreTakenInOrder) {
    // Diagnostic, fast forward, random controls, limit.
    const std::pair<std::vector<const char*>, std::tuple<bool, bool, bool, int>> cases[] = {
        {{}, {false, false, false, 0}},
        {{"/diag"}, {true, false, false, 0}},
        {{"/fastForward", "/autoRandomControls"}, {false, true, true, 0}},
        {{"/advanceLimit", "600", "/diag"}, {true, false, false, 600}},
        {{"/advanceLimit", "/diag"}, {false, false, false, 0}},  // taken as the number
        {{"/advanceLimit", "12 rounds"}, {false, false, false, 12}},
        {{"/advanceLimit", "-3"}, {false, false, false, -3}},
        {{"/advanceLimit", "5", "/advanceLimit"}, {false, false, false, 5}},  // the last one has no number
    };
    for (const auto& [arguments, switches] : cases) {
        clear();
        process(arguments);
        EXPECT_EQ(std::tuple(diagnostic, fastForward, autoRandomControls, advanceLimit), switches)
            << testing::PrintToString(arguments);
    }
}

TEST_F(CommandLineTest, AnUnknownSwitchEndsTheProcessWithABox) {
    // Compared in full, with regard to case.
    for (const char* argument : {"/DIAG", "/diag ", "diag", "", "--help"}) {
        const ScratchDirectory data;  // outside, as the process that ends there clears nothing away
        EXPECT_EXIT(
            {
                openLog();
                setMessageBox([](const std::string& text, const std::string& heading) {
                    std::fprintf(stderr, "box <%s> <%s>\n", heading.c_str(), text.c_str());
                });
                process({argument, "/fastForward"});
            },
            testing::ExitedWithCode(0), std::string("^box <Unknown command> <") + argument + ">\n$");
    }
}

TEST_F(CommandLineTest, TheDistributionTestWalksEveryCombination) {
    gameOptions = {};
    gameOptions.numPlayers = 7;
    gameOptions.randomness = 1;
    process({"/testAutoGameOptionsDistribution", "/diag"});
    EXPECT_TRUE(diagnostic) << "the arguments behind it count";
    EXPECT_EQ(gameOptions.numPlayers, 7);
    EXPECT_EQ(gameOptions.randomness, 1);
    EXPECT_EQ(gameOptions.gameMode, GameMode::CaptureTheFlag);
    std::string expectedHeads = "0: Testing auto level size distribution\n";
    for (int team = 0; team < 2; ++team) {
        for (int players = 2; players <= 18; players += 2) {
            for (int randomness = 0; randomness < 3; ++randomness) {
                expectedHeads += "0: " + std::to_string(players) + " players, Team: " + std::to_string(team) +
                                 ", randomness " + std::to_string(randomness) + "\n";
            }
        }
    }
    std::istringstream lines(captured.text());
    std::string heads;
    int choices = 0;
    for (std::string line; std::getline(lines, line);) {
        if (line.find("Testing") != std::string::npos || line.find(" players, Team: ") != std::string::npos) {
            heads += line + "\n";
        } else {
            ++choices;
        }
    }
    EXPECT_EQ(heads, expectedHeads);
    EXPECT_EQ(choices, 2 * 9 * 3 * 30) << "one line for each call";
    gameOptions = {};
}

class GuardTest : public testing::Test {
  protected:
    GuardTest() { frameCounter = 0; }

    std::string pleaseSend() const {
        return "Please send " + data.path + "/vandrel/vandrel.log to support@quillmere.example\n";
    }

    ScratchDirectory data;
    CapturedLog captured;
    CapturedBoxes boxes;
};

TEST_F(GuardTest, BeforeThePlatformIsUpThereIsNoBox) {
    al_uninstall_system();  // harmless when it is not up
    runGuarded([] { throw std::runtime_error("early"); });
    EXPECT_EQ(captured.text(), "0: An exception occurred:\nearly\n" + pleaseSend());
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(GuardTest, EveryFailureIsLoggedFlushedAndShown) {
    installAllegroHeadless();
    openLog();
    const std::pair<std::function<void()>, std::string> failures[] = {
        {[] { throw std::runtime_error("100% broken"); }, "An exception occurred:\n100% broken\n"},
        {[] { throw std::out_of_range("two\nlines\n"); }, "An exception occurred:\ntwo\nlines\n\n"},
        {[] { throw 5; }, "An exception of unknown type occurred.\n"}};
    std::string inLog;
    for (const auto& [run, text] : failures) {
        boxes.shown.clear();
        runGuarded(run);
        inLog += "0: " + text + pleaseSend();
        EXPECT_EQ(fileText(data.path + "/vandrel/vandrel.log"), inLog);
        EXPECT_THAT(boxes.shown, testing::ElementsAre(std::pair(text + pleaseSend(), std::string())));
    }
    boxes.shown.clear();
    runGuarded([] {});
    EXPECT_TRUE(boxes.shown.empty());
    closeLog();
}

TEST_F(GuardTest, AMissingDataFolderIsReportedLikeAnyFailure) {
    writeFile(data.path + "/file", "");
    const ScopedEnvironment blocked("XDG_DATA_HOME", data.path + "/file");
    runGuarded([] { appDataDir(); });
    EXPECT_NE(captured.text().find("create_directory"), std::string::npos) << captured.text();
    EXPECT_NE(captured.text().find("Please send " + data.path + "/file/vandrel/vandrel.log to "), std::string::npos);
}

}  // namespace
}  // namespace vandrel::test
