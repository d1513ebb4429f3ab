// The names of every enumeration of the game but pictures and sounds, in the order of their values. Menus, the log and
// the replay list show most of them; nothing shows those of inputs, devices and causes of death. A value outside a
// table is read through `checkedAt`.
#pragma once

#include <array>
#include <string_view>

#include "match/options/game_options.h"

namespace vandrel {

struct GameModeName {
    std::string_view longName;      // in menus
    std::string_view shortName;     // in the replay list
    std::string_view internalName;  // in files
};

inline constexpr std::array<GameModeName, gameModeCount> gameModeNames{{
    {"Classic", "Classic", "Standard"},
    {"Capture the Flag", "CTF", "CTF"},
    {"Battle Royale", "Battle Royale", "BattleRoyale"},
    {"King of the Hill", "KotH", "KOTH"},
    {"Snake Hunter", "Snake Hunter", "SnakeHunter"},
    {"Deathmatch", "Deathmatch", "DeathmatchIndividual"},
    {"EVERYTHING", "Everything", "Everything"},
}};

// An arena size of the table: name, and width and height in squares with the outer ring. All are odd; Auto has none.
struct ArenaSize {
    std::string_view name;
    int width;
    int height;
};

inline constexpr std::array<ArenaSize, 14> arenaSizes{{
    {"Auto", 0, 0},
    {"Tiny", 19, 11},
    {"Classic", 19, 15},
    {"Normal", 27, 15},
    {"Large", 31, 19},
    {"Larger", 39, 23},
    {"Huge", 59, 35},
    {"Colossal", 75, 43},
    {"Stupid", 119, 67},
    {"UltraWideSmall", 25, 11},
    {"UltraWideNormal", 35, 15},
    {"UltraWideLarge", 39, 17},
    {"UltraWideLarger", 45, 19},
    {"UltraWideHuge", 67, 29},
}};

// Those that rules and screens go by, as indices of the table.
inline constexpr int normalArena = 3;
inline constexpr int largeArena = 4;
inline constexpr int largerArena = 5;
inline constexpr int hugeArena = 6;
inline constexpr int colossalArena = 7;
static_assert(arenaSizes[normalArena].name == "Normal" && arenaSizes[colossalArena].name == "Colossal");

inline constexpr std::array<std::string_view, 7> ShrinkSpeedNames{"Very Slow", "Slow",   "Normal", "Fast",
                                                                  "Very Fast", "Insane", "Auto"};
inline constexpr std::array<std::string_view, 4> ShrinkStyleNames{"Auto", "Classic", "Mirrored 2", "4"};
inline constexpr std::array<std::string_view, 4> ShrinkStyleLogNames{"Auto", "Classic", "Mirrored2", "Four"};
inline constexpr std::array<std::string_view, 5> TimeBeforeShrinkingNames{"Very Short", "Short", "Normal", "Long",
                                                                          "Auto"};
inline constexpr std::array<std::string_view, 6> SnakeTimeNames{"Auto",  "None",   "Very Short",
                                                                "Short", "Normal", "Long"};
inline constexpr std::array<std::string_view, 3> AutoOffOnNames{"Auto", "Off", "On"};
inline constexpr std::array<std::string_view, 4> AuctionNames{"Off", "Frequent", "Medium", "Infrequent"};
inline constexpr std::array<std::string_view, 22> DensityNames{"0",  "5",  "10", "15", "20",  "25",  "30", "35",
                                                               "40", "45", "50", "55", "60",  "65",  "70", "75",
                                                               "80", "85", "90", "95", "100", "Auto"};
inline constexpr std::array<std::string_view, 11> AutoNumberNames{"Auto", "1", "2", "3", "4", "5",
                                                                  "6",    "7", "8", "9", "10"};
inline constexpr std::array<std::string_view, 3> RandomnessNames{"None", "Some", "Lots"};
inline constexpr std::array<std::string_view, 5> BackgroundNames{"Black", "Green", "Red", "Blue", "Grey"};
inline constexpr std::array<std::string_view, 9> ControlInputNames{
    "Up", "Down", "Left", "Right", "Fire", "Button2", "Pause", "ChangeSkin", "ChangeColour"};
inline constexpr std::array<std::string_view, 2> DeviceKindNames{"Keyboard", "Controller"};
inline constexpr std::array<std::string_view, 3> MenuControlModeNames{"Keyboard only", "Keyboard and Controller 1",
                                                                      "Keyboard and any controller"};
inline constexpr std::array<std::string_view, 10> DeathReasonNames{"Explosion",
                                                                   "PushedWall",
                                                                   "Wall",
                                                                   "Eaten",
                                                                   "BonusDeath",
                                                                   "SnakeHeadCollision",
                                                                   "SnakeBodyHitByExplosion",
                                                                   "SnakeBodyHitByAppearingWall",
                                                                   "SnakeHeadPushedWall",
                                                                   "SnakeBodyPushedWall"};

struct BonusName {
    std::string_view internalName;  // in files
    std::string_view displayName;   // on screen
};

inline constexpr std::array<BonusName, bonusCount> bonusNames{{
    {"None", "None"},
    {"Bomb", "Extra Bomb"},
    {"Range", "Extra Range"},
    {"Speed", "Speed"},
    {"Controller", "Remote Control"},
    {"Timebomb", "Detonator"},
    {"Ghost", "Ghost"},
    {"Shield", "Shield"},
    {"Cash", "Cash"},
    {"Death", "Death"},
    {"Superman", "Strength"},
    {"Stop", "Stop"},
    {"Snail", "Snail"},
    {"Snake", "Snake"},
    {"Annhiliator", "Annhiliator"},
    {"Flamethrower", "Flamethrower"},
    {"RocketLauncher", "Rocket Launcher"},
    {"QuestionShield", "Shield"},
    {"QuestionGhost", "Ghost"},
    {"QuestionStop", "Stop"},
    {"QuestionFastIgnition", "DANGER!"},
    {"UltraBomb", "Ultrabomb"},
}};

}  // namespace vandrel
