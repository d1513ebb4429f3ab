#include "presentation/sound.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#include "heard_sound.h"
#include "presentation/play_sample.h"

namespace vandrel {

namespace {

using test::firstStretch;
using test::middle;
using test::SoundRecording;
using test::wait;

using Sound = test::HeardSound;

// Four of one sample, told apart by their pitch.
constexpr std::array<int, 4> speeds{1000, 1200, 1400, 1600};
constexpr std::array<int, 4> pitches{500, 600, 700, 800};
constexpr int quarterVolume = 50;

struct FourPlays {
    std::array<std::vector<double>, 4> levels;
    std::size_t fourthBegins = 0;  // stretch of 10 ms
};

FourPlays playFour() {
    SoundRecording recording;
    for (const int speed : speeds) {
        playSample(SampleIds::Explosion1, quarterVolume, centrePan, speed);
        wait(250);
    }
    wait(1000);
    recording.finish();
    FourPlays result;
    for (std::size_t i = 0; i < pitches.size(); ++i) {
        result.levels[i] = recording.levels(pitches[i]);
    }
    result.fourthBegins = firstStretch(result.levels[3], 0, [](double level) { return level > 0.08; });
    return result;
}

constexpr double expectedLevel = 50.0 / 255.0 * 32'000 / 32'768;

std::string complainOfFour(const FourPlays& heard) {
    const auto& first = heard.levels[0];
    const std::size_t fourth = heard.fourthBegins;
    if (fourth < 20 || fourth + 90 > first.size()) {
        return "the fourth was not heard";
    }
    const auto isFull = [](double level) { return std::abs(level - expectedLevel) < 0.02; };
    if (!isFull(middle(first, fourth - 20, fourth - 5))) {
        return "three do not play side by side";
    }
    if (firstStretch(first, fourth, [](double level) { return level < expectedLevel / 10; }) > fourth + 15 ||
        middle(first, fourth + 15, first.size()) > 0.005) {
        return "the first goes on";
    }
    for (std::size_t i = 1; i < pitches.size(); ++i) {
        if (!isFull(middle(heard.levels[i], fourth + 10, fourth + 90))) {
            return "another has faded too";
        }
    }
    // A cut is over within one stretch.
    const auto between = std::count_if(first.begin() + static_cast<std::ptrdiff_t>(fourth) - 5,
                                       first.begin() + static_cast<std::ptrdiff_t>(fourth) + 15, [](double level) {
                                           return level > expectedLevel * 0.05 && level < expectedLevel * 0.93;
                                       });
    return between < 2 ? "cut off, not faded" : "";
}

TEST_F(Sound, TheFourthOfASampleFadesTheFirstAndLeavesTheOthers) {
    EXPECT_EQ(test::lastingComplaint([] {
                  initSound(100, 100);
                  const FourPlays heard = playFour();
                  shutdownSound();
                  return complainOfFour(heard);
              }),
              "");
}

TEST_F(Sound, SamplesHaveQueuesOfTheirOwn) {
    initSound(100, 100);
    SoundRecording recording;
    int speed = 1000;
    for (const SampleIds id :
         {SampleIds::Beat2, SampleIds::Fire, SampleIds::Snake, SampleIds::Wimbaah, SampleIds::Slide}) {
        playSample(id, quarterVolume, centrePan, speed);
        speed += 200;
    }
    for (const int pitch : {500, 600, 700, 800, 900}) {
        EXPECT_TRUE(recording.waitForLevel(pitch, expectedLevel)) << pitch << " Hz";
    }
}

TEST_F(Sound, VolumePanAndSpeed) {
    // Volume, pan and speed; the pitch that is heard, and how loud on the left and on the right.
    const std::tuple<const char*, int, int, int, int, double, double> cases[] = {
        {"no panning leaves both sides whole", 100, 128, 1000, 500, 0.383, 0.383},
        {"a centred pan would share the power", 100, 127, 1000, 500, 0.271, 0.270},
        {"the left edge", 100, 0, 1000, 500, 0.383, 0},
        {"the right edge", 100, 255, 1000, 500, 0, 0.383},
        {"twice the volume", 200, 128, 1000, 500, 0.766, 0.766},
        {"an octave up", 100, 128, 2000, 1000, 0.383, 0.383},
        {"an octave down", 100, 128, 500, 250, 0.383, 0.383},
    };
    for (const auto& [what, volume, pan, speed, pitch, left, right] : cases) {
        initSound(100, 100);
        SoundRecording recording;
        playSample(test::longSample, volume, pan, speed);
        const std::size_t louder = left < right ? 1 : 0;
        EXPECT_TRUE(recording.waitForLevel(pitch, std::max(left, right), louder)) << what;
        EXPECT_TRUE(recording.waitForLevel(pitch, std::min(left, right), 1 - louder)) << what;
        shutdownSound();
    }
}

TEST_F(Sound, NoVolumeSilencesWhatGoesOn) {
    initSound(60, 100);
    EXPECT_EQ(getVolume(AudioType::Effects), 60);
    EXPECT_EQ(getVolume(AudioType::Music), 100);
    SoundRecording recording;
    playSample(test::longSample, 100);
    EXPECT_TRUE(recording.waitForLevel(test::sampleTone, 0.6 * 0.383));
    setVolume(AudioType::Effects, 0);
    EXPECT_TRUE(recording.waitForLevel(test::sampleTone, 0));
    setVolume(AudioType::Effects, 100);
    EXPECT_EQ(getVolume(AudioType::Effects), 100);
    EXPECT_TRUE(recording.waitForLevel(test::sampleTone, 0.383)) << "the same instance, heard again";
}

TEST_F(Sound, ShutdownSilencesAndIsSafeAtAnyTime) {
    shutdownSound();
    initSound(100, 100);
    playSample(test::longSample);
    for (int i = 0; i < 50; ++i) {
        playSample(test::longSample);
    }
    shutdownSound();
    shutdownSound();
    SoundRecording recording;
    playSample(test::longSample);
    wait(300);
    EXPECT_TRUE(recording.waitForLevel(test::sampleTone, 0));
}

std::string failureOf(const auto& action) {
    try {
        action();
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "none";
}

TEST_F(Sound, FilesThatAreMissingOrBroken) {
    std::filesystem::remove("newSound/Gong2.wav");
    EXPECT_EQ(failureOf([] { initSound(60, 100); }), "File not found: newSound/Gong2.wav");
    shutdownSound();
    std::ofstream("newSound/Gong2.wav") << "not a sound";
    EXPECT_EQ(failureOf([] { initSound(60, 100); }), "Error loading newSound/Gong2.wav");
    shutdownSound();
}

// With no server and no device. In a process of its own, since the library keeps the system that it found first.
TEST(SoundDeathTest, NoSoundSystem) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    const auto bringUp = [] {
        setenv("PULSE_SERVER", "unix:/nowhere", 1);
        setenv("ALSA_CONFIG_PATH", "/dev/null", 1);
        setenv("ALSOFT_DRIVERS", "-all", 1);
        al_install_system(ALLEGRO_VERSION_INT, nullptr);
        const std::string failure = failureOf([] { initSound(60, 100); });
        shutdownSound();
        std::fprintf(stderr, "it says: %s.\n", failure.c_str());
        std::_Exit(0);
    };
    EXPECT_EXIT(bringUp(), testing::ExitedWithCode(0), "it says: Error initialising sound system\\.");
}

// The thread that fades, and the main thread that plays, at full tilt: what the thread sanitizer looks at.
TEST_F(Sound, FiveThousandPlaysInARow) {
    initSound(0, 0);
    for (int i = 0; i < 5000; ++i) {
        playSample(static_cast<SampleIds>(i % 18), i % 256, i % 256, 500 + i % 2000);
        if (i % 64 == 0) {
            wait(1);
        }
    }
    shutdownSound();
    EXPECT_EQ(getVolume(AudioType::Effects), 0);
}

}  // namespace

}  // namespace vandrel
