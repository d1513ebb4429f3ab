// Powerups: what each does and says and sounds like, who cannot take one, what is refused, and how each effect ends.
#include <gtest/gtest.h>

#include <functional>

#include "match/options/name_tables.h"
#include "shell/switches.h"
#include "support/round_fixture.h"

namespace vandrel {
namespace {

struct PowerupRow {
    int bonus;
    const char* toast;
    HeardSample sample;
    std::function<bool(const Player& taker, const Player& other)> works;
};

std::vector<PowerupRow> allPowerups() {
    const auto stops = [](const Player& p, const Player& o) { return p.stopTimer == 0 && o.stopTimer == 150; };
    const auto shields = [](const Player& p, const Player&) {
        return p.shield && !p.ghost && p.shieldTimer == Player::lastingShield();
    };
    const auto haunts = [](const Player& p, const Player&) {
        return p.ghost && !p.shield && p.shieldTimer == Player::lastingShield();
    };
    const auto lays = [](BombType type) {
        return [type](const Player& p, const Player&) { return p.bombType == type && p.maxBombs == 1; };
    };
    return {
        {Bonus::Bomb, "Extra Bomb", {SampleIds::HitBass}, [](auto& p, auto&) { return p.maxBombs == 2; }},
        {Bonus::Range, "Extra Range", {SampleIds::Plugin}, [](auto& p, auto&) { return p.range == 3; }},
        {Bonus::Speed, "Speed", {SampleIds::Slide, 200, 128, 2000}, [](auto& p, auto&) { return p.speed == 3; }},
        {Bonus::Controller, "Remote Control", {SampleIds::FX012, 200, 128, 800}, lays(BombType::RemoteControl)},
        {Bonus::Timebomb, "Detonator", {SampleIds::FX012}, lays(BombType::Detonator)},
        {Bonus::Ghost, "Ghost", {SampleIds::Plugin, 200, 128, 800}, haunts},
        {Bonus::Shield, "Shield", {SampleIds::CrapDing}, shields},
        {Bonus::Cash, "Cash (1)", {SampleIds::Cash2}, [](auto& p, auto&) { return p.cash == 1; }},
        {Bonus::Death, "Death", {SampleIds::Wimbaah}, [](auto& p, auto&) { return p.dead && p.kills == 0; }},
        {Bonus::Superman, "Strength", {SampleIds::Strength, 255}, [](auto& p, auto&) { return p.strength; }},
        {Bonus::Stop, "Stop", {SampleIds::CrapDing, 200, 128, 500}, stops},
        {Bonus::Snail,
         "Snail",
         {SampleIds::Splurge},
         [](auto& p, auto& o) { return p.slowTimer == 0 && o.slowTimer == 480; }},
        {Bonus::Snake,
         "Snake",
         {SampleIds::Snake, 255},
         [](auto& p, auto&) { return p.snakeLengthNow() == 4 && !p.shield; }},
        {Bonus::Annhiliator, "Annhiliator", {SampleIds::Pickup_Anh, 255}, [](auto& p, auto&) { return p.annihilator; }},
        {Bonus::Flamethrower, "Flamethrower", {SampleIds::Flamer, 255}, lays(BombType::Flamethrower)},
        {Bonus::RocketLauncher, "Rocket Launcher", {SampleIds::Rocket, 255}, lays(BombType::RocketLauncher)},
        {Bonus::QuestionShield, "Shield", {SampleIds::CrapDing}, shields},
        {Bonus::QuestionGhost, "Ghost", {SampleIds::Plugin, 200, 128, 800}, haunts},
        {Bonus::QuestionStop, "Stop", {SampleIds::CrapDing, 200, 128, 500}, stops},
        {Bonus::QuestionFastIgnition,
         "DANGER!",
         {SampleIds::CrapDing, 200, 128, 3000},
         [](auto& p, auto&) { return p.fastIgnition; }},
        {Bonus::UltraBomb,
         "Ultrabomb",
         {SampleIds::Explosion1, 255, 128, 2000},
         [](auto& p, auto&) { return p.ultraBomb; }},
    };
}

TEST(Powerups, HaveTheirEffectTheirSoundAndTheirToast) {
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
        EXPECT_EQ(round.stepUntil([&] { return round.game().toasts.empty(); }), 89);
    }
}

// What a new life and a new round begin with.
TEST(Powerups, AreLostWithTheLifeButForTheCash) {
    for (const PowerupRow& row : allPowerups()) {
        SCOPED_TRACE(row.toast);
        TestRound round;
        const auto other = round.addPlayer({10, 5});
        const auto player = round.addPlayer({5, 5});
        player->givePowerup(row.bonus);
        player->reset();
        other->reset();
        EXPECT_EQ(player->maxBombs, 1);
        EXPECT_EQ(player->range, 2);
        EXPECT_EQ(player->speed, gameOptions.initialSpeed);
        EXPECT_EQ(player->bombType, BombType::Normal);
        EXPECT_FALSE(player->ghost || player->shield || player->strength || player->annihilator || player->ultraBomb ||
                     player->fastIgnition || player->dead || player->isSnake());
        EXPECT_EQ(other->stopTimer + other->slowTimer, 0);
        EXPECT_EQ(player->cash, row.bonus == Bonus::Cash ? 1 : 0);
    }
}

TEST(Powerups, GoToNobodyWhoCannotUseThem) {
    struct Row {
        const char* who;
        void (*make)(Player& player);
        bool wins;  // at an auction
    };
    const Row rows[] = {
        {"a walker", [](Player&) {}, true},
        {"a shielded one",
         [](Player& p) {
             p.shield = true;
             p.shieldTimer = 50;
         },
         true},
        {"a ghost",
         [](Player& p) {
             p.ghost = true;
             p.shieldTimer = 50;
         },
         false},
        {"a crawler",
         [](Player& p) {
             p.crawling = true;
             p.crawlTimer = 50;
         },
         false},
        {"a dead one", [](Player& p) { p.dead = true; }, false},
        {"a snake", [](Player& p) { p.setSnakeLength(4); }, false},
    };
    for (const Row& row : rows) {
        TestRound round;
        const auto player = round.addPlayer({5, 5});
        row.make(*player);
        EXPECT_EQ(player->canUsePowerups(), row.wins) << row.who;
        player->givePowerup(Bonus::Range);
        EXPECT_EQ(player->range, row.wins ? 3 : 2) << row.who;
        EXPECT_EQ(round.toastTexts().size(), row.wins ? 1U : 0U) << row.who;
    }
}

TEST(Powerups, LieStillUnderGhostsCrawlersWallsAndTheDead) {
    struct Row {
        const char* who;
        void (*make)(Player& player);
    };
    const Row rows[] = {
        {"a ghost",
         [](Player& p) {
             p.ghost = true;
             p.shieldTimer = 50;
         }},
        {"a crawler",
         [](Player& p) {
             p.crawling = true;
             p.crawlTimer = 50;
         }},
        {"a dead one", [](Player& p) { p.dead = true; }},
        {"one in a wall", [](Player& p) { squareGrid.set(p.square(), SquareKind::WallCrumbling); }},
        {"a stopped one", [](Player& p) { p.stopTimer = 5; }},
    };
    for (const Row& row : rows) {
        TestRound round;
        const auto player = round.addPlayer({5, 5});
        bonusGrid.at(5, 5) = Bonus::Cash;
        row.make(*player);
        round.step(2);
        EXPECT_EQ(bonusGrid.at(5, 5), Bonus::Cash) << row.who;
        EXPECT_EQ(player->cash, 0) << row.who;
    }
}

TEST(Powerups, AreTakenFromTheSquareUnderTheMiddle) {
    for (const int offset : {15, 16}) {
        TestRound round;
        const auto player = round.addPlayer({5, 5});
        player->x += offset;
        bonusGrid.at(6, 5) = Bonus::Cash;
        round.step();
        EXPECT_EQ(player->cash, offset - 15);
    }
}

TEST(SpeedPowerup, SaysMaxFromTheCapOnAndThenBlares) {
    TestRound round;
    const auto player = round.addPlayer({5, 5});
    player->speed = gameOptions.speedCap - 2;
    for (int i = 0; i < 3; ++i) {
        player->givePowerup(Bonus::Speed);
    }
    EXPECT_EQ(player->speed, gameOptions.speedCap);
    EXPECT_EQ(round.toastTexts(), (std::vector<std::string>{"Speed", "Speed (MAX)", "Speed (MAX)"}));
    EXPECT_EQ(round.takeHeard(),
              (std::vector<HeardSample>{
                  {SampleIds::Slide, 200, 128, 2000}, {SampleIds::Slide, 200, 128, 2000}, {SampleIds::Blart}}));
}

TEST(GhostPowerup, IsRefusedOnlyWhileTheWallsCloseIn) {
    for (const ShrinkState state :
         {ShrinkState::Waiting, ShrinkState::Warning, ShrinkState::Shrinking, ShrinkState::Finished}) {
        for (const int bonus : {Bonus::Ghost, Bonus::QuestionGhost}) {
            TestRound round;
            const auto player = round.addPlayer({5, 5});
            player->shield = true;
            player->shieldTimer = 50;
            round.game().shrinkState = state;
            player->givePowerup(bonus);
            const bool refused = state == ShrinkState::Shrinking;
            EXPECT_EQ(player->ghost, !refused);
            EXPECT_EQ(player->shield, refused);
            EXPECT_EQ(player->shieldTimer, refused ? 50 : Player::lastingShield());
            EXPECT_EQ(round.takeHeard().front(),
                      refused ? HeardSample{SampleIds::Blart} : (HeardSample{SampleIds::Plugin, 200, 128, 800}));
            EXPECT_EQ(round.toastTexts(), (std::vector<std::string>{"Ghost"}));
        }
    }
}

TEST(ExtraBomb, BringsOrdinaryBombsBackWhereTheMatchSaysSo) {
    for (const bool resets : {true, false}) {
        for (const BombType type : {BombType::Flamethrower, BombType::RocketLauncher, BombType::RemoteControl}) {
            TestRound round;
            gameOptions.bombPowerupResetsBombType = resets;
            const auto player = round.addPlayer({5, 5});
            player->bombType = type;
            player->givePowerup(Bonus::Bomb);
            EXPECT_EQ(player->maxBombs, 2);
            EXPECT_EQ(player->bombType, resets ? BombType::Normal : type);
        }
    }
}

TEST(ExtraBomb, HasAWaitingBombTickFromAFullFuse) {
    struct Row {
        BombType type;
        bool resets;
        bool released;
    };
    constexpr Row rows[] = {{BombType::RemoteControl, true, true},
                            {BombType::Detonator, true, true},
                            {BombType::Detonator, false, false},
                            {BombType::Normal, true, false}};
    for (const Row& row : rows) {
        TestRound round;
        gameOptions.bombPowerupResetsBombType = row.resets;
        const auto player = round.addPlayer({5, 5});
        player->bombType = row.type;
        player->remoteActive = true;
        placeBomb({5, 5}, player, 3);
        bombGrid.edit(5, 5).kind = BombKind::Armed;
        player->givePowerup(Bonus::Bomb);
        EXPECT_EQ(player->remoteActive, !row.released);
        EXPECT_EQ(bombGrid.at(5, 5).kind, row.released ? BombKind::Ticking : BombKind::Armed);
        EXPECT_EQ(bombGrid.at(5, 5).fuse, row.released ? 90 : 3);
    }
}

TEST(BombPowerups, TheLastOneTakenIsInUseAndAWaitingBombGoesOnWaiting) {
    TestRound round;
    const auto player = round.addPlayer({5, 5});
    player->givePowerup(Bonus::Controller);
    round.press(*player, {.fire = true});
    player->givePowerup(Bonus::Timebomb);
    round.step(100);
    EXPECT_TRUE(hasBomb({5, 5}));
    EXPECT_TRUE(player->remoteActive);
    EXPECT_EQ(player->bombType, BombType::Detonator);
    round.press(*player, {.fire = true});
    EXPECT_EQ(bombGrid.at(5, 5).kind, BombKind::Ticking);
    player->givePowerup(Bonus::Flamethrower);
    EXPECT_EQ(player->bombType, BombType::Flamethrower);
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

TEST(DeathPowerup, IsTakenByAShieldLikeAHitAndStays) {
    TestRound round;
    const auto player = round.addPlayer({5, 5});
    bonusGrid.at(5, 5) = Bonus::Death;
    player->shield = true;
    player->shieldTimer = Player::lastingShield();
    round.step();
    EXPECT_FALSE(player->dead);
    EXPECT_EQ(player->shieldTimer, Player::runningShield());
    // The shield is lost in the update that finds the timer at 0, and that same update takes the powerup again.
    EXPECT_EQ(round.stepUntil([&] { return player->dead; }), Player::runningShield() + 1);
    EXPECT_EQ(bonusGrid.at(5, 5), Bonus::Death);
}

TEST(StopAndSnail, HitAllOthersWhateverTheirStateAndReplaceWhatIsLeft) {
    for (const int rate : {60, 120}) {
        TestRound round({.rate = rate});
        const auto taker = round.addPlayer({5, 5});
        const auto dead = round.addPlayer({3, 3});
        const auto shielded = round.addPlayer({7, 3});
        const auto snake = round.addSnake({9, 7}, Facing::Up, 4, true);
        dead->dead = true;
        shielded->shield = true;
        shielded->stopTimer = 7;
        shielded->slowTimer = 1000;
        taker->givePowerup(Bonus::QuestionStop);
        taker->givePowerup(Bonus::Snail);
        for (const auto& victim : {dead, shielded, snake}) {
            EXPECT_EQ(victim->stopTimer, 150 * gameOptions.frameMultiplier);
            EXPECT_EQ(victim->slowTimer, 480) << "the seconds count sixty frames at any rate";
        }
        EXPECT_EQ(taker->stopTimer + taker->slowTimer, 0);
    }
}

TEST(Stop, FreezesItsVictimWhoSpinsAndWhoseShieldAndBombsGoOn) {
    for (const int rate : {60, 120}) {
        TestRound round({.rate = rate});
        const auto player = round.addPlayer({5, 5});
        player->stopTimer = 40;
        player->shield = true;
        player->shieldTimer = 30;
        player->animFrame = 4;
        placeBomb({10, 8}, player, 5);
        round.hold(*player, {.right = true, .fire = true, .button2 = true});
        const int each = 5 * gameOptions.frameMultiplier;
        const Facing order[] = {Facing::Left, Facing::Up, Facing::Right, Facing::Down};
        for (int frame = 0; frame < 40; ++frame) {
            round.step();
            EXPECT_EQ(player->facing, order[(frame / each) % 4]) << "frame " << frame << " at " << rate;
        }
        EXPECT_EQ(player->animFrame, 1);
        EXPECT_EQ(player->position(), (Pixel{160, 160}));
        EXPECT_EQ(player->pingTimer, 0);
        EXPECT_FALSE(player->shield);
        EXPECT_FALSE(hasBomb({10, 8}));
        round.step();
        EXPECT_GT(player->x, 160) << "then it walks";
    }
}

TEST(Stop, DoesNotSpinSnakesAndCrawlers) {
    TestRound round({.version = replayOutputVersion});
    const auto crawler = round.addPlayer({3, 3});
    crawler->crawling = true;
    crawler->crawlTimer = 10;
    crawler->facing = Facing::Right;
    const auto snake = round.addSnake({9, 7}, Facing::Up, 4);
    for (const auto& player : {crawler, snake}) {
        player->stopTimer = 20;
    }
    round.step(20);
    EXPECT_EQ(crawler->facing, Facing::Right);
    EXPECT_EQ(snake->facing, Facing::Up);
    EXPECT_EQ(snake->position(), (Pixel{9 * 32, 7 * 32}));
    EXPECT_EQ(crawler->crawlTimer, 10) << "a stopped crawler waits";
}

}  // namespace
}  // namespace vandrel
