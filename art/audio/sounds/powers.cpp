// Great powers picked up: strength, and the annihilator.
#include <array>

#include "audio/sounds/sound.h"
#include "audio/synth/effects.h"
#include "audio/synth/filters.h"
#include "audio/synth/oscillators.h"

namespace vandrel::art {

namespace {

// A major chord climbed in six quick notes, under it a growl that flexes.
Signal strength() {
    constexpr double seconds = 0.8;
    constexpr std::array<double, 6> notes{261.6, 329.6, 392.0, 523.3, 659.3, 784.0};
    Signal result = silence(seconds);
    double place = 0.0;
    for (const double hertz : notes) {
        const bool last = hertz == notes.back();
        const double length = last ? seconds - place : 0.11;
        Signal note = pulseWave(vibrato(steady(length, hertz), 7.0, last ? 0.3 : 0.0, 0.2), 0.35);
        note = resonantFilter(Pass::Low, note, glide(length, {{0.0, 4200.0}, {length, 1100.0}}), 1.0);
        const Signal level = last ? line(length, {{0.0, 0.0}, {0.002, 1.0}, {length * 0.6, 0.5}, {length, 0.0}})
                                  : line(length, {{0.0, 0.0}, {0.002, 1.0}, {length, 0.25}});
        add(result, shaped(std::move(note), level), 0.55, place);
        place += 0.075;
    }
    const Signal low = vibrato(glide(seconds, {{0.0, 65.4}, {0.4, 98.0}, {seconds, 130.8}}), 27.0, 1.4);
    const Signal flex = glide(seconds, {{0.0, 240.0}, {0.4, 1100.0}, {seconds, 300.0}});
    const Signal growl = resonantFilter(Pass::Low, oscillate(Wave::Saw, low), flex, 3.0);
    add(result, shaped(growl, line(seconds, {{0.0, 0.0}, {0.003, 0.5}, {0.4, 1.0}, {seconds, 0.0}})), 0.45);
    return finished(softClipped(result, 1.1), seconds, fullVolumePickupPeak, 0.08);
}

// Something dreadful awakes: a diminished chord of detuned saws that sinks and closes, over a throb.
Signal annihilator() {
    constexpr double seconds = 0.9;
    constexpr std::array<double, 4> chord{146.8, 174.6, 207.7, 246.9};
    Signal result = silence(seconds);
    for (const double hertz : chord) {
        for (const double detune : {0.994, 1.0065}) {
            const double start = hertz * detune;
            const Signal pitch = glide(seconds, {{0.0, start}, {0.12, start * 0.985}, {seconds, start * 0.63}});
            add(result, oscillate(Wave::Saw, pitch, detune * 17.0), 0.2);
        }
    }
    result = resonantFilter(Pass::Low, result, glide(seconds, {{0.0, 3600.0}, {0.2, 1700.0}, {seconds, 260.0}}), 2.0);
    const Signal throb = oscillate(Wave::Sine, glide(seconds, {{0.0, 13.0}, {seconds, 7.0}}));
    add(result, shaped(result, throb), 0.35);
    add(result, oscillate(Wave::Sine, glide(seconds, {{0.0, 73.4}, {seconds, 46.0}})), 0.5);
    result = shaped(std::move(result), line(seconds, {{0.0, 0.0}, {0.004, 1.0}, {0.45, 0.75}, {seconds, 0.0}}));
    return finished(softClipped(result, 1.1), seconds, fullVolumePickupPeak, 0.12);
}

constexpr std::array<Sound, 2> sounds{{{"Strength", strength}, {"Pickup_Anh", annihilator}}};

}  // namespace

std::span<const Sound> powerSounds() {
    return sounds;
}

}  // namespace vandrel::art
