#include "frontend/control_assignment.h"

#include <string>
#include <vector>

#include "frontend/menu_fixture.h"
#include "frontend/menu_rows.h"
#include "input/joystick_controls.h"
#include "match/match_players.h"
#include "shell/shell_test_tools.h"
#include "support/fake_joysticks.h"

namespace vandrel::test {
namespace {

constexpr int left = 40;

// Two people with a pad each, a third with a key set, and a snake of the computer.
class ControlAssignmentTest : public MenuTest {
  protected:
    ControlAssignmentTest() {
        installAllegroHeadless();
        al_install_keyboard();  // for the names of the keys
        theControlsManager = std::make_unique<ControlsManager>(driver);
        theControlsManager->listHolders = listDeviceHolders;
        for (const int device : {0, 1, 3}) {
            round.addPlayer({1 + 2 * device, 1})->controls = devices().at(static_cast<std::size_t>(device));
        }
        round.addSnake({5, 5}, Facing::Right, 2, true);
    }

    static DeviceList& devices() { return theControlsManager->devices; }

    void pull(FakePad& pad) {
        pad.plugged = false;
        theControlsManager->rescan();
    }

    // Of the menu shown.
    std::vector<std::string> rows() const { return textsOf(*stack.menus.back()); }
    void pressRow(std::size_t row) { stack.menus.back()->entries().at(row)->press(); }

    std::shared_ptr<FakeJoystickDriver> driver = std::make_shared<FakeJoystickDriver>();
    std::shared_ptr<FakePad> red = driver->plugPlainPad("Red pad");
    std::shared_ptr<FakePad> blue = driver->plugPlainPad("Blue pad");
    TestRound round{{.size = {15, 9}}};
    MenuStack stack;
};

using Rows = std::vector<std::string>;

TEST_F(ControlAssignmentTest, WhileNobodyIsLostThePlayersStandBelowOneHeading) {
    controlAssignmentMenu(stack, left);
    EXPECT_EQ(rows(), (Rows{"# Control assignments", "Player 0 Red pad", "Player 1 Blue pad",
                            "Player 2 " + devices()[3]->description(), "Back"}));
    EXPECT_EQ(stack.menus.back()->entries().front()->x, left);
    EXPECT_EQ(stack.menus.back()->entries().front()->y, 20) << "the small layout of the pause";
    pressRow(4);
    EXPECT_TRUE(stack.backRequested);
}

TEST_F(ControlAssignmentTest, LostPlayersAreCountedAndMarkedUntilTheMenuIsOpenedAgain) {
    pull(*red);
    pull(*blue);
    controlAssignmentMenu(stack, left);
    const Rows lost{"# Control assignments",
                    "# 2 players have invalid controls",
                    "# Select a player to reassign controls",
                    "Player 0 LOST CONTROLLER",
                    "Player 1 LOST CONTROLLER",
                    "Player 2 " + players[2]->controls->description(),
                    "Back"};
    EXPECT_EQ(rows(), lost);
    blue->plugged = true;
    theControlsManager->rescan();
    EXPECT_EQ(rows(), lost);
    stack.pop();
    controlAssignmentMenu(stack, left);
    EXPECT_EQ(rows()[1], "# 1 players have invalid controls");
    EXPECT_EQ(rows()[4], "Player 1 Blue pad");
}

TEST_F(ControlAssignmentTest, AChosenDeviceIsSharedNotTaken) {
    controlAssignmentMenu(stack, left);
    pressRow(3);
    ASSERT_EQ(stack.menus.size(), 2U);
    const auto name = [](std::size_t device) { return devices()[device]->description(); };
    const Rows before{"# Choose a new controller for player 2",
                      "Red pad - player 0",
                      "Blue pad - player 1",
                      name(2),
                      name(3) + " - player 2",
                      name(4),
                      name(5),
                      "Back"};
    EXPECT_EQ(rows(), before);
    pressRow(1);
    EXPECT_EQ(players[2]->controls, devices()[0]);
    EXPECT_EQ(players[0]->controls, devices()[0]);
    EXPECT_EQ(stack.menus.size(), 2U);
    EXPECT_FALSE(stack.backRequested);
    EXPECT_EQ(rows(), before) << "as it was opened";

    // One pad walks both.
    red->move(0, 0, 1.0f);
    const int first = players[0]->x;
    const int third = players[2]->x;
    round.step(5);
    EXPECT_GT(players[0]->x, first);
    EXPECT_GT(players[2]->x, third);

    pressRow(7);
    EXPECT_TRUE(stack.backRequested);
    stack.pop();
    stack.pop();
    chooseControllerMenu(players[1], stack, left);
    EXPECT_EQ(rows()[1], "Red pad - player 0") << "one mark, of the first who holds it";
    EXPECT_EQ(rows()[4], name(3));
}

// A pad that somebody else plugs in later rescues the player who lost one.
TEST_F(ControlAssignmentTest, APlayerWithoutAPadTakesTheOneFoundLater) {
    pull(*red);
    const auto green = driver->plugPlainPad("Green pad");
    theControlsManager->rescan();
    controlAssignmentMenu(stack, left);
    pressRow(3);
    EXPECT_EQ(rows()[6], "Green pad") << "behind the keyboards";
    pressRow(6);
    green->move(0, 0, 1.0f);
    const int before = players[0]->x;
    round.step(5);
    EXPECT_GT(players[0]->x, before);
}

TEST_F(ControlAssignmentTest, AHeldPadDrivesTheMenuThoughItIsNotTheFirst) {
    menuControlMode = MenuControlMode::KeyboardAndController1;
    players[0]->controls = devices()[2];
    controlAssignmentMenu(stack, left);
    VandrelMenu& menu = *stack.menus.back();
    idle(menu);
    EXPECT_EQ(menu.selected(), 1);
    blue->move(0, 1, 1.0f);
    menu.update(limit);
    EXPECT_EQ(menu.selected(), 2);
    blue->release();
    idle(menu);
    blue->hold(0);
    menu.update(limit);
    EXPECT_EQ(rows().front(), "# Choose a new controller for player 1");
}

}  // namespace
}  // namespace vandrel::test
