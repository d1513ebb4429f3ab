#include "replay/tool/option_names.h"

#include <array>
#include <string_view>
#include <variant>

#include "match/options/name_tables.h"

namespace vandrel {

namespace {

using Field = std::variant<int GameOptions::*, bool GameOptions::*, std::optional<int> GameOptions::*,
                           std::optional<bool> GameOptions::*>;

struct NamedField {
    std::string_view name;
    Field field;
};

constexpr auto namedFields = std::to_array<NamedField>({
    {"arenaSize", &GameOptions::arenaSize},
    {"shrinkStyle", &GameOptions::shrinkStyle},
    {"shrinkSpeed", &GameOptions::shrinkSpeed},
    {"timeBeforeShrinking", &GameOptions::timeBeforeShrinking},
    {"gridBlocks", &GameOptions::gridBlocks},
    {"wallDensity", &GameOptions::wallDensity},
    {"powerupDensity", &GameOptions::powerupDensity},
    {"auctions", &GameOptions::auctions},
    {"snakeNumber", &GameOptions::snakeNumber},
    {"maxSnakes", &GameOptions::maxSnakes},
    {"preparationTime", &GameOptions::preparationTime},
    {"spawnInterval", &GameOptions::spawnInterval},
    {"randomness", &GameOptions::randomness},
    {"randomnessIncrease", &GameOptions::randomnessIncrease},
    {"winsNeeded", &GameOptions::winsNeeded},
    {"numPlayers", &GameOptions::numPlayers},
    {"quickStartPlayers", &GameOptions::quickStartPlayers},
    {"bombPowerupResetsBombType", &GameOptions::bombPowerupResetsBombType},
    {"shrinkingOn", &GameOptions::shrinkingOn},
    {"initialSpeed", &GameOptions::initialSpeed},
    {"speedCap", &GameOptions::speedCap},
    {"snailSeconds", &GameOptions::snailSeconds},
    {"remoteHoldToArm", &GameOptions::remoteHoldToArm},
    {"remoteExplosionDelay", &GameOptions::remoteExplosionDelay},
    {"rocketExplosionDelay", &GameOptions::rocketExplosionDelay},
    {"startAsSnake", &GameOptions::startAsSnake},
    {"startWithShield", &GameOptions::startWithShield},
    {"respawnTime", &GameOptions::respawnTime},
    {"frameMultiplier", &GameOptions::frameMultiplier},
    {"updaterate", &GameOptions::updaterate},
    {"everythingCTF", &GameOptions::everythingCTF},
    {"everythingBattleRoyale", &GameOptions::everythingBattleRoyale},
    {"everythingKotH", &GameOptions::everythingKotH},
    {"everythingSnakeHunter", &GameOptions::everythingSnakeHunter},
    {"everythingDeathmatch", &GameOptions::everythingDeathmatch},
    {"playerKillPoints", &GameOptions::playerKillPoints},
    {"snakeHurtPoints", &GameOptions::snakeHurtPoints},
    {"snakeKillPoints", &GameOptions::snakeKillPoints},
    {"flagCapturePoints", &GameOptions::flagCapturePoints},
    {"singleFlag", &GameOptions::singleFlag},
    {"snakeSpeed", &GameOptions::snakeSpeed},
    {"snakeHunterRespawn", &GameOptions::snakeHunterRespawn},
    {"minorStunEnabled", &GameOptions::minorStunEnabled},
    {"snakeStartLength", &GameOptions::snakeStartLength},
    {"snakeTargetLength", &GameOptions::snakeTargetLength},
    {"majorStunTime", &GameOptions::majorStunTime},
    {"minorStunTime", &GameOptions::minorStunTime},
    {"snakeAggressiveness", &GameOptions::snakeAggressiveness},
    {"aiSearchDepth", &GameOptions::aiSearchDepth},
    {"arenaSizeResolved", &GameOptions::arenaSizeResolved},
    {"shrinkSpeedFrames", &GameOptions::shrinkSpeedFrames},
    {"timeBeforeShrinkingFrames", &GameOptions::timeBeforeShrinkingFrames},
    {"shrinkStyleResolved", &GameOptions::shrinkStyleResolved},
    {"gridBlocksResolved", &GameOptions::gridBlocksResolved},
    {"wallPercent", &GameOptions::wallPercent},
    {"powerupPercent", &GameOptions::powerupPercent},
    {"auctionInterval", &GameOptions::auctionInterval},
    {"snakeSpawnFrames", &GameOptions::snakeSpawnFrames},
    {"snakePreparationFrames", &GameOptions::snakePreparationFrames},
    {"snakeCount", &GameOptions::snakeCount},
    {"snakesAtOnce", &GameOptions::snakesAtOnce},
});

using WallField = std::variant<int RespawnWallOptions::*, bool RespawnWallOptions::*>;

struct NamedWallField {
    std::string_view name;
    WallField field;
};

constexpr auto namedWallFields = std::to_array<NamedWallField>({
    {"respawnWallsResolved.enabled", &RespawnWallOptions::enabled},
    {"respawnWallsResolved.interval", &RespawnWallOptions::interval},
    {"respawnWallsResolved.startBelow", &RespawnWallOptions::startBelow},
    {"respawnWallsResolved.stopAt", &RespawnWallOptions::stopAt},
    {"respawnWallsResolved.minFreeSquares", &RespawnWallOptions::minFreeSquares},
});

constexpr std::string_view disabledPrefix = "powerupDisabled.";

void assignValue(int& field, int value) {
    field = value;
}
void assignValue(bool& field, int value) {
    field = value != 0;
}
void assignValue(std::optional<int>& field, int value) {
    field = value;
}
void assignValue(std::optional<bool>& field, int value) {
    field = value != 0;
}

template <class Table, class Record>
bool setIn(const Table& table, Record& record, const std::string& name, int value) {
    for (const auto& entry : table) {
        if (entry.name == name) {
            std::visit([&](auto member) { assignValue(record.*member, value); }, entry.field);
            return true;
        }
    }
    return false;
}

bool setDisabled(GameOptions& options, const std::string& name, int value) {
    for (std::size_t i = 0; i < bonusNames.size(); ++i) {
        if (name == std::string(disabledPrefix) + std::string(bonusNames[i].internalName)) {
            options.powerupDisabled[i] = value != 0;
            return true;
        }
    }
    return false;
}

}  // namespace

bool setOptionByName(GameOptions& options, const std::string& name, int value) {
    return setIn(namedFields, options, name, value) ||
           setIn(namedWallFields, options.respawnWallsResolved, name, value) || setDisabled(options, name, value);
}

std::string listOptionNames() {
    std::string names;
    for (const auto& entry : namedFields) {
        names += std::string(entry.name) + ' ';
    }
    for (const auto& entry : namedWallFields) {
        names += std::string(entry.name) + ' ';
    }
    for (const auto& bonus : bonusNames) {
        names += std::string(disabledPrefix) + std::string(bonus.internalName) + ' ';
    }
    return names;
}

}  // namespace vandrel
