#include "audio/synth/oscillators.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vandrel::art {

namespace {

constexpr double twoPi = 2.0 * std::numbers::pi;

// What is added round a step of 2 so that it is band-limited enough; `phase` and `step` in periods.
double stepCorrection(double phase, double step) {
    if (phase < step) {
        const double x = phase / step;
        return x + x - x * x - 1.0;
    }
    if (phase > 1.0 - step) {
        const double x = (phase - 1.0) / step;
        return x * x + x + x + 1.0;
    }
    return 0.0;
}

double pulseValue(double phase, double step, double width) {
    double value = phase < width ? 1.0 : -1.0;
    value += stepCorrection(phase, step);
    const double fall = phase - width < 0.0 ? phase - width + 1.0 : phase - width;
    return value - stepCorrection(fall, step);
}

double waveValue(Wave wave, double phase, double step) {
    switch (wave) {
        case Wave::Sine:
            return std::sin(twoPi * phase);
        case Wave::Triangle:
            return phase < 0.25 ? 4.0 * phase : phase < 0.75 ? 2.0 - 4.0 * phase : 4.0 * phase - 4.0;
        case Wave::Saw:
            return 2.0 * phase - 1.0 - stepCorrection(phase, step);
        case Wave::Square:
            return pulseValue(phase, step, 0.5);
    }
    return 0.0;
}

// Calls `value(phase, step)` along a phase that follows `hertz`.
template <typename Value>
Signal alongPhase(const Signal& hertz, double startPhase, Value value) {
    Signal result(hertz.size());
    double phase = startPhase - std::floor(startPhase);
    for (std::size_t frame = 0; frame < hertz.size(); ++frame) {
        const double step = hertz[frame] / sampleRate;
        result[frame] = value(phase, step);
        phase += step;
        phase -= std::floor(phase);
    }
    return result;
}

}  // namespace

Signal oscillate(Wave wave, const Signal& hertz, double startPhase) {
    return alongPhase(hertz, startPhase, [wave](double phase, double step) { return waveValue(wave, phase, step); });
}

Signal pulseWave(const Signal& hertz, double width, double startPhase) {
    return alongPhase(hertz, startPhase, [width](double phase, double step) { return pulseValue(phase, step, width); });
}

Signal frequencyModulated(const Signal& hertz, double ratio, const Signal& index) {
    Signal result(std::min(hertz.size(), index.size()));
    double carrier = 0.0;
    double modulator = 0.0;
    for (std::size_t frame = 0; frame < result.size(); ++frame) {
        result[frame] = std::sin(twoPi * carrier + index[frame] * std::sin(twoPi * modulator));
        const double step = hertz[frame] / sampleRate;
        carrier += step;
        carrier -= std::floor(carrier);
        modulator += step * ratio;
        modulator -= std::floor(modulator);
    }
    return result;
}

Signal noise(double seconds, std::uint32_t seed) {
    NoiseSource source(seed);
    Signal result(framesIn(seconds));
    for (double& value : result) {
        value = source.next();
    }
    return result;
}

Signal struckPartials(double seconds, double hertz, std::span<const Partial> partials, double attack) {
    Signal result = silence(seconds);
    for (const Partial& partial : partials) {
        const double frequency = hertz * partial.ratio;
        if (frequency > 18000.0) {
            continue;
        }
        // A damped sine by its recurrence: two multiplications a frame instead of a sine and a power.
        const double turn = twoPi * frequency / sampleRate;
        const double damping = std::exp2(-1.0 / (partial.halfLife * sampleRate));
        const double first = 2.0 * damping * std::cos(turn);
        const double second = damping * damping;
        double before = -std::sin(turn) / damping;
        double now = 0.0;
        for (double& value : result) {
            value += partial.level * now;
            const double next = first * now - second * before;
            before = now;
            now = next;
        }
    }
    const double attackFrames = attack * sampleRate;
    for (std::size_t frame = 0; frame < result.size() && static_cast<double>(frame) < attackFrames; ++frame) {
        result[frame] *= static_cast<double>(frame) / attackFrames;
    }
    return result;
}

Signal pluckedString(double seconds, double hertz, double brightness, double halfLife, std::uint32_t seed) {
    const double period = sampleRate / hertz;
    // The averaging filter in the loop delays by half a frame; an all-pass takes up the rest, so that the string is in
    // tune.
    const double wanted = period - 0.5;
    auto length = static_cast<std::size_t>(wanted);
    double rest = wanted - static_cast<double>(length);
    if (rest < 0.1) {
        rest += 1.0;
        --length;
    }
    const double allPass = (1.0 - rest) / (1.0 + rest);
    const double loopGain = std::exp2(-period / (halfLife * sampleRate));

    Signal string(length);
    NoiseSource source(seed);
    double smooth = 0.0;
    double mean = 0.0;
    for (std::size_t i = 0; i < length; ++i) {
        // Pulled aside a fifth of the way along, by a finger that is not quite smooth.
        const double along = static_cast<double>(i) / static_cast<double>(length);
        const double pulled = along < 0.2 ? along / 0.2 : (1.0 - along) / 0.8;
        smooth += (pulled + 0.35 * source.next() - smooth) * (0.08 + 0.92 * brightness * brightness);
        string[i] = smooth;
        mean += smooth / static_cast<double>(length);
    }
    double peak = 1e-9;
    for (double& value : string) {
        value -= mean;
        peak = std::max(peak, std::abs(value));
    }

    Signal result(framesIn(seconds));
    std::size_t place = 0;
    double lastOut = 0.0;
    double lastIn = 0.0;
    double lastPassed = 0.0;
    for (double& value : result) {
        const double out = string[place];
        value = out / peak;
        const double averaged = 0.5 * (out + lastOut) * loopGain;
        lastOut = out;
        const double passed = allPass * (averaged - lastPassed) + lastIn;
        lastIn = averaged;
        lastPassed = passed;
        string[place] = passed;
        place = place + 1 == length ? 0 : place + 1;
    }
    return result;
}

Signal vibrato(Signal hertz, double rate, double semitones, double delay) {
    for (std::size_t frame = 0; frame < hertz.size(); ++frame) {
        const double now = static_cast<double>(frame) / sampleRate;
        const double depth = delay > 0.0 ? std::min(1.0, now / delay) : 1.0;
        hertz[frame] *= 1.0 + 0.0595 * semitones * depth * depth * std::sin(twoPi * rate * now);
    }
    return hertz;
}

}  // namespace vandrel::art
