// The loot box room without its screen: the test is the clock and the finger on the key.
#include "frontend/lootbox_room.h"

#include <allegro5/allegro_font.h>
#include <allegro5/allegro_ttf.h>
#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "frontend/lootbox_room_drawing.h"
#include "frontend/lootbox_show.h"
#include "match/match_stage.h"
#include "match/options/game_options.h"
#include "presentation/drawing.h"
#include "presentation/play_sample.h"
#include "presentation/text.h"
#include "shell/config.h"
#include "shell/shell_test_tools.h"
#include "shell/switches.h"
#include "support/drawing_stage.h"

namespace vandrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LootboxRoom : public DrawingTest {
  protected:
    LootboxRoom() {
        openConfig(folder_.path + "/vandrel.cfg");
        forgetOptions();
        lootboxesEnabled = true;
        lootboxPoints = 0;
        gameOptions = GameOptions();
        ticksHeard = 0;
        setSamplePlayer([](SampleIds id, int volume, int pan, int speed) {
            EXPECT_EQ(id, SampleIds::Cash2);
            EXPECT_THAT((std::vector{volume, pan, speed}), ElementsAre(200, 128, 1000));
            ++ticksHeard;
        });
    }
    ~LootboxRoom() override {
        setSamplePlayer(nullptr);
        lootboxPoints = 0;
        lootboxesEnabled = true;
        forgetOptions();
        gameOptions = GameOptions();
    }

    // The switches of the phobias are read anew, as at the next start of the program.
    static void forgetOptions() {
        for (auto* option : {&catsEnabled, &dogsEnabled, &hamstersEnabled, &owlsEnabled, &ferretsEnabled}) {
            option->value.reset();
        }
    }

    // Updates until the prizes begin or the prompt stands under the total.
    static void countToTheEnd(LootboxShow& show) {
        for (int i = 0; i < 100'000 && show.isCounting() && !show.promptShown(); ++i) {
            show.update([] { return false; });
        }
    }

    // A whole visit by somebody who presses as soon as the prompt is there: the captions seen, in their order.
    static std::vector<std::string> visit() {
        std::vector<std::string> captions;
        std::optional<LootboxShow> show = LootboxShow::open();
        EXPECT_TRUE(show.has_value());
        for (int i = 0; show && !show->done(); ++i) {
            const Prize* before = show->current();
            show->update([&] { return before != nullptr || show->isCounting(); });
            if (show->current() != before) {
                captions.emplace_back(show->current()->caption);
            }
            if (i == 100'000) {
                ADD_FAILURE() << "the room cannot be left";
                break;
            }
        }
        LootboxShow::close();
        return captions;
    }

    static std::set<std::string> prizesWon() {
        std::set<std::string> keys;
        for (const Prize& prize : prizes) {
            if (getConfigInt("lootbox", prize.key, 0) != 0) {
                keys.insert(prize.key);
            }
        }
        return keys;
    }

    static inline int ticksHeard = 0;

  private:
    test::ScratchDirectory folder_;
};

// From 0 to 1000, in updates and points: 20 ticks while the wait falls from 0.25 s to 0.05 s, 20 more while the amount
// grows to 2, and from there 20 for each amount. Where a sum of hundredths comes to a whole number, it is the rounding
// of 32-bit floats that says whether it is reached.
TEST_F(LootboxRoom, TicksQuickenFromFourASecondToTwentyAndThenGrow) {
    struct Case {
        int rate;
        std::vector<int> waits;  // behind each of the first ticks; the last one stays
    };
    for (const Case& c :
         {Case{60, {16, 15, 14, 14, 13, 12, 12, 11, 11, 10, 9, 9, 8, 8, 7, 6, 6, 5, 5, 4, 3}},
          Case{144, {36, 35, 34, 32, 31, 29, 28, 26, 25, 24, 22, 21, 19, 18, 16, 15, 13, 12, 11, 9, 8}}}) {
        gameOptions.updaterate = c.rate;
        lootboxPoints = 1000;
        std::optional<LootboxShow> show = LootboxShow::open();
        ASSERT_TRUE(show.has_value());
        const std::set<int> growsAt{40, 60, 80, 99, 119, 139, 159, 179, 199};  // ticks that count one point more
        int amount = 1;
        int shown = 0;
        int updates = 0;
        int ticks = 0;
        while (shown < 1000 && updates < 1000) {
            ++updates;
            show->update([] { return false; });
            if (show->shownPoints() == shown) {
                continue;
            }
            const int told = ticks == 0 ? 2 : c.waits[std::min<std::size_t>(ticks, c.waits.size()) - 1];
            EXPECT_EQ(updates, told) << "before tick " << ticks << " at " << c.rate;
            amount += growsAt.contains(ticks) ? 1 : 0;
            EXPECT_EQ(show->shownPoints(), std::min(shown + amount, 1000)) << "by tick " << ticks;
            shown = show->shownPoints();
            updates = 0;
            ++ticks;
        }
        EXPECT_EQ(shown, 1000);
        EXPECT_EQ(ticks, 208);
        EXPECT_EQ(ticksHeard, ticks);
        ticksHeard = 0;
        std::ranges::for_each(prizes, [](const Prize& prize) { setConfigInt("lootbox", prize.key, 0); });
    }
}

TEST_F(LootboxRoom, OpensOnlyForNewPointsAndWhereLootboxesAreOn) {
    struct Case {
        int stored;
        int points;
        bool enabled;
        bool opens;
    };
    for (const Case& c : {Case{0, 0, true, false}, Case{5, 5, true, false}, Case{7, 5, true, false},
                          Case{0, 1, false, false}, Case{0, 1, true, true}, Case{5, 6, true, true}}) {
        setConfigInt("lootbox", "lootboxPoints", c.stored);
        lootboxPoints = c.points;
        lootboxesEnabled = c.enabled;
        EXPECT_EQ(LootboxShow::open().has_value(), c.opens) << c.stored << " " << c.points;
        if (!c.opens) {
            lootboxRoom();  // there is no display here that it could draw on
            EXPECT_EQ(getConfigInt("lootbox", "lootboxPoints", 0), c.stored);
        }
    }
}

TEST_F(LootboxRoom, WithNothingWonThePromptStandsUnderTheTotalAndOnePressLeaves) {
    lootboxPoints = 9;
    std::optional<LootboxShow> show = LootboxShow::open();
    ASSERT_TRUE(show.has_value());
    countToTheEnd(*show);
    EXPECT_TRUE(show->isCounting());
    EXPECT_TRUE(show->promptShown());
    EXPECT_EQ(show->shownPoints(), 9);
    show->update([] { return false; });
    EXPECT_FALSE(show->done());
    show->update([] { return true; });
    EXPECT_TRUE(show->done());
    EXPECT_THAT(prizesWon(), IsEmpty());
}

TEST_F(LootboxRoom, PrizesThatOneTickWinsAreShownInTurnAfterTwoSeconds) {
    setConfigInt("lootbox", "lootboxPoints", 29);
    setConfigInt("lootbox", "Alien1", 1);
    setConfigInt("lootbox", "Santa", 7);  // any other number than 0 says so too
    lootboxPoints = 30;
    std::optional<LootboxShow> show = LootboxShow::open();
    ASSERT_TRUE(show.has_value());
    countToTheEnd(*show);
    EXPECT_THAT(prizesWon(), testing::UnorderedElementsAre("Alien1", "Santa", "Django", "Squirrel"));
    int updates = 0;
    while (show->current() == nullptr && updates < 1000) {
        EXPECT_FALSE(show->promptShown());
        show->update([] { return false; });
        ++updates;
    }
    EXPECT_EQ(updates, 121) << "two seconds, and below 0";
    EXPECT_STREQ(show->current()->caption, "A dog");
    EXPECT_TRUE(show->promptShown());
    show->update([] { return true; });
    EXPECT_STREQ(show->current()->caption, "A squirrel");
    EXPECT_FALSE(show->done());
    show->update([] { return true; });
    EXPECT_TRUE(show->done());
    EXPECT_EQ(getConfigInt("lootbox", "lootboxPoints", 0), 29) << "written when the room is left, not before";
    LootboxShow::close();
    EXPECT_EQ(getConfigInt("lootbox", "lootboxPoints", 0), 30);
    EXPECT_FALSE(LootboxShow::open().has_value());
}

TEST_F(LootboxRoom, WhatAPhobiaWithholdsIsWonAtTheNextOpeningAfterIt) {
    catsEnabled.value = false;
    lootboxPoints = 60;
    EXPECT_THAT(visit(), ElementsAre("Santa", "A dog", "A squirrel", "Marmite on pitta bread", "Narwhals"));
    catsEnabled.value = true;
    lootboxPoints = 61;
    EXPECT_THAT(visit(), ElementsAre("A cat", "A cat"));

    ferretsEnabled.value = false;
    lootboxPoints = 300;
    EXPECT_THAT(visit(), testing::Not(testing::Contains("Cat and ferret"))) << "one of its two animals is off";
    ferretsEnabled.value = true;
    lootboxPoints = 301;
    EXPECT_THAT(visit(), ElementsAre("Cat and ferret"));
}

TEST_F(LootboxRoom, EveryPrizeIsWonOnceWhereverTheVisitsFall) {
    std::vector<std::string> captions;
    for (const int points : {3, 9, 100, 101, 470, 1000}) {  // a match that was quit only adds to the next one's visit
        lootboxPoints = points;
        std::ranges::copy(visit(), std::back_inserter(captions));
        EXPECT_EQ(getConfigInt("lootbox", "lootboxPoints", 0), points);
    }
    std::vector<std::string> told;
    std::set<std::string> keys;
    for (const Prize& prize : prizes) {
        told.emplace_back(prize.caption);
        keys.insert(prize.key);
    }
    EXPECT_EQ(captions, told);
    EXPECT_EQ(prizesWon(), keys);
    EXPECT_EQ(keys.size(), 30U);
}

TEST_F(LootboxRoom, ShowsAPictureInTheMiddleUnderItsCaptionAndSaysWhichOneIsMissing) {
    al_init_font_addon();
    al_init_ttf_addon();
    std::filesystem::create_directory_symlink(std::filesystem::path(VANDREL_SOURCE_DIR) / "game" / "fonts", "fonts");
    loadFonts();
    loadPlainImage(bitmapIndex(BitmapIds::Alien1), {200, 10, 10}, 200, 100);
    lootboxPoints = 20;
    std::optional<LootboxShow> show = LootboxShow::open();
    ASSERT_TRUE(show.has_value());
    countToTheEnd(*show);
    while (show->current() == nullptr) {
        show->update([] { return false; });
    }
    const BitmapWrapper target(1920, 1080, true);
    drawLootboxRoom(*show, target);
    const RGB red{200, 10, 10};
    EXPECT_EQ(pixelAt(target, 860, 490), red);
    EXPECT_EQ(pixelAt(target, 1059, 589), red);
    EXPECT_EQ(pixelAt(target, 859, 490), RGB{});
    EXPECT_EQ(pixelAt(target, 1060, 589), RGB{});
    const auto litRows = [&target](int top, int bottom) {
        int lit = 0;
        for (int y = top; y < bottom; ++y) {
            for (int x = 0; x < target.width(); x += 1) {
                lit += pixelAt(target, x, y) == RGB{255, 255, 255} ? 1 : 0;
            }
        }
        return lit > 0;
    };
    EXPECT_FALSE(litRows(0, 38));
    EXPECT_TRUE(litRows(38, 80)) << "the caption: 2 % of the width from the top";
    EXPECT_TRUE(litRows(1026, 1066)) << "the prompt: 95 % of the height from the top";

    show->update([] { return true; });
    EXPECT_THROW(
        try { drawLootboxRoom(*show, target); } catch (const std::runtime_error& error) {
            EXPECT_STREQ(error.what(), "Image not found: Santa");
            throw;
        },
        std::runtime_error);
    EXPECT_THAT(prizesWon(), testing::UnorderedElementsAre("Alien1", "Santa")) << "what was won stays won";
    EXPECT_EQ(getConfigInt("lootbox", "lootboxPoints", 0), 0);
}

// Whole matches, in which each of the two players takes so much cash in the first update; then the second one dies.
class CashInMatches : public MatchStage {
  protected:
    CashInMatches() {
        openConfig(folder.path + "/vandrel.cfg");
        lootboxPoints = 0;
        onUpdate = [this](int /*round*/) {
            if (frameCounter != 0) {
                return;
            }
            for (const auto& player : players) {
                for (int i = 0; i < cashEach; ++i) {
                    player->givePowerup(Bonus::Cash);
                }
            }
            players.at(1)->die();
        };
    }
    ~CashInMatches() override { lootboxPoints = 0; }

    int cashEach = 0;
};

TEST_F(CashInMatches, PointsOfAMatchThatWasQuitCountAtTheNextOpening) {
    std::vector<std::pair<int, int>> counts;  // from and to
    MatchWorld real = world();
    real.roundEnd.lootboxRoom = [&] {
        std::optional<LootboxShow> show = LootboxShow::open();
        ASSERT_TRUE(show.has_value());
        const int from = show->shownPoints();
        for (int i = 0; i < 1000 && !show->promptShown(); ++i) {
            show->update([] { return false; });
        }
        counts.emplace_back(from, show->shownPoints());
        LootboxShow::close();
    };
    const auto play = [&](int cash, int closeAt) {
        cashEach = cash;
        closeAtUpdate = closeAt;
        return play_the_game(false, "", {}, real);
    };
    EXPECT_TRUE(play(2, 10));
    EXPECT_THAT(counts, IsEmpty());
    EXPECT_EQ(getConfigInt("lootbox", "lootboxPoints", 0), 0) << "written when they were counted";
    EXPECT_FALSE(play(1, -1));
    EXPECT_TRUE(play(1, 10));
    EXPECT_FALSE(play(0, -1));
    EXPECT_THAT(counts, ElementsAre(testing::Pair(0, 6), testing::Pair(6, 8)));
}

}  // namespace
}  // namespace vandrel
