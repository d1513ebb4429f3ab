#include "frontend/trophy_room.h"

#include <utility>

#include "frontend/space_prompt.h"
#include "frontend/trophy_room_drawing.h"
#include "frontend/trophy_show.h"
#include "frontend/trophy_table.h"
#include "presentation/ogg_music.h"
#include "shell/frame_pump.h"
#include "shell/game_screen.h"

namespace vandrel {

void trophyRoom(std::vector<ScoringEntity> entities, bool noWinner, const std::string& text) {
    setGameScreenSlot(trophyScreenSlot(static_cast<int>(entities.size())));
    TrophyShow show(std::move(entities), noWinner, {makeVictoryMusic, spacePressed});
    framePump([&] { show.update(screen->width(), screen->height()); }, [&] { drawTrophyRoom(show, text, *screen); },
              [&] { return show.done(); });
}

}  // namespace vandrel
