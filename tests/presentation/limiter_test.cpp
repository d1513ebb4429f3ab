#include "presentation/limiter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <span>
#include <vector>

namespace vandrel {

namespace {

// Pairs of a tone of 60 Hz, so loud on the left and half as loud on the right.
std::vector<float> thump(std::size_t pairs, float loudness) {
    std::vector<float> stereo;
    stereo.reserve(2 * pairs);
    for (std::size_t i = 0; i < pairs; ++i) {
        const float value =
            loudness * std::sin(static_cast<float>(i) * 60.0f * 2.0f * std::numbers::pi_v<float> / 44'100.0f);
        stereo.push_back(value);
        stereo.push_back(value / 2.0f);
    }
    return stereo;
}

TEST(Limiter, LeavesWhatCanBePlayedAsItIs) {
    const std::vector<float> before = thump(10'000, loudestMix);
    std::vector<float> stereo = before;
    EXPECT_EQ(holdBack(stereo, 1.0f), 1.0f);
    EXPECT_EQ(stereo, before);
}

TEST(Limiter, HoldsLoudPassagesBackWithoutCuttingThemOffAndComesBack) {
    const std::vector<float> before = thump(44'100, 2.5f);
    std::vector<float> stereo = before;
    float gain = 1.0f;
    float loudest = 0.0f;
    for (std::size_t at = 0; at < stereo.size(); at += 2000) {
        gain = holdBack(std::span(stereo).subspan(at, std::min<std::size_t>(2000, stereo.size() - at)), gain);
    }
    for (std::size_t i = 0; i < stereo.size(); i += 2) {
        ASSERT_LE(std::fabs(stereo[i]), loudestMix + 1e-6f) << "pair " << i / 2;
        ASSERT_NEAR(stereo[i + 1], stereo[i] / 2.0f, 1e-6f) << "the sides keep their balance, pair " << i / 2;
        // From the second swing on the quiet parts are as much quieter as the loud ones: a cut would leave them alone.
        if (i > 4000 && std::fabs(before[i]) > 0.1f) {
            loudest = std::max(loudest, stereo[i] / before[i]);
        }
    }
    EXPECT_LT(loudest, 0.5f);

    std::vector<float> after = thump(10'000, 0.5f);
    EXPECT_LT(gain, 0.5f);
    EXPECT_EQ(holdBack(after, gain), 1.0f);
}

}  // namespace

}  // namespace vandrel
