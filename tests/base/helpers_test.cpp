#include <gmock/gmock.h>

#include <cmath>
#include <map>
#include <unordered_map>
#include <vector>

#include "base/checked.h"
#include "base/colour.h"
#include "base/facing.h"
#include "base/numeric.h"
#include "base/version.h"

namespace vandrel {
namespace {

auto isOutOfRange(const char* text) {
    return testing::ThrowsMessage<std::out_of_range>(text);
}

TEST(Facing, LeadsToItsDirectionAndBack) {
    for (const Facing facing : facingOrder) {
        EXPECT_EQ(facingOf(directionOf(facing)), facing);
        EXPECT_EQ(directionOf(opposite(facing)), (Square{} - directionOf(facing)));
    }
    EXPECT_EQ(directionOf(Facing::Up), (Square{0, -1}));
    EXPECT_THAT([] { facingOf({1, 1}); }, isOutOfRange("valueKey: value '{1,1}' not found"));
}

TEST(Approach, NeverPassesItsTarget) {
    EXPECT_EQ(approach(10, 20, 3), 13);
    EXPECT_EQ(approach(19, 20, 3), 20);
    EXPECT_EQ(approach(20, 20, 3), 20);
    EXPECT_EQ(approach(21, 20, 3), 20);
    EXPECT_EQ(approach(-10, -20, 4), -14);
}

TEST(MapRange, IsLinearInsideAndHeldOutside) {
    EXPECT_FLOAT_EQ(mapRange(5.0f, 0.0f, 10.0f, 0.0f, 255.0f), 127.5f);
    EXPECT_FLOAT_EQ(mapRange(-5.0f, 0.0f, 10.0f, 0.0f, 255.0f), 0.0f);
    EXPECT_FLOAT_EQ(mapRange(15.0f, 0.0f, 10.0f, 0.0f, 255.0f), 255.0f);
    EXPECT_FLOAT_EQ(mapRange(2.0f, 0.0f, 10.0f, 1.0f, -1.0f), 0.6f);
}

// Worked out by hand from the red-mean formula.
TEST(ColourDistance, IsTheRedMeanDistance) {
    EXPECT_FLOAT_EQ(colourDistance({40, 50, 60}, {40, 50, 60}), 0.0f);
    EXPECT_NEAR(colourDistance({0, 0, 0}, {255, 255, 255}), 764.83f, 0.01f);
    EXPECT_FLOAT_EQ(colourDistance({0, 10, 0}, {0, 0, 0}), 20.0f);
    EXPECT_NEAR(colourDistance({255, 0, 0}, {0, 0, 0}), std::sqrt(162308.0f), 0.01f);
    EXPECT_NEAR(colourDistance({0, 0, 255}, {0, 0, 0}), std::sqrt(194821.0f), 0.01f);
}

TEST(Colours, SurviveTheWayToFloatsAndBack) {
    for (int value = 0; value < 256; ++value) {
        const auto byte = static_cast<std::uint8_t>(value);
        EXPECT_EQ(toRGB(toColour({byte, byte, byte})), (RGB{byte, byte, byte}));
    }
}

TEST(Versions, ReadAsMajorMinorPatch) {
    EXPECT_EQ(replayOutputVersion, 0x1001002);
    EXPECT_EQ(versionText(replayOutputVersion), "1.1.2");
    EXPECT_EQ(versionText(0x5F005), "0.95.5");
    EXPECT_EQ(versionText(10), "0.0.10");
}

TEST(CheckedLookups, FailWithTextsOfTheirOwn) {
    const std::vector<int> table{1, 2, 3};
    EXPECT_EQ(checkedAt(table, 2), 3);
    EXPECT_THAT([&] { checkedAt(table, 3); }, isOutOfRange("invalid vector subscript"));
    EXPECT_THAT([&] { checkedAt(table, -1); }, isOutOfRange("invalid vector subscript"));
    const std::map<int, int> ordered{{1, 2}};
    EXPECT_EQ(checkedKey(ordered, 1), 2);
    EXPECT_THAT([&] { checkedKey(ordered, 2); }, isOutOfRange("invalid map<K, T> key"));
    const std::unordered_map<int, int> hashed{{1, 2}};
    EXPECT_EQ(checkedHashKey(hashed, 1), 2);
    EXPECT_THAT([&] { checkedHashKey(hashed, 2); }, isOutOfRange("invalid unordered_map<K, T> key"));
}

}  // namespace
}  // namespace vandrel
