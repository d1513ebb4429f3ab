#include "audio/synth/signal.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vandrel::art {

namespace {

// Walks through the points and lets `between` say what lies between two of them, `along` being 0 to 1.
template <typename Between>
Signal throughPoints(double seconds, std::initializer_list<CurvePoint> points, Between between) {
    Signal result(framesIn(seconds));
    const CurvePoint* next = points.begin();
    for (std::size_t frame = 0; frame < result.size(); ++frame) {
        const double now = static_cast<double>(frame) / sampleRate;
        while (next != points.end() && next->seconds <= now) {
            ++next;
        }
        if (next == points.begin()) {
            result[frame] = next->value;
        } else if (next == points.end()) {
            result[frame] = (next - 1)->value;
        } else {
            const CurvePoint& before = *(next - 1);
            const double along = (now - before.seconds) / (next->seconds - before.seconds);
            result[frame] = between(before.value, next->value, along);
        }
    }
    return result;
}

}  // namespace

std::size_t framesIn(double seconds) {
    return static_cast<std::size_t>(std::llround(seconds * sampleRate));
}

double gainOf(double decibels) {
    return std::pow(10.0, decibels / 20.0);
}

Signal silence(double seconds) {
    return Signal(framesIn(seconds), 0.0);
}

Signal line(double seconds, std::initializer_list<CurvePoint> points) {
    return throughPoints(seconds, points,
                         [](double from, double to, double along) { return from + (to - from) * along; });
}

Signal glide(double seconds, std::initializer_list<CurvePoint> points) {
    return throughPoints(seconds, points,
                         [](double from, double to, double along) { return from * std::pow(to / from, along); });
}

Signal steady(double seconds, double value) {
    return Signal(framesIn(seconds), value);
}

Signal struckLevel(double seconds, double attack, double halfLife) {
    Signal result(framesIn(seconds));
    const double attackFrames = std::max(1.0, attack * sampleRate);
    const double ratio = std::exp2(-1.0 / (halfLife * sampleRate));
    double level = 1.0;
    for (std::size_t frame = 0; frame < result.size(); ++frame) {
        const double rise = static_cast<double>(frame) / attackFrames;
        if (rise < 1.0) {
            result[frame] = rise;
        } else {
            result[frame] = level;
            level *= ratio;
        }
    }
    return result;
}

void add(Signal& target, const Signal& source, double gain, double atSeconds) {
    const std::size_t start = framesIn(atSeconds);
    for (std::size_t frame = 0; frame < source.size() && start + frame < target.size(); ++frame) {
        target[start + frame] += source[frame] * gain;
    }
}

Signal shaped(Signal source, const Signal& level) {
    source.resize(std::min(source.size(), level.size()));
    for (std::size_t frame = 0; frame < source.size(); ++frame) {
        source[frame] *= level[frame];
    }
    return source;
}

Signal scaled(Signal source, double factor) {
    for (double& value : source) {
        value *= factor;
    }
    return source;
}

double peakOf(const Signal& signal) {
    double peak = 0.0;
    for (const double value : signal) {
        peak = std::max(peak, std::abs(value));
    }
    return peak;
}

Signal finished(Signal signal, double seconds, double peakDecibels, double fadeOut) {
    signal.resize(framesIn(seconds), 0.0);
    const double easeIn = 0.00025 * sampleRate;
    const double easeOut = fadeOut * sampleRate;
    const auto ease = [&](std::size_t frame) {
        const double in = std::min(1.0, static_cast<double>(frame) / easeIn);
        const double out = std::min(1.0, static_cast<double>(signal.size() - 1 - frame) / easeOut);
        return in * (0.5 - 0.5 * std::cos(out * 3.14159265358979));
    };
    // What the edges do to the mean is taken off in the shape of the edges themselves, so that both ends stay at 0.
    double sum = 0.0;
    double weight = 0.0;
    for (std::size_t frame = 0; frame < signal.size(); ++frame) {
        signal[frame] *= ease(frame);
        sum += signal[frame];
        weight += ease(frame);
    }
    for (std::size_t frame = 0; frame < signal.size(); ++frame) {
        signal[frame] -= sum / weight * ease(frame);
    }
    const double gain = gainOf(peakDecibels) / peakOf(signal);
    return scaled(std::move(signal), gain);
}

}  // namespace vandrel::art
