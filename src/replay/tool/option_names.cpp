#include "replay/tool/option_names.h"

#include <fmt/format.h>

#include <array>
#include <stdexcept>
#include <string_view>
#include <variant>

#include "match/options/name_tables.h"

namespace vandrel {

namespace {

using Field = std::variant<int GameOptions::*, bool GameOptions::*, std::optional<int> GameOptions::*,
                           std::optional<bool> GameOptions::*>;

// The values that an option takes, those of its menu or of its field in files. A flag takes 0 and 1.
struct Range {
    int low = 0;
    int high = 1;
};

constexpr int mostFrames = 1'000'000;
constexpr int mostSquares = 119 * 67;  // of the largest arena

struct NamedField {
    std::string_view name;
    Field field;
    Range range{};
};

constexpr auto namedFields = std::to_array<NamedField>({
    {"arenaSize", &GameOptions::arenaSize, {0, 13}},
    {"shrinkStyle", &GameOptions::shrinkStyle, {0, 3}},
    {"shrinkSpeed", &GameOptions::shrinkSpeed, {0, autoShrinkSpeed}},
    {"timeBeforeShrinking", &GameOptions::timeBeforeShrinking, {0, autoTimeBeforeShrinking}},
    {"gridBlocks", &GameOptions::gridBlocks, {0, 2}},
    {"wallDensity", &GameOptions::wallDensity, {0, autoDensity}},
    {"powerupDensity", &GameOptions::powerupDensity, {0, autoDensity}},
    {"auctions", &GameOptions::auctions, {0, 3}},
    {"snakeNumber", &GameOptions::snakeNumber, {0, 10}},
    {"maxSnakes", &GameOptions::maxSnakes, {0, 10}},
    {"preparationTime", &GameOptions::preparationTime, {0, 5}},
    {"spawnInterval", &GameOptions::spawnInterval, {0, 5}},
    {"randomness", &GameOptions::randomness, {0, 2}},
    {"randomnessIncrease", &GameOptions::randomnessIncrease, {0, 2}},
    {"winsNeeded", &GameOptions::winsNeeded, {3, 10}},
    {"numPlayers", &GameOptions::numPlayers, {1, mostPlayers}},
    {"quickStartPlayers", &GameOptions::quickStartPlayers, {0, mostPlayers - 1}},
    {"bombPowerupResetsBombType", &GameOptions::bombPowerupResetsBombType},
    {"shrinkingOn", &GameOptions::shrinkingOn},
    {"initialSpeed", &GameOptions::initialSpeed, {1, 3}},
    {"speedCap", &GameOptions::speedCap, {1, 31}},
    {"snailSeconds", &GameOptions::snailSeconds, {0, 127}},
    {"remoteHoldToArm", &GameOptions::remoteHoldToArm},
    {"remoteExplosionDelay", &GameOptions::remoteExplosionDelay},
    {"rocketExplosionDelay", &GameOptions::rocketExplosionDelay},
    {"startAsSnake", &GameOptions::startAsSnake},
    {"startWithShield", &GameOptions::startWithShield},
    {"respawnTime", &GameOptions::respawnTime, {1, 30}},
    {"frameMultiplier", &GameOptions::frameMultiplier, {1, 100}},
    {"updaterate", &GameOptions::updaterate, {1, highestUpdateRate}},
    {"everythingCTF", &GameOptions::everythingCTF},
    {"everythingBattleRoyale", &GameOptions::everythingBattleRoyale},
    {"everythingKotH", &GameOptions::everythingKotH},
    {"everythingSnakeHunter", &GameOptions::everythingSnakeHunter},
    {"everythingDeathmatch", &GameOptions::everythingDeathmatch},
    {"playerKillPoints", &GameOptions::playerKillPoints, {0, 10}},
    {"snakeHurtPoints", &GameOptions::snakeHurtPoints, {0, 10}},
    {"snakeKillPoints", &GameOptions::snakeKillPoints, {0, 10}},
    {"flagCapturePoints", &GameOptions::flagCapturePoints, {0, 50}},
    {"singleFlag", &GameOptions::singleFlag},
    {"snakeSpeed", &GameOptions::snakeSpeed, {0, 10}},
    {"snakeHunterRespawn", &GameOptions::snakeHunterRespawn},
    {"minorStunEnabled", &GameOptions::minorStunEnabled},
    {"snakeStartLength", &GameOptions::snakeStartLength, {4, 30}},
    {"snakeTargetLength", &GameOptions::snakeTargetLength, {4, 30}},
    {"majorStunTime", &GameOptions::majorStunTime, {0, 600}},
    {"minorStunTime", &GameOptions::minorStunTime, {0, 600}},
    {"snakeAggressiveness", &GameOptions::snakeAggressiveness, {-1, 2}},
    {"aiSearchDepth", &GameOptions::aiSearchDepth, {1, 15}},
    {"arenaSizeResolved", &GameOptions::arenaSizeResolved, {1, 13}},
    {"shrinkSpeedFrames", &GameOptions::shrinkSpeedFrames, {1, 127}},
    {"timeBeforeShrinkingFrames", &GameOptions::timeBeforeShrinkingFrames, {0, mostFrames}},
    {"shrinkStyleResolved", &GameOptions::shrinkStyleResolved, {1, 3}},
    {"gridBlocksResolved", &GameOptions::gridBlocksResolved},
    {"wallPercent", &GameOptions::wallPercent, {0, 100}},
    {"powerupPercent", &GameOptions::powerupPercent, {0, 100}},
    {"auctionInterval", &GameOptions::auctionInterval, {0, mostFrames}},
    {"snakeSpawnFrames", &GameOptions::snakeSpawnFrames, {0, mostFrames}},
    {"snakePreparationFrames", &GameOptions::snakePreparationFrames, {0, mostFrames}},
    {"snakeCount", &GameOptions::snakeCount, {0, 30}},
    {"snakesAtOnce", &GameOptions::snakesAtOnce, {1, 30}},
});

using WallField = std::variant<int RespawnWallOptions::*, bool RespawnWallOptions::*>;

struct NamedWallField {
    std::string_view name;
    WallField field;
    Range range{};
};

constexpr auto namedWallFields = std::to_array<NamedWallField>({
    {"respawnWallsResolved.enabled", &RespawnWallOptions::enabled},
    {"respawnWallsResolved.interval", &RespawnWallOptions::interval, {1, mostFrames}},
    {"respawnWallsResolved.startBelow", &RespawnWallOptions::startBelow, {0, mostSquares}},
    {"respawnWallsResolved.stopAt", &RespawnWallOptions::stopAt, {0, mostSquares}},
    {"respawnWallsResolved.minFreeSquares", &RespawnWallOptions::minFreeSquares, {0, mostSquares}},
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

void requireInRange(const std::string& name, int value, const Range& range) {
    if (value < range.low || value > range.high) {
        throw std::out_of_range(
            fmt::format("{} takes a number from {} to {}, not {}", name, range.low, range.high, value));
    }
}

template <class Table, class Record>
bool setIn(const Table& table, Record& record, const std::string& name, int value) {
    for (const auto& entry : table) {
        if (entry.name == name) {
            requireInRange(name, value, entry.range);
            std::visit([&](auto member) { assignValue(record.*member, value); }, entry.field);
            return true;
        }
    }
    return false;
}

bool setDisabled(GameOptions& options, const std::string& name, int value) {
    for (std::size_t i = 0; i < bonusNames.size(); ++i) {
        if (name == std::string(disabledPrefix) + std::string(bonusNames[i].internalName)) {
            requireInRange(name, value, {});
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
