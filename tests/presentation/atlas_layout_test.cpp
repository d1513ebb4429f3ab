#include "presentation/atlas_layout.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace vandrel {
namespace {

constexpr int pageSize = 128;

bool overlapWithBorders(const AtlasPlace& a, const AtlasPlace& b) {
    const int gap = 2 * atlasBorder;
    return a.page == b.page && a.x < b.x + b.width + gap && b.x < a.x + a.width + gap && a.y < b.y + b.height + gap &&
           b.y < a.y + a.height + gap;
}

void expectSound(const std::vector<AtlasPlace>& places) {
    for (std::size_t i = 0; i < places.size(); ++i) {
        const AtlasPlace& place = places[i];
        EXPECT_GE(place.x, atlasBorder);
        EXPECT_GE(place.y, atlasBorder);
        EXPECT_LE(place.x + place.width + atlasBorder, pageSize);
        EXPECT_LE(place.y + place.height + atlasBorder, pageSize);
        for (std::size_t j = i + 1; j < places.size(); ++j) {
            EXPECT_FALSE(overlapWithBorders(place, places[j])) << i << " and " << j;
        }
    }
}

std::vector<AtlasPlace> placeMixture(AtlasLayout& layout) {
    std::vector<AtlasPlace> places;
    for (int i = 0; i < 10; ++i) {
        for (const auto& [width, height] : {std::pair{32, 32}, {16, 16}, {32, 64}, {100, 32}}) {
            places.push_back(layout.place(width, height).value());
        }
    }
    return places;
}

TEST(AtlasLayout, HoldsWhatFitsAPageAndNothingLarger) {
    AtlasLayout layout(pageSize);
    EXPECT_TRUE(layout.place(pageSize - 2, pageSize - 2));
    EXPECT_FALSE(layout.place(pageSize - 1, 16));
    EXPECT_FALSE(layout.place(16, pageSize - 1));
}

TEST(AtlasLayout, GivesEveryPictureAPlaceWithABorderOfItsOwnAndUsesReleasedPlacesAgain) {
    AtlasLayout layout(pageSize);
    std::vector<AtlasPlace> places = placeMixture(layout);
    expectSound(places);
    const int pages = layout.pageCount();
    EXPECT_GT(pages, 1);
    for (int round = 0; round < 5; ++round) {
        // Backward, forward, and then a stretch that only neighbours released together can give.
        for (std::size_t i = 0; i < places.size(); ++i) {
            layout.release(places[round % 2 == 0 ? i : places.size() - 1 - i]);
        }
        places = placeMixture(layout);
        expectSound(places);
    }
    EXPECT_EQ(layout.pageCount(), pages);
}

TEST(AtlasLayout, JoinsNeighboursThatWereReleased) {
    AtlasLayout layout(pageSize);
    std::vector<AtlasPlace> row;
    while (layout.pageCount() < 2) {
        row.push_back(layout.place(30, 126).value());
    }
    ASSERT_EQ(row.size(), 5U);  // four fill the page, the fifth begins another
    layout.release(row[1]);
    layout.release(row[3]);
    layout.release(row[2]);
    const AtlasPlace wide = layout.place(94, 126).value();
    EXPECT_EQ(wide.page, 0);
    EXPECT_EQ(wide.x, row[1].x);
}

}  // namespace
}  // namespace vandrel
