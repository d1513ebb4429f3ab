// The synthesiser's promises: pitch, filters, rooms that wrap round, files that read back, the same numbers every time.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <numbers>
#include <string>
#include <tuple>

#include "art/signal_measures.h"
#include "audio/synth/effects.h"
#include "audio/synth/filters.h"
#include "audio/synth/oscillators.h"
#include "audio/synth/wav_file.h"
#include "audio/tunes/instruments.h"

namespace vandrel::art {
namespace {

// How much of `hertz` is in the signal.
double strengthAt(const Signal& signal, double hertz) {
    double cosine = 0.0;
    double sine = 0.0;
    for (std::size_t i = 0; i < signal.size(); ++i) {
        const double angle = 2.0 * std::numbers::pi * hertz * static_cast<double>(i) / sampleRate;
        cosine += signal[i] * std::cos(angle);
        sine += signal[i] * std::sin(angle);
    }
    return std::hypot(cosine, sine) / static_cast<double>(signal.size());
}

double energyOf(const Signal& signal) {
    return rms(signal) * rms(signal);
}

TEST(Synth, WavesAreAtTheirPitchAndHighOnesDoNotFoldBack) {
    for (const Wave wave : {Wave::Sine, Wave::Triangle, Wave::Saw, Wave::Square}) {
        const Signal tone = oscillate(wave, steady(1.0, 3000.0));
        EXPECT_GT(strengthAt(tone, 3000.0), 0.25);
        // The 9th partial of 3,000 hertz would come back from the edge at 17,100.
        EXPECT_LT(strengthAt(tone, sampleRate - 9.0 * 3000.0), 0.02) << static_cast<int>(wave);
    }
}

TEST(Synth, StringsAreInTuneOverTheirWholeCompass) {
    for (const double hertz : {41.2, 110.0, 261.6, 440.0, 880.0}) {
        const Signal string = pluckedString(1.0, hertz, 0.5, 0.5, 3);
        const double here = strengthAt(string, hertz);
        for (const double cents : {-20.0, 20.0}) {
            EXPECT_GT(here, strengthAt(string, hertz * std::exp2(cents / 1200.0)) * (hertz > 100.0 ? 1.5 : 1.0))
                << hertz;
        }
    }
}

TEST(Synth, InstrumentsSoundAtTheNoteThatIsWritten) {
    int checked = 0;
    for (const auto shelf : {struckInstruments(), heldInstruments()}) {
        for (const Instrument& instrument : shelf) {
            for (const double hertz : {220.0, 440.0}) {
                const Signal note = instrument.play({.hertz = hertz, .seconds = 1.0});
                double strongest = 0.0;
                double found = 0.0;
                for (double cents = -90.0; cents <= 90.0; cents += 5.0) {
                    const double strength = strengthAt(note, hertz * std::exp2(cents / 1200.0));
                    if (strength > strongest) {
                        strongest = strength;
                        found = cents;
                    }
                }
                EXPECT_LE(std::abs(found), 15.0) << instrument.name << " at " << hertz;
                EXPECT_GT(strongest, 0.01) << instrument.name << " at " << hertz;
                ++checked;
            }
        }
    }
    EXPECT_GT(checked, 20);
}

TEST(Synth, EveryInstrumentStartsAndEndsWithoutAClickAndIsTheSameTwice) {
    for (const auto shelf : {struckInstruments(), heldInstruments(), drumInstruments()}) {
        for (const Instrument& instrument : shelf) {
            const Tone tone{.hertz = 330.0, .seconds = 0.4, .force = 0.8, .take = 1};
            const Signal note = instrument.play(tone);
            const double peak = peakOf(note);
            EXPECT_GT(peak, 0.1) << instrument.name;
            EXPECT_LT(peak, 3.0) << instrument.name;
            EXPECT_LT(std::abs(note.front()), 0.1 * peak) << instrument.name;
            EXPECT_LT(std::abs(note.back()), 0.03 * peak) << instrument.name;
            EXPECT_EQ(note, instrument.play(tone)) << instrument.name;
        }
    }
}

TEST(Synth, FiltersKeepOneSideAndTakeTheOther) {
    const Signal hiss = noise(0.5, 1);
    const auto through = [](Pass pass, double hertz) {
        const Signal tone = oscillate(Wave::Sine, steady(0.5, hertz));
        return energyOf(resonantFilter(pass, tone, 1500.0, 0.7)) / energyOf(tone);
    };
    for (const auto& [pass, kept, taken] :
         {std::tuple{Pass::Low, 200.0, 8000.0}, {Pass::High, 8000.0, 200.0}, {Pass::Band, 1500.0, 12000.0}}) {
        EXPECT_NEAR(through(pass, kept), 1.0, 0.15) << static_cast<int>(pass);
        EXPECT_LT(through(pass, taken), 0.03) << static_cast<int>(pass);
    }
    EXPECT_LT(energyOf(gentleLowPass(hiss, 500.0)), 0.1 * energyOf(hiss));
}

TEST(Synth, ControlCurvesPassTheirPointsAndStandStillBeyond) {
    const Signal straight = line(1.0, {{0.25, 2.0}, {0.75, 4.0}});
    EXPECT_DOUBLE_EQ(straight.front(), 2.0);
    EXPECT_NEAR(straight[framesIn(0.5)], 3.0, 1e-3);
    EXPECT_DOUBLE_EQ(straight.back(), 4.0);
    EXPECT_NEAR(glide(1.0, {{0.0, 100.0}, {1.0, 400.0}})[framesIn(0.5)], 200.0, 0.1);
}

TEST(Synth, AFinishedSoundHasItsPeakItsLengthAndQuietEnds) {
    Signal raw = steady(0.3, 0.2);
    add(raw, noise(0.3, 9), 0.5);
    const Signal sound = finished(raw, 0.25, -3.0);
    ASSERT_EQ(sound.size(), framesIn(0.25));
    EXPECT_NEAR(peakOf(sound), gainOf(-3.0), 1e-9);
    EXPECT_DOUBLE_EQ(sound.front(), 0.0);
    EXPECT_DOUBLE_EQ(sound.back(), 0.0);
    EXPECT_NEAR(meanOf(sound), 0.0, 1e-9);
}

TEST(Synth, RoomAndEchoOfALoopRingRoundItsEnd) {
    Signal click = silence(2.0);
    click[click.size() - 100] = 1.0;
    const StereoSignal room = loopedRoom(click, 0.2, 5000.0);
    const StereoSignal echo = loopedPingPong(click, 0.25, 0.5);
    const auto firstHalf = [](const Signal& signal) {
        return energyOf(Signal(signal.begin(), signal.begin() + static_cast<std::ptrdiff_t>(signal.size() / 2)));
    };
    EXPECT_GT(firstHalf(room.left), 0.5 * energyOf(room.left));
    EXPECT_GT(firstHalf(echo.left), 0.5 * energyOf(echo.left));
    EXPECT_GT(firstHalf(echo.right), 0.5 * energyOf(echo.right));
    // It dies away: what has been ringing for a whole second is below a hundredth.
    EXPECT_LT(std::abs(room.left[framesIn(1.5)]), 0.01 * peakOf(room.left));
}

TEST(Synth, TheLimiterHoldsItsCeilingAndLeavesQuietLoopsAlone) {
    StereoSignal loud{scaled(noise(1.0, 5), 2.0), scaled(noise(1.0, 6), 0.1)};
    limitLoop(loud, 0.5);
    EXPECT_LE(peakOf(loud.left), 0.5 + 1e-9);
    EXPECT_LT(peakOf(loud.right), 0.1);  // both sides dip together, or the picture would wander
    StereoSignal quiet{scaled(noise(0.2, 5), 0.4), scaled(noise(0.2, 6), 0.4)};
    const Signal before = quiet.left;
    limitLoop(quiet, 0.5);
    EXPECT_EQ(quiet.left, before);
}

TEST(Synth, WavFilesReadBackAndStrangersAreRefused) {
    const auto folder = std::filesystem::temp_directory_path() / "vandrel_wav_test";
    const auto path = folder / "tone.wav";
    const Signal tone = scaled(oscillate(Wave::Sine, steady(0.1, 440.0)), 0.5);
    writeWav(path, tone);
    const Signal back = readMonoWav(path);
    ASSERT_EQ(back.size(), tone.size());
    for (std::size_t i = 0; i < tone.size(); ++i) {
        ASSERT_NEAR(back[i], tone[i], 1.0 / 65536.0 + 1e-9);
    }
    writeWav(path, StereoSignal{tone, tone});
    EXPECT_THROW(readMonoWav(path), std::runtime_error);
    EXPECT_THROW(readMonoWav(folder / "none.wav"), std::runtime_error);
    EXPECT_THROW(writeWav(path / "below_a_file.wav", tone), std::exception);
    std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace vandrel::art
