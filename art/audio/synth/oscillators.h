// Where sound comes from: waves of a changing pitch, noise, struck bars and bells, plucked strings. All of it is
// deterministic; whatever is random takes a seed. Used by the sound recipes and the instruments.
#pragma once

#include <cstdint>
#include <span>

#include "audio/synth/signal.h"

namespace vandrel::art {

enum class Wave { Sine, Triangle, Saw, Square };

// A wave that follows `hertz`, as long as it. Saw and square are smoothed at their steps, so that high notes don't ring
// false.
Signal oscillate(Wave wave, const Signal& hertz, double startPhase = 0.0);

// A square wave whose upper part takes `width` (0 to 1) of the period.
Signal pulseWave(const Signal& hertz, double width, double startPhase = 0.0);

// A sine whose phase is pushed to and fro by another one, `ratio` times as high and `index` radians strong.
Signal frequencyModulated(const Signal& hertz, double ratio, const Signal& index);

// White noise of -1 to 1; the same seed gives the same noise.
Signal noise(double seconds, std::uint32_t seed);

struct Partial {
    double ratio;     // to the ground note
    double level;     // at the stroke
    double halfLife;  // seconds
};

// A bar, bell or gong: sines that die away each by itself. `attack` in seconds. Partials beyond 18,000 Hz are left out.
Signal struckPartials(double seconds, double hertz, std::span<const Partial> partials, double attack = 0.001);

// A plucked string. `brightness` (0 to 1) is how hard the nail is, `halfLife` how long the ground note takes to lose
// half.
Signal pluckedString(double seconds, double hertz, double brightness, double halfLife, std::uint32_t seed);

// `hertz` wavering `rate` times a second by `semitones` each way, fading in over `delay` seconds.
Signal vibrato(Signal hertz, double rate, double semitones, double delay = 0.0);

// Small, fast and the same on every machine; not for anything but noise and looseness.
class NoiseSource {
  public:
    explicit NoiseSource(std::uint32_t seed) : state_(seed * 2654435761U + 0x9E3779B9U) {
        if (state_ == 0) {
            state_ = 1;
        }
    }
    // The next value, -1 to 1.
    double next() {
        state_ ^= state_ << 13U;
        state_ ^= state_ >> 17U;
        state_ ^= state_ << 5U;
        return static_cast<double>(state_) / 2147483648.0 - 1.0;
    }

  private:
    std::uint32_t state_;
};

}  // namespace vandrel::art
