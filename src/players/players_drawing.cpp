#include "players/players_drawing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "arena/arena.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "players/sprites_drawing.h"
#include "presentation/colours.h"
#include "presentation/drawing.h"
#include "presentation/text.h"
#include "shell/accessibility.h"

namespace vandrel {

bool showControllerDebug = false;

namespace {

constexpr float pi = 3.1415927f;
constexpr float eighthTurn = pi / 4.0f;
constexpr float fullTurn = 2.0f * pi;

constexpr int trailStep = 5;  // points from one afterimage to the next
constexpr int firstTrailAlpha = 127;
constexpr int teamMarkerWidth = 16;  // pixels each way from its middle
constexpr int teamMarkerHeight = 4;
constexpr int deviceNameBelow = 42;  // pixels from the top of the player
constexpr int killsAbove = 48;
constexpr float rescueRingThickness = 6.0f;

void drawSprite(const BitmapWrapper& target, const Sprite& sprite, Pixel position, int alpha) {
    drawWrapper(*sprite.picture, target, position.x + sprite.offset.x, position.y + sprite.offset.y, alpha);
}

void drawParticles(const BitmapWrapper& target, const Player& player) {
    for (const PlayerParticle& particle : player.particles) {
        drawRotated(target, getSprite(particle.sprite).picture->bitmap, spritePivot.x, spritePivot.y,
                    particle.x + halfSquare, particle.y + halfSquare, particle.angle, particle.scale);
    }
}

bool announcesRespawn(const Player& player) {
    return isRespawningAllowed() && !player.isAI && player.respawnTimer < scaledFrames(respawnRingFrames());
}

// Copies of the player close in on the spot and grow solid as the timer runs out. Eight steps of a float end just short
// of the full turn, so there is a ninth copy on top of the first.
void drawRespawnRing(const BitmapWrapper& target, const Player& player) {
    const int twice = 2 * player.respawnTimer;
    const float radius = static_cast<float>(twice) / static_cast<float>(gameOptions.frameMultiplier);
    const int alpha = opaque - std::min(twice, opaque) / gameOptions.frameMultiplier;
    const SpriteKey key = makeKey(player, 0, Facing::Down);
    const Sprite& sprite = getSprite(key);
    const Pixel spot = squareToPixel(player.respawnPosition()) + sprite.offset;
    for (float angle = 0.0f; angle < fullTurn; angle += eighthTurn) {
        const float x = static_cast<float>(spot.x) + radius * std::sin(angle);
        const float y = static_cast<float>(spot.y) + radius * std::cos(angle);
        drawWrapper(*sprite.picture, target, static_cast<int>(x), static_cast<int>(y), alpha);
    }
}

void drawTeamMarker(const BitmapWrapper& target, const Player& player, bool ghostLook) {
    if (player.team < 0 || !isTeamMode(gameOptions.gameMode)) {
        return;
    }
    const ALLEGRO_COLOR colour = teams.at(static_cast<unsigned>(player.team)).colour;
    const auto draw = ghostLook ? drawEllipse : drawFilledEllipse;
    draw(target, player.x + halfSquare, player.y + squareSize, teamMarkerWidth, teamMarkerHeight, colour);
}

void drawAfterimages(const BitmapWrapper& target, const Player& player) {
    if (player.ghost || !player.snakeParts.empty()) {
        return;
    }
    int alpha = firstTrailAlpha;
    int count = 0;
    for (auto point = player.trail.rbegin(); point != player.trail.rend(); ++point) {
        if (++count % trailStep == 0) {
            drawSprite(target, getSprite(makeKey(player, {}, point->facing)), {point->x, point->y}, alpha);
            alpha /= 2;
        }
    }
}

void drawSnakeParts(const BitmapWrapper& target, const Player& player, int alpha) {
    std::array<const Sprite*, 4> byFacing{};
    for (const auto& [x, y, facing] : player.snakeParts) {
        const Sprite*& sprite = byFacing[static_cast<unsigned>(facing)];
        if (sprite == nullptr) {
            sprite = &getSprite(makeKey(player, {}, facing));
        }
        drawSprite(target, *sprite, {x, y}, alpha);
    }
}

void drawTexts(const BitmapWrapper& target, const Player& player) {
    const int middle = player.centre().x;
    if (!player.controls->isConnected()) {
        drawText(target, FontId::Builtin, middle, player.y + squareSize, toColour(white), "CONTROLLER LOST",
                 alignCentre);
    }
    if (showControllerDebug) {
        drawText(target, FontId::Builtin, middle, player.y + deviceNameBelow, toColour(white),
                 player.controls->debugName(), alignCentre);
    }
    if (isModeActive(GameMode::Deathmatch) && gameOptions.gameMode != GameMode::Everything) {
        drawText(target, FontId::Font24, middle, player.y - killsAbove, toColour(white), std::to_string(player.kills),
                 alignCentre);
    }
}

void drawRings(const BitmapWrapper& target, const Player& player) {
    const Pixel centre = player.centre();
    if (player.crawling && player.reviveProgress > 0 && player.crawlTimer == 0) {
        const float share = static_cast<float>(player.reviveProgress) / static_cast<float>(reaches.rescueFrames);
        drawArc(target, centre.x, centre.y, halfSquare, 0.0f, share * fullTurn, toColour(white), rescueRingThickness);
    }
    if (player.pingTimer > 0) {
        drawEllipse(target, centre.x, centre.y, player.pingTimer, player.pingTimer, player.look.colour);
    }
}

void drawLiving(const BitmapWrapper& target, const Player& player) {
    const bool ghostLook = player.ghost && !blinksOut(player);
    const int alpha = ghostLook ? accessibility.ghostOpacity : opaque;
    drawTeamMarker(target, player, ghostLook);
    drawAfterimages(target, player);
    drawSprite(target, getSprite(makeKey(player)), player.position(), alpha);
    drawSnakeParts(target, player, alpha);
    drawTexts(target, player);
    drawRings(target, player);
}

}  // namespace

void drawPlayers(const BitmapWrapper& target) {
    std::vector<const Player*> byHeight;
    byHeight.reserve(players.size());
    for (const auto& player : players) {
        byHeight.push_back(player.get());
    }
    // Stable, so that players of equal height do not change places from frame to frame.
    std::ranges::stable_sort(byHeight, {}, &Player::y);
    const DrawingBatch batch(target);
    for (const Player* player : byHeight) {
        drawParticles(target, *player);
        if (!player->dead) {
            drawLiving(target, *player);
        } else if (announcesRespawn(*player)) {
            drawRespawnRing(target, *player);
        }
    }
}

}  // namespace vandrel
