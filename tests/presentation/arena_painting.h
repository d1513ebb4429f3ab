// What tests of the painted arena share: players to paint, and all they set put back when they go.
#pragma once

#include <memory>
#include <utility>

#include "arena/arena.h"
#include "arena/team.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "players/sprites_drawing.h"
#include "presentation/bitmaps.h"
#include "presentation/drawing.h"
#include "shell/accessibility.h"
#include "shell/frame_counter.h"
#include "shell/log.h"
#include "support/drawing_stage.h"

namespace vandrel {

class ArenaPainting : public DrawingTest {
  protected:
    explicit ArenaPainting(Square size)
        : canvas_(size.x * squareSize, size.y * squareSize, true), outputBefore_(setDebugOutput(nullptr)) {
        gameOptions = GameOptions();
        resizeArena(size);
    }
    ~ArenaPainting() override {
        players.clear();
        teams.clear();
        releaseSpriteCache();
        gameOptions = GameOptions();
        accessibility = AccessibilitySettings();
        frameCounter = 0;
        setDebugOutput(outputBefore_);
    }

    static std::shared_ptr<Player> addPlayer(int x, int y,
                                             std::shared_ptr<Controls> controls = std::make_shared<NoControls>()) {
        auto player =
            std::make_shared<Player>(static_cast<int>(players.size()), 0, -1, PlayerLook{}, std::move(controls));
        player->x = x * squareSize;
        player->y = y * squareSize;
        player->animFrame = 1;
        players.push_back(player);
        return player;
    }

    BitmapWrapper canvas_;

  private:
    DebugOutput outputBefore_;
};

}  // namespace vandrel
