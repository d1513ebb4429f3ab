#include "audio/tunes/loudness.h"

#include <cmath>
#include <limits>
#include <vector>

#include "audio/synth/filters.h"

namespace vandrel::art {

namespace {

constexpr std::size_t hop = sampleRate / 10;
constexpr std::size_t hopsPerBlock = 4;

// The sum of squares of each tenth of a second, as weighted by the ear.
std::vector<double> weightedEnergy(const Signal& channel) {
    Biquad head = Biquad::highShelf(1681.974450955533, 3.999843853973347, 0.7071752369554196);
    Biquad lows = Biquad::highPass(38.13547087602444, 0.5003270373238773);
    std::vector<double> result(channel.size() / hop, 0.0);
    for (std::size_t frame = 0; frame < result.size() * hop; ++frame) {
        const double value = lows.process(head.process(channel[frame]));
        result[frame / hop] += value * value;
    }
    return result;
}

double loudnessOf(double meanSquare) {
    return -0.691 + 10.0 * std::log10(meanSquare);
}

// The mean of the blocks that are louder than `gate`.
double gatedMean(const std::vector<double>& blocks, double gate) {
    double sum = 0.0;
    int count = 0;
    for (const double block : blocks) {
        if (block > 0.0 && loudnessOf(block) > gate) {
            sum += block;
            ++count;
        }
    }
    return count == 0 ? 0.0 : sum / count;
}

}  // namespace

double integratedLoudness(const StereoSignal& signal) {
    const auto left = weightedEnergy(signal.left);
    const auto right = weightedEnergy(signal.right);
    std::vector<double> blocks;
    for (std::size_t first = 0; first + hopsPerBlock <= left.size(); ++first) {
        double sum = 0.0;
        for (std::size_t i = first; i < first + hopsPerBlock; ++i) {
            sum += left[i] + right[i];
        }
        blocks.push_back(sum / static_cast<double>(hopsPerBlock * hop));
    }
    const double ungated = gatedMean(blocks, -70.0);
    if (ungated == 0.0) {
        return -std::numeric_limits<double>::infinity();
    }
    return loudnessOf(gatedMean(blocks, loudnessOf(ungated) - 10.0));
}

}  // namespace vandrel::art
