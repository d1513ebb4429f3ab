// Drums and small percussion. A soft stroke is duller than a hard one, and no two takes are quite alike.
#include <array>
#include <cmath>

#include "audio/synth/effects.h"
#include "audio/synth/filters.h"
#include "audio/synth/oscillators.h"
#include "audio/tunes/instruments.h"

namespace vandrel::art {

namespace {

// Noise through a band, struck: the half of every drum.
Signal hiss(double seconds, double hertz, double resonance, double halfLife, std::uint32_t seed) {
    return shaped(resonantFilter(Pass::Band, noise(seconds, seed), hertz, resonance),
                  struckLevel(seconds, 0.0006, halfLife));
}

Signal kickDrum(double top, double ground, double halfLife, const Tone& tone) {
    const double seconds = halfLife * 7.0;
    const Signal pitch = glide(seconds, {{0.0, top}, {0.022, ground * 1.9}, {0.09, ground}, {seconds, ground * 0.9}});
    Signal result = shaped(oscillate(Wave::Sine, pitch), struckLevel(seconds, 0.001, halfLife));
    add(result, hiss(0.02, 2600.0, 0.8, 0.003, 811 + tone.take), 0.15 + 0.4 * tone.force);
    return softClipped(std::move(result), 1.3);
}

Signal kick(const Tone& tone) {
    return kickDrum(330.0, 52.0, 0.07, tone);
}

Signal softKick(const Tone& tone) {
    return gentleLowPass(kickDrum(170.0, 48.0, 0.06, tone), 900.0);
}

Signal snare(const Tone& tone) {
    constexpr double seconds = 0.32;
    const Signal pitch = glide(seconds, {{0.0, 320.0}, {0.02, 205.0}, {seconds, 186.0}});
    Signal result = shaped(oscillate(Wave::Sine, pitch), struckLevel(seconds, 0.0008, 0.032));
    add(result, hiss(seconds, 3400.0, 0.5, 0.02 + 0.035 * tone.force, 821 + tone.take), 0.9);
    add(result, hiss(seconds, 7200.0, 0.7, 0.016 + 0.02 * tone.force, 831 + tone.take), 0.5 * tone.force);
    return scaled(softClipped(std::move(result), 1.2), 0.8);
}

// A stick across the rim.
Signal rim(const Tone& tone) {
    constexpr std::array<Partial, 3> click{{{1.0, 0.7, 0.008}, {1.62, 0.5, 0.006}, {2.9, 0.3, 0.004}}};
    Signal result = struckPartials(0.09, 1120.0, click, 0.0004);
    add(result, hiss(0.03, 3000.0, 1.0, 0.004, 841 + tone.take), 0.4);
    return result;
}

// Several hands, never quite together.
Signal clap(const Tone& tone) {
    Signal result = silence(0.3);
    constexpr std::array<double, 4> hands{0.0, 0.0105, 0.0195, 0.0285};
    for (std::size_t i = 0; i < hands.size(); ++i) {
        const auto seed = 851 + tone.take * 7 + static_cast<std::uint32_t>(i);
        const double halfLife = i + 1 == hands.size() ? 0.034 : 0.0045;
        add(result, hiss(0.27, 1250.0 + 180.0 * static_cast<double>(i), 0.9, halfLife, seed), 0.9, hands[i]);
    }
    return scaled(gentleHighPass(std::move(result), 450.0), 1.6);
}

Signal hat(const Tone& tone) {
    const double halfLife = 0.008 + 0.012 * tone.force;
    return scaled(gentleHighPass(hiss(0.12, 8800.0, 0.6, halfLife, 871 + tone.take), 5500.0), 2.0);
}

Signal openHat(const Tone& tone) {
    return scaled(gentleHighPass(hiss(0.4, 8200.0, 0.6, 0.075, 881 + tone.take), 5000.0), 1.8);
}

Signal shaker(const Tone& tone) {
    const double rise = 0.03 - 0.018 * tone.force;
    const Signal level = line(0.14, {{0.0, 0.0}, {rise, 1.0}, {rise + 0.02, 0.5}, {0.13, 0.0}});
    return shaped(resonantFilter(Pass::Band, noise(0.14, 891 + tone.take), 6300.0, 0.9), level);
}

Signal tambourine(const Tone& tone) {
    constexpr std::array<Partial, 5> jingles{
        {{1.0, 0.16, 0.016}, {1.17, 0.16, 0.014}, {1.43, 0.14, 0.014}, {1.61, 0.1, 0.012}, {1.93, 0.1, 0.01}}};
    Signal result = struckPartials(0.25, 5100.0 + 190.0 * static_cast<double>(tone.take), jingles, 0.002);
    add(result, hiss(0.25, 7500.0, 0.8, 0.03, 901 + tone.take), 0.5);
    return scaled(std::move(result), 0.6);
}

Signal woodblock(double hertz) {
    const std::array<Partial, 3> block{{{1.0, 0.8, 0.014}, {2.45, 0.35, 0.008}, {4.1, 0.12, 0.005}}};
    return struckPartials(0.15, hertz, block, 0.0005);
}

Signal highBlock(const Tone&) {
    return woodblock(1180.0);
}

Signal lowBlock(const Tone&) {
    return woodblock(820.0);
}

Signal skin(double hertz, double halfLife, const Tone& tone) {
    const double seconds = halfLife * 7.0;
    const Signal pitch =
        glide(seconds, {{0.0, hertz * (1.2 + 0.5 * tone.force)}, {0.04, hertz * 1.04}, {seconds, hertz}});
    Signal result = shaped(oscillate(Wave::Sine, pitch), struckLevel(seconds, 0.001, halfLife));
    add(result, hiss(0.05, hertz * 5.0, 0.8, 0.006, 911 + tone.take), 0.4 * tone.force);
    return result;
}

Signal highConga(const Tone& tone) {
    return skin(330.0, 0.045, tone);
}

Signal lowConga(const Tone& tone) {
    return skin(220.0, 0.06, tone);
}

Signal lowTom(const Tone& tone) {
    return skin(92.0, 0.11, tone);
}

Signal highTom(const Tone& tone) {
    return skin(138.0, 0.09, tone);
}

Signal cowbell(const Tone&) {
    Signal wave = oscillate(Wave::Square, steady(0.3, 562.0));
    add(wave, oscillate(Wave::Square, steady(0.3, 845.0)));
    return scaled(shaped(resonantFilter(Pass::Band, wave, 1400.0, 1.1), struckLevel(0.3, 0.0008, 0.035)), 0.5);
}

// A cymbal that is hit once in a long while.
Signal cymbal(const Tone& tone) {
    Signal result = hiss(1.8, 6200.0, 0.4, 0.28, 921 + tone.take);
    add(result, hiss(1.8, 3100.0, 0.7, 0.1, 931 + tone.take), 0.4);
    return scaled(gentleHighPass(std::move(result), 2200.0), 0.8);
}

// Air drawn in, up to the beat that follows: noise that swells backwards over its length.
Signal swell(const Tone& tone) {
    const double seconds = tone.seconds;
    const Signal cutoff = glide(seconds, {{0.0, 500.0}, {seconds, 6500.0}});
    const Signal level = glide(seconds, {{0.0, 0.004}, {seconds - 0.03, 0.7}, {seconds, 0.0005}});
    return shaped(resonantFilter(Pass::Band, noise(seconds, 941 + tone.take), cutoff, 0.8), level);
}

constexpr std::array<Instrument, 18> instruments{{{"kick", kick},
                                                  {"softkick", softKick},
                                                  {"snare", snare},
                                                  {"rim", rim},
                                                  {"clap", clap},
                                                  {"hat", hat},
                                                  {"openhat", openHat},
                                                  {"shaker", shaker},
                                                  {"tambourine", tambourine},
                                                  {"highblock", highBlock},
                                                  {"lowblock", lowBlock},
                                                  {"highconga", highConga},
                                                  {"lowconga", lowConga},
                                                  {"lowtom", lowTom},
                                                  {"hightom", highTom},
                                                  {"cowbell", cowbell},
                                                  {"cymbal", cymbal},
                                                  {"swell", swell}}};

}  // namespace

std::span<const Instrument> drumInstruments() {
    return instruments;
}

}  // namespace vandrel::art
