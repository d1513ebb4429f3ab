// Menus by what they do with held keys: no display, no fonts.
#include "frontend/vandrel_menu.h"

#include <array>
#include <string>
#include <tuple>

#include "frontend/menu_fixture.h"
#include "frontend/menu_stack.h"

namespace vandrel::test {
namespace {

constexpr int left = 100;
constexpr std::array<const char*, 2> offOn{"Off", "On"};

void addRows(VandrelMenu& menu, int count) {
    for (int i = 0; i < count; ++i) {
        menu.addAction(left, "row", std::function<void()>());
    }
}

CmdButtonBase& entry(const VandrelMenu& menu, std::size_t index) {
    return *menu.entries().at(index);
}

TEST_F(MenuTest, AHeldDirectionSpeedsUpOverTwoHundredSteps) {
    VandrelMenu menu(&layoutDefault);
    addRows(menu, 7);
    keys = {ALLEGRO_KEY_DOWN};
    std::vector<int> steps;  // the updates in which the selection moved
    int last = menu.selected();
    for (int update = 1; steps.size() < 200; ++update) {
        menu.update(limit);
        if (menu.selected() != last) {
            EXPECT_EQ(menu.selected(), (last + 1) % 7);
            last = menu.selected();
            steps.push_back(update);
        }
    }
    EXPECT_EQ(steps.front(), 10) << "a new menu waits before it reads";
    // The 20th step is the first that counts to a whole pace, and its own wait was set before.
    for (std::size_t i = 1; i < steps.size(); ++i) {
        const int expected = std::max(10 - static_cast<int>((i - 1) / 20), 2);
        EXPECT_EQ(steps[i] - steps[i - 1], expected) << "step " << i + 1;
    }
    EXPECT_EQ(heard().size(), 200U);
    EXPECT_EQ(heard().front(), (HeardSample{SampleIds::Slide, 255, 128, 1000}));

    VandrelMenu next(&layoutDefault);
    addRows(next, 7);
    update(next, 12);
    EXPECT_EQ(next.selected(), 2) << "the pace carries over";
    idle(next);
    EXPECT_EQ(keyRepeatDelay, 10);
    EXPECT_EQ(keyRepeatCount, 0);
}

TEST_F(MenuTest, TheSelectionPassesHeadingsAndWrapsRound) {
    VandrelMenu menu(&layoutDefault);
    menu.addHeading(left, "title");
    menu.addAction(left, "first", std::function<void()>());
    menu.addHeading(left, "part");
    menu.addAction(left, "second", std::function<void()>());
    EXPECT_EQ(menu.selected(), 0);
    menu.update(limit);
    EXPECT_EQ(menu.selected(), 1) << "one update after it is shown";
    for (const auto& [key, expected] : {std::pair{ALLEGRO_KEY_DOWN, 3}, {ALLEGRO_KEY_DOWN, 1}, {ALLEGRO_KEY_UP, 3}}) {
        press(menu, {key});
        EXPECT_EQ(menu.selected(), expected);
    }
    press(menu, {ALLEGRO_KEY_UP, ALLEGRO_KEY_DOWN});
    EXPECT_EQ(menu.selected(), 1) << "up wins over down";

    VandrelMenu headings(&layoutDefault);
    headings.addHeading(left, "a");
    headings.addHeading(left, "b");
    press(headings, {ALLEGRO_KEY_DOWN, ALLEGRO_KEY_ENTER});
    EXPECT_EQ(headings.selected(), 0) << "a menu without a row to select comes round and rests";
    VandrelMenu empty(&layoutDefault);
    press(empty, {ALLEGRO_KEY_DOWN, ALLEGRO_KEY_ENTER});
    EXPECT_EQ(empty.selected(), 0);
}

TEST_F(MenuTest, AListTallerThanTheScreenScrolls) {
    VandrelMenu menu(&layoutSmall);  // rows from 300, 40 apart, 51 high
    addRows(menu, 10);
    limit = 479;  // the fourth row ends at 471
    // Just as far as the selected row needs; the first row reaches into the band until the sixth is selected.
    const std::tuple<int, int, bool, bool> rows[] = {{0, 0, false, true},
                                                     {4, 479 - 511, false, true},
                                                     {5, 479 - 551, true, true},
                                                     {9, 479 - 711, true, false},
                                                     {0, 0, false, true}};
    for (const auto& [row, scroll, moreAbove, moreBelow] : rows) {
        choose(menu, row);
        idle(menu);
        EXPECT_EQ(std::tuple(menu.scrollY(), menu.moreAbove(), menu.moreBelow()),
                  std::tuple(scroll, moreAbove, moreBelow))
            << "row " << row;
    }
}

TEST_F(MenuTest, NumbersNamesAndSwitches) {
    int tens = 90;
    int thirties = 90;
    int named = 0;
    bool on = false;
    const NameList names = makeNameList(std::array<const char*, 3>{"few", "some", "many"});
    VandrelMenu menu(&layoutDefault);
    menu.addInt(left, "tens", &tens, 0, 100, 10);
    menu.addInt(left, "thirties", &thirties, 0, 100, 30);
    menu.addEnum(left, "named", &named, 0, 2, names);
    menu.addBool(left, "on", &on, makeNameList(offOn));

    const std::tuple<int, int, const char*> steps[] = {
        {0, ALLEGRO_KEY_RIGHT, "100"},  {0, ALLEGRO_KEY_RIGHT, "0"},   {0, ALLEGRO_KEY_LEFT, "100"},
        {0, ALLEGRO_KEY_ENTER, "0"},    {1, ALLEGRO_KEY_RIGHT, "0"},   {1, ALLEGRO_KEY_LEFT, "100"},
        {1, ALLEGRO_KEY_LEFT, "70"},    {2, ALLEGRO_KEY_LEFT, "many"}, {2, ALLEGRO_KEY_ENTER, "few"},
        {2, ALLEGRO_KEY_RIGHT, "some"}, {3, ALLEGRO_KEY_LEFT, "On"},   {3, ALLEGRO_KEY_RIGHT, "Off"},
        {3, ALLEGRO_KEY_ENTER, "On"},
    };
    for (const auto& [row, key, shown] : steps) {
        choose(menu, row);
        press(menu, {key});
        EXPECT_EQ(entry(menu, static_cast<std::size_t>(row)).valueText(), shown) << row << ", key " << key;
    }
    EXPECT_TRUE(on);
    EXPECT_EQ(heard().back(), (HeardSample{SampleIds::Slide, 255, 128, 2000}));
    choose(menu, 0);
    press(menu, {ALLEGRO_KEY_RIGHT, ALLEGRO_KEY_DOWN});
    EXPECT_EQ(menu.selected(), 1) << "the move wins";
    EXPECT_EQ(tens, 0);
    EXPECT_THROW(menu.addEnum(left, "beyond", &named, 0, 3, names), std::out_of_range);
}

TEST_F(MenuTest, AColourStepsAtItsOwnPaceFromTheStart) {
    int red = 0;
    VandrelMenu menu(&layoutColour);
    menu.addInt(left, "Red", &red, 0, 255, 1);
    menu.addInt(left, "Green", &red, 0, 255, 1);
    idle(menu);
    keys = {ALLEGRO_KEY_RIGHT};
    update(menu, 21);
    EXPECT_EQ(red, 11) << "every second update";
}

TEST_F(MenuTest, ActionsAnswerFourKeysAndMayReplaceThemselves) {
    std::string done;
    VandrelMenu menu(&layoutDefault);
    const auto action = menu.addAction(
        left, [&done] { return "so far " + done; }, [&done] { done += "p"; },
        [&done](CmdButtonAction& button) {
            done += "d";
            button.setText("DELETED");
            button.onPress = {};
            button.onDelete = {};
            done += "!";
        });
    menu.addAction(left, "other", [](CmdButtonAction& button) { button.setText("pressed"); });
    for (const int key : {ALLEGRO_KEY_LEFT, ALLEGRO_KEY_RIGHT, ALLEGRO_KEY_SPACE, ALLEGRO_KEY_ENTER}) {
        press(menu, {key});
    }
    EXPECT_EQ(action->text(), "so far p") << "nothing was set for left and right, and space presses nothing";
    action->setLeftAction([&done](CmdButtonAction&) { done += "<"; });
    action->setRightAction([&done](CmdButtonAction&) { done += ">"; });
    press(menu, {ALLEGRO_KEY_LEFT});
    press(menu, {ALLEGRO_KEY_RIGHT});
    press(menu, {ALLEGRO_KEY_DELETE});
    EXPECT_EQ(done, "p<>") << "Delete acts when it is let go";
    menu.update(limit);
    EXPECT_EQ(done, "p<>d!");
    EXPECT_EQ(action->text(), "DELETED");
    press(menu, {ALLEGRO_KEY_ENTER});
    EXPECT_EQ(done, "p<>d!");
    press(menu, {ALLEGRO_KEY_DOWN});
    press(menu, {ALLEGRO_KEY_ENTER});
    EXPECT_EQ(entry(menu, 1).text(), "pressed");
}

TEST_F(MenuTest, APressIsNotSeenDuringAWaitAndCountsOnceOverAllScreens) {
    int pressed = 0;
    const auto make = [&pressed](const VandrelMenuLayoutOptions& layout) {
        auto menu = std::make_unique<VandrelMenu>(&layout);
        menu->addAction(left, "a", [&pressed] { ++pressed; });
        menu->addAction(left, "b", [&pressed] { ++pressed; });
        return menu;
    };
    const auto first = make(layoutDefault);
    keys = {ALLEGRO_KEY_ENTER};
    update(*first, 9);
    EXPECT_EQ(pressed, 0);
    update(*first, 1);
    EXPECT_EQ(pressed, 1) << "still down when the wait is over";
    const auto second = make(layoutPause);
    update(*second, 30);
    EXPECT_EQ(pressed, 1) << "held since the screen before";
    press(*second, {ALLEGRO_KEY_ENTER});
    EXPECT_EQ(pressed, 2);
}

TEST_F(MenuTest, ControllersSteerAsTheModeAdmits) {
    const auto first = std::make_shared<SteamInputControls>();
    theControlsManager->devices.push_back(first);
    const auto second = addController();
    theControlsManager->listHolders = [&second] { return std::vector<DeviceHolder>{{0, second}}; };
    const std::tuple<int, const VandrelMenuLayoutOptions*, bool> cases[] = {
        {0, &layoutDefault, false}, {0, &layoutPause, false},  {1, &layoutDefault, false},
        {1, &layoutPause, true},    {2, &layoutDefault, true}, {2, &layoutPause, true},
    };
    for (const auto& [mode, layout, steers] : cases) {
        menuControlMode = mode;
        int pressed = 0;
        VandrelMenu menu(layout);
        addRows(menu, 2);
        menu.addAction(left, "press", [&pressed] { ++pressed; });
        for (const HeldKeys& held : {HeldKeys{.up = true}, HeldKeys{.fire = true}}) {
            idle(menu);
            second->held = held;
            menu.update(limit);
            second->held = {};
        }
        EXPECT_EQ(menu.selected(), steers ? 2 : 0) << "mode " << mode;
        EXPECT_EQ(pressed, steers ? 1 : 0) << "mode " << mode;
        idle(menu);
    }
}

TEST_F(MenuTest, AStackLetsItsLastMenuGoOnce) {
    std::string closed;
    MenuStack stack;
    for (const char* name : {"a", "b"}) {
        auto menu = std::make_shared<VandrelMenu>(&layoutDefault, [&closed, name] { closed += name; });
        menu->addAction(left, "another", std::function<void()>());
        addBack(*menu, left, stack);
        stack.push(menu);
    }
    press(*stack.menus.back(), {ALLEGRO_KEY_UP});
    press(*stack.menus.back(), {ALLEGRO_KEY_ENTER});
    EXPECT_TRUE(stack.backRequested);
    stack.pop();
    EXPECT_FALSE(stack.backRequested);
    EXPECT_EQ(closed, "b");
    stack.takeLeave(true, false);
    EXPECT_EQ(closed, "b") << "a controller does not leave the root";
    stack.takeLeave(true, true);
    stack.pop();
    EXPECT_EQ(closed, "ba") << "without a menu nothing happens";
}

}  // namespace
}  // namespace vandrel::test
