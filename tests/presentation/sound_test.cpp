#include "presentation/sound.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
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

TEST_F(Sound, TheFourthOfASampleFadesTheFirstAndLeavesTheOthers) {
    initSound(100, 100);
    bool smooth = false;
    // A busy machine may mix a whole fade away between two blocks; it does not do so time and again.
    for (int attempt = 0; attempt < 5 && !smooth; ++attempt) {
        const FourPlays heard = playFour();
        const auto& first = heard.levels[0];
        const std::size_t fourth = heard.fourthBegins;
        ASSERT_LT(fourth + 50, first.size()) << "the fourth was not heard";
        EXPECT_NEAR(middle(first, fourth - 20, fourth - 5), expectedLevel, 0.02) << "three play side by side";
        const std::size_t faded = firstStretch(first, fourth, [](double level) { return level < expectedLevel / 10; });
        RecordProperty("fade_ms", static_cast<int>(faded - fourth) * 10);
        EXPECT_LE(faded, fourth + 30);
        EXPECT_LT(middle(first, fourth + 30, first.size()), 0.005);
        for (std::size_t i = 1; i < pitches.size(); ++i) {
            EXPECT_NEAR(middle(heard.levels[i], fourth + 10, fourth + 90), expectedLevel, 0.02) << "number " << i + 1;
        }
        int between = 0;
        for (std::size_t i = fourth > 5 ? fourth - 5 : 0; i < fourth + 30; ++i) {
            between += first[i] > expectedLevel * 0.05 && first[i] < expectedLevel * 0.93 ? 1 : 0;
        }
        smooth = between >= 2;
        // Ends what still sounds: the next attempt begins in silence.
        shutdownSound();
        initSound(100, 100);
        wait(200);
    }
    EXPECT_TRUE(smooth) << "cut off, not faded";
}

TEST_F(Sound, SamplesHaveQueuesOfTheirOwn) {
    initSound(100, 100);
    SoundRecording recording;
    for (const SampleIds id : {SampleIds::Beat2, SampleIds::Fire, SampleIds::Snake, SampleIds::Wimbaah}) {
        playSample(id, quarterVolume, centrePan, speeds[static_cast<std::size_t>(id) % 4]);
    }
    playSample(SampleIds::Blart, quarterVolume, centrePan, 2000);
    wait(600);
    recording.finish();
    // Beat2 and Blart among them: four samples at three pitches, and one an octave up.
    const auto octave = recording.levels(1000);
    const std::size_t begin = firstStretch(octave, 0, [](double level) { return level > 0.1; });
    EXPECT_NEAR(middle(octave, begin + 5, octave.size()), expectedLevel, 0.02);
    EXPECT_GT(middle(recording.levels(500), begin + 5, octave.size()), 0.15);
    EXPECT_GT(middle(recording.levels(600), begin + 5, octave.size()), 0.15);
    EXPECT_GT(middle(recording.levels(700), begin + 5, octave.size()), 0.15);
}

// The levels of one sample on both sides, at the pitch that is expected.
struct Heard {
    double left;
    double right;
};

Heard hear(int volume, int pan, int speed, int pitch) {
    SoundRecording recording;
    playSample(SampleIds::Gong2, volume, pan, speed);
    wait(500);
    recording.finish();
    const auto left = recording.levels(pitch, 0);
    const auto right = recording.levels(pitch, 1);
    const std::size_t begin = std::min(firstStretch(left, 0, [](double level) { return level > 0.05; }),
                                       firstStretch(right, 0, [](double level) { return level > 0.05; }));
    return {middle(left, begin + 3, left.size()), middle(right, begin + 3, right.size())};
}

TEST_F(Sound, VolumePanAndSpeed) {
    struct Case {
        const char* what;
        int volume;
        int pan;
        int speed;
        int pitch;
        double left;
        double right;
    };
    const Case cases[] = {
        {"no panning leaves both sides whole", 100, 128, 1000, 500, 0.383, 0.383},
        {"a centred pan would share the power", 100, 127, 1000, 500, 0.271, 0.270},
        {"the left edge", 100, 0, 1000, 500, 0.383, 0},
        {"the right edge", 100, 255, 1000, 500, 0, 0.383},
        {"twice the volume", 200, 128, 1000, 500, 0.766, 0.766},
        {"an octave up", 100, 128, 2000, 1000, 0.383, 0.383},
        {"an octave down", 100, 128, 500, 250, 0.383, 0.383},
    };
    for (const Case& row : cases) {
        initSound(100, 100);
        const Heard heard = hear(row.volume, row.pan, row.speed, row.pitch);
        EXPECT_NEAR(heard.left, row.left, 0.02) << row.what;
        EXPECT_NEAR(heard.right, row.right, 0.02) << row.what;
        shutdownSound();
    }
}

TEST_F(Sound, NoVolumeSilencesWhatGoesOn) {
    initSound(60, 100);
    EXPECT_EQ(getVolume(AudioType::Effects), 60);
    EXPECT_EQ(getVolume(AudioType::Music), 100);
    SoundRecording recording;
    playSample(SampleIds::Slide, 100);
    wait(500);
    setVolume(AudioType::Effects, 0);
    wait(500);
    setVolume(AudioType::Effects, 100);
    EXPECT_EQ(getVolume(AudioType::Effects), 100);
    wait(600);
    recording.finish();
    const auto levels = recording.levels(test::sampleTone);
    const std::size_t begin = firstStretch(levels, 0, [](double level) { return level > 0.1; });
    EXPECT_NEAR(middle(levels, begin, begin + 40), 0.6 * 0.383, 0.02);
    const std::size_t silent = firstStretch(levels, begin, [](double level) { return level < 0.01; });
    EXPECT_LT(middle(levels, silent, silent + 30), 0.001);
    const std::size_t again = firstStretch(levels, silent + 20, [](double level) { return level > 0.2; });
    EXPECT_NEAR(middle(levels, again + 3, levels.size()), 0.383, 0.02) << "the same instance, heard again";
}

TEST_F(Sound, ShutdownSilencesAndIsSafeAtAnyTime) {
    shutdownSound();
    initSound(100, 100);
    playSample(SampleIds::Rocket);
    for (int i = 0; i < 50; ++i) {
        playSample(SampleIds::Fire);
    }
    shutdownSound();
    shutdownSound();
    SoundRecording recording;
    playSample(SampleIds::Fire);
    wait(300);
    recording.finish();
    const auto levels = recording.levels(test::sampleTone);
    EXPECT_LT(middle(levels, levels.size() - 15, levels.size()), 0.001);
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
