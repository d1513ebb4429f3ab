// Powerups: what each does and says and sounds like, who cannot take one, what is refused, and how each effect ends.
#include <gtest/gtest.h>

#include <functional>

#include "players/in_words.h"
#include "shell/switches.h"

namespace vandrel {
namespace {

struct PowerupRow {
    int bonus;
    const char* toast;
    HeardSample sample;
    std::function<bool(const Player& taker, const Player& other)> works;
};

std::vector<PowerupRow> allPowerups() {
    const auto stops = [](auto& p, auto& o) { return p.stopTimer == 0 && o.stopTimer == 150; };
    const auto slows = [](auto& p, auto& o) { return p.slowTimer == 0 && o.slowTimer == 480; };
    const auto is = [](const char* form) { return [form](auto& p, auto&) { return formOf(p) == form; }; };
    const auto lasts = [](const char* form) {
        return [form](auto& p, auto&) { return formOf(p) == form && p.shieldTimer == Player::lastingShield(); };
    };
    const auto lays = [](BombType type) {
        return [type](auto& p, auto&) { return p.bombType == type && p.maxBombs == 1; };
    };
    const HeardSample ding{SampleIds::CrapDing};
    const HeardSample lowDing{SampleIds::CrapDing, 200, 128, 500};
    const HeardSample highDing{SampleIds::CrapDing, 200, 128, 3000};
    const HeardSample bang{SampleIds::Explosion1, 255, 128, 2000};
    const HeardSample plugin{SampleIds::Plugin, 200, 128, 800};
    return {
        {Bonus::Bomb, "Extra Bomb", {SampleIds::HitBass}, [](auto& p, auto&) { return p.maxBombs == 2; }},
        {Bonus::Range, "Extra Range", {SampleIds::Plugin}, [](auto& p, auto&) { return p.range == 3; }},
        {Bonus::Speed, "Speed", {SampleIds::Slide, 200, 128, 2000}, [](auto& p, auto&) { return p.speed == 3; }},
        {Bonus::Controller, "Remote Control", {SampleIds::FX012, 200, 128, 800}, lays(BombType::RemoteControl)},
        {Bonus::Timebomb, "Detonator", {SampleIds::FX012}, lays(BombType::Detonator)},
        {Bonus::Ghost, "Ghost", plugin, lasts("ghost")},
        {Bonus::Shield, "Shield", ding, lasts("walking, shielded")},
        {Bonus::Cash, "Cash (1)", {SampleIds::Cash2}, [](auto& p, auto&) { return p.cash == 1; }},
        {Bonus::Death, "Death", {SampleIds::Wimbaah}, [](auto& p, auto&) { return p.dead && p.kills == 0; }},
        {Bonus::Superman, "Strength", {SampleIds::Strength, 255}, [](auto& p, auto&) { return p.strength; }},
        {Bonus::Stop, "Stop", lowDing, stops},
        {Bonus::Snail, "Snail", {SampleIds::Splurge}, slows},
        {Bonus::Snake, "Snake", {SampleIds::Snake, 255}, is("snake of 4")},
        {Bonus::Annhiliator, "Annhiliator", {SampleIds::Pickup_Anh, 255}, [](auto& p, auto&) { return p.annihilator; }},
        {Bonus::Flamethrower, "Flamethrower", {SampleIds::Flamer, 255}, lays(BombType::Flamethrower)},
        {Bonus::RocketLauncher, "Rocket Launcher", {SampleIds::Rocket, 255}, lays(BombType::RocketLauncher)},
        {Bonus::QuestionShield, "Shield", ding, lasts("walking, shielded")},
        {Bonus::QuestionGhost, "Ghost", plugin, lasts("ghost")},
        {Bonus::QuestionStop, "Stop", lowDing, stops},
        {Bonus::QuestionFastIgnition, "DANGER!", highDing, [](auto& p, auto&) { return p.fastIgnition; }},
        {Bonus::UltraBomb, "Ultrabomb", bang, [](auto& p, auto&) { return p.ultraBomb; }},
    };
}

TEST(Powerups, HaveTheirSoundTheirToastAndTheirEffectUntilTheEndOfTheLifeCashForTheMatch) {
    for (const PowerupRow& row : allPowerups()) {
        SCOPED_TRACE(row.toast);
        TestRound round;
        const auto other = round.addPlayer({10, 5});
        const auto player = round.addPlayer({5, 5});
        bonusGrid.at(5, 5) = row.bonus;
        round.step();
        EXPECT_TRUE(row.works(*player, *other));
        EXPECT_EQ(round.takeHeard(), (std::vector<HeardSample>{row.sample}));
        EXPECT_EQ(round.toastTexts(), (std::vector<std::string>{row.toast}));
        EXPECT_EQ(bonusGrid.at(5, 5), row.bonus == Bonus::Death ? Bonus::Death : 0);
        const Toast& toast = *round.game().toasts.front();
        EXPECT_EQ(toast.x, 176.0f);
        EXPECT_EQ(toast.y, 175.5f) << "one update up from the middle of the player";
        player->reset();
        other->reset();
        EXPECT_EQ(row.works(*player, *other), row.bonus == Bonus::Cash);
        bonusGrid.at(5, 5) = Bonus::None;
        EXPECT_EQ(round.stepUntil([&] { return round.game().toasts.empty(); }), 89);
    }
}

// By pickup and by auction. A snake eats what lies on its square, for its length.
TEST(Powerups, GoToNobodyWhoCannotUseThem) {
    struct Row : Who {
        bool can;
        bool takes;
    };
    const Row rows[] = {
        {{"a walker", asItIs}, true, true},
        {{"a shielded one", asShielded}, true, true},
        {{"a ghost", asGhost}, false, false},
        {{"a crawler", asCrawler}, false, false},
        {{"a dead one", asDead}, false, false},
        {{"a snake", asSnake}, false, true},
        {{"one in a wall", [](Player& p) { squareGrid.set(p.square(), SquareKind::WallCrumbling); }}, true, false},
        {{"a stopped one", asStopped}, true, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.who);
        TestRound round;
        const auto player = round.addPlayer({5, 5});
        row.make(*player);
        EXPECT_EQ(player->canUsePowerups(), row.can);
        player->givePowerup(Bonus::Range);
        EXPECT_EQ(player->range, row.can ? 3 : 2);
        EXPECT_EQ(round.toastTexts().size(), row.can ? 1U : 0U);
        bonusGrid.at(5, 5) = Bonus::Cash;
        round.step(2);
        EXPECT_EQ(bonusGrid.at(5, 5), row.takes ? 0 : Bonus::Cash);
        EXPECT_EQ(player->cash, row.can && row.takes ? 1 : 0);
    }
}

// A player in the middle of an empty arena.
class Taking : public testing::Test {
  protected:
    TestRound round;
    std::shared_ptr<Player> player = round.addPlayer({5, 5});
};

TEST_F(Taking, SpeedSaysMaxFromTheCapOnAndThenBlares) {
    player->speed = gameOptions.speedCap - 2;
    for (int i = 0; i < 3; ++i) {
        player->givePowerup(Bonus::Speed);
    }
    EXPECT_EQ(player->speed, gameOptions.speedCap);
    EXPECT_EQ(round.toastTexts(), (std::vector<std::string>{"Speed", "Speed (MAX)", "Speed (MAX)"}));
    const HeardSample slide{SampleIds::Slide, 200, 128, 2000};
    EXPECT_EQ(round.takeHeard(), (std::vector<HeardSample>{slide, slide, {SampleIds::Blart}}));
}

TEST_F(Taking, GhostIsRefusedOnlyWhileTheWallsCloseIn) {
    for (const ShrinkState state :
         {ShrinkState::Waiting, ShrinkState::Warning, ShrinkState::Shrinking, ShrinkState::Finished}) {
        for (const int bonus : {Bonus::Ghost, Bonus::QuestionGhost}) {
            const bool refused = state == ShrinkState::Shrinking;
            player->reset();
            player->shield = true;
            player->shieldTimer = 50;
            round.game().shrinkState = state;
            player->givePowerup(bonus);
            EXPECT_EQ(formOf(*player), refused ? "walking, shielded" : "ghost");
            EXPECT_EQ(player->shieldTimer, refused ? 50 : Player::lastingShield());
            EXPECT_EQ(round.takeHeard().front(),
                      refused ? HeardSample{SampleIds::Blart} : (HeardSample{SampleIds::Plugin, 200, 128, 800}));
            EXPECT_EQ(round.toastTexts().back(), "Ghost");
        }
    }
}

// A bomb of the player waits with three frames left.
TEST_F(Taking, ABombBringsOrdinaryOnesBackWhereTheMatchSaysSoAndHasAWaitingOneTickFromAFullFuse) {
    struct Row {
        BombType type;
        bool resets;
        BombType typeAfter;
        bool released;
    };
    constexpr Row rows[] = {{BombType::Flamethrower, true, BombType::Normal, true},
                            {BombType::RocketLauncher, false, BombType::RocketLauncher, false},
                            {BombType::RemoteControl, true, BombType::Normal, true},
                            {BombType::Detonator, false, BombType::Detonator, false},
                            {BombType::Normal, true, BombType::Normal, false}};
    for (const bool waits : {true, false}) {
        for (const Row& row : rows) {
            SCOPED_TRACE(fmt::format("type {}, resets {}, waits {}", static_cast<int>(row.type), row.resets, waits));
            gameOptions.bombPowerupResetsBombType = row.resets;
            player->reset();
            player->bombType = row.type;
            player->remoteActive = waits;
            placeBombOf(BombKind::Armed, {5, 5}, player, 3);
            player->givePowerup(Bonus::Bomb);
            EXPECT_EQ(player->maxBombs, 2);
            EXPECT_EQ(player->bombType, row.typeAfter);
            EXPECT_EQ(player->remoteActive, waits && !row.released);
            EXPECT_EQ(bombGrid.at(5, 5).kind, waits && row.released ? BombKind::Ticking : BombKind::Armed);
            EXPECT_EQ(bombGrid.at(5, 5).fuse, waits && row.released ? 90 : 3);
        }
    }
}

TEST_F(Taking, ASecondKindOfBombLetsAWaitingBombGoOnWaiting) {
    player->givePowerup(Bonus::Controller);
    round.press(*player, {.fire = true});
    player->givePowerup(Bonus::Timebomb);
    EXPECT_TRUE(player->remoteActive);
    EXPECT_EQ(bombGrid.at(5, 5).kind, BombKind::Steered);
}

TEST(Cash, CountsForTheTrophyRoomInLivePlayOnly) {
    for (const bool playback : {false, true}) {
        TestRound round({.version = playback ? std::optional(replayOutputVersion) : std::nullopt});
        lootboxPoints = 10;
        const auto player = round.addPlayer({5, 5});
        player->cash = 6;
        player->givePowerup(Bonus::Cash);
        EXPECT_EQ(player->cash, 7);
        EXPECT_EQ(round.toastTexts().front(), "Cash (7)");
        EXPECT_EQ(lootboxPoints, playback ? 10 : 11);
    }
}

TEST_F(Taking, DeathIsTakenByAShieldLikeAHitAndStays) {
    bonusGrid.at(5, 5) = Bonus::Death;
    asShielded(*player);
    round.step();
    EXPECT_FALSE(player->dead);
    EXPECT_EQ(player->shieldTimer, Player::runningShield());
    // The shield is lost in the update that finds the timer at 0, and that same update takes the powerup again.
    EXPECT_EQ(round.stepUntil([&] { return player->dead; }), Player::runningShield() + 1);
    EXPECT_EQ(bonusGrid.at(5, 5), Bonus::Death);
}

}  // namespace
}  // namespace vandrel
