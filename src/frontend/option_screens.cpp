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

}  // namespace

std::shared_ptr<VandrelMenu> levelMenu(MenuContext& context) {
    auto menu = std::make_shared<VandrelMenu>(&layoutDefault);
    menu->addHeading(context.headingX, "Level options");
    addOptionRows(*menu, context, levelRows);
    menu->addGap();
    menu->addAction(context.x, "Player options", [&context] { context.stack.push(playerMenu(context)); });
    menu->addAction(context.x, "Snake Hunter options", [&context] { context.stack.push(snakeHunterMenu(context)); });
    menu->addAction(context.x, "Customise powerups", [&context] { context.stack.push(powerupsMenu(context)); });
    menu->addGap();
    addBack(*menu, context.x, context.stack);
    return menu;
}

std::shared_ptr<VandrelMenu> playerMenu(MenuContext& context) {
    auto menu = std::make_shared<VandrelMenu>(&layoutDefault);
    menu->addHeading(context.headingX, "Player options");
    addOptionRows(*menu, context, playerRows);
    menu->addGap();
    addBack(*menu, context.x, context.stack);
    return menu;
}

std::shared_ptr<VandrelMenu> snakeHunterMenu(MenuContext& context) {
    auto menu = std::make_shared<VandrelMenu>(&layoutDefault);
    menu->addHeading(context.headingX, "Snake Hunter options");
    addOptionRows(*menu, context, snakeHunterRows);
    RespawnWallOptions& walls = gameOptions.respawnWalls[static_cast<std::size_t>(GameMode::SnakeHunter)];
    menu->addBool(context.x, "Respawn walls", &walls.enabled, context.offOnNames);
    menu->addGap();
    addBack(*menu, context.x, context.stack);
    return menu;
}

std::shared_ptr<VandrelMenu> powerupsMenu(MenuContext& context) {
    auto menu = std::make_shared<VandrelMenu>(&layoutSmall);
    menu->addHeading(context.headingX, "Customise powerups");
    for (int bonus = 1; bonus < bonusCount; ++bonus) {
        if (bonus == Bonus::Death) {
            continue;
        }
        // The field says that a powerup is off, so the names stand the other way round.
        menu->addBool(context.x, powerupLabel(bonus), &checkedAt(gameOptions.powerupDisabled, bonus),
                      context.onOffNames);
    }
    menu->addGap();
    addBack(*menu, context.x, context.stack);
    return menu;
}

}  // namespace vandrel
