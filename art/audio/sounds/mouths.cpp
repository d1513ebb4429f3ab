// Rude and funny noises, as if made with a mouth: the raspberry, the plop and the wail.
#include <array>

#include "audio/sounds/sound.h"
#include "audio/synth/effects.h"
#include "audio/synth/filters.h"
#include "audio/synth/oscillators.h"

namespace vandrel::art {

namespace {

// A short raspberry: a low square wave that flutters and falls, through a half-open mouth.
Signal raspberry() {
    constexpr double seconds = 0.35;
    Signal pitch = glide(seconds, {{0.0, 128.0}, {0.08, 112.0}, {0.3, 72.0}, {seconds, 64.0}});
    const Signal flutter = resonantFilter(Pass::Low, noise(seconds, 51), 60.0, 0.8);
    for (std::size_t frame = 0; frame < pitch.size(); ++frame) {
        pitch[frame] *= 1.0 + 1.2 * flutter[frame];
    }
    const Signal buzz = oscillate(Wave::Square, pitch);
    Signal result =
        scaled(resonantFilter(Pass::Band, buzz, glide(seconds, {{0.0, 720.0}, {seconds, 420.0}}), 1.6), 1.0);
    add(result, resonantFilter(Pass::Band, buzz, 1700.0, 2.5), 0.45);
    add(result, resonantFilter(Pass::Low, buzz, 260.0, 0.8), 0.35);
    add(result, shaped(resonantFilter(Pass::Band, noise(seconds, 52), 2300.0, 1.0), buzz), 0.25);
    const Signal level = line(seconds, {{0.0, 0.0}, {0.006, 1.0}, {0.05, 0.6}, {0.2, 0.5}, {0.3, 0.2}, {seconds, 0.0}});
    return finished(shaped(softClipped(result, 1.3), level), seconds, soundPeak, 0.03);
}

// A wet plop with a body. Heard at 0.4 to 3 times its pitch: the bubble at 300 hertz is a thud when slow and a pop when
// fast, and the squelch above it lies low enough to survive three times.
Signal splurge() {
    constexpr double seconds = 0.45;
    const Signal bubble = glide(seconds, {{0.0, 310.0}, {0.02, 240.0}, {0.09, 580.0}, {0.13, 760.0}, {seconds, 800.0}});
    Signal result =
        shaped(oscillate(Wave::Sine, bubble), line(seconds, {{0.0, 0.0}, {0.0015, 1.0}, {0.08, 0.7}, {0.15, 0.0}}));
    const Signal second = glide(seconds, {{0.12, 280.0}, {0.26, 540.0}});
    add(result, shaped(oscillate(Wave::Sine, second), line(seconds, {{0.12, 0.0}, {0.15, 0.6}, {0.3, 0.0}})), 0.6);
    const Signal third = glide(seconds, {{0.2, 330.0}, {0.3, 690.0}});
    add(result, shaped(oscillate(Wave::Sine, third), line(seconds, {{0.2, 0.0}, {0.22, 0.5}, {0.33, 0.0}})), 0.4);

    const Signal vowel = glide(seconds, {{0.0, 480.0}, {0.05, 2300.0}, {0.2, 700.0}, {seconds, 300.0}});
    const Signal squelch = resonantFilter(Pass::Band, noise(seconds, 57), vowel, 4.0);
    add(result, shaped(squelch, struckLevel(seconds, 0.001, 0.055)), 2.6);
    add(result,
        shaped(oscillate(Wave::Sine, glide(seconds, {{0.0, 130.0}, {0.1, 74.0}})), struckLevel(seconds, 0.002, 0.045)),
        0.45);
    return finished(softClipped(result, 1.1), seconds, soundPeak, 0.06);
}

// One of the two wailers: a reedy wave through the vowels of "wim-baah", falling in three sobs.
Signal wail(double from, double to, double wobble) {
    constexpr double seconds = 0.9;
    Signal pitch = glide(seconds, {{0.0, from * 0.8},
                                   {0.09, from},
                                   {0.2, from * 0.94},
                                   {0.26, from * 0.98},
                                   {0.5, from * 0.7},
                                   {0.56, from * 0.74},
                                   {seconds, to}});
    pitch = vibrato(std::move(pitch), wobble, 0.55, 0.4);
    const Signal reed = pulseWave(pitch, 0.3);
    // The mouth: closed on "m" at 0.2 seconds, wide open on "aah".
    const Signal first =
        glide(seconds, {{0.0, 320.0}, {0.08, 420.0}, {0.2, 260.0}, {0.27, 760.0}, {0.6, 800.0}, {seconds, 480.0}});
    const Signal next =
        glide(seconds, {{0.0, 900.0}, {0.08, 1900.0}, {0.2, 900.0}, {0.27, 1250.0}, {0.6, 1350.0}, {seconds, 900.0}});
    Signal result = resonantFilter(Pass::Band, reed, first, 3.5);
    add(result, resonantFilter(Pass::Band, reed, next, 5.0), 0.6);
    add(result, resonantFilter(Pass::Low, reed, 240.0, 0.7), 0.15);
    return shaped(std::move(result), line(seconds, {{0.0, 0.0},
                                                    {0.006, 0.75},
                                                    {0.09, 1.0},
                                                    {0.19, 0.45},
                                                    {0.28, 1.0},
                                                    {0.5, 0.8},
                                                    {0.53, 0.6},
                                                    {0.58, 0.75},
                                                    {0.85, 0.1},
                                                    {seconds, 0.0}}));
}

Signal wailOfTwo() {
    Signal result = wail(392.0, 118.0, 7.0);
    add(result, wail(311.1, 92.0, 6.1), 0.75);
    return finished(softClipped(result, 1.2), 0.9, soundPeak, 0.06);
}

constexpr std::array<Sound, 3> sounds{{{"Blart", raspberry}, {"Splurge", splurge}, {"Wimbaah", wailOfTwo}}};

}  // namespace

std::span<const Sound> mouthSounds() {
    return sounds;
}

}  // namespace vandrel::art
