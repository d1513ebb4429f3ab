#include "frontend/lootbox_room.h"

#include <optional>

#include "frontend/lootbox_room_drawing.h"
#include "frontend/lootbox_show.h"
#include "frontend/space_prompt.h"
#include "shell/frame_pump.h"
#include "shell/game_screen.h"

namespace vandrel {

void lootboxRoom() {
    std::optional<LootboxShow> show = LootboxShow::open();
    if (!show) {
        return;
    }
    setGameScreenSlot(menuScreenSlot);
    framePump([&] { show->update(spacePressed); }, [&] { drawLootboxRoom(*show, *screen); },
              [&] { return show->done(); });
    LootboxShow::close();
}

}  // namespace vandrel
