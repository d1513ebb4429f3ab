#include "audio/synth/filters.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vandrel::art {

namespace {

constexpr double pi = std::numbers::pi;
constexpr std::size_t controlFrames = 16;  // a moving cutoff is looked at this often

double onePoleShare(double hertz) {
    return 1.0 - std::exp(-2.0 * pi * hertz / sampleRate);
}

}  // namespace

Signal gentleLowPass(Signal source, double hertz) {
    const double share = onePoleShare(hertz);
    double held = 0.0;
    for (double& value : source) {
        held += (value - held) * share;
        value = held;
    }
    return source;
}

Signal gentleHighPass(Signal source, double hertz) {
    const double share = onePoleShare(hertz);
    double held = 0.0;
    for (double& value : source) {
        held += (value - held) * share;
        value -= held;
    }
    return source;
}

Signal resonantFilter(Pass pass, const Signal& source, const Signal& cutoff, double resonance) {
    Signal result(std::min(source.size(), cutoff.size()));
    const double damping = 1.0 / resonance;
    double gain = 0.0;
    double a1 = 0.0;
    double a2 = 0.0;
    double a3 = 0.0;
    double firstState = 0.0;
    double secondState = 0.0;
    for (std::size_t frame = 0; frame < result.size(); ++frame) {
        if (frame % controlFrames == 0) {
            gain = std::tan(pi * std::clamp(cutoff[frame], 10.0, 0.45 * sampleRate) / sampleRate);
            a1 = 1.0 / (1.0 + gain * (gain + damping));
            a2 = gain * a1;
            a3 = gain * a2;
        }
        const double input = source[frame] - secondState;
        const double band = a1 * firstState + a2 * input;
        const double low = secondState + a2 * firstState + a3 * input;
        firstState = 2.0 * band - firstState;
        secondState = 2.0 * low - secondState;
        result[frame] = pass == Pass::Low    ? low
                        : pass == Pass::Band ? band * damping
                                             : source[frame] - damping * band - low;
    }
    return result;
}

Signal resonantFilter(Pass pass, const Signal& source, double cutoff, double resonance) {
    return resonantFilter(pass, source, Signal(source.size(), cutoff), resonance);
}

Biquad Biquad::highShelf(double hertz, double decibels, double quality) {
    const double k = std::tan(pi * hertz / sampleRate);
    const double high = std::pow(10.0, decibels / 20.0);
    const double band = std::pow(high, 0.499666774155);
    const double a0 = 1.0 + k / quality + k * k;
    return {(high + band * k / quality + k * k) / a0, 2.0 * (k * k - high) / a0,
            (high - band * k / quality + k * k) / a0, 2.0 * (k * k - 1.0) / a0, (1.0 - k / quality + k * k) / a0};
}

Biquad Biquad::highPass(double hertz, double quality) {
    const double k = std::tan(pi * hertz / sampleRate);
    const double a0 = 1.0 + k / quality + k * k;
    return {1.0, -2.0, 1.0, 2.0 * (k * k - 1.0) / a0, (1.0 - k / quality + k * k) / a0};
}

}  // namespace vandrel::art
