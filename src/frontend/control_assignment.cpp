#include "frontend/control_assignment.h"

#include <fmt/format.h>

#include <algorithm>
#include <string>

#include "arena/arena.h"
#include "input/controls_manager.h"
#include "players/player.h"

namespace vandrel {

namespace {

bool hasLostController(const std::shared_ptr<Player>& player) {
    return !player->controls->isConnected();
}

std::string playerLabel(const Player& player) {
    const Controls& device = *player.controls;
    return fmt::format("Player {} {}", player.num, device.isConnected() ? device.description() : "LOST CONTROLLER");
}

// Names the first player who holds the device, if there is one.
std::string deviceLabel(const std::shared_ptr<Controls>& device) {
    const auto holder = std::ranges::find_if(
        players, [&device](const auto& player) { return player->controls->isSameDevice(*device); });
    return device->description() + (holder != players.end() ? fmt::format(" - player {}", (*holder)->num) : "");
}

}  // namespace

void controlAssignmentMenu(MenuStack& stack, int x) {
    auto menu = std::make_shared<VandrelMenu>(&layoutPauseSmall);
    menu->addHeading(x, "Control assignments");
    if (const auto lost = std::ranges::count_if(players, hasLostController); lost != 0) {
        menu->addHeading(x, fmt::format("{} players have invalid controls", lost));
        menu->addHeading(x, "Select a player to reassign controls");
    }
    for (const auto& player : players) {
        if (!player->isAI) {  // nobody drives a snake of the computer
            menu->addAction(x, playerLabel(*player), [player, &stack, x] { chooseControllerMenu(player, stack, x); });
        }
    }
    addBack(*menu, x, stack);
    stack.push(std::move(menu));
}

void chooseControllerMenu(const std::shared_ptr<Player>& player, MenuStack& stack, int x) {
    auto menu = std::make_shared<VandrelMenu>(&layoutPauseSmall);
    menu->addHeading(x, fmt::format("Choose a new controller for player {}", player->num));
    for (const auto& device : theControlsManager->devices) {
        menu->addAction(x, deviceLabel(device), [player, device] { player->controls = device; });
    }
    addBack(*menu, x, stack);
    stack.push(std::move(menu));
}

}  // namespace vandrel
