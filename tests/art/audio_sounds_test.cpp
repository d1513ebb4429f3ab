// The 18 sounds as they lie in the game's folder: each as long, as loud and as clean as the game relies on.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <set>
#include <string>
#include <tuple>
#include <utility>

#include "art/signal_measures.h"
#include "audio/sounds/sound.h"
#include "audio/synth/filters.h"
#include "audio/synth/wav_file.h"

namespace vandrel::art {
namespace {

const std::filesystem::path soundFolder = std::filesystem::path(VANDREL_SOURCE_DIR) / "game" / "newSound";

// With their seconds, and the decibels of their peak.
constexpr std::tuple<const char*, double, double> expectedSounds[] = {
    {"Beat2", 1.769, -3.0},    {"Blart", 0.35, -3.0},   {"Cash2", 0.18, -3.0},     {"CrapDing", 0.6, -3.0},
    {"Explosion1", 0.9, -3.0}, {"Fire", 0.6, -3.0},     {"Flamer", 0.7, -6.0},     {"FX012", 0.4, -3.0},
    {"Gong2", 2.2, -3.0},      {"HitBass", 0.35, -3.0}, {"Pickup_Anh", 0.9, -6.0}, {"Plugin", 0.35, -3.0},
    {"Rocket", 0.8, -6.0},     {"Slide", 0.12, -3.0},   {"Snake", 0.9, -6.0},      {"Splurge", 0.45, -3.0},
    {"Strength", 0.8, -6.0},   {"Wimbaah", 0.9, -3.0},
};

Signal soundNamed(const std::string& name) {
    return readMonoWav(soundFolder / (name + ".wav"));
}

double inDecibels(double factor) {
    return 20.0 * std::log10(std::max(factor, 1e-9));
}

// The share of the sound's strength that lies above `hertz`, in decibels.
double shareAbove(const Signal& sound, double hertz) {
    return inDecibels(rms(resonantFilter(Pass::High, resonantFilter(Pass::High, sound, hertz, 0.7), hertz, 0.7)) /
                      rms(sound));
}

Signal partOf(const Signal& sound, double from, double to) {
    return {sound.begin() + static_cast<std::ptrdiff_t>(framesIn(from)),
            sound.begin() + static_cast<std::ptrdiff_t>(framesIn(to))};
}

TEST(Sounds, HaveTheirLengthAndPeakStartAtOnceAndEndInSilence) {
    for (const auto& [name, seconds, decibels] : expectedSounds) {
        SCOPED_TRACE(name);
        const Signal sound = soundNamed(name);
        ASSERT_EQ(sound.size(), framesIn(seconds));
        const double peak = peakOf(sound);
        EXPECT_NEAR(inDecibels(peak), decibels, 0.01);

        // Within 2 ms something is heard, and it does not begin with a step.
        EXPECT_GT(peakOf(partOf(sound, 0.0, 0.002)), 0.05 * peak);
        EXPECT_LT(std::abs(sound.front()), 0.001);

        EXPECT_LT(inDecibels(peakOf(partOf(sound, seconds - 0.005, seconds))), -50.0);
        EXPECT_LT(std::abs(sound.back()), 0.0005);

        EXPECT_LT(std::abs(meanOf(sound)), 0.0002);
    }
}

TEST(Sounds, TheFolderHoldsTheEighteenAndTheRecipesMakeThemTheSameAgain) {
    std::set<std::string> wanted;
    for (const auto& expected : expectedSounds) {
        wanted.insert(std::string(std::get<0>(expected)) + ".wav");
    }
    std::set<std::string> found;
    for (const auto& entry : std::filesystem::directory_iterator(soundFolder)) {
        found.insert(entry.path().filename().string());
    }
    EXPECT_EQ(found, wanted);

    std::set<std::string> made;
    for (const auto family : {bellSounds(), drumSounds(), gustSounds(), blipSounds(), mouthSounds(), powerSounds()}) {
        for (const Sound& sound : family) {
            const Signal again = sound.make();
            EXPECT_EQ(again, sound.make()) << sound.name;
            EXPECT_TRUE(made.insert(std::string(sound.name) + ".wav").second) << sound.name << " is made twice";
            const Signal file = soundNamed(sound.name);
            ASSERT_EQ(file.size(), again.size());
            for (std::size_t i = 0; i < file.size(); ++i) {
                ASSERT_NEAR(file[i], again[i], 1.0 / 32768.0) << sound.name << " at frame " << i;
            }
        }
    }
    EXPECT_EQ(made, wanted);
}

// A sound that is played faster moves up; what would pass 22,050 hertz comes back as noise, so it must not be there.
TEST(Sounds, ThoseThatArePlayedFastKeepNothingThatWouldFoldBack) {
    for (const auto& [name, speed] : {std::pair("Fire", 3.0),
                                      {"Splurge", 3.0},
                                      {"CrapDing", 3.0},
                                      {"Gong2", 2.0},
                                      {"Explosion1", 2.0},
                                      {"Slide", 2.0},
                                      {"Wimbaah", 2.0}}) {
        EXPECT_LT(shareAbove(soundNamed(name), 22050.0 / speed), -24.0) << name;
    }
}

TEST(Sounds, ThoseThatArePlayedSlowlyAreStillHeardOnSmallSpeakers) {
    for (const auto& [name, speed] : {std::pair("Splurge", 0.4), {"CrapDing", 0.5}, {"Plugin", 0.8}, {"FX012", 0.8}}) {
        EXPECT_GT(shareAbove(soundNamed(name), 150.0 / speed), -6.0) << name;
    }
}

TEST(Sounds, HaveTheShapeTheirMomentAsksFor) {
    // The explosion is a thump with a tail: mostly below 1,000 hertz, and half gone after a third of it.
    const Signal explosion = soundNamed("Explosion1");
    EXPECT_LT(shareAbove(explosion, 2000.0), -12.0);
    EXPECT_GT(rms(partOf(explosion, 0.0, 0.3)), 4.0 * rms(partOf(explosion, 0.6, 0.9)));

    // The gong rings: after a second it is still there.
    const Signal gong = soundNamed("Gong2");
    EXPECT_GT(inDecibels(rms(partOf(gong, 1.0, 1.2))), -40.0);

    // Ignition and rocket rise: brighter later than sooner.
    for (const char* name : {"Flamer", "Rocket"}) {
        const Signal sound = soundNamed(name);
        EXPECT_GT(shareAbove(partOf(sound, 0.4, 0.6), 1800.0), shareAbove(partOf(sound, 0.05, 0.2), 1800.0) + 3.0)
            << name;
    }

    // The four beats fall on the beat, 0.442 seconds apart, each clearly louder than what stands before it.
    const Signal beats = soundNamed("Beat2");
    for (int beat = 1; beat < 4; ++beat) {
        const double place = 1.769 / 4.0 * beat;
        EXPECT_GT(rms(partOf(beats, place, place + 0.03)), 1.8 * rms(partOf(beats, place - 0.03, place))) << beat;
    }

    // The coin is over, to the ear, before the next one at ten a second.
    const Signal coin = soundNamed("Cash2");
    EXPECT_LT(rms(partOf(coin, 0.13, 0.18)), 0.25 * rms(partOf(coin, 0.05, 0.1)));
}

}  // namespace
}  // namespace vandrel::art
