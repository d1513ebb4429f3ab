// The one record of what a match is played with. Its first half is what the players picked, where most fields can say
// "Auto"; the second half is what this round is played with. `automaticOptions` fills the second from the first before
// each round; the rules read the second only, and a replay stores only that.
#pragma once

#include <array>
#include <optional>

namespace vandrel {

enum class GameMode : int {
    Classic = 0,
    CaptureTheFlag = 1,
    BattleRoyale = 2,
    KingOfTheHill = 3,
    SnakeHunter = 4,
    Deathmatch = 5,
    Everything = 6,
};

inline constexpr int gameModeCount = static_cast<int>(GameMode::Everything) + 1;
inline constexpr int bonusCount = 22;
inline constexpr int mostPlayers = 100;
inline constexpr int highestUpdateRate = 1'000'000;  // updates a second; far more than any machine makes

// When walls come back: every `interval` frames, once fewer than `startBelow` stand and until `stopAt` do, while more
// than `minFreeSquares` are free.
struct RespawnWallOptions {
    bool enabled = false;
    int interval = 0;
    int startBelow = 0;
    int stopAt = 0;
    int minFreeSquares = 0;

    friend bool operator==(const RespawnWallOptions&, const RespawnWallOptions&) = default;
};

// The values of chosen fields that say "Auto", beside 0.
inline constexpr int autoShrinkSpeed = 6;
inline constexpr int autoTimeBeforeShrinking = 4;
inline constexpr int autoDensity = 21;

// What the resolved fields that are plain numbers hold until the first `automaticOptions`, and in replays from before
// they were stored.
inline constexpr int notResolved = -999;

struct GameOptions {
    // Chosen.
    int arenaSize = 0;
    int shrinkStyle = 0;
    int shrinkSpeed = autoShrinkSpeed;
    int timeBeforeShrinking = autoTimeBeforeShrinking;
    int gridBlocks = 1;
    int wallDensity = autoDensity;
    int powerupDensity = autoDensity;
    int auctions = 2;
    int snakeNumber = 0;
    int maxSnakes = 0;
    int preparationTime = 0;
    int spawnInterval = 0;
    std::array<RespawnWallOptions, gameModeCount> respawnWalls = defaultRespawnWalls();  // by game mode
    std::array<bool, bonusCount> powerupDisabled{};                                      // by powerup
    int randomness = 0;
    int randomnessIncrease = 1;
    int winsNeeded = 5;
    int numPlayers = 2;
    int quickStartPlayers = 0;  // 0 off, else the number of players minus one
    bool bombPowerupResetsBombType = true;
    bool shrinkingOn = true;
    int initialSpeed = 2;
    int speedCap = 6;
    int snailSeconds = 8;
    bool remoteHoldToArm = false;
    bool remoteExplosionDelay = true;
    bool rocketExplosionDelay = true;
    bool startAsSnake = false;
    bool startWithShield = false;
    int respawnTime = 10;     // seconds
    int frameMultiplier = 1;  // 2 at 120 and 144 updates a second
    int updaterate = 60;      // updates a second
    GameMode gameMode = GameMode::Classic;
    bool everythingCTF = true;
    bool everythingBattleRoyale = true;
    bool everythingKotH = true;
    bool everythingSnakeHunter = true;
    bool everythingDeathmatch = true;
    int playerKillPoints = 1;
    int snakeHurtPoints = 1;
    int snakeKillPoints = 5;
    int flagCapturePoints = 20;
    bool singleFlag = false;
    int snakeSpeed = 0;
    bool snakeHunterRespawn = true;
    bool minorStunEnabled = true;
    int snakeStartLength = 12;
    int snakeTargetLength = 12;
    int majorStunTime = 180;
    int minorStunTime = 120;
    int snakeAggressiveness = 0;
    int aiSearchDepth = 15;

    // Resolved. Empty until the first `automaticOptions`; reading an empty one is a program error.
    std::optional<int> arenaSizeResolved;
    std::optional<int> shrinkSpeedFrames;
    std::optional<int> timeBeforeShrinkingFrames;
    std::optional<int> shrinkStyleResolved;
    std::optional<bool> gridBlocksResolved;
    std::optional<int> wallPercent;
    std::optional<int> powerupPercent;
    std::optional<int> auctionInterval;
    int snakeSpawnFrames = notResolved;
    int snakePreparationFrames = notResolved;
    int snakeCount = notResolved;
    int snakesAtOnce = notResolved;
    RespawnWallOptions respawnWallsResolved;

  private:
    static constexpr std::array<RespawnWallOptions, gameModeCount> defaultRespawnWalls() {
        std::array<RespawnWallOptions, gameModeCount> walls{};
        walls[static_cast<unsigned>(GameMode::SnakeHunter)] = {true, 10, 10, 50, 100};
        walls[static_cast<unsigned>(GameMode::Everything)] = {true, 10, 10, 50, 100};
        return walls;
    }
};

extern GameOptions gameOptions;

// Whether the rules of `mode` hold in this match: it is the mode played, or one of those switched on in Everything.
bool isModeActive(GameMode mode);

// Capture the Flag, Battle Royale, King of the Hill and Everything.
bool isTeamMode(GameMode mode);

// What values tuned at 60 updates a second are multiplied by: 2 at 120 and 144, else 1.
int frameMultiplierOf(int rate);

// How long before a respawn its ring is shown, in frames before `frameMultiplier`.
// It is computed wherever it is read, since it freezes the respawn timer and so belongs to the round's own rate.
inline int respawnRingFrames() {
    return gameOptions.updaterate * 2;
}

// n frames at 60 updates a second, in frames of the current rate, for the values that keep that length at 120.
inline int scaledFrames(int framesAt60) {
    return framesAt60 * gameOptions.frameMultiplier;
}

}  // namespace vandrel
