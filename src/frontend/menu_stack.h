// The open menus of a front door, and what the builders of its screens share. `menu` and `pauseMenu` own one each;
// builders push the menus that they make, and "Back" rows ask for the last one to go.
#pragma once

#include <deque>
#include <memory>
#include <queue>

#include "frontend/vandrel_menu.h"
#include "presentation/music.h"

namespace vandrel {

struct MenuStack {
    std::deque<std::shared_ptr<VandrelMenu>> menus;  // the last is shown
    bool backRequested = false;                      // the next update lets the last one go

    void push(std::shared_ptr<VandrelMenu> menu) { menus.push_back(std::move(menu)); }
    // Lets the last menu go, which runs its `onClose`, and takes the request back. Nothing happens without a menu.
    void pop();
    // Lets the last menu go if "Back" or Escape asks for it; at the root Escape counts only with `escapeLeavesRoot`.
    void takeLeave(bool escape, bool escapeLeavesRoot);
    // `update` of the last menu, which may push others meanwhile.
    void update(int bottomLimit);
};

// Adds the row that leaves a menu of the stack, "Back" if nothing else is said.
void addBack(VandrelMenu& menu, int x, MenuStack& stack, const char* label = "Back");

// What `menu` shares with the builders of its screens. It outlives their menus, so rows may refer to it.
struct MenuContext {
    explicit MenuContext(int screenWidth);

    MenuStack stack;
    std::queue<std::shared_ptr<VandrelMenu>> pending;  // menus that become the root of the stack, one after the other
    bool quit = false;
    bool welcomePending = false;  // the first run's question is due or shown; hides the title
    int x;                        // of rows, pixels
    int headingX;
    NameList offOnNames;
    NameList onOffNames;
    std::shared_ptr<Music> music;
};

// What a match or a replay played from a menu leaves to be put back: the menus' music, from its start, and their
// screen; and the pictures of players that were kept are let go.
void returnToMenus(std::shared_ptr<Music>& music);

}  // namespace vandrel
