// Powerups: picking them up, and what each does to who takes it and to the others.
#include <fmt/format.h>

#include <array>
#include <limits>
#include <string>

#include "arena/bonus.h"
#include "arena/game.h"
#include "base/checked.h"
#include "match/options/game_options.h"
#include "match/options/name_tables.h"
#include "players/player.h"
#include "presentation/play_sample.h"
#include "shell/assertion.h"
#include "shell/log.h"
#include "shell/switches.h"

namespace vandrel {

namespace {

constexpr int stopFrames = 150;
constexpr int snailFramesPerSecond = 60;  // at every rate

struct PickUpSound {
    int bonus;
    SampleIds sample;
    int volume = normalVolume;
    int speed = normalSampleSpeed;
};

// Speed, Ghost and Snake are missing: the sound of the first two tells whether they were of use, and every new snake
// has that of the last.
constexpr std::array<PickUpSound, 16> pickUpSounds{{
    {Bonus::Bomb, SampleIds::HitBass},
    {Bonus::Range, SampleIds::Plugin},
    {Bonus::Controller, SampleIds::FX012, normalVolume, 800},
    {Bonus::Timebomb, SampleIds::FX012},
    {Bonus::Shield, SampleIds::CrapDing},
    {Bonus::QuestionShield, SampleIds::CrapDing},
    {Bonus::Cash, SampleIds::Cash2},
    {Bonus::Superman, SampleIds::Strength, fullVolume},
    {Bonus::Stop, SampleIds::CrapDing, normalVolume, 500},
    {Bonus::QuestionStop, SampleIds::CrapDing, normalVolume, 500},
    {Bonus::Snail, SampleIds::Splurge},
    {Bonus::Annhiliator, SampleIds::Pickup_Anh, fullVolume},
    {Bonus::Flamethrower, SampleIds::Flamer, fullVolume},
    {Bonus::RocketLauncher, SampleIds::Rocket, fullVolume},
    {Bonus::QuestionFastIgnition, SampleIds::CrapDing, normalVolume, 3000},
    {Bonus::UltraBomb, SampleIds::Explosion1, fullVolume, 2000},
}};

void playSoundOf(int bonus) {
    for (const PickUpSound& sound : pickUpSounds) {
        if (sound.bonus == bonus) {
            playSample(sound.sample, sound.volume, centrePan, sound.speed);
        }
    }
}

}  // namespace

void Player::pickUp() {
    const Square here = square();
    const int grid_x = here.x;
    const int grid_y = here.y;
    VANDREL_CHECK(grid_x >= 0 && grid_x < grid_squares_x && grid_y >= 0 && grid_y < grid_squares_y,
                  "grid_x >= 0 && grid_x < grid_squares_x && grid_y >= 0 && grid_y < grid_squares_y");
    const int bonus = bonusGrid.at(here);
    if (bonus == Bonus::None || squareGrid.at(here) != SquareKind::Empty) {
        return;
    }
    if (snakeLength > 0) {
        bonusGrid.at(here) = 0;
        setSnakeLength(snakeLength + 1);
    } else if (canUsePowerups()) {
        givePowerup(bonus);
        if (bonus != Bonus::Death) {
            bonusGrid.at(here) = 0;
        }
    }
}

void Player::givePowerup(int bonus) {
    if (!canUsePowerups()) {
        return;
    }
    std::string suffix;
    applyPowerup(bonus, suffix);
    game->tell(fmt::format("{}{}", checkedAt(bonusNames, bonus).displayName, suffix), centre());
}

// Each powerup is a case of one of the three.
void Player::applyPowerup(int bonus, std::string& suffix) {
    playSoundOf(bonus);
    changeFire(bonus);
    changeForm(bonus, suffix);
    afflictOthers(bonus);
}

// What the fire control lays, how many of them, and how far and how their flames go.
void Player::changeFire(int bonus) {
    switch (bonus) {
        case Bonus::Bomb:
            takeExtraBomb();
            break;
        case Bonus::Range:
            ++range;
            break;
        case Bonus::Controller:
            bombType = BombType::RemoteControl;
            break;
        case Bonus::Timebomb:
            bombType = BombType::Detonator;
            break;
        case Bonus::Annhiliator:
            annihilator = true;
            break;
        case Bonus::Flamethrower:
            bombType = BombType::Flamethrower;
            break;
        case Bonus::RocketLauncher:
            bombType = BombType::RocketLauncher;
            break;
        case Bonus::QuestionFastIgnition:
            fastIgnition = true;
            break;
        case Bonus::UltraBomb:
            ultraBomb = true;
            break;
        default:
            break;
    }
}

// What the player itself is and has.
void Player::changeForm(int bonus, std::string& suffix) {
    switch (bonus) {
        case Bonus::Speed:
            takeSpeed(suffix);
            break;
        case Bonus::Ghost:
        case Bonus::QuestionGhost:
            takeGhost();
            break;
        case Bonus::Shield:
        case Bonus::QuestionShield:
            takeLastingShield();
            break;
        case Bonus::Cash:
            takeCash(suffix);
            break;
        case Bonus::Death:
            takeDeath();
            break;
        case Bonus::Superman:
            strength = true;
            break;
        case Bonus::Snake:
            becomeSnake();
            break;
        default:
            break;
    }
}

void Player::afflictOthers(int bonus) {
    switch (bonus) {
        case Bonus::Stop:
        case Bonus::QuestionStop:
            forEveryOther([](Player& other) { other.stopTimer = scaledFrames(stopFrames); });
            break;
        case Bonus::Snail:
            forEveryOther([](Player& other) { other.slowTimer = gameOptions.snailSeconds * snailFramesPerSecond; });
            break;
        default:
            break;
    }
}

void Player::takeExtraBomb() {
    ++maxBombs;
    if (!gameOptions.bombPowerupResetsBombType || bombType == BombType::Normal) {
        return;
    }
    bombType = BombType::Normal;
    if (remoteActive) {
        releaseBombs(true);
        remoteActive = false;
    }
}

void Player::takeSpeed(std::string& suffix) {
    if (speed < gameOptions.speedCap) {
        playSample(SampleIds::Slide, normalVolume, centrePan, 2000);
        ++speed;
    } else {
        playSample(SampleIds::Blart);
    }
    if (speed == gameOptions.speedCap) {
        suffix = " (MAX)";
    }
}

// Refused while the walls close in.
void Player::takeGhost() {
    if (game->shrinkState == ShrinkState::Shrinking) {
        playSample(SampleIds::Blart);
        return;
    }
    playSample(SampleIds::Plugin, normalVolume, centrePan, 800);
    ghost = true;
    shield = false;
    shieldTimer = lastingShield();
}

void Player::takeCash(std::string& suffix) {
    ++cash;
    suffix = fmt::format(" ({})", cash);
    if (!game->replay.playback && lootboxPoints < std::numeric_limits<int>::max()) {
        ++lootboxPoints;
    }
}

// A shield takes it like a hit.
void Player::takeDeath() {
    if (shield) {
        useShield();
        return;
    }
    if (diagnostic) {
        logPrintf("%d killed by Bonus::Death\n", num);
    }
    die();
}

// The dead, snakes and the shielded are not spared.
template <class Effect>
void Player::forEveryOther(Effect&& effect) {
    for (const auto& player : players) {
        if (player.get() != this) {
            effect(*player);
        }
    }
}

}  // namespace vandrel
