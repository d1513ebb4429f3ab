#include "frontend/start_game.h"

#include <fmt/format.h>

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "frontend/option_rows.h"
#include "frontend/option_screens.h"
#include "match/options/name_tables.h"
#include "match/play_the_game.h"
#include "shell/config.h"
#include "shell/switches.h"

namespace vandrel {

namespace {

using Options = GameOptions;

constexpr std::array<GameMode, 6> plainModes{GameMode::Classic,       GameMode::CaptureTheFlag, GameMode::BattleRoyale,
                                             GameMode::KingOfTheHill, GameMode::SnakeHunter,    GameMode::Deathmatch};

constexpr auto ArenaSizeNames = [] {
    std::array<std::string_view, arenaSizes.size()> names;
    for (std::size_t i = 0; i < names.size(); ++i) {
        names[i] = arenaSizes[i].name;
    }
    return names;
}();

constexpr std::array<OptionRow, 3> gameRows{
    ChoiceRow{"Arena Size", &Options::arenaSize, ArenaSizeNames},
    NumberRow{"Wins Needed", &Options::winsNeeded, 3, 10},
    ChoiceRow{"Auctions", &Options::auctions, AuctionNames},
};

constexpr std::array<OptionRow, 4> everythingModes{
    SwitchRow{"Capture the Flag", &Options::everythingCTF},
    SwitchRow{"Battle Royale", &Options::everythingBattleRoyale},
    SwitchRow{"King of the Hill", &Options::everythingKotH},
    SwitchRow{"Snake Hunter", &Options::everythingSnakeHunter},
};

constexpr std::array<OptionRow, 4> everythingPoints{
    NumberRow{"Player kill points", &Options::playerKillPoints, 0, 10},
    NumberRow{"Flag capture points", &Options::flagCapturePoints, 0, 50},
    NumberRow{"AI snake hurt points", &Options::snakeHurtPoints, 0, 10},
    NumberRow{"AI snake kill points", &Options::snakeKillPoints, 0, 10},
};

const std::string_view& longName(GameMode mode) {
    return gameModeNames[static_cast<std::size_t>(mode)].longName;
}

void addStart(VandrelMenu& menu, MenuContext& context, std::string label, GameMode mode, const MatchStart& start) {
    menu.addAction(context.x, std::move(label), [&context, mode, start] {
        gameOptions.gameMode = mode;
        start(context.music);
    });
}

// The field holds one less than the players of a quick start, so the name behind "Off" is that of two.
NameList quickStartNames() {
    auto names = std::make_shared<std::vector<std::string>>();
    names->reserve(mostPlayers);
    names->emplace_back("Off");
    for (int count = 2; count <= mostPlayers; ++count) {
        names->push_back(fmt::format("{} players", count));
    }
    return names;
}

}  // namespace

void startMatch(std::shared_ptr<Music>& music) {
    music.reset();
    play_the_game(replayRecordingEnabled, "", {});
    returnToMenus(music);
}

std::shared_ptr<VandrelMenu> startGameMenu(MenuContext& context, const MatchStart& start) {
    auto menu = std::make_shared<VandrelMenu>(&layoutDefault);
    menu->addHeading(context.headingX, "Start game");
    for (const GameMode mode : plainModes) {
        addStart(*menu, context, std::string(longName(mode)), mode, start);
    }
    menu->addAction(context.x, std::string(longName(GameMode::Everything)),
                    [&context, start] { context.stack.push(everythingMenu(context, start)); });
    menu->addGap();
    menu->addHeading(context.headingX, "Game options");
    addOptionRows(*menu, context, gameRows);
    menu->addAction(context.x, "Custom Game Options", [&context] { context.stack.push(levelMenu(context)); });
    if (showQuickStartOption.get()) {
        menu->addGap();
        menu->addHeading(context.headingX, "Quick start options");
        menu->addEnum(context.x, "Quick Start", &gameOptions.quickStartPlayers, 0, mostPlayers - 1, quickStartNames());
    }
    menu->addGap();
    addBack(*menu, context.x, context.stack);
    return menu;
}

std::shared_ptr<VandrelMenu> everythingMenu(MenuContext& context, const MatchStart& start) {
    auto menu = std::make_shared<VandrelMenu>(&layoutDefault);
    menu->addHeading(context.headingX, "Everything options");
    addOptionRows(*menu, context, everythingModes);
    menu->addGap();
    addOptionRows(*menu, context, everythingPoints);
    menu->addGap();
    menu->addHeading(context.headingX, "Respawning is enabled");
    menu->addGap();
    addStart(*menu, context, "Begin game", GameMode::Everything, start);
    addBack(*menu, context.x, context.stack);
    return menu;
}

}  // namespace vandrel
