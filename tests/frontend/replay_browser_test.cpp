// The list of recorded rounds: what it says of each, what its rows do, and the test that plays them all.
#include "frontend/replay_browser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <set>
#include <string>
#include <vector>

#include "frontend/menu_rows.h"
#include "frontend/screen_stage.h"
#include "presentation/ink.h"
#include "replay/unit/describe_replay.h"
#include "replay/unit/replay_names.h"
#include "shell/paths.h"
#include "shell/shell_test_tools.h"
#include "shell/switches.h"

namespace vandrel {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

const fs::path golden = VANDREL_SOURCE_DIR "/tests/replays";

TEST(FileTime, IsShownInUTCWithLeadingZerosInHoursAndMinutesOnly) {
    using namespace std::chrono_literals;
    const auto text = [](std::chrono::sys_seconds time) {
        return fileTimeText(std::chrono::file_clock::from_sys(time));
    };
    EXPECT_EQ(text(std::chrono::sys_days(2026y / 3 / 7) + 4h + 5min + 59s), "2026/3/7 04:05");
    EXPECT_EQ(text(std::chrono::sys_days(2024y / 2 / 29) + 23h + 59min), "2024/2/29 23:59");
    EXPECT_EQ(text(std::chrono::sys_days(2027y / 1 / 1) - 1s), "2026/12/31 23:59");
    EXPECT_EQ(text(std::chrono::sys_days(1969y / 12 / 31)), "1969/12/31 00:00");
}

class ReplayBrowser : public ScreenStage {
  protected:
    ReplayBrowser() {
        fs::create_directories(folder_ / "kept");
        showReplayTestOptions = false;
    }
    ~ReplayBrowser() override { showReplayTestOptions = false; }

    // A file of the folder with that age in minutes; `source` is a golden round, or none for an empty file.
    std::string put(const std::string& name, int age, int source = 0) {
        const fs::path path = folder_ / name;
        if (source == 0) {
            std::ofstream(path).close();
        } else {
            const std::string from = std::to_string(source) + ".1.1.2.replay";
            fs::copy_file(golden / from, path);
            fs::copy_file(golden / (from + ".verifyZ"), path.string() + ".verifyZ");
            std::ofstream(path.string() + ".verify") << "left behind";
        }
        using namespace std::chrono_literals;
        const std::chrono::sys_seconds newest = std::chrono::sys_days(2026y / 11 / 5) + 7h + 4min;
        fs::last_write_time(path, std::chrono::file_clock::from_sys(newest - std::chrono::minutes(age)));
        return path.string();
    }

    // What a round leaves that never began: a header, and nothing behind it.
    void putWithoutGrid(const std::string& name, int age) {
        put(name, age, 10);
        const auto time = fs::last_write_time(folder_ / name);
        fs::resize_file(folder_ / name, 400);
        for (const char* suffix : {".verify", ".verifyZ"}) {
            fs::remove(folder_ / (name + suffix));
        }
        fs::last_write_time(folder_ / name, time);
    }

    std::shared_ptr<VandrelMenu> open() {
        return replayMenu(context_, [this](const std::string& path, ReplayTestOptions options, auto& music) {
            EXPECT_EQ(&music, &context_.music);
            played_.push_back(fs::path(path).filename().string() + (options.fastForward ? " fast" : "") +
                              (options.skipRoundEnd ? " without end" : ""));
            return played_.size() == quitAt_;
        });
    }

    void answerWith(int keycode) {
        keysAt = [keycode](int tick) { return tick == 3 ? std::set<int>{keycode} : std::set<int>{}; };
    }

    test::ScratchDirectory data_;
    fs::path folder_ = replaysDir();
    MenuContext context_{1920};
    std::vector<std::string> played_;
    std::size_t quitAt_ = 0;
    test::CapturedLog log_;
};

TEST_F(ReplayBrowser, ListsWhatThereIsNewestFirstAndSaysWhatItIs) {
    EXPECT_THAT(textsOf(*open()), ElementsAre("Back"));
    put("7.1.1.2.replay", 0, 14);
    put("kept/12.replay", 424, 10);
    put("8.1.1.2.replay", 60);
    putWithoutGrid("6.1.1.2.replay", 120);
    put("notes.txt", 0);
    fs::create_directory(folder_ / "9.1.1.2.replay");
    const auto kilobytes = [&](const std::string& name) {
        const std::string path = (folder_ / name).string();
        return std::to_string((fs::file_size(path) + fs::file_size(path + ".verifyZ") + 11) / 1024) + "kB";
    };
    EXPECT_THAT(textsOf(*open()),
                ElementsAre("7 - 2026/11/5 07:04 - CTF - 8 players - 1.1.2 - " + kilobytes("7.1.1.2.replay"),
                            "8 - Error - select for details - 0kB", "6 - Error - select for details - 0kB",
                            HasSubstr("12 - 2026/11/5 00:00 - "), "Back"));
    showReplayTestOptions = true;
    const auto menu = open();
    EXPECT_EQ(menu->entries().front()->text(), "Test all replays");
    EXPECT_EQ(menu->entries()[1]->y - menu->entries()[0]->y, 40) << "the small layout";
    menu->entries().back()->press();
    EXPECT_TRUE(context_.stack.backRequested);
}

TEST_F(ReplayBrowser, PlaysARoundOrShowsWhyItCannot) {
    put("1.1.1.2.replay", 0, 14);
    put("2.1.1.2.replay", 1);
    const auto menu = open();
    menu->entries()[0]->press();
    EXPECT_THAT(played_, ElementsAre("1.1.1.2.replay"));
    // Three lines of the error, one above and one below; Escape does not leave them.
    int ticks = 0;
    keysAt = [&](int tick) {
        ticks = tick;
        return std::set<int>{tick < 5 ? ALLEGRO_KEY_ESCAPE : ALLEGRO_KEY_ENTER};
    };
    menu->entries()[1]->press();
    EXPECT_GE(ticks, 5);
    EXPECT_THAT(played_, testing::SizeIs(1)) << "what has errors is not played";
    const auto isInked = [](int y) {
        const auto isLight = [](RGB pixel) { return pixel.red > 128; };
        return inkOf(*screen, {0, y, screen->width(), y + 1}, isLight).count > 0;
    };
    int rows = 0;
    for (int y = 1; y < screen->height(); ++y) {
        rows += isInked(y) && !isInked(y - 1) ? 1 : 0;
    }
    EXPECT_EQ(rows, 5);
}

TEST_F(ReplayBrowser, DeletesARoundWithAllThatBelongsToItOnceThatIsConfirmed) {
    const std::string path = put("1.1.1.2.replay", 0, 14);
    const std::string other = put("2.1.1.2.replay", 1, 10);
    const auto menu = open();
    CmdButtonBase& row = *menu->entries()[0];
    const std::string before = row.text();
    answerWith(ALLEGRO_KEY_ESCAPE);
    row.deleteKey();
    EXPECT_EQ(row.text(), before);
    EXPECT_TRUE(fs::exists(path));
    answerWith(ALLEGRO_KEY_Y);
    row.deleteKey();
    EXPECT_THAT(textsOf(*menu), ElementsAre("DELETED", HasSubstr("2 - "), "Back")) << "nothing moves";
    for (const char* suffix : {"", ".verify", ".verifyZ"}) {
        EXPECT_FALSE(fs::exists(path + suffix)) << suffix;
        EXPECT_TRUE(fs::exists(other + suffix)) << suffix;
    }
    keysAt = {};
    row.press();
    row.deleteKey();  // a question would wait for ever
    EXPECT_THAT(played_, testing::IsEmpty());
    EXPECT_THAT(textsOf(*open()), ElementsAre(HasSubstr("2 - "), "Back"));
    answerWith(ALLEGRO_KEY_Y);
    put("3.1.1.2.replay", 2);
    open()->entries()[1]->deleteKey();
    EXPECT_FALSE(fs::exists(folder_ / "3.1.1.2.replay")) << "one with errors and without companions";
}

TEST_F(ReplayBrowser, SaysThatItCouldNotRemoveAFile) {
    const std::string path = put("1.1.1.2.replay", 0, 14);
    fs::remove(path + ".verify");
    fs::create_directories(path + ".verify/in the way");
    answerWith(ALLEGRO_KEY_Y);
    EXPECT_THAT([&] { open()->entries()[0]->deleteKey(); },
                testing::ThrowsMessage<fs::filesystem_error>(
                    HasSubstr("error: remove: Directory not empty [" + path + ".verify]")));
}

TEST_F(ReplayBrowser, TestsAllThatCanBePlayedUntilOneIsQuit) {
    put("1.1.1.2.replay", 3, 14);
    put("2.1.1.2.replay", 2);
    put("3.1.1.2.replay", 1, 10);
    put("4.1.1.2.replay", 4, 11);
    putWithoutGrid("5.1.1.2.replay", 5);
    showReplayTestOptions = true;
    open()->entries()[0]->press();
    EXPECT_THAT(played_, ElementsAre("3.1.1.2.replay fast without end", "1.1.1.2.replay fast without end",
                                     "4.1.1.2.replay fast without end"));
    const testing::Matcher<std::string> saysHowLong =
        testing::ContainsRegex(": Test all replays: [0-9]+\\.[0-9]{6} seconds\n");
    EXPECT_THAT(log_.text(), saysHowLong);
    EXPECT_THAT(
        log_.text(),
        HasSubstr("5.1.1.2.replay cannot be played and is passed by: The replay ends before its round begins\n"));
    played_.clear();
    quitAt_ = 2;
    const test::CapturedLog logOfTheSecond;
    open()->entries()[0]->press();
    EXPECT_THAT(played_, testing::SizeIs(2));
    EXPECT_THAT(logOfTheSecond.text(), saysHowLong) << "a test that was quit ends with its line, too";
}

}  // namespace
}  // namespace vandrel
