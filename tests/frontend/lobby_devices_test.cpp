// Devices that come and go in the lobby, up to a hundred of them.
#include <algorithm>
#include <memory>
#include <random>

#include "base/random.h"
#include "frontend/lobby_fixture.h"

namespace vandrel {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

using LobbyDevices = LobbyTest;

TEST_F(LobbyDevices, FollowsDevicesThatComeAndGo) {
    addDevices(9);
    open();
    ASSERT_EQ(grid_squares_x, 31);
    Player& stays = join(0);
    Player& atTheEdge = join(1);
    join(12);
    atTheEdge.x = 29 * squareSize;
    atTheEdge.y = 17 * squareSize;
    press(1, &HeldKeys::fire);
    step(95);
    const auto isBeyond = [](const Explosion& flame) { return flame.x >= 27 || flame.y >= 15; };
    ASSERT_TRUE(std::ranges::any_of(lobby_->game().explosions, isBeyond)) << "flames where no squares will be";
    press(0, &HeldKeys::fire);
    ASSERT_EQ(stays.bombsPlaced, 1);

    keys(12).connected = false;
    devices_.resize(4);
    const Pixel place = stays.position();
    lobby_->setUp(devices_);
    EXPECT_EQ(Game::current(), &lobby_->game()) << "the game of the set-up has gone";
    EXPECT_EQ(grid_squares_x, 27);
    EXPECT_EQ(stays.position(), place);
    EXPECT_EQ(atTheEdge.position(), lobby_->spots().at(1));
    EXPECT_EQ(stays.bombsPlaced, 0) << "the bombs went with the old arena";
    keys(1).right = true;
    keys(1).down = true;
    step(300);
    EXPECT_THAT(numbers(), UnorderedElementsAre(0, 1)) << "who has lost the device is gone";

    // A new device in the place of a lost one gets a number of its own.
    keys(0).connected = false;
    devices_.erase(devices_.begin());
    devices_.insert(devices_.begin() + 1, std::make_shared<ScriptedControls>());
    lobby_->setUp(devices_);
    join(1);
    EXPECT_THAT(numbers(), ElementsAre(1, 2));
}

// A hundred people who press at random, walking and as snakes, until most of their devices are pulled out.
TEST_F(LobbyDevices, TakesAHundredDevices) {
    addDevices(96);
    std::mt19937 chance(7);
    for (const bool asSnakes : {false, true}) {
        gameOptions.startAsSnake = asSnakes;
        open(GameMode::BattleRoyale);
        for (std::size_t i = 0; i < devices_.size(); ++i) {
            keys(i) = {.fire = true};
        }
        step();
        EXPECT_EQ(gameOptions.numPlayers, 100);
        for (int update = 0; update < 1500; ++update) {
            if (update == 1000) {
                for (std::size_t i = 0; i < 95; ++i) {
                    keys(i).connected = false;
                }
                lobby_->setUp({devices_.begin() + 95, devices_.end()});
            }
            HeldKeys& some = keys(static_cast<std::size_t>(uniformInt(chance, 0, 99)));
            for (bool* key : {&some.up, &some.down, &some.left, &some.right, &some.fire}) {
                *key = uniformInt(chance, 0, 1) == 1;
            }
            step();
            EXPECT_TRUE(std::ranges::all_of(
                players, [](const auto& player) { return isInnerSquare(player->square()) && !player->dead; }));
        }
        EXPECT_THAT(numbers(), UnorderedElementsAre(95, 96, 97, 98, 99));
    }
}

}  // namespace
}  // namespace vandrel
