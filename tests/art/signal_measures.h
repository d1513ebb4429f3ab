// What the tests of sounds and tunes measure of a signal.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "audio/synth/signal.h"

namespace vandrel::art {

// The mean strength of `count` frames from `from` on; behind the end a signal begins anew, as a loop does.
inline double rms(const Signal& signal, std::size_t from, std::size_t count) {
    double sum = 0.0;
    for (std::size_t i = from; i < from + count; ++i) {
        sum += signal[i % signal.size()] * signal[i % signal.size()];
    }
    return std::sqrt(sum / static_cast<double>(count));
}
inline double rms(const Signal& signal) {
    return rms(signal, 0, signal.size());
}

inline double meanOf(const Signal& signal) {
    double sum = 0.0;
    for (const double value : signal) {
        sum += value;
    }
    return sum / static_cast<double>(signal.size());
}

}  // namespace vandrel::art
