// The loot box room without its screen: the test is the clock and the finger on the key.
#include "frontend/lootbox_room.h"

#include <allegro5/allegro_font.h>
#include <allegro5/allegro_ttf.h>
#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <stdexcept>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "frontend/lootbox_room_drawing.h"
#include "frontend/lootbox_show.h"
#include "match/match_stage.h"
#include "match/options/game_options.h"
#include "presentation/drawing.h"
#include "presentation/ink.h"
#include "presentation/play_sample.h"
#include "presentation/text.h"
#include "shell/config.h"
#include "shell/shell_test_tools.h"
#include "shell/switches.h"
#include "support/drawing_stage.h"

namespace vandrel {
namespace {

using testing::ElementsAre;

const auto nobodyPresses = [] { return false; };
const auto somebodyPresses = [] { return true; };

// Updates until the prizes begin or the prompt stands under the total.
void countToTheEnd(LootboxShow& show) {
    for (int i = 0; i < 100'000 && show.isCounting() && !show.promptShown(); ++i) {
        show.update(nobodyPresses);
    }
}

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
            EXPECT_EQ((HeardSample{id, volume, pan, speed}), HeardSample{SampleIds::Cash2});
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

    // The room as it opens for so many points.
    static LootboxShow open(int points) {
        lootboxPoints = points;
        return LootboxShow::open().value();
    }

    // Updates until a prize is on show; gives their number.
    static int waitForPrize(LootboxShow& show) {
        int updates = 0;
        for (; show.current() == nullptr && updates < 1000; ++updates) {
            EXPECT_FALSE(show.promptShown());
            show.update(nobodyPresses);
        }
        return updates;
    }

    // A whole visit by somebody who presses as soon as the prompt is there: the captions seen, in their order.
    static std::vector<std::string> visit(int points) {
        std::vector<std::string> captions;
        LootboxShow show = open(points);
        for (int i = 0; !show.done() && i < 100'000; ++i) {
            const Prize* before = show.current();
            show.update([&] { return before != nullptr || show.isCounting(); });
            if (show.current() != before) {
                captions.emplace_back(show.current()->caption);
            }
        }
        EXPECT_TRUE(show.done()) << "the room cannot be left";
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
    // At each rate the waits behind the first ticks; the last one stays.
    const std::pair<int, std::vector<int>> rates[] = {
        {60, {16, 15, 14, 14, 13, 12, 12, 11, 11, 10, 9, 9, 8, 8, 7, 6, 6, 5, 5, 4, 3}},
        {144, {36, 35, 34, 32, 31, 29, 28, 26, 25, 24, 22, 21, 19, 18, 16, 15, 13, 12, 11, 9, 8}}};
    for (const auto& [rate, waits] : rates) {
        gameOptions.updaterate = rate;
        LootboxShow show = open(1000);
        // The ticks that count one point more.
        const std::set<std::size_t> growsAt{40, 60, 80, 99, 119, 139, 159, 179, 199};
        int amount = 1, shown = 0;
        std::size_t ticks = 0;
        for (; shown < 1000 && !HasFailure(); ++ticks) {
            int updates = 0;
            for (; show.shownPoints() == shown && updates < 1000; ++updates) {
                show.update(nobodyPresses);
            }
            const int told = ticks == 0 ? 2 : waits[std::min(ticks, waits.size()) - 1];
            EXPECT_EQ(updates, told) << "before tick " << ticks << " at " << rate;
            amount += growsAt.contains(ticks) ? 1 : 0;
            EXPECT_EQ(show.shownPoints(), std::min(shown + amount, 1000)) << "by tick " << ticks;
            shown = show.shownPoints();
        }
        EXPECT_EQ(ticks, 208U);
        EXPECT_EQ(std::exchange(ticksHeard, 0), 208);
    }
}

TEST_F(LootboxRoom, OpensOnlyForNewPointsAndWhereLootboxesAreOn) {
    const std::tuple<int, int, bool, bool> cases[] = {{0, 0, true, false},  {5, 5, true, false}, {7, 5, true, false},
                                                      {0, 1, false, false}, {0, 1, true, true},  {5, 6, true, true}};
    for (const auto& [stored, points, enabled, opens] : cases) {
        setConfigInt("lootbox", "lootboxPoints", stored);
        lootboxPoints = points;
        lootboxesEnabled = enabled;
        EXPECT_EQ(LootboxShow::open().has_value(), opens) << stored << " " << points;
        if (!opens) {
            lootboxRoom();  // there is no display here that it could draw on
            EXPECT_EQ(getConfigInt("lootbox", "lootboxPoints", 0), stored);
        }
    }
}

TEST_F(LootboxRoom, WithNothingWonThePromptStandsUnderTheTotalAndOnePressLeaves) {
    LootboxShow show = open(9);
    countToTheEnd(show);
    EXPECT_TRUE(show.isCounting());
    EXPECT_TRUE(show.promptShown());
    EXPECT_EQ(show.shownPoints(), 9);
    show.update(nobodyPresses);
    EXPECT_FALSE(show.done());
    show.update(somebodyPresses);
    EXPECT_TRUE(show.done());
    EXPECT_THAT(prizesWon(), testing::IsEmpty());
}

TEST_F(LootboxRoom, PrizesThatOneTickWinsAreShownInTurnAfterTwoSeconds) {
    setConfigInt("lootbox", "lootboxPoints", 29);
    setConfigInt("lootbox", "Alien1", 1);
    setConfigInt("lootbox", "Santa", 7);  // any other number than 0 says so too
    LootboxShow show = open(30);
    countToTheEnd(show);
    EXPECT_THAT(prizesWon(), testing::UnorderedElementsAre("Alien1", "Santa", "Django", "Squirrel"));
    EXPECT_EQ(waitForPrize(show), 121) << "two seconds, and below 0";
    EXPECT_STREQ(show.current()->caption, "A dog");
    EXPECT_TRUE(show.promptShown());
    show.update(somebodyPresses);
    EXPECT_STREQ(show.current()->caption, "A squirrel");
    EXPECT_FALSE(show.done());
    show.update(somebodyPresses);
    EXPECT_TRUE(show.done());
    EXPECT_EQ(getConfigInt("lootbox", "lootboxPoints", 0), 29) << "written when the room is left, not before";
    LootboxShow::close();
    EXPECT_EQ(getConfigInt("lootbox", "lootboxPoints", 0), 30);
    EXPECT_FALSE(LootboxShow::open().has_value());
}

TEST_F(LootboxRoom, WhatAPhobiaWithholdsIsWonAtTheNextOpeningAfterIt) {
    catsEnabled.value = false;
    EXPECT_THAT(visit(60), ElementsAre("Santa", "A dog", "A squirrel", "Marmite on pitta bread", "Narwhals"));
    catsEnabled.value = true;
    EXPECT_THAT(visit(61), ElementsAre("A cat", "A cat"));

    ferretsEnabled.value = false;
    EXPECT_THAT(visit(300), testing::Not(testing::Contains("Cat and ferret"))) << "one of its two animals is off";
    ferretsEnabled.value = true;
    EXPECT_THAT(visit(301), ElementsAre("Cat and ferret"));
}

TEST_F(LootboxRoom, EveryPrizeIsWonOnceWhereverTheVisitsFall) {
    std::vector<std::string> captions;
    for (const int points : {3, 9, 100, 101, 470, 1000}) {  // a match that was quit only adds to the next one's visit
        std::ranges::copy(visit(points), std::back_inserter(captions));
        EXPECT_EQ(getConfigInt("lootbox", "lootboxPoints", 0), points);
    }
    std::vector<std::string> told;
    std::ranges::transform(prizes, std::back_inserter(told), &Prize::caption);
    EXPECT_EQ(captions, told);
    EXPECT_EQ(prizesWon().size(), 30U);
}

TEST_F(LootboxRoom, ShowsAPictureInTheMiddleUnderItsCaptionAndSaysWhichOneIsMissing) {
    al_init_font_addon();
    al_init_ttf_addon();
    std::filesystem::create_directory_symlink(std::filesystem::path(VANDREL_SOURCE_DIR) / "game" / "fonts", "fonts");
    loadFonts();
    loadPlainImage(bitmapIndex(BitmapIds::Alien1), {200, 10, 10}, 200, 100);
    LootboxShow show = open(20);
    countToTheEnd(show);
    waitForPrize(show);
    const BitmapWrapper target(1920, 1080, true);
    drawLootboxRoom(show, target);
    const Ink picture = inkOf(target, allOf(target), RGB{200, 10, 10});
    EXPECT_EQ(picture.count, 200 * 100);
    EXPECT_EQ(picture.left, 860);
    EXPECT_EQ(picture.top, 490);
    const Ink words = inkOf(target, allOf(target), RGB{255, 255, 255});
    EXPECT_GE(words.top, 38) << "the caption: 2 % of the width from the top";
    EXPECT_LT(words.top, 80);
    EXPECT_GE(words.bottom, 1026) << "the prompt: 95 % of the height from the top";
    EXPECT_LT(words.bottom, 1066);

    show.update(somebodyPresses);
    EXPECT_THAT([&] { drawLootboxRoom(show, target); },
                testing::ThrowsMessage<std::runtime_error>("Image not found: Santa"));
    EXPECT_THAT(prizesWon(), testing::UnorderedElementsAre("Alien1", "Santa")) << "what was won stays won";
}

// Whole matches, in which each of the two players takes so much cash in the first update; then the second one dies.
class CashInMatches : public MatchStage {
  protected:
    CashInMatches() {
        openConfig(folder.path + "/vandrel.cfg");
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
        LootboxShow show = LootboxShow::open().value();
        const int from = show.shownPoints();
        countToTheEnd(show);
        counts.emplace_back(from, show.shownPoints());
        LootboxShow::close();
    };
    const auto play = [&](int cash, int closeAt) {
        cashEach = cash;
        closeAtUpdate = closeAt;
        return play_the_game(false, "", {}, real);
    };
    EXPECT_TRUE(play(2, 10));
    EXPECT_THAT(counts, testing::IsEmpty());
    EXPECT_EQ(getConfigInt("lootbox", "lootboxPoints", 0), 0) << "written when they were counted";
    EXPECT_FALSE(play(1, -1));
    EXPECT_TRUE(play(1, 10));
    EXPECT_FALSE(play(0, -1));
    EXPECT_THAT(counts, ElementsAre(testing::Pair(0, 6), testing::Pair(6, 8)));
}

}  // namespace
}  // namespace vandrel
