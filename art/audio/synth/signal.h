// A mono stretch of sound as plain numbers, with the few operations from which every sound recipe and every instrument
// is built. Full scale is -1 to 1; nothing clips before a file is written. Used by everything under audio/.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <vector>

namespace vandrel::art {

constexpr int sampleRate = 44100;  // frames a second, everywhere

using Signal = std::vector<double>;

struct StereoSignal {
    Signal left;
    Signal right;
};

struct CurvePoint {
    double seconds;
    double value;
};

// The whole number of frames nearest to `seconds`.
std::size_t framesIn(double seconds);

// The factor that `decibels` stand for: 0 gives 1, -6.02 gives one half.
double gainOf(double decibels);

Signal silence(double seconds);

// A control signal of `seconds` through the points, which must rise in time; before the first and after the last point
// the value stands still. `line` goes straight from point to point; `glide` by equal ratios, as pitch and loudness are
// heard, and so needs values above 0.
Signal line(double seconds, std::initializer_list<CurvePoint> points);
Signal glide(double seconds, std::initializer_list<CurvePoint> points);

// One value for `seconds`.
Signal steady(double seconds, double value);

// A struck thing's level: up to 1 in `attack` seconds, then halved every `halfLife` seconds.
Signal struckLevel(double seconds, double attack, double halfLife);

// Adds `source` times `gain` to `target` from `atSeconds` on. What would stand beyond the end of `target` is left out.
void add(Signal& target, const Signal& source, double gain = 1.0, double atSeconds = 0.0);

// `source` multiplied by `level`, frame by frame; as long as the shorter of the two.
Signal shaped(Signal source, const Signal& level);

Signal scaled(Signal source, double factor);

double peakOf(const Signal& signal);

// Ready for a file: no direct current, exactly `seconds` long, edges eased (a quarter of a millisecond in, `fadeOut`
// seconds out) and the peak at `peakDecibels` below full scale.
Signal finished(Signal signal, double seconds, double peakDecibels, double fadeOut = 0.02);

}  // namespace vandrel::art
