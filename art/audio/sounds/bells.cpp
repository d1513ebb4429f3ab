// Struck metal: the coin, the cheap bell and the gong.
#include <array>

#include "audio/sounds/sound.h"
#include "audio/synth/effects.h"
#include "audio/synth/filters.h"
#include "audio/synth/oscillators.h"

namespace vandrel::art {

namespace {

// Two bright notes a fourth apart. The second is the longer one; both are over before the next coin falls at 20 a
// second, as far as the ear is concerned.
Signal coin() {
    constexpr std::array<Partial, 3> metal{{{1.0, 0.9, 0.03}, {2.0, 0.35, 0.018}, {3.01, 0.18, 0.01}}};
    Signal result = silence(0.18);
    add(result, shaped(struckPartials(0.055, 1975.5, metal, 0.0008), line(0.055, {{0.045, 1.0}, {0.055, 0.0}})), 0.75);
    add(result, struckPartials(0.13, 2637.0, metal, 0.0008), 1.0, 0.05);
    return finished(result, 0.18, soundPeak, 0.055);
}

// A counter bell of few partials. It is also heard an octave down and at three times the pitch, so it is built round
// 1,318 hertz: 659 and 3,955 are still a bell, and the highest partial stays audible at three times.
Signal ding() {
    constexpr std::array<Partial, 5> cup{
        {{1.0, 0.8, 0.11}, {1.006, 0.35, 0.1}, {2.01, 0.3, 0.07}, {2.74, 0.4, 0.045}, {4.16, 0.16, 0.02}}};
    Signal result = struckPartials(0.6, 1318.5, cup, 0.0006);
    add(result, shaped(resonantFilter(Pass::Band, noise(0.012, 41), 3600.0, 2.0), struckLevel(0.012, 0.0004, 0.003)),
        0.5);
    return finished(result, 0.6, soundPeak, 0.08);
}

// A soft gong: the low partials bloom after the stroke, the high ones shimmer in pairs that beat slowly.
Signal gong() {
    constexpr std::array<Partial, 9> low{{{1.0, 0.9, 0.62},
                                          {1.004, 0.5, 0.55},
                                          {1.483, 0.55, 0.48},
                                          {1.932, 0.4, 0.42},
                                          {2.546, 0.36, 0.36},
                                          {2.562, 0.22, 0.34},
                                          {2.63, 0.2, 0.3},
                                          {3.39, 0.22, 0.24},
                                          {3.98, 0.16, 0.2}}};
    constexpr std::array<Partial, 10> high{{{4.61, 0.26, 0.26},
                                            {4.655, 0.2, 0.25},
                                            {5.77, 0.2, 0.2},
                                            {5.83, 0.17, 0.2},
                                            {7.09, 0.15, 0.16},
                                            {8.93, 0.13, 0.13},
                                            {11.4, 0.11, 0.11},
                                            {14.2, 0.09, 0.09},
                                            {17.7, 0.07, 0.075},
                                            {23.1, 0.05, 0.06}}};
    constexpr double seconds = 2.2;
    constexpr double ground = 174.6;
    Signal result = struckPartials(seconds, ground, low, 0.004);
    // Bloom: the shimmer grows for a tenth of a second, as the stroke spreads over the plate.
    const Signal bloom = line(seconds, {{0.0, 0.15}, {0.12, 1.0}, {seconds, 0.85}});
    add(result, shaped(struckPartials(seconds, ground, high, 0.004), bloom));
    add(result, shaped(gentleLowPass(noise(0.08, 7), 700.0), struckLevel(0.08, 0.002, 0.012)), 1.6);
    return finished(result, seconds, soundPeak, 0.5);
}

constexpr std::array<Sound, 3> sounds{{{"Cash2", coin}, {"CrapDing", ding}, {"Gong2", gong}}};

}  // namespace

std::span<const Sound> bellSounds() {
    return sounds;
}

}  // namespace vandrel::art
