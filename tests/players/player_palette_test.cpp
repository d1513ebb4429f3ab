#include <gtest/gtest.h>

#include <vector>

#include "base/colour.h"
#include "players/player_look.h"
#include "shell/accessibility.h"

namespace vandrel {
namespace {

TEST(PlayerPalette, IsTheSameOnEveryRunAndFarFromTheBackground) {
    for (int background = 0; background <= 4; ++background) {
        accessibility.bgcol = background;
        invalidatePlayerColours();
        const std::vector<RGB> colours = playerColours();
        ASSERT_EQ(colours.size(), 100U);
        EXPECT_EQ(colours.at(0), (RGB{192, 192, 192}));
        EXPECT_EQ(colours.at(6), (RGB{0, 255, 255}));
        EXPECT_EQ(colours.at(7), (RGB{172, 47, 117})) << "the first draws of the twister seeded with 0";
        for (const RGB colour : colours) {
            EXPECT_GE(colourDistance(colour, backgroundColour(background)), 150.0f) << background;
        }
    }
    accessibility.bgcol = 0;
    EXPECT_EQ(playerColours().at(99), (RGB{234, 204, 230}));
    accessibility = AccessibilitySettings();
    EXPECT_EQ(playerColours().at(99), (RGB{53, 51, 174})) << "another background, another palette";
}

}  // namespace
}  // namespace vandrel
