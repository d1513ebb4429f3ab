#include "match/options/game_options.h"

namespace vandrel {

GameOptions gameOptions;

bool isModeActive(GameMode mode) {
    if (gameOptions.gameMode != GameMode::Everything) {
        return gameOptions.gameMode == mode;
    }
    switch (mode) {
        case GameMode::CaptureTheFlag:
            return gameOptions.everythingCTF;
        case GameMode::BattleRoyale:
            return gameOptions.everythingBattleRoyale;
        case GameMode::KingOfTheHill:
            return gameOptions.everythingKotH;
        case GameMode::SnakeHunter:
            return gameOptions.everythingSnakeHunter;
        case GameMode::Deathmatch:
            return gameOptions.everythingDeathmatch;
        default:
            return false;
    }
}

bool isTeamMode(GameMode mode) {
    return mode == GameMode::CaptureTheFlag || mode == GameMode::BattleRoyale || mode == GameMode::KingOfTheHill ||
           mode == GameMode::Everything;
}

int frameMultiplierOf(int rate) {
    return rate == 120 || rate == 144 ? 2 : 1;
}

}  // namespace vandrel
