#include "frontend/trophy_room_drawing.h"

#include "frontend/space_prompt.h"
#include "frontend/trophy_table.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "players/sprites_drawing.h"
#include "presentation/bitmaps.h"
#include "presentation/colours.h"
#include "presentation/drawing.h"
#include "presentation/text.h"

namespace vandrel {

namespace {

constexpr int middle = 320;  // of every table, whatever its height
constexpr int headlineTop = 10;
constexpr int textTop = 20;
constexpr int promptAboveBottom = 20;
constexpr int barWidth = 16;
constexpr int barHeight = 4;
constexpr int standingFrame = 1;

void drawFigure(TrophyShow& show, const Player& player, Pixel pivot, const BitmapWrapper& target) {
    float rotation = 0.0f;
    if (WinnerFlight* flight = show.flightOf(player)) {
        flight->leaveFrom(pivot.x, pivot.y);
        pivot = {static_cast<int>(flight->x), static_cast<int>(flight->y)};
        rotation = flight->rotation;
    }
    const SpriteKey key = makeKey(player, standingFrame, Facing::Down);
    const Sprite& sprite = getSprite(key);
    drawRotated(target, sprite.picture->bitmap, spritePivot.x, spritePivot.y, pivot.x, pivot.y,
                rotation * anglePerRadian, 1.0f);
}

void drawFigures(TrophyShow& show, const ScoringEntity& entity, int rowTop, const BitmapWrapper& target) {
    const int figures = static_cast<int>(entity.players.size());
    for (int i = 0; i < figures; ++i) {
        const int left = trophyFigureLeft(i, figures);
        const int height = rowTop + spritePivot.y;
        drawFigure(show, *entity.players[static_cast<unsigned>(i)], {left + spritePivot.x, height}, target);
        // Over the figure, which would hide all but its edge.
        if (entity.teamColour && isTeamMode(gameOptions.gameMode)) {
            drawFilledRectangle(target, left, height, left + barWidth, height + barHeight, *entity.teamColour);
        }
    }
}

}  // namespace

void drawTrophyRoom(TrophyShow& show, const std::string& text, const BitmapWrapper& target) {
    clearToBlack(target);
    const int rows = static_cast<int>(show.entities().size());
    for (int row = 0; row < rows; ++row) {
        const ScoringEntity& entity = show.entities()[static_cast<unsigned>(row)];
        const int rowTop = trophyRowTop(row, rows, target.height());
        drawFigures(show, entity, rowTop, target);
        for (int i = 0; i < show.trophiesOf(entity); ++i) {
            drawId(target, BitmapIds::Trophy, trophyLeft(i), rowTop + trophyDrop);
        }
    }
    if (show.matchOver()) {
        drawText(target, FontId::Builtin, middle, headlineTop, toColour(white), "Final Score", alignCentre);
    }
    if (show.promptShown()) {
        drawText(target, FontId::Builtin, middle, target.height() - promptAboveBottom, toColour(white), spacePrompt,
                 alignCentre);
    }
    if (!text.empty()) {
        drawText(target, FontId::Builtin, 0, textTop, toColour(white), text);
    }
}

}  // namespace vandrel
