// Skins and strings: the four beats before the gong, the bass pluck of the extra bomb, and the explosion.
#include <array>

#include "audio/sounds/sound.h"
#include "audio/synth/effects.h"
#include "audio/synth/filters.h"
#include "audio/synth/oscillators.h"

namespace vandrel::art {

namespace {

// A tom tuned to `hertz`: the skin's pitch drops after the stroke, a short slap of the stick on top.
Signal tom(double hertz, std::uint32_t seed) {
    constexpr double seconds = 0.6;
    const Signal pitch = glide(seconds, {{0.0, hertz * 1.9}, {0.03, hertz * 1.15}, {0.25, hertz}});
    Signal result = shaped(oscillate(Wave::Sine, pitch), struckLevel(seconds, 0.001, 0.075));
    const Signal overtone = glide(seconds, {{0.0, hertz * 2.9}, {0.05, hertz * 2.1}});
    add(result, shaped(oscillate(Wave::Sine, overtone), struckLevel(seconds, 0.001, 0.034)), 0.5);
    add(result, shaped(resonantFilter(Pass::Band, noise(0.06, seed), 1800.0, 0.8), struckLevel(0.06, 0.0005, 0.011)),
        1.0);
    return result;
}

// Four toms that rise, a beat apart at 135.7 a minute; the gong follows on the fifth beat, when this file is over.
Signal fourBeats() {
    constexpr double seconds = 1.769;
    constexpr double beat = seconds / 4.0;
    constexpr std::array<double, 4> pitches{98.0, 123.5, 146.8, 196.0};
    Signal result = silence(seconds);
    for (std::size_t i = 0; i < pitches.size(); ++i) {
        const double place = static_cast<double>(i);
        add(result, tom(pitches[i], 11 + static_cast<std::uint32_t>(i)), 0.7 + 0.1 * place, beat * place);
    }
    // A light pick-up in front of the third and the fourth, so that the row leads somewhere.
    add(result, tom(123.5, 23), 0.28, beat * 1.75);
    add(result, tom(164.8, 24), 0.34, beat * 2.75);
    return finished(softClipped(withRoom(result, 0.09, 3000.0, 0.25), 0.9), seconds, soundPeak, 0.06);
}

// A plucked low A with a growl: a string, and a filtered saw that closes at once.
Signal bassHit() {
    constexpr double seconds = 0.35;
    constexpr double hertz = 110.0;
    Signal result = scaled(pluckedString(seconds, hertz, 0.45, 0.14, 5), 0.8);
    const Signal saw = oscillate(Wave::Saw, glide(seconds, {{0.0, hertz * 1.12}, {0.025, hertz}}));
    const Signal closing = glide(seconds, {{0.0, 2600.0}, {0.09, 420.0}, {seconds, 160.0}});
    add(result, shaped(resonantFilter(Pass::Low, saw, closing, 2.2), struckLevel(seconds, 0.001, 0.07)), 0.7);
    add(result, shaped(oscillate(Wave::Sine, steady(seconds, hertz / 2.0)), struckLevel(seconds, 0.004, 0.08)), 0.45);
    return finished(softClipped(result, 1.1), seconds, soundPeak, 0.08);
}

// A thump that falls from 150 to 38 hertz under a rumbling tail. Little treble, since dozens follow each other; the
// crack at the front is what is heard of it on small speakers.
Signal explosion() {
    constexpr double seconds = 0.9;
    const Signal fall = glide(seconds, {{0.0, 150.0}, {0.05, 86.0}, {0.2, 50.0}, {seconds, 38.0}});
    Signal result = shaped(oscillate(Wave::Sine, fall), struckLevel(seconds, 0.001, 0.13));

    const Signal opening = glide(seconds, {{0.0, 3200.0}, {0.04, 1300.0}, {0.2, 520.0}, {seconds, 140.0}});
    const Signal rumble = resonantFilter(Pass::Low, noise(seconds, 3), opening, 0.9);
    add(result, shaped(rumble, struckLevel(seconds, 0.001, 0.11)), 1.5);

    // Bits that come down: noise that is let through in lumps.
    const Signal lumps = resonantFilter(Pass::Low, noise(seconds, 4), 26.0, 0.8);
    Signal debris = shaped(resonantFilter(Pass::Band, noise(seconds, 9), 480.0, 0.9), lumps);
    add(result, shaped(debris, line(seconds, {{0.0, 0.0}, {0.12, 1.0}, {0.7, 0.2}, {seconds, 0.0}})), 14.0);

    return finished(softClipped(result, 1.6), seconds, soundPeak, 0.25);
}

constexpr std::array<Sound, 3> sounds{{{"Beat2", fourBeats}, {"HitBass", bassHit}, {"Explosion1", explosion}}};

}  // namespace

std::span<const Sound> drumSounds() {
    return sounds;
}

}  // namespace vandrel::art
