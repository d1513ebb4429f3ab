// The screens of a custom game: which rows they show, what each row edits, and where the presses lead.
#include "frontend/option_screens.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "arena/bonus.h"
#include "frontend/menu_fixture.h"
#include "frontend/menu_rows.h"
#include "frontend/start_game.h"
#include "match/options/game_options.h"
#include "shell/config.h"

namespace vandrel::test {
namespace {

using testing::ElementsAre;

constexpr int menuWidth = 1920;

class OptionScreens : public MenuTest {
  protected:
    OptionScreens() : context(menuWidth) {
        gameOptions = GameOptions();
        showQuickStartOption.value = false;
        context.music = std::make_shared<NoMusic>();
    }
    ~OptionScreens() override {
        gameOptions = GameOptions();
        showQuickStartOption.value.reset();
    }

    std::shared_ptr<VandrelMenu> open(const std::string& name) {
        return name == "Start game"     ? startGameMenu(context, look)
               : name == "Everything"   ? everythingMenu(context, look)
               : name == "Level"        ? levelMenu(context)
               : name == "Player"       ? playerMenu(context)
               : name == "Snake Hunter" ? snakeHunterMenu(context)
                                        : powerupsMenu(context);
    }

    // What a player reads: "#" before a heading, "-" for a gap, values behind a colon.
    std::vector<std::string> rowsOf(const VandrelMenu& menu, int rowStep = 48) {
        std::vector<std::string> rows;
        int nextY = 300;
        for (const auto& entry : menu.entries()) {
            if (entry->y == nextY + rowStep / 2) {
                rows.emplace_back("-");
                nextY += rowStep / 2;
            }
            EXPECT_EQ(entry->y, nextY) << entry->text();
            EXPECT_EQ(entry->x, entry->isHeading() ? 740 : 760) << entry->text();
            nextY += rowStep;
            rows.push_back((entry->isHeading() ? "# " : "") + entry->text() +
                           (entry->valueText().empty() ? "" : ": " + entry->valueText()));
        }
        return rows;
    }

    // Looks on instead of playing.
    const MatchStart look = [this](std::shared_ptr<Music>& music) {
        EXPECT_EQ(&music, &context.music);
        startedModes.push_back(gameOptions.gameMode);
    };

    MenuContext context;
    std::vector<GameMode> startedModes;
};

TEST_F(OptionScreens, RowsAndPresets) {
    EXPECT_THAT(rowsOf(*open("Start game")),
                ElementsAre("# Start game", "Classic", "Capture the Flag", "Battle Royale", "King of the Hill",
                            "Snake Hunter", "Deathmatch", "EVERYTHING", "-", "# Game options", "Arena Size: Auto",
                            "Wins Needed: 5", "Auctions: Medium", "Custom Game Options", "-", "Back"));
    EXPECT_THAT(rowsOf(*open("Everything")),
                ElementsAre("# Everything options", "Capture the Flag: On", "Battle Royale: On", "King of the Hill: On",
                            "Snake Hunter: On", "-", "Player kill points: 1", "Flag capture points: 20",
                            "AI snake hurt points: 1", "AI snake kill points: 5", "-", "# Respawning is enabled", "-",
                            "Begin game", "Back"));
    EXPECT_THAT(rowsOf(*open("Level")),
                ElementsAre("# Level options", "Randomness: None", "Randomness increase: Some", "Grid Blocks: Off",
                            "Wall density: Auto", "Powerup density: Auto", "Time before shrinking: Auto",
                            "Shrink speed: Auto", "Shrink style: Auto", "-", "Player options", "Snake Hunter options",
                            "Customise powerups", "-", "Back"));
    EXPECT_THAT(rowsOf(*open("Player")),
                ElementsAre("# Player options", "Initial player speed: Normal", "Start with shield: Off",
                            "Start as snake: Off", "Rocket explosion delay: On", "Remote Control explosion delay: On",
                            "Respawn time: 10", "-", "Back"));
    EXPECT_THAT(rowsOf(*open("Snake Hunter")),
                ElementsAre("# Snake Hunter options", "Number of snakes: Auto", "Max snakes at once: Auto",
                            "Preparation time: Auto", "Spawn interval: Auto", "Aggressiveness: 0", "Speed: Auto",
                            "Starting length: 12", "Target length: 12", "Major stun time (head): 180",
                            "Minor stun time (body): 120", "Respawn walls: On", "-", "Back"));
    EXPECT_THAT(rowsOf(*open("Powerups"), 40),
                ElementsAre("# Customise powerups", "Extra Bomb: On", "Extra Range: On", "Speed: On",
                            "Remote Control: On", "Detonator: On", "Ghost: On", "Shield: On", "Cash: On",
                            "Strength: On", "Stop: On", "Snail: On", "Snake: On", "Annhiliator: On", "Flamethrower: On",
                            "Rocket Launcher: On", "Shield (question): On", "Ghost (question): On",
                            "Stop (question): On", "DANGER! (question): On", "Ultrabomb: On", "-", "Back"));
}

TEST_F(OptionScreens, EachNumberAndChoiceEditsItsFieldWithinItsRange) {
    using O = GameOptions;
    // The screen and its row; what it edits, from where to where, and how both ends are called.
    const std::tuple<const char*, const char*, int O::*, int, int, const char*, const char*> rows[] = {
        {"Start game", "Arena Size", &O::arenaSize, 0, 13, "Auto", "UltraWideHuge"},
        {"Start game", "Wins Needed", &O::winsNeeded, 3, 10, "3", "10"},
        {"Start game", "Auctions", &O::auctions, 0, 3, "Off", "Infrequent"},
        {"Everything", "Player kill points", &O::playerKillPoints, 0, 10, "0", "10"},
        {"Everything", "Flag capture points", &O::flagCapturePoints, 0, 50, "0", "50"},
        {"Everything", "AI snake hurt points", &O::snakeHurtPoints, 0, 10, "0", "10"},
        {"Everything", "AI snake kill points", &O::snakeKillPoints, 0, 10, "0", "10"},
        {"Level", "Randomness", &O::randomness, 0, 2, "None", "Lots"},
        {"Level", "Randomness increase", &O::randomnessIncrease, 0, 2, "None", "Lots"},
        {"Level", "Grid Blocks", &O::gridBlocks, 0, 2, "Auto", "On"},
        {"Level", "Wall density", &O::wallDensity, 0, 21, "0", "Auto"},
        {"Level", "Powerup density", &O::powerupDensity, 0, 21, "0", "Auto"},
        {"Level", "Time before shrinking", &O::timeBeforeShrinking, 0, 4, "Very Short", "Auto"},
        {"Level", "Shrink speed", &O::shrinkSpeed, 0, 6, "Very Slow", "Auto"},
        {"Level", "Shrink style", &O::shrinkStyle, 0, 3, "Auto", "4"},
        {"Player", "Initial player speed", &O::initialSpeed, 1, 3, "Slow", "Fast"},
        {"Player", "Respawn time", &O::respawnTime, 1, 30, "1", "30"},
        {"Snake Hunter", "Number of snakes", &O::snakeNumber, 0, 10, "Auto", "10"},
        {"Snake Hunter", "Max snakes at once", &O::maxSnakes, 0, 10, "Auto", "10"},
        {"Snake Hunter", "Preparation time", &O::preparationTime, 0, 5, "Auto", "Long"},
        {"Snake Hunter", "Spawn interval", &O::spawnInterval, 0, 5, "Auto", "Long"},
        {"Snake Hunter", "Aggressiveness", &O::snakeAggressiveness, -1, 2, "-1", "2"},
        {"Snake Hunter", "Speed", &O::snakeSpeed, 0, 10, "Auto", "10"},
        {"Snake Hunter", "Starting length", &O::snakeStartLength, 4, 16, "4", "16"},
        {"Snake Hunter", "Target length", &O::snakeTargetLength, 4, 30, "4", "30"},
        {"Snake Hunter", "Major stun time (head)", &O::majorStunTime, 0, 600, "0", "600"},
        {"Snake Hunter", "Minor stun time (body)", &O::minorStunTime, 0, 600, "0", "600"},
    };
    for (const auto& [screenName, label, option, lowest, highest, lowestName, highestName] : rows) {
        SCOPED_TRACE(label);
        const auto menu = open(screenName);
        CmdButtonBase& entry = rowOf(*menu, label);
        int& field = gameOptions.*option;
        field = highest - 1;
        entry.press();
        EXPECT_EQ(field, highest);
        EXPECT_EQ(entry.valueText(), highestName);
        entry.increase();
        EXPECT_EQ(field, lowest);
        EXPECT_EQ(entry.valueText(), lowestName);
        entry.decrease();
        EXPECT_EQ(field, highest);
    }
}

TEST_F(OptionScreens, EachSwitchEditsItsField) {
    GameOptions& o = gameOptions;
    const std::tuple<const char*, const char*, bool&> switches[]{
        {"Everything", "Capture the Flag", o.everythingCTF},
        {"Everything", "Battle Royale", o.everythingBattleRoyale},
        {"Everything", "King of the Hill", o.everythingKotH},
        {"Everything", "Snake Hunter", o.everythingSnakeHunter},
        {"Player", "Start with shield", o.startWithShield},
        {"Player", "Start as snake", o.startAsSnake},
        {"Player", "Rocket explosion delay", o.rocketExplosionDelay},
        {"Player", "Remote Control explosion delay", o.remoteExplosionDelay},
        {"Snake Hunter", "Respawn walls", o.respawnWalls[4].enabled},
    };
    for (const auto& [screenName, label, field] : switches) {
        const auto menu = open(screenName);
        const bool before = field;
        rowOf(*menu, label).press();
        EXPECT_EQ(field, !before) << label;
        EXPECT_EQ(rowOf(*menu, label).valueText(), before ? "Off" : "On") << label;
    }
}

TEST_F(OptionScreens, EveryPowerupButDeathCanBeLeftOut) {
    const auto menu = open("Powerups");
    int bonus = 1;
    for (const auto& entry : menu->entries()) {
        if (entry->valueText().empty()) {
            continue;
        }
        bonus += bonus == Bonus::Death ? 1 : 0;
        const auto& disabled = gameOptions.powerupDisabled.at(static_cast<std::size_t>(bonus));
        EXPECT_FALSE(disabled);
        entry->press();
        EXPECT_TRUE(disabled) << entry->text();
        EXPECT_EQ(entry->valueText(), "Off");
        ++bonus;
    }
    EXPECT_EQ(bonus, 22);
    EXPECT_FALSE(gameOptions.powerupDisabled[Bonus::Death]);
}

TEST_F(OptionScreens, ModesStartAMatchAndTheOtherActionsLeadOn) {
    const auto start = open("Start game");
    press(*start, {ALLEGRO_KEY_ENTER});  // the row that is highlighted first
    for (const char* mode : {"Capture the Flag", "Battle Royale", "King of the Hill", "Snake Hunter", "Deathmatch"}) {
        rowOf(*start, mode).press();
    }
    rowOf(*open("Everything"), "Begin game").press();
    EXPECT_THAT(startedModes, ElementsAre(GameMode::Classic, GameMode::CaptureTheFlag, GameMode::BattleRoyale,
                                          GameMode::KingOfTheHill, GameMode::SnakeHunter, GameMode::Deathmatch,
                                          GameMode::Everything));
    EXPECT_TRUE(context.stack.menus.empty()) << "the menu of the mode stays";

    const std::tuple<const char*, const char*, const char*> ways[] = {
        {"Start game", "EVERYTHING", "Everything options"},
        {"Start game", "Custom Game Options", "Level options"},
        {"Level", "Player options", "Player options"},
        {"Level", "Snake Hunter options", "Snake Hunter options"},
        {"Level", "Customise powerups", "Customise powerups"},
    };
    for (const auto& [from, action, title] : ways) {
        rowOf(*open(from), action).press();
        ASSERT_EQ(context.stack.menus.size(), 1U) << action;
        const VandrelMenu& opened = *context.stack.menus.back();
        EXPECT_EQ(opened.entries().front()->text(), title);
        rowOf(opened, "Back").press();
        EXPECT_TRUE(context.stack.backRequested) << title;
        context.stack.pop();
    }
    rowOf(*start, "Back").press();
    EXPECT_TRUE(context.stack.backRequested);
}

TEST_F(OptionScreens, QuickStartIsOfferedOnRequestFromTwoToAHundredPlayers) {
    showQuickStartOption.value = true;
    const auto menu = open("Start game");
    std::vector<std::string> rows = rowsOf(*menu);
    rows.erase(rows.begin(), rows.end() - 6);
    EXPECT_THAT(rows,
                ElementsAre("Custom Game Options", "-", "# Quick start options", "Quick Start: Off", "-", "Back"));
    CmdButtonBase& quickStart = rowOf(*menu, "Quick Start");
    quickStart.decrease();
    EXPECT_EQ(gameOptions.quickStartPlayers, 99);
    EXPECT_EQ(quickStart.valueText(), "100 players");
    quickStart.increase();
    EXPECT_EQ(quickStart.valueText(), "Off");
    quickStart.increase();
    EXPECT_EQ(gameOptions.quickStartPlayers, 1);
    EXPECT_EQ(quickStart.valueText(), "2 players");
}

}  // namespace
}  // namespace vandrel::test
