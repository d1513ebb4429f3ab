#include "audio/synth/effects.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>
#include <utility>

namespace vandrel::art {

namespace {

constexpr int loopPasses = 2;  // the first fills the lines, the second is kept

double share(double hertz) {
    return 1.0 - std::exp(-2.0 * 3.14159265358979 * hertz / sampleRate);
}

class DelayLine {
  public:
    explicit DelayLine(std::size_t frames) : line_(std::max<std::size_t>(1, frames), 0.0) {}
    double read() const { return line_[place_]; }
    void write(double value) {
        line_[place_] = value;
        place_ = place_ + 1 == line_.size() ? 0 : place_ + 1;
    }
    std::size_t size() const { return line_.size(); }

  private:
    Signal line_;
    std::size_t place_ = 0;
};

class Room {
  public:
    Room(double halfLife, double brightness) : damp_(share(brightness)) {
        for (std::size_t i = 0; i < lines_.size(); ++i) {
            decay_[i] = std::exp2(-static_cast<double>(lines_[i].size()) / (halfLife * sampleRate));
        }
    }
    std::pair<double, double> process(double in) {
        for (DelayLine& line : diffusers_) {
            const double held = line.read();
            const double out = held - 0.6 * in;
            line.write(in + 0.6 * out);
            in = out;
        }
        double sum = 0.0;
        for (std::size_t i = 0; i < lines_.size(); ++i) {
            dull_[i] += (lines_[i].read() - dull_[i]) * damp_;
            sum += dull_[i];
        }
        double left = 0.0;
        double right = 0.0;
        for (std::size_t i = 0; i < lines_.size(); ++i) {
            // A mirror matrix: keeps the energy and lets every line feed every other.
            lines_[i].write(in + decay_[i] * (dull_[i] - sum * 2.0 / static_cast<double>(lines_.size())));
            (i % 2 == 0 ? left : right) += (i % 4 < 2 ? dull_[i] : -dull_[i]);
        }
        return {0.5 * left, 0.5 * right};
    }

  private:
    std::array<DelayLine, 3> diffusers_{DelayLine(149), DelayLine(337), DelayLine(571)};
    std::array<DelayLine, 8> lines_{DelayLine(1123), DelayLine(1301), DelayLine(1499), DelayLine(1693),
                                    DelayLine(1889), DelayLine(2099), DelayLine(2339), DelayLine(2591)};
    std::array<double, 8> decay_{};
    std::array<double, 8> dull_{};
    double damp_;
};

}  // namespace

Signal softClipped(Signal source, double drive) {
    for (double& value : source) {
        value = std::tanh(value * drive);
    }
    return source;
}

Signal echoed(Signal source, double seconds, double feedback) {
    DelayLine line(framesIn(seconds));
    const double dull = share(3500.0);
    double held = 0.0;
    for (double& value : source) {
        held += (line.read() - held) * dull;
        value += held * feedback;
        line.write(value);
    }
    return source;
}

StereoSignal loopedRoom(const Signal& source, double halfLife, double brightness) {
    Room room(halfLife, brightness);
    StereoSignal result{Signal(source.size()), Signal(source.size())};
    for (int pass = 0; pass < loopPasses; ++pass) {
        // Only the tail is needed of the first pass; ten half-lives leave nothing that could be heard.
        const auto tail = std::min(source.size(), framesIn(halfLife * 10.0 + 0.5));
        for (std::size_t frame = pass == 0 ? source.size() - tail : 0; frame < source.size(); ++frame) {
            std::tie(result.left[frame], result.right[frame]) = room.process(source[frame]);
        }
    }
    return result;
}

Signal withRoom(Signal source, double halfLife, double brightness, double roomShare) {
    Room room(halfLife, brightness);
    for (double& value : source) {
        const auto [left, right] = room.process(value);
        value += (left + right) * 0.5 * roomShare;
    }
    return source;
}

StereoSignal loopedPingPong(const Signal& source, double seconds, double feedback) {
    DelayLine leftLine(framesIn(seconds));
    DelayLine rightLine(framesIn(seconds));
    const double dull = share(4000.0);
    double leftHeld = 0.0;
    double rightHeld = 0.0;
    StereoSignal result{Signal(source.size()), Signal(source.size())};
    for (int pass = 0; pass < loopPasses; ++pass) {
        for (std::size_t frame = 0; frame < source.size(); ++frame) {
            leftHeld += (leftLine.read() - leftHeld) * dull;
            rightHeld += (rightLine.read() - rightHeld) * dull;
            leftLine.write(source[frame] + rightHeld * feedback);
            rightLine.write(leftHeld);
            result.left[frame] = leftHeld;
            result.right[frame] = rightHeld;
        }
    }
    return result;
}

void levelLoop(StereoSignal& signal, double threshold, double ratio) {
    const double attack = 1.0 - std::exp(-1.0 / (0.012 * sampleRate));
    const double release = 1.0 - std::exp(-1.0 / (0.18 * sampleRate));
    const double knee = gainOf(threshold);
    double level = 0.0;
    Signal gains(signal.left.size());
    for (int pass = 0; pass < loopPasses; ++pass) {
        for (std::size_t frame = 0; frame < gains.size(); ++frame) {
            const double now = std::max(std::abs(signal.left[frame]), std::abs(signal.right[frame]));
            level += (now - level) * (now > level ? attack : release);
            gains[frame] = level > knee ? std::pow(level / knee, 1.0 / ratio - 1.0) : 1.0;
        }
    }
    signal.left = shaped(std::move(signal.left), gains);
    signal.right = shaped(std::move(signal.right), gains);
}

void limitLoop(StereoSignal& signal, double ceiling) {
    const std::size_t size = signal.left.size();
    const std::size_t ahead = framesIn(0.003);
    const double release = 1.0 - std::exp(-1.0 / (0.08 * sampleRate));
    Signal wanted(size, 1.0);
    for (std::size_t frame = 0; frame < size; ++frame) {
        const double now = std::max(std::abs(signal.left[frame]), std::abs(signal.right[frame]));
        if (now <= ceiling) {
            continue;
        }
        // The dip slopes down over `ahead` frames and is complete at the peak.
        for (std::size_t before = 0; before <= ahead; ++before) {
            const double depth = 1.0 - static_cast<double>(before) / static_cast<double>(ahead + 1);
            double& gain = wanted[(frame + size - before) % size];
            gain = std::min(gain, 1.0 - (1.0 - ceiling / now) * depth);
        }
    }
    double gain = 1.0;
    for (int pass = 0; pass < loopPasses; ++pass) {
        for (std::size_t frame = 0; frame < size; ++frame) {
            gain = std::min(wanted[frame], gain + (1.0 - gain) * release);
            if (pass + 1 == loopPasses) {
                signal.left[frame] *= gain;
                signal.right[frame] *= gain;
            }
        }
    }
}

}  // namespace vandrel::art
