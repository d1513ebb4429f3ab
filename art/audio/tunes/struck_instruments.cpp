// Instruments whose notes die away by themselves: bars, bells, strings that are plucked, electric keys.
#include <algorithm>
#include <array>
#include <cmath>

#include "audio/synth/effects.h"
#include "audio/synth/filters.h"
#include "audio/synth/oscillators.h"
#include "audio/tunes/instruments.h"

namespace vandrel::art {

namespace {

// Low bars ring longer than high ones, as on the instrument.
double ringOf(double hertz, double atMiddle) {
    return atMiddle * std::pow(262.0 / hertz, 0.45);
}

// Rosewood bars over tubes: the ground note, the fourth partial that makes the sound, a woolly knock.
Signal marimba(const Tone& tone) {
    const double ring = ringOf(tone.hertz, 0.16);
    const double bright = 0.14 + 0.3 * tone.force * tone.force;
    const std::array<Partial, 3> bar{{{1.0, 0.8, ring}, {3.93, bright, ring * 0.28}, {9.4, bright * 0.3, ring * 0.1}}};
    const double seconds = std::min(1.6, ring * 8.0);
    Signal result = struckPartials(seconds, tone.hertz, bar, 0.0015);
    const Signal knock = resonantFilter(Pass::Band, noise(0.03, 101 + tone.take), 500.0 + 900.0 * tone.force, 0.9);
    add(result, shaped(knock, struckLevel(0.03, 0.0005, 0.005)), 0.35);
    return result;
}

// Small steel plates, far up.
Signal glockenspiel(const Tone& tone) {
    const double ring = ringOf(tone.hertz, 0.9);
    const std::array<Partial, 3> plate{
        {{1.0, 0.7, ring}, {2.71, 0.22 * tone.force + 0.06, ring * 0.4}, {5.15, 0.1, ring * 0.15}}};
    return struckPartials(std::min(2.2, ring * 6.0), tone.hertz, plate, 0.0008);
}

// A soft bell of glass, for tension: partials just beside the natural ones.
Signal glass(const Tone& tone) {
    const std::array<Partial, 5> cup{
        {{1.0, 0.7, 0.42}, {1.003, 0.3, 0.4}, {2.0, 0.18, 0.22}, {3.01, 0.2, 0.13}, {5.43, 0.07, 0.06}}};
    return struckPartials(2.2, tone.hertz, cup, 0.002);
}

// Violins plucked by a fingertip: strings, and the box they stand on.
Signal pizzicato(const Tone& tone) {
    const double seconds = 0.7;
    const Signal string = pluckedString(seconds, tone.hertz, 0.35 + 0.3 * tone.force, 0.055, 211 + tone.take);
    Signal result = scaled(gentleLowPass(string, 4200.0), 0.8);
    add(result, resonantFilter(Pass::Band, string, 460.0, 1.4), 0.35);
    return shaped(std::move(result), line(seconds, {{0.0, 0.0}, {0.002, 1.0}, {0.5, 0.6}, {0.7, 0.0}}));
}

// A double bass under two fingers; damped when the note is over.
Signal uprightBass(const Tone& tone) {
    const double held = std::max(0.12, tone.seconds);
    const double seconds = std::min(1.6, held + 0.1);
    Signal result = scaled(pluckedString(seconds, tone.hertz, 0.24 + 0.2 * tone.force, 0.28, 307 + tone.take), 0.7);
    const Signal pitch = glide(seconds, {{0.0, tone.hertz * 1.02}, {0.04, tone.hertz}});
    add(result, shaped(oscillate(Wave::Sine, pitch), struckLevel(seconds, 0.006, 0.3)), 0.6);
    const Signal finger = resonantFilter(Pass::Band, noise(0.03, 311 + tone.take), 900.0, 0.8);
    add(result, shaped(finger, struckLevel(0.03, 0.001, 0.006)), 0.15);
    return shaped(std::move(result), line(seconds, {{0.0, 0.0}, {0.002, 1.0}, {seconds - 0.1, 1.0}, {seconds, 0.0}}));
}

// Electric piano: a tine under a pickup, which growls when hit hard.
Signal electricPiano(const Tone& tone) {
    const double held = std::max(0.1, tone.seconds);
    const double seconds = std::min(3.0, held + 0.22);
    const Signal pitch = steady(seconds, tone.hertz * (1.0 + 0.0006 * static_cast<double>(tone.take)));
    const double bite = (0.5 + 1.6 * tone.force) * std::clamp(std::pow(440.0 / tone.hertz, 0.5), 0.4, 1.4);
    Signal result = frequencyModulated(pitch, 1.0, scaled(struckLevel(seconds, 0.001, 0.22), bite));
    const Signal tine = frequencyModulated(pitch, 14.0, scaled(struckLevel(seconds, 0.001, 0.03), 0.5));
    add(result, shaped(tine, struckLevel(seconds, 0.001, 0.05)), 0.3 * tone.force);
    const Signal level = line(seconds, {{0.0, 0.0}, {0.002, 1.0}, {held, 0.8}, {seconds, 0.0}});
    return scaled(shaped(shaped(std::move(result), struckLevel(seconds, 0.002, 0.55)), level), 0.7);
}

// The synthetic pluck of an arpeggio: a saw whose filter shuts at once.
Signal synthPluck(const Tone& tone) {
    const double seconds = 0.55;
    const double open = tone.hertz * (4.0 + 9.0 * tone.force);
    const Signal cutoff =
        glide(seconds, {{0.0, std::min(9000.0, open)}, {0.07, tone.hertz * 2.6}, {seconds, tone.hertz}});
    Signal wave = oscillate(Wave::Saw, steady(seconds, tone.hertz * 1.0015), 0.2);
    add(wave, pulseWave(steady(seconds, tone.hertz * 0.9985), 0.4, 0.1 * static_cast<double>(tone.take)), 0.6);
    return scaled(shaped(resonantFilter(Pass::Low, wave, cutoff, 1.3), struckLevel(seconds, 0.002, 0.075)), 0.55);
}

// The bouncing bass: a rubber ball of saw and square, the filter says "wow" on each note.
Signal rubberBass(const Tone& tone) {
    const double held = std::max(0.06, tone.seconds);
    const double seconds = held + 0.05;
    const double from = tone.slideFrom > 0.0 ? tone.slideFrom : tone.hertz * 1.03;
    const double slide = tone.slideFrom > 0.0 ? 0.09 : 0.015;
    const Signal pitch = glide(seconds, {{0.0, from}, {slide, tone.hertz}});
    Signal wave = oscillate(Wave::Saw, pitch);
    add(wave, pulseWave(pitch, 0.5, 0.25), 0.5);
    const double open = 260.0 + 1500.0 * tone.force * tone.force;
    const Signal cutoff = glide(seconds, {{0.0, open * 0.45}, {0.02, open}, {0.14, 330.0}, {0.5, 190.0}});
    Signal result = scaled(resonantFilter(Pass::Low, wave, cutoff, 2.4), 0.5);
    add(result, oscillate(Wave::Sine, pitch), 0.55);
    const Signal level = line(seconds, {{0.0, 0.0}, {0.003, 1.0}, {held * 0.6, 0.85}, {held, 0.6}, {seconds, 0.0}});
    return scaled(softClipped(shaped(std::move(result), level), 1.4), 0.75);
}

// Disco bass, plucked with a pick: tight, bright at the front.
Signal pickedBass(const Tone& tone) {
    const double held = std::max(0.08, tone.seconds);
    const double seconds = held + 0.06;
    Signal result = scaled(pluckedString(seconds, tone.hertz, 0.5 + 0.25 * tone.force, 0.4, 401 + tone.take), 0.55);
    const Signal pitch = steady(seconds, tone.hertz);
    const Signal cutoff = glide(seconds, {{0.0, 900.0 + 1800.0 * tone.force}, {0.1, 420.0}, {0.6, 240.0}});
    add(result, resonantFilter(Pass::Low, oscillate(Wave::Saw, pitch), cutoff, 1.6), 0.35);
    add(result, oscillate(Wave::Sine, pitch), 0.4);
    const Signal level = line(seconds, {{0.0, 0.0}, {0.002, 1.0}, {held, 0.7}, {seconds, 0.0}});
    return softClipped(shaped(std::move(result), level), 1.1);
}

constexpr std::array<Instrument, 9> instruments{{{"marimba", marimba},
                                                 {"glockenspiel", glockenspiel},
                                                 {"glass", glass},
                                                 {"pizzicato", pizzicato},
                                                 {"upright", uprightBass},
                                                 {"keys", electricPiano},
                                                 {"pluck", synthPluck},
                                                 {"rubber", rubberBass},
                                                 {"picked", pickedBass}}};

}  // namespace

std::span<const Instrument> struckInstruments() {
    return instruments;
}

}  // namespace vandrel::art
