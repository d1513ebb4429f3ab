// Small electric things: the remote control, the plug, and the tick that accompanies every menu.
#include <array>

#include "audio/sounds/sound.h"
#include "audio/synth/effects.h"
#include "audio/synth/filters.h"
#include "audio/synth/oscillators.h"

namespace vandrel::art {

namespace {

// A blip on the air: a tone that warbles between two pitches under a little static, as of a handset being switched on.
Signal radio() {
    constexpr double seconds = 0.4;
    const Signal warble = oscillate(Wave::Sine, glide(seconds, {{0.0, 34.0}, {seconds, 16.0}}));
    Signal pitch = glide(seconds, {{0.0, 620.0}, {0.06, 940.0}, {seconds, 880.0}});
    for (std::size_t frame = 0; frame < pitch.size(); ++frame) {
        pitch[frame] *= 1.0 + 0.16 * warble[frame];
    }
    const Signal level =
        line(seconds, {{0.0, 0.0}, {0.003, 1.0}, {0.04, 0.6}, {0.2, 0.45}, {0.34, 0.06}, {seconds, 0.0}});
    Signal result = shaped(frequencyModulated(pitch, 2.0, line(seconds, {{0.0, 2.4}, {0.3, 0.5}})), level);
    add(result, shaped(resonantFilter(Pass::Band, noise(0.06, 17), 2400.0, 1.2), struckLevel(0.06, 0.0005, 0.012)),
        0.7);
    return finished(resonantFilter(Pass::Low, result, 6500.0, 0.7), seconds, soundPeak, 0.05);
}

// A click of the contact, then a fifth upwards: d and a, sliding in.
Signal plug() {
    constexpr double seconds = 0.35;
    Signal result = silence(seconds);
    add(result, shaped(resonantFilter(Pass::Band, noise(0.02, 29), 2600.0, 1.8), struckLevel(0.02, 0.0004, 0.0025)),
        1.4);
    const auto note = [](double length, double from, double hertz) {
        const Signal pitch = glide(length, {{0.0, from}, {0.02, hertz}});
        Signal tone = pulseWave(pitch, 0.25);
        tone = resonantFilter(Pass::Low, tone, glide(length, {{0.0, 5200.0}, {length, 900.0}}), 1.2);
        return shaped(tone, line(length, {{0.0, 0.0}, {0.002, 1.0}, {length * 0.5, 0.6}, {length, 0.0}}));
    };
    add(result, note(0.12, 520.0, 587.3), 0.7, 0.012);
    add(result, note(0.19, 780.0, 881.0), 0.8, 0.125);
    return finished(result, seconds, soundPeak, 0.06);
}

// The most heard sound of all: a soft tick with a short upward slide, no edge to it. It has to be as mild at twice the
// speed.
Signal slide() {
    constexpr double seconds = 0.12;
    const Signal pitch = glide(seconds, {{0.0, 330.0}, {0.05, 520.0}, {seconds, 560.0}});
    Signal result = shaped(oscillate(Wave::Triangle, pitch),
                           line(seconds, {{0.0, 0.0}, {0.004, 1.0}, {0.016, 0.5}, {0.05, 0.28}, {0.11, 0.0}}));
    add(result, shaped(resonantFilter(Pass::Band, noise(0.012, 31), 1900.0, 1.0), struckLevel(0.012, 0.0006, 0.002)),
        0.6);
    return finished(gentleLowPass(result, 3200.0), seconds, soundPeak, 0.03);
}

constexpr std::array<Sound, 3> sounds{{{"FX012", radio}, {"Plugin", plug}, {"Slide", slide}}};

}  // namespace

std::span<const Sound> blipSounds() {
    return sounds;
}

}  // namespace vandrel::art
