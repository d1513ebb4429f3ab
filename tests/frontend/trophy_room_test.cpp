// The trophy room without its screen: the test is the clock, the finger on the key and, where it matters, the painter.
#include "frontend/trophy_room.h"

#include <allegro5/allegro_font.h>
#include <gmock/gmock.h>

#include <cmath>
#include <memory>
#include <stdexcept>
#include <tuple>
#include <utility>
#include <vector>

#include "base/random.h"
#include "frontend/trophy_room_drawing.h"
#include "frontend/trophy_show.h"
#include "frontend/trophy_table.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "players/sprites_drawing.h"
#include "presentation/bitmaps.h"
#include "presentation/drawing.h"
#include "presentation/ink.h"
#include "presentation/play_sample.h"
#include "presentation/text.h"
#include "support/round_fixture.h"

namespace vandrel {
namespace {

constexpr int width = 640;
constexpr int height = 480;

ScoringEntity row(int previousScore, int score, int figures = 1) {
    ScoringEntity entity;
    entity.previousScore = previousScore;
    entity.score = score;
    for (int i = 0; i < figures; ++i) {
        entity.players.push_back(std::make_shared<Player>(0, 0, -1, PlayerLook{}, std::make_shared<NoControls>()));
    }
    return entity;
}

class TrophyRoom : public DrawingTest {
  protected:
    TrophyRoom() {
        gameOptions = GameOptions();
        gameOptions.winsNeeded = 3;
        setSamplePlayer([](SampleIds id, int volume, int pan, int speed) {
            heard.push_back({id, volume, pan, speed});
        });
    }
    ~TrophyRoom() override {
        setSamplePlayer(nullptr);
        gameOptions = GameOptions();
    }

    TrophyShow makeShow(std::vector<ScoringEntity> entities, bool noWinner = false) {
        musicStarted = 0;
        keyAsked = 0;
        heard.clear();
        const auto makeMusic = [this] {
            ++musicStarted;
            return std::make_shared<NoMusic>();
        };
        const auto spacePressed = [this] {
            ++keyAsked;
            return keyHeld;
        };
        return {std::move(entities), noWinner, {makeMusic, spacePressed}};
    }
    // Updates until somebody may leave.
    void open(TrophyShow& show) {
        for (int i = 0; i < 1000 && keyAsked == 0; ++i) {
            show.update(width, height);
        }
        ASSERT_EQ(keyAsked, 1);
    }

    static inline std::vector<HeardSample> heard;
    int musicStarted = 0;
    int keyAsked = 0;
    bool keyHeld = false;
};

TEST_F(TrophyRoom, TheGongBringsTheNewTrophiesAndARestComesBeforeTheKey) {
    for (const int rate : {60, 144}) {
        keyHeld = true;
        gameOptions.updaterate = rate;
        TrophyShow show = makeShow({row(1, 2), row(0, 0)});
        EXPECT_THAT(heard, testing::ElementsAre(HeardSample{SampleIds::Beat2, 191}));
        int untilGong = 0;
        for (; heard.size() == 1 && untilGong < 1000; ++untilGong) {
            EXPECT_EQ(show.trophiesOf(show.entities()[0]), 1);
            EXPECT_FALSE(show.promptShown());
            show.update(width, height);
        }
        EXPECT_EQ(untilGong, static_cast<int>(std::ceil(1.769 * rate)) + 1);
        EXPECT_EQ(show.trophiesOf(show.entities()[0]), 2);
        EXPECT_EQ(show.trophiesOf(show.entities()[1]), 0);
        int untilKey = 0;
        for (; !show.done() && untilKey < 1000; ++untilKey) {
            EXPECT_EQ(keyAsked, 0);
            show.update(width, height);
        }
        EXPECT_EQ(untilKey, rate + 4) << "a second, which floats make one update longer, with three around it";
        EXPECT_TRUE(show.promptShown());
        EXPECT_EQ(keyAsked, 1);
        EXPECT_EQ(musicStarted, 0) << "the match goes on";
        EXPECT_THAT(heard, testing::ElementsAre(testing::_, HeardSample{SampleIds::Gong2}));
    }
}

TEST_F(TrophyRoom, ARoundWithoutAWinnerSoundsOtherwiseAndASlowedLookWearsOffMeanwhile) {
    TrophyShow show = makeShow({row(1, 1), row(0, 0)}, true);
    Player& slowed = *show.entities()[1].players[0];
    slowed.slowTimer = 2;
    open(show);
    EXPECT_EQ(slowed.slowTimer, 1);
    EXPECT_EQ(heard.back(), HeardSample{SampleIds::Wimbaah});
    EXPECT_EQ(show.trophiesOf(show.entities()[0]), 1);
    for (int i = 0; i < 3; ++i) {
        show.update(width, height);
    }
    EXPECT_EQ(slowed.slowTimer, 0);
    EXPECT_EQ(show.entities()[0].players[0]->slowTimer, 0);
}

TEST_F(TrophyRoom, TheMatchIsOverOnlyOnTheWinsNeededToThePoint) {
    const std::pair<std::vector<int>, bool> tables[] = {{{}, false},    {{2, 1}, false}, {{3, 1}, true},
                                                        {{3, 3}, true}, {{4, 3}, false}, {{4, 1}, false}};
    for (const auto& [scores, over] : tables) {
        SCOPED_TRACE(testing::PrintToString(scores));
        std::vector<ScoringEntity> entities;
        for (const int score : scores) {
            entities.push_back(row(score, score, 2));
        }
        TrophyShow show = makeShow(std::move(entities));
        EXPECT_EQ(show.matchOver(), over);
        open(show);
        EXPECT_EQ(musicStarted, over ? 1 : 0);
        for (const ScoringEntity& entity : show.entities()) {
            for (const auto& player : entity.players) {
                EXPECT_EQ(show.flightOf(*player) != nullptr, over && entity.score == 3);
            }
        }
    }
}

TEST_F(TrophyRoom, WinnersAreThrownUpInTheTablesOrderAndWaitUntilTheyWereSeen) {
    globalGenerator.seed(1);
    std::mt19937 expected = globalGenerator;
    TrophyShow show = makeShow({row(2, 3, 2), row(2, 2), row(2, 3)});
    open(show);
    const auto& table = show.entities();
    for (const auto& winner : {table[0].players[0], table[0].players[1], table[2].players[0]}) {
        const WinnerFlight* flight = show.flightOf(*winner);
        ASSERT_NE(flight, nullptr);
        EXPECT_EQ(flight->velocityX, uniformFloat(expected, -2.0f, 2.0f));
        EXPECT_EQ(flight->velocityY, uniformFloat(expected, -6.0f, -3.0f));
    }
    EXPECT_EQ(globalGenerator, expected);
    WinnerFlight& seen = *show.flightOf(*table[0].players[1]);
    seen.leaveFrom(100, 50);
    seen.leaveFrom(300, 300);
    show.update(width, height);
    EXPECT_FLOAT_EQ(seen.x, 100.0f + seen.velocityX);
    EXPECT_FLOAT_EQ(seen.y, 50.0f + seen.velocityY) << "the speed is raised first, and then goes on from there";
    EXPECT_FALSE(show.flightOf(*table[0].players[0])->hasLeft());
}

// Follows a flight through many jumps. What holds of each is told in plain terms.
TEST(WinnerFlight, BouncesOffFloorAndSidesAndMakesOneTurnAJump) {
    globalGenerator.seed(7);
    WinnerFlight flight = throwUp();
    flight.leaveFrom(86, 123);
    int floors = 0, sides = 0;
    int fullTurns = 0, turnsBegun = 0;
    for (int i = 0; i < 20'000; ++i) {
        const WinnerFlight before = flight;
        flight.advance(width, height);
        const bool crestReached = before.velocityY < 0.0f && before.velocityY + 0.1f >= 0.0f;
        if (before.spin == 0.0f) {
            EXPECT_EQ(flight.spin != 0.0f, crestReached) << "a turn begins where the rise ends";
            turnsBegun += flight.spin != 0.0f ? 1 : 0;
        } else if (flight.spin == 0.0f) {
            EXPECT_NEAR(std::abs(before.rotation), 6.283185f, 0.0601f);
            EXPECT_EQ(flight.rotation, 0.0f);
            ++fullTurns;
        } else {
            EXPECT_NEAR(std::abs(flight.rotation - before.rotation), 0.06f, 1e-5f);
        }
        if (flight.y >= height && before.velocityY > 0.0f) {
            EXPECT_LE(flight.velocityY, -4.5f) << "no jump is weaker than a weak throw with the boost";
            EXPECT_GE(flight.velocityY, -9.0f - 1.0f);
            ++floors;
        }
        if (flight.x < 0.0f || flight.x > width) {
            EXPECT_EQ(flight.velocityX, -before.velocityX);
            ++sides;
        } else {
            EXPECT_EQ(flight.velocityX, before.velocityX);
        }
        ASSERT_TRUE(flight.x > -3.0f && flight.x < width + 3.0f && flight.y < height + 20.0f);
    }
    EXPECT_GT(floors, 50);
    EXPECT_GT(sides, 5);
    EXPECT_GE(fullTurns, turnsBegun - 1);
    EXPECT_NEAR(fullTurns, floors, floors / 4) << "a fall that begins in the middle of a turn has none of its own";
}

TEST(TrophyTable, EveryTableHasAScreenOverWhichItsRowsAreSpread) {
    // With the tops of the first row and of the last.
    const std::tuple<int, int, int, int, int> tables[] = {
        {1, 1, 480, 144, 144}, {2, 1, 480, 128, 192}, {5, 1, 480, 80, 336},  {6, 2, 640, 80, 493},
        {10, 2, 640, 54, 541}, {11, 3, 720, 48, 622}, {16, 3, 720, 16, 661}, {17, 4, 960, 16, 889},
        {40, 4, 960, 16, 920}, {100, 4, 960, 16, 934}};
    for (const auto& [rows, slot, tall, first, last] : tables) {
        EXPECT_EQ(trophyScreenSlot(rows), slot) << rows;
        EXPECT_EQ(trophyRowTop(0, rows, tall), first) << rows;
        EXPECT_EQ(trophyRowTop(rows - 1, rows, tall), last) << rows;
    }
}

TEST(TrophyTable, ABiggerTeamStandsCloserAndFurtherLeft) {
    const std::tuple<int, int, int> teams[] = {{1, 70, 16}, {2, 66, 15}, {10, 36, 13},
                                               {20, 0, 10}, {50, 0, 2},  {100, 0, 2}};
    for (const auto& [figures, first, step] : teams) {
        EXPECT_EQ(trophyFigureLeft(0, figures), first) << figures;
        EXPECT_EQ(trophyFigureLeft(1, figures), first + step) << figures;
        EXPECT_LT(trophyFigureLeft(figures - 1, figures), width - 32) << "on the screen: " << figures;
    }
    EXPECT_EQ(trophyLeft(0), 156);
    EXPECT_EQ(trophyLeft(3), 300);
}

// In memory, from a head, a body and a trophy of one colour each.
class TrophyPicture : public TrophyRoom {
  protected:
    TrophyPicture() : target(width, height, true) {
        al_init_font_addon();
        EXPECT_THROW(loadFonts(), std::runtime_error) << "the platform's own font is all there is, and enough";
        loadPlainImage(bitmapIndex(BitmapIds::Head0_D_014), head, 32, 28);
        loadPlainImage(bitmapIndex(BitmapIds::Body0_D_1), body);
        loadPlainImage(bitmapIndex(BitmapIds::Trophy), gold);
    }
    ~TrophyPicture() override { releaseSpriteCache(); }

    RGB at(int x, int y) const { return pixelAt(target, x, y); }
    bool isLit(const Part& part) const {
        return inkOf(target, part, [](RGB pixel) { return pixel != RGB{}; }).count > 0;
    }

    static constexpr RGB head{200, 0, 0};
    static constexpr RGB body{0, 0, 200};
    static constexpr RGB gold{250, 200, 0};
    BitmapWrapper target;
};

TEST_F(TrophyPicture, FiguresStandOverTheirTeamsBarWithTheTrophiesBesideThem) {
    for (const GameMode mode : {GameMode::KingOfTheHill, GameMode::SnakeHunter}) {
        gameOptions.gameMode = mode;
        ScoringEntity team = row(2, 3);
        team.teamColour = toColour({0, 255, 0});
        TrophyShow show = makeShow({team, row(1, 1)});
        drawTrophyRoom(show, "", target);
        // A single figure in row 0 of 2, the bar over it, and trophies in both rows, of which one comes with the gong.
        const bool barred = mode == GameMode::KingOfTheHill;
        const RGB bar = barred ? RGB{0, 255, 0} : body;
        const std::pair<Pixel, RGB> pixels[] = {
            {{70, 128}, head}, {{101, 128 + 59}, body}, {{70, 171}, bar},   {{85, 174}, bar},    {{86, 174}, body},
            {{85, 175}, body}, {{156, 136}, gold},      {{204, 136}, gold}, {{252, 136}, RGB{}}, {{156, 200}, gold}};
        for (const auto& [place, colour] : pixels) {
            EXPECT_EQ(at(place.x, place.y), colour) << place;
        }
        EXPECT_TRUE(isLit({270, 10, 370, 18})) << "the match is decided";
        EXPECT_FALSE(isLit({0, 20, 100, 28}));
        EXPECT_FALSE(isLit({200, 460, 440, 470}));

        open(show);
        drawTrophyRoom(show, "some.replay", target);
        EXPECT_EQ(at(252, 136), gold);
        EXPECT_TRUE(isLit({0, 20, 88, 28})) << "the text in the corner";
        EXPECT_TRUE(isLit({200, 460, 440, 470})) << "the prompt";
        WinnerFlight& flight = *show.flightOf(*team.players[0]);
        EXPECT_EQ(std::pair(flight.x, flight.y), std::pair(86.0f, 171.0f));

        flight.x = 400.0f;
        flight.y = 300.0f;
        flight.rotation = 3.1415927f;
        drawTrophyRoom(show, "", target);
        EXPECT_EQ(at(400, 325), head) << "upside down, about the figure's middle";
        EXPECT_EQ(at(400, 290), body);
        EXPECT_EQ(at(70, 171), (barred ? RGB{0, 255, 0} : RGB{})) << "the bar stays behind";
    }
}

}  // namespace
}  // namespace vandrel
