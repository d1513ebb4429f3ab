// The trophy room without its screen: the test is the clock, the finger on the key and, where it matters, the painter.
#include "frontend/trophy_room.h"

#include <allegro5/allegro_font.h>
#include <gmock/gmock.h>

#include <cmath>
#include <cstdlib>
#include <memory>
#include <string>
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
#include "presentation/play_sample.h"
#include "presentation/text.h"
#include "support/drawing_stage.h"

namespace vandrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int width = 640;
constexpr int height = 480;

struct Heard {
    SampleIds id;
    int volume;
    int pan;
    int speed;
    friend bool operator==(const Heard&, const Heard&) = default;
};

std::shared_ptr<Player> somebody() {
    return std::make_shared<Player>(0, 0, -1, PlayerLook{}, std::make_shared<NoControls>());
}

ScoringEntity row(int previousScore, int score, int figures = 1) {
    ScoringEntity entity;
    entity.previousScore = previousScore;
    entity.score = score;
    for (int i = 0; i < figures; ++i) {
        entity.players.push_back(somebody());
    }
    return entity;
}

class TrophyRoom : public DrawingTest {
  protected:
    TrophyRoom() {
        gameOptions = GameOptions();
        gameOptions.winsNeeded = 3;
        heard.clear();
        setSamplePlayer([](SampleIds id, int volume, int pan, int speed) {
            heard.push_back({id, volume, pan, speed});
        });
    }
    ~TrophyRoom() override {
        setSamplePlayer(nullptr);
        gameOptions = GameOptions();
    }

    TrophyShow makeShow(std::vector<ScoringEntity> entities, bool noWinner = false) {
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
        EXPECT_EQ(keyAsked, 1);
    }

    static inline std::vector<Heard> heard;
    int musicStarted = 0;
    int keyAsked = 0;
    bool keyHeld = false;
};

TEST_F(TrophyRoom, TheGongBringsTheNewTrophiesAndARestComesBeforeTheKey) {
    for (const int rate : {60, 144}) {
        heard.clear();
        keyAsked = 0;
        keyHeld = true;
        gameOptions.updaterate = rate;
        TrophyShow show = makeShow({row(1, 2), row(0, 0)});
        EXPECT_THAT(heard, ElementsAre(Heard{SampleIds::Beat2, 191, 128, 1000}));
        int untilGong = 0;
        for (; heard.size() == 1 && untilGong < 1000; ++untilGong) {
            EXPECT_EQ(show.trophiesOf(show.entities()[0]), 1);
            EXPECT_FALSE(show.promptShown());
            show.update(width, height);
        }
        EXPECT_EQ(heard.back(), (Heard{SampleIds::Gong2, 200, 128, 1000}));
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
        EXPECT_EQ(heard.size(), 2U);
    }
}

TEST_F(TrophyRoom, ARoundWithoutAWinnerSoundsOtherwise) {
    TrophyShow show = makeShow({row(1, 1), row(0, 0)}, true);
    open(show);
    EXPECT_EQ(heard.back(), (Heard{SampleIds::Wimbaah, 200, 128, 1000}));
    EXPECT_EQ(show.trophiesOf(show.entities()[0]), 1);
}

TEST_F(TrophyRoom, TheMatchIsOverOnlyOnTheWinsNeededToThePoint) {
    struct Case {
        std::vector<int> scores;
        bool over;
    };
    for (const Case& c : {Case{{}, false}, Case{{2, 1}, false}, Case{{3, 1}, true}, Case{{3, 3}, true},
                          Case{{4, 3}, false}, Case{{4, 1}, false}}) {
        keyAsked = 0;
        musicStarted = 0;
        std::vector<ScoringEntity> entities;
        for (const int score : c.scores) {
            entities.push_back(row(score, score, 2));
        }
        TrophyShow show = makeShow(std::move(entities));
        EXPECT_EQ(show.matchOver(), c.over);
        open(show);
        EXPECT_EQ(musicStarted, c.over ? 1 : 0);
        for (const ScoringEntity& entity : show.entities()) {
            for (const auto& player : entity.players) {
                EXPECT_EQ(show.flightOf(*player) != nullptr, c.over && entity.score == 3);
            }
        }
    }
}

TEST_F(TrophyRoom, ASlowedLookWearsOffWhileTheTableStands) {
    TrophyShow show = makeShow({row(0, 1), row(0, 0)});
    Player& slowed = *show.entities()[1].players[0];
    slowed.slowTimer = 2;
    open(show);
    EXPECT_EQ(slowed.slowTimer, 1);
    for (int i = 0; i < 3; ++i) {
        show.update(width, height);
    }
    EXPECT_EQ(slowed.slowTimer, 0);
    EXPECT_EQ(show.entities()[0].players[0]->slowTimer, 0);
}

TEST_F(TrophyRoom, WinnersAreThrownUpInTheTablesOrderAndWaitUntilTheyWereSeen) {
    globalGenerator.seed(1);
    std::mt19937 expected = globalGenerator;
    TrophyShow show = makeShow({row(2, 3, 2), row(2, 2), row(2, 3)});
    open(show);
    std::vector<const Player*> winners{show.entities()[0].players[0].get(), show.entities()[0].players[1].get(),
                                       show.entities()[2].players[0].get()};
    for (const Player* winner : winners) {
        const WinnerFlight* flight = show.flightOf(*winner);
        ASSERT_NE(flight, nullptr);
        EXPECT_EQ(flight->velocityX, uniformFloat(expected, -2.0f, 2.0f));
        EXPECT_EQ(flight->velocityY, uniformFloat(expected, -6.0f, -3.0f));
    }
    EXPECT_EQ(globalGenerator, expected);
    WinnerFlight& seen = *show.flightOf(*winners[1]);
    seen.leaveFrom(100, 50);
    seen.leaveFrom(300, 300);
    show.update(width, height);
    EXPECT_FLOAT_EQ(seen.x, 100.0f + seen.velocityX);
    EXPECT_FLOAT_EQ(seen.y, 50.0f + seen.velocityY) << "the speed is raised first, and then goes on from there";
    EXPECT_FALSE(show.flightOf(*winners[0])->hasLeft());
}

// Follows a flight through many jumps. What holds of each is told in plain terms.
TEST(WinnerFlight, BouncesOffFloorAndSidesAndMakesOneTurnAJump) {
    globalGenerator.seed(7);
    WinnerFlight flight = throwUp();
    flight.leaveFrom(86, 123);
    int floors = 0;
    int sides = 0;
    int fullTurns = 0;
    int turnsBegun = 0;
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

TEST(TrophyTable, EveryTableHasAScreenOnWhichItsRowsStandOneBelowTheOther) {
    struct Case {
        int rows;
        int slot;
        int height;
        int first;  // top of the first row
        int last;   // and of the last
    };
    for (const Case& c :
         {Case{1, 1, 480, 144, 144}, Case{2, 1, 480, 128, 192}, Case{5, 1, 480, 80, 336}, Case{6, 2, 640, 80, 493},
          Case{10, 2, 640, 54, 541}, Case{11, 3, 720, 48, 622}, Case{16, 3, 720, 16, 661}, Case{17, 4, 960, 16, 889},
          Case{40, 4, 960, 16, 920}, Case{100, 4, 960, 16, 934}}) {
        EXPECT_EQ(trophyScreenSlot(c.rows), c.slot) << c.rows;
        EXPECT_EQ(trophyRowTop(0, c.rows, c.height), c.first) << c.rows;
        EXPECT_EQ(trophyRowTop(c.rows - 1, c.rows, c.height), c.last) << c.rows;
        for (int i = 1; i < c.rows; ++i) {
            EXPECT_LT(trophyRowTop(i - 1, c.rows, c.height), trophyRowTop(i, c.rows, c.height));
        }
    }
}

TEST(TrophyTable, ABiggerTeamStandsCloserAndFurtherLeft) {
    struct Case {
        int figures;
        int first;
        int step;
    };
    for (const Case& c :
         {Case{1, 70, 16}, Case{2, 66, 15}, Case{10, 36, 13}, Case{20, 0, 10}, Case{50, 0, 2}, Case{100, 0, 2}}) {
        EXPECT_EQ(trophyFigureLeft(0, c.figures), c.first) << c.figures;
        EXPECT_EQ(trophyFigureLeft(1, c.figures) - c.first, c.step) << c.figures;
    }
    for (int figures = 1; figures <= 100; ++figures) {
        const int last = trophyFigureLeft(figures - 1, figures);
        EXPECT_GE(trophyFigureLeft(0, figures), 0);
        EXPECT_LT(last, width - 32) << "on the screen: " << figures;
    }
    EXPECT_EQ(trophyLeft(0), 156);
    EXPECT_EQ(trophyLeft(3), 300);
}

// In memory, from a head, a body and a trophy of one colour each.
class TrophyPicture : public TrophyRoom {
  protected:
    TrophyPicture() : target(width, height, true) {
        al_init_font_addon();
        try {
            loadFonts();
        } catch (const std::runtime_error&) {
            // The platform's own font is all that is needed.
        }
        loadPlainImage(bitmapIndex(BitmapIds::Head0_D_014), head, 32, 28);
        loadPlainImage(bitmapIndex(BitmapIds::Body0_D_1), body);
        loadPlainImage(bitmapIndex(BitmapIds::Trophy), gold);
    }
    ~TrophyPicture() override { releaseSpriteCache(); }

    RGB at(int x, int y) const { return pixelAt(target, x, y); }
    bool isLit(int left, int top, int right, int bottom) const {
        for (int y = top; y < bottom; ++y) {
            for (int x = left; x < right; ++x) {
                if (!(at(x, y) == RGB{})) {
                    return true;
                }
            }
        }
        return false;
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
        const std::shared_ptr<Player> winner = team.players[0];
        drawTrophyRoom(show, "", target);
        EXPECT_EQ(at(70, 128), head) << "row 0 of 2, and a single figure";
        EXPECT_EQ(at(101, 128 + 59), body);
        const bool barred = mode == GameMode::KingOfTheHill;
        EXPECT_EQ(at(70, 171), (barred ? RGB{0, 255, 0} : body)) << "the bar lies over the figure";
        EXPECT_EQ(at(85, 174), (barred ? RGB{0, 255, 0} : body));
        EXPECT_EQ(at(86, 174), body);
        EXPECT_EQ(at(85, 175), body);
        EXPECT_EQ(at(156, 136), gold);
        EXPECT_EQ(at(204, 136), gold);
        EXPECT_EQ(at(252, 136), RGB{}) << "the third one comes with the gong";
        EXPECT_EQ(at(156, 200), gold);
        EXPECT_TRUE(isLit(270, 10, 370, 18)) << "the match is decided";
        EXPECT_FALSE(isLit(0, 20, 100, 28));
        EXPECT_FALSE(isLit(200, 460, 440, 470));

        open(show);
        drawTrophyRoom(show, "some.replay", target);
        EXPECT_EQ(at(252, 136), gold);
        EXPECT_TRUE(isLit(0, 20, 88, 28)) << "the text in the corner";
        EXPECT_TRUE(isLit(200, 460, 440, 470)) << "the prompt";
        WinnerFlight& flight = *show.flightOf(*winner);
        EXPECT_EQ(flight.x, 86.0f);
        EXPECT_EQ(flight.y, 171.0f);

        flight.x = 400.0f;
        flight.y = 300.0f;
        flight.rotation = 3.1415927f;
        drawTrophyRoom(show, "", target);
        EXPECT_EQ(at(400, 325), head) << "upside down, about the figure's middle";
        EXPECT_EQ(at(400, 290), body);
        EXPECT_EQ(at(70, 171), (barred ? RGB{0, 255, 0} : RGB{})) << "the bar stays behind";
        keyAsked = 0;
    }
}

}  // namespace
}  // namespace vandrel
