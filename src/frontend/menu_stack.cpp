#include "frontend/menu_stack.h"

#include <array>

#include "players/sprites_drawing.h"
#include "presentation/ogg_music.h"
#include "shell/game_screen.h"

namespace vandrel {

namespace {

constexpr std::array<const char*, 2> offOn{"Off", "On"};
constexpr std::array<const char*, 2> onOff{"On", "Off"};

}  // namespace

void MenuStack::pop() {
    backRequested = false;
    if (!menus.empty()) {
        menus.pop_back();
    }
}

void MenuStack::takeLeave(bool escape, bool escapeLeavesRoot) {
    if (backRequested || (escape && (menus.size() >= 2 || escapeLeavesRoot))) {
        pop();
    }
}

void MenuStack::update(int bottomLimit) {
    const std::shared_ptr<VandrelMenu> shown = menus.back();
    shown->update(bottomLimit);
}

void addBack(VandrelMenu& menu, int x, MenuStack& stack, const char* label) {
    menu.addAction(x, label, [&stack] { stack.backRequested = true; });
}

MenuContext::MenuContext(int screenWidth)
    : x(usualRowX(screenWidth)),
      headingX(x - headingsLeftOfRows),
      offOnNames(makeNameList(offOn)),
      onOffNames(makeNameList(onOff)) {}

void returnToMenus(std::shared_ptr<Music>& music) {
    music = makeMenuMusic();
    setGameScreenSlot(menuScreenSlot);
    releaseSpriteCache();
}

}  // namespace vandrel
