// Instruments whose notes last as long as they are held: winds, brass, organ, pads, synthetic leads.
#include <algorithm>
#include <array>
#include <cmath>

#include "audio/synth/effects.h"
#include "audio/synth/filters.h"
#include "audio/synth/oscillators.h"
#include "audio/tunes/instruments.h"

namespace vandrel::art {

namespace {

// Rise, stay, and fall after the note is released; `seconds` is the whole.
Signal heldLevel(double seconds, double attack, double held, double release, double sustain) {
    const double top = std::min(attack, held * 0.8);
    return line(
        seconds,
        {{0.0, 0.0}, {top, 1.0}, {std::max(top + 0.001, held), sustain}, {std::max(top + 0.001, held) + release, 0.0}});
}

// The pitch of a wind or a voice: slides when asked to, else scoops a little, and wavers once it is held.
Signal livingPitch(const Tone& tone, double seconds, double scoop, double waver) {
    const double from = tone.slideFrom > 0.0 ? tone.slideFrom : tone.hertz * scoop;
    const double time = tone.slideFrom > 0.0 ? 0.08 : 0.03;
    return vibrato(glide(seconds, {{0.0, from}, {time, tone.hertz}}), 5.3 + 0.2 * static_cast<double>(tone.take), waver,
                   0.4);
}

// A clay flute: nearly a sine, some breath.
Signal ocarina(const Tone& tone) {
    const double seconds = tone.seconds + 0.07;
    const Signal pitch = livingPitch(tone, seconds, 0.985, 0.22);
    Signal result = scaled(oscillate(Wave::Sine, pitch), 0.75);
    add(result, oscillate(Wave::Triangle, pitch), 0.2);
    add(result, oscillate(Wave::Sine, scaled(pitch, 2.0)), 0.06 + 0.08 * tone.force);
    const Signal breath = resonantFilter(Pass::Band, noise(seconds, 503 + tone.take), pitch, 5.0);
    add(result, shaped(breath, line(seconds, {{0.0, 1.0}, {0.06, 0.35}})), 0.3);
    return shaped(std::move(result), heldLevel(seconds, 0.018, tone.seconds, 0.065, 0.8));
}

// A clarinet in its woody register.
Signal clarinet(const Tone& tone) {
    const double seconds = tone.seconds + 0.06;
    const Signal pitch = livingPitch(tone, seconds, 0.99, 0.12);
    const Signal cutoff = Signal(pitch.size(), std::min(5000.0, tone.hertz * (3.0 + 3.0 * tone.force)));
    Signal result = resonantFilter(Pass::Low, oscillate(Wave::Square, pitch), cutoff, 0.9);
    return scaled(shaped(std::move(result), heldLevel(seconds, 0.025, tone.seconds, 0.055, 0.85)), 0.5);
}

// A section of horns: saws that open as they are blown; hard notes open further and bark.
Signal brass(const Tone& tone) {
    const double seconds = tone.seconds + 0.09;
    const Signal pitch = livingPitch(tone, seconds, 0.975, 0.14);
    Signal wave = oscillate(Wave::Saw, pitch, 0.13 * static_cast<double>(tone.take));
    add(wave, oscillate(Wave::Saw, scaled(pitch, 1.0042), 0.4), 0.8);
    add(wave, oscillate(Wave::Saw, scaled(pitch, 0.9961), 0.7), 0.8);
    const double open = 700.0 + 3600.0 * tone.force * tone.force;
    const Signal cutoff =
        glide(seconds, {{0.0, 350.0}, {0.035, open}, {0.14, open * 0.62}, {std::max(0.2, tone.seconds), open * 0.5}});
    Signal result = resonantFilter(Pass::Low, wave, cutoff, 0.95);
    return scaled(shaped(std::move(result), heldLevel(seconds, 0.02, tone.seconds, 0.085, 0.75)), 0.38);
}

// Drawbars, and a key click.
Signal organ(const Tone& tone) {
    const double seconds = tone.seconds + 0.03;
    const Signal pitch = vibrato(steady(seconds, tone.hertz), 6.4, 0.1);
    Signal result = silence(seconds);
    constexpr std::array<std::array<double, 2>, 5> bars{
        {{0.5, 0.35}, {1.0, 0.6}, {1.5, 0.3}, {2.0, 0.35}, {4.0, 0.16}}};
    for (const auto& bar : bars) {
        if (tone.hertz * bar[0] < 8000.0) {
            add(result, oscillate(Wave::Sine, scaled(pitch, bar[0])), bar[1]);
        }
    }
    add(result,
        shaped(resonantFilter(Pass::Band, noise(0.01, 601 + tone.take), 2400.0, 1.0), struckLevel(0.01, 0.0005, 0.002)),
        0.3);
    return scaled(
        shaped(softClipped(std::move(result), 1.0 + tone.force), heldLevel(seconds, 0.006, tone.seconds, 0.03, 0.95)),
        0.5);
}

// A slow sky of saws.
Signal pad(const Tone& tone) {
    const double seconds = tone.seconds + 0.7;
    const double spread = tone.take % 2 == 0 ? 1.0 : -1.0;
    Signal wave = oscillate(Wave::Saw, vibrato(steady(seconds, tone.hertz * (1.0 + 0.0035 * spread)), 0.31, 0.05), 0.3);
    add(wave, oscillate(Wave::Saw, vibrato(steady(seconds, tone.hertz * (1.0 - 0.0028 * spread)), 0.23, 0.06), 0.8));
    const double open = 600.0 + 1600.0 * tone.force;
    const Signal cutoff = glide(seconds, {{0.0, 420.0}, {tone.seconds * 0.6, open}, {seconds, 500.0}});
    Signal result = resonantFilter(Pass::Low, wave, cutoff, 0.8);
    return scaled(shaped(std::move(result), heldLevel(seconds, 0.35, tone.seconds, 0.65, 0.9)), 0.3);
}

// A singing square with a slide in its throat.
Signal squareLead(const Tone& tone) {
    const double seconds = tone.seconds + 0.06;
    const Signal pitch = livingPitch(tone, seconds, 0.97, 0.2);
    const double open = std::min(7000.0, tone.hertz * (2.5 + 5.0 * tone.force));
    const Signal cutoff = glide(seconds, {{0.0, open}, {0.15, open * 0.55}, {seconds + 0.2, open * 0.45}});
    Signal result = resonantFilter(Pass::Low, pulseWave(pitch, 0.32), cutoff, 1.1);
    return scaled(shaped(std::move(result), heldLevel(seconds, 0.006, tone.seconds, 0.055, 0.6)), 0.5);
}

// Breathy voices without words, far away; for long notes.
Signal choir(const Tone& tone) {
    const double seconds = tone.seconds + 0.4;
    const Signal pitch =
        vibrato(steady(seconds, tone.hertz * (1.0 + 0.0012 * static_cast<double>(tone.take))), 4.7, 0.16, 0.5);
    Signal wave = oscillate(Wave::Saw, pitch, 0.2);
    add(wave, oscillate(Wave::Saw, scaled(pitch, 1.005), 0.6));
    add(wave, noise(seconds, 701 + tone.take), 0.12);
    Signal result = scaled(resonantFilter(Pass::Band, wave, 620.0, 2.2), 0.8);
    add(result, resonantFilter(Pass::Band, wave, 1050.0, 3.0), 0.5);
    add(result, resonantFilter(Pass::Band, wave, 2600.0, 4.0), 0.15 + 0.2 * tone.force);
    return scaled(shaped(std::move(result), heldLevel(seconds, 0.12, tone.seconds, 0.38, 0.9)), 0.55);
}

constexpr std::array<Instrument, 7> instruments{{{"ocarina", ocarina},
                                                 {"clarinet", clarinet},
                                                 {"brass", brass},
                                                 {"organ", organ},
                                                 {"pad", pad},
                                                 {"lead", squareLead},
                                                 {"choir", choir}}};

}  // namespace

std::span<const Instrument> heldInstruments() {
    return instruments;
}

}  // namespace vandrel::art
