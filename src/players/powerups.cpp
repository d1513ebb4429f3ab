// Powerups: picking them up, and what each does to who takes it and to the others.
#include <fmt/format.h>

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
constexpr int humanSnakeLength = 4;

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
    game->addToast(
        std::make_unique<TimedToast>(fmt::format("{}{}", checkedAt(bonusNames, bonus).displayName, suffix),
                                     Vector2Base<float>{static_cast<float>(x + 16), static_cast<float>(y + 16)},
                                     playerToastVelocity, playerToastFrames, FontId::Builtin));
}

void Player::applyPowerup(int bonus, std::string& suffix) {
    switch (bonus) {
        case Bonus::Bomb:
            takeExtraBomb();
            break;
        case Bonus::Range:
            playSample(SampleIds::Plugin);
            ++range;
            break;
        case Bonus::Speed:
            takeSpeed(suffix);
            break;
        case Bonus::Controller:
            playSample(SampleIds::FX012, normalVolume, centrePan, 800);
            bombType = BombType::RemoteControl;
            break;
        case Bonus::Timebomb:
            playSample(SampleIds::FX012);
            bombType = BombType::Detonator;
            break;
        case Bonus::Ghost:
        case Bonus::QuestionGhost:
            takeGhost();
            break;
        case Bonus::Shield:
        case Bonus::QuestionShield:
            playSample(SampleIds::CrapDing);
            shield = true;
            ghost = false;
            shieldTimer = lastingShield();
            break;
        case Bonus::Cash:
            takeCash(suffix);
            break;
        case Bonus::Death:
            takeDeath();
            break;
        case Bonus::Superman:
            playSample(SampleIds::Strength, fullVolume);
            strength = true;
            break;
        case Bonus::Stop:
        case Bonus::QuestionStop:
            playSample(SampleIds::CrapDing, normalVolume, centrePan, 500);
            forEveryOther([](Player& other) { other.stopTimer = scaledFrames(stopFrames); });
            break;
        case Bonus::Snail:
            playSample(SampleIds::Splurge);
            forEveryOther([](Player& other) { other.slowTimer = gameOptions.snailSeconds * snailFramesPerSecond; });
            break;
        case Bonus::Snake:
            playSample(SampleIds::Snake, fullVolume);
            setSnakeLength(isAI ? gameOptions.snakeStartLength : humanSnakeLength);
            shield = false;
            break;
        case Bonus::Annhiliator:
            playSample(SampleIds::Pickup_Anh, fullVolume);
            annihilator = true;
            break;
        case Bonus::Flamethrower:
            playSample(SampleIds::Flamer, fullVolume);
            bombType = BombType::Flamethrower;
            break;
        case Bonus::RocketLauncher:
            playSample(SampleIds::Rocket, fullVolume);
            bombType = BombType::RocketLauncher;
            break;
        case Bonus::QuestionFastIgnition:
            playSample(SampleIds::CrapDing, normalVolume, centrePan, 3000);
            fastIgnition = true;
            break;
        case Bonus::UltraBomb:
            playSample(SampleIds::Explosion1, fullVolume, centrePan, 2000);
            ultraBomb = true;
            break;
        default:
            break;
    }
}

void Player::takeExtraBomb() {
    playSample(SampleIds::HitBass);
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
    playSample(SampleIds::Cash2);
    ++cash;
    suffix = fmt::format(" ({})", cash);
    if (!game->replay.playback) {
        ++lootboxPoints;
    }
}

// A shield takes it like a hit.
void Player::takeDeath() {
    if (shield) {
        if (shieldTimer == lastingShield()) {
            --shieldTimer;
        }
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
