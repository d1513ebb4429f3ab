// Air and breath: the flamethrower's whoosh and its ignition, the rocket, the snake.
#include <array>

#include "audio/sounds/sound.h"
#include "audio/synth/effects.h"
#include "audio/synth/filters.h"
#include "audio/synth/oscillators.h"

namespace vandrel::art {

namespace {

// Noise between two slopes, so that a gust has a body and no hiss beyond `high` hertz.
Signal wind(double seconds, std::uint32_t seed, double low, double high) {
    return resonantFilter(Pass::High, resonantFilter(Pass::Low, noise(seconds, seed), high, 0.7), low, 0.7);
}

// Made to be played three times too fast, every ten frames, over itself: so nothing in it lies above 5,000 hertz
// (15,000 as heard), and it swells and dies slowly enough that a row of them is one roar.
Signal fire() {
    constexpr double seconds = 0.6;
    Signal result =
        shaped(wind(seconds, 61, 90.0, 1500.0), line(seconds, {{0.0, 0.5}, {0.05, 1.0}, {0.25, 0.7}, {0.6, 0.0}}));
    const Signal sweep = glide(seconds, {{0.0, 900.0}, {0.15, 2400.0}, {seconds, 700.0}});
    const Signal hiss =
        resonantFilter(Pass::Low, resonantFilter(Pass::Band, noise(seconds, 62), sweep, 0.9), 4500.0, 0.7);
    add(result, shaped(hiss, line(seconds, {{0.0, 0.2}, {0.12, 1.0}, {0.6, 0.0}})), 0.9);
    // Flutter, 12 a second as written, 36 as heard: what makes a flame of a hiss.
    const Signal flutter = oscillate(Wave::Sine, steady(seconds, 12.0));
    add(result, shaped(result, flutter), 0.3);
    return finished(softClipped(result, 1.4), seconds, soundPeak, 0.12);
}

// A click of the lighter, then the rush climbs and opens.
Signal ignition() {
    constexpr double seconds = 0.7;
    Signal result = silence(seconds);
    add(result, shaped(resonantFilter(Pass::Band, noise(0.03, 71), 2800.0, 1.5), struckLevel(0.03, 0.0004, 0.004)),
        1.2);
    add(result, shaped(resonantFilter(Pass::Band, noise(0.03, 72), 3400.0, 1.5), struckLevel(0.03, 0.0004, 0.004)), 0.9,
        0.07);
    const Signal climb = glide(seconds, {{0.0, 180.0}, {0.14, 260.0}, {0.5, 3400.0}, {seconds, 4200.0}});
    const Signal rush = resonantFilter(Pass::Band, noise(seconds, 73), climb, 1.1);
    const Signal swell = line(seconds, {{0.0, 0.05}, {0.14, 0.25}, {0.48, 1.0}, {0.58, 0.7}, {seconds, 0.0}});
    add(result, shaped(rush, swell), 2.2);
    const Signal tone = oscillate(Wave::Saw, glide(seconds, {{0.12, 70.0}, {0.5, 210.0}}));
    add(result, shaped(resonantFilter(Pass::Low, tone, climb, 1.2), swell), 0.5);
    return finished(softClipped(result, 1.0), seconds, fullVolumePickupPeak, 0.1);
}

// Rises and leaves: a narrow hiss that climbs four octaves with a whistle inside, and thins out at the end.
Signal rocket() {
    constexpr double seconds = 0.8;
    const Signal climb = glide(seconds, {{0.0, 420.0}, {0.1, 600.0}, {0.7, 6400.0}, {seconds, 7200.0}});
    const Signal level = line(seconds, {{0.0, 0.6}, {0.03, 1.0}, {0.45, 0.8}, {seconds, 0.0}});
    Signal result = shaped(resonantFilter(Pass::Band, noise(seconds, 81), climb, 2.4), level);
    const Signal whistle =
        vibrato(glide(seconds, {{0.0, 210.0}, {0.1, 300.0}, {0.7, 2400.0}, {seconds, 2700.0}}), 17.0, 0.35);
    add(result, shaped(oscillate(Wave::Triangle, whistle), level), 0.28);
    add(result, shaped(wind(0.3, 82, 60.0, 700.0), struckLevel(0.3, 0.001, 0.05)), 1.2);
    return finished(softClipped(result, 1.5), seconds, fullVolumePickupPeak, 0.12);
}

// A rattle that slows down into a long hiss.
Signal snake() {
    constexpr double seconds = 0.9;
    Signal result = silence(seconds);
    double place = 0.0;
    double gap = 0.019;
    for (std::uint32_t stroke = 0; place < 0.5; ++stroke) {
        const Signal grain =
            resonantFilter(Pass::Band, noise(0.02, 91 + stroke), stroke % 2 == 0 ? 4300.0 : 5200.0, 2.5);
        const double swell = place < 0.15 ? 0.5 + place / 0.3 : 1.0;
        add(result, shaped(grain, struckLevel(0.02, 0.0004, 0.003)), (stroke % 2 == 0 ? 1.7 : 1.2) * swell, place);
        place += gap;
        gap *= 1.025;
    }
    const Signal colour = glide(seconds, {{0.3, 5200.0}, {0.6, 6800.0}, {seconds, 4200.0}});
    const Signal breath = line(seconds, {{0.0, 0.0}, {0.28, 0.08}, {0.5, 1.0}, {0.65, 0.8}, {seconds, 0.0}});
    add(result, shaped(resonantFilter(Pass::Band, noise(seconds, 90), colour, 1.3), breath), 0.9);
    return finished(softClipped(result, 2.2), seconds, fullVolumePickupPeak, 0.12);
}

constexpr std::array<Sound, 4> sounds{{{"Fire", fire}, {"Flamer", ignition}, {"Rocket", rocket}, {"Snake", snake}}};

}  // namespace

std::span<const Sound> gustSounds() {
    return sounds;
}

}  // namespace vandrel::art
