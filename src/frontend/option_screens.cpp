#include "frontend/option_screens.h"

#include <array>
#include <cstddef>
#include <string>

#include "arena/bonus.h"
#include "base/checked.h"
#include "frontend/option_rows.h"
#include "match/options/name_tables.h"

namespace vandrel {

namespace {

using Options = GameOptions;

constexpr std::array<OptionRow, 8> levelRows{
    ChoiceRow{"Randomness", &Options::randomness, RandomnessNames},
    ChoiceRow{"Randomness increase", &Options::randomnessIncrease, RandomnessNames},
    ChoiceRow{"Grid Blocks", &Options::gridBlocks, AutoOffOnNames},
    ChoiceRow{"Wall density", &Options::wallDensity, DensityNames},
    ChoiceRow{"Powerup density", &Options::powerupDensity, DensityNames},
    ChoiceRow{"Time before shrinking", &Options::timeBeforeShrinking, TimeBeforeShrinkingNames},
    ChoiceRow{"Shrink speed", &Options::shrinkSpeed, ShrinkSpeedNames},
    ChoiceRow{"Shrink style", &Options::shrinkStyle, ShrinkStyleNames},
};

// No player is so slow as 0.
constexpr std::array<std::string_view, 4> initialSpeedNames{"", "Slow", "Normal", "Fast"};

constexpr std::array<OptionRow, 6> playerRows{
    ChoiceRow{"Initial player speed", &Options::initialSpeed, initialSpeedNames, 1},
    SwitchRow{"Start with shield", &Options::startWithShield},
    SwitchRow{"Start as snake", &Options::startAsSnake},
    SwitchRow{"Rocket explosion delay", &Options::rocketExplosionDelay},
    SwitchRow{"Remote Control explosion delay", &Options::remoteExplosionDelay},
    NumberRow{"Respawn time", &Options::respawnTime, 1, 30},
};

constexpr std::array<OptionRow, 10> snakeHunterRows{
    ChoiceRow{"Number of snakes", &Options::snakeNumber, AutoNumberNames},
    ChoiceRow{"Max snakes at once", &Options::maxSnakes, AutoNumberNames},
    ChoiceRow{"Preparation time", &Options::preparationTime, SnakeTimeNames},
    ChoiceRow{"Spawn interval", &Options::spawnInterval, SnakeTimeNames},
    NumberRow{"Aggressiveness", &Options::snakeAggressiveness, -1, 2},
    ChoiceRow{"Speed", &Options::snakeSpeed, AutoNumberNames},
    NumberRow{"Starting length", &Options::snakeStartLength, 4, 16},
    NumberRow{"Target length", &Options::snakeTargetLength, 4, 30},
    NumberRow{"Major stun time (head)", &Options::majorStunTime, 0, 600},
    NumberRow{"Minor stun time (body)", &Options::minorStunTime, 0, 600},
};

// Several powerups hide behind a question mark and bear a name that another one has too.
bool isQuestion(int bonus) {
    return bonus >= Bonus::QuestionShield && bonus <= Bonus::QuestionFastIgnition;
}

std::string powerupLabel(int bonus) {
    return std::string(checkedAt(bonusNames, bonus).displayName) + (isQuestion(bonus) ? " (question)" : "");
}

// A menu with its heading and rows, to which others may be added before `addEnd`.
std::shared_ptr<VandrelMenu> optionMenu(MenuContext& context, const char* heading, std::span<const OptionRow> rows,
                                        const VandrelMenuLayoutOptions& layout = layoutDefault) {
    auto menu = std::make_shared<VandrelMenu>(&layout);
    menu->addHeading(context.headingX, heading);
    addOptionRows(*menu, context, rows);
    return menu;
}

void addEnd(VandrelMenu& menu, MenuContext& context) {
    menu.addGap();
    addBack(menu, context.x, context.stack);
}

}  // namespace

std::shared_ptr<VandrelMenu> levelMenu(MenuContext& context) {
    auto menu = optionMenu(context, "Level options", levelRows);
    menu->addGap();
    menu->addAction(context.x, "Player options", [&context] { context.stack.push(playerMenu(context)); });
    menu->addAction(context.x, "Snake Hunter options", [&context] { context.stack.push(snakeHunterMenu(context)); });
    menu->addAction(context.x, "Customise powerups", [&context] { context.stack.push(powerupsMenu(context)); });
    addEnd(*menu, context);
    return menu;
}

std::shared_ptr<VandrelMenu> playerMenu(MenuContext& context) {
    auto menu = optionMenu(context, "Player options", playerRows);
    addEnd(*menu, context);
    return menu;
}

std::shared_ptr<VandrelMenu> snakeHunterMenu(MenuContext& context) {
    auto menu = optionMenu(context, "Snake Hunter options", snakeHunterRows);
    RespawnWallOptions& walls = gameOptions.respawnWalls[static_cast<std::size_t>(GameMode::SnakeHunter)];
    menu->addBool(context.x, "Respawn walls", &walls.enabled, context.offOnNames);
    addEnd(*menu, context);
    return menu;
}

std::shared_ptr<VandrelMenu> powerupsMenu(MenuContext& context) {
    auto menu = optionMenu(context, "Customise powerups", {}, layoutSmall);
    for (int bonus = 1; bonus < bonusCount; ++bonus) {
        if (bonus == Bonus::Death) {
            continue;
        }
        // The field says that a powerup is off, so the names stand the other way round.
        menu->addBool(context.x, powerupLabel(bonus), &checkedAt(gameOptions.powerupDisabled, bonus),
                      context.onOffNames);
    }
    addEnd(*menu, context);
    return menu;
}

}  // namespace vandrel
