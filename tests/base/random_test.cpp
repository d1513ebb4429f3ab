#include "base/random.h"

#include <gtest/gtest.h>

#include <random>

namespace vandrel {
namespace {

// Published values of the generator with multiplier 214013 and increment 2531011, bits 16 to 30, from seed 1.
TEST(GameRand, YieldsTheKnownSequenceFromSeedOneEachTime) {
    for (int time = 0; time < 2; ++time) {
        seedGameRand(1);
        for (const int expected : {41, 18467, 6334, 26500, 19169, 15724, 11478, 29358, 26962, 24464}) {
            EXPECT_EQ(gameRand(), expected);
        }
    }
}

// The first outputs of the twister with its default seed are 3499211612, 581869302, 3890346734, 3586334585.
TEST(UniformInt, IsTheLowestValuePlusTheRemainderOfOneOutputAndOfNoneForARangeOfOne) {
    std::mt19937 generator;
    EXPECT_EQ(uniformInt(generator, 7, 7), 7);
    EXPECT_EQ(uniformInt(generator, 1, 100), 1 + static_cast<int>(3499211612U % 100U));
    EXPECT_EQ(uniformInt(generator, -3, 3), -3 + static_cast<int>(581869302U % 7U));
    EXPECT_EQ(uniformInt(generator, 0, 255), static_cast<int>(3890346734U % 256U));
}

TEST(UniformInt, RejectsOutputsOfTheLastPartialRange) {
    // With 3,000,000,000 values an output at or above that is taken again: the first one, 3499211612, is.
    std::mt19937 generator;
    constexpr int low = -1'500'000'000;
    constexpr int high = 1'499'999'999;
    EXPECT_EQ(uniformInt(generator, low, high), low + 581869302);
    std::mt19937 twoTaken;
    twoTaken.discard(2);
    EXPECT_EQ(generator, twoTaken);
}

TEST(CanonicalFloat, IsOneOutputScaledIntoZeroToOne) {
    std::mt19937 generator;
    EXPECT_FLOAT_EQ(canonicalFloat(generator), 3499211612.0f / 4294967296.0f);
    for (int i = 0; i < 10'000; ++i) {
        const float value = canonicalFloat(generator);
        ASSERT_GE(value, 0.0f);
        ASSERT_LT(value, 1.0f);
    }
}

}  // namespace
}  // namespace vandrel
