// Flames: how they start, how they travel across the grid, and what they do to walls, bombs and powerups.
#include <algorithm>
#include <array>
#include <vector>

#include "arena/game.h"
#include "base/version.h"
#include "match/options/game_options.h"
#include "players/bomb_timing.h"
#include "players/player.h"

namespace vandrel {

namespace {

constexpr int flameStepFrames = 4;
constexpr int stepsPastAnyRange = 999;
constexpr int splitTrainsFrom = replayVersion(0, 95, 28);
constexpr int lingeringTailsFrom = replayVersion(0, 95, 26);

// How a layer of a flame sets out.
struct LayerStart {
    int layer;
    int timer;
    int stepsOut;  // squares from the middle
    bool firstFrame;
};

class WaveSet {
  public:
    void add(int waveId) { ids_.push_back(waveId); }
    bool contains(int waveId) const { return std::find(ids_.begin(), ids_.end(), waveId) != ids_.end(); }
    bool empty() const { return ids_.empty(); }

  private:
    std::vector<int> ids_;
};

// One pass over all flames.
class FlamePass {
  public:
    explicit FlamePass(Game& game) : game_(game) {}

    void run() {
        for (Explosion& explosion : game_.explosions) {
            update(explosion);
        }
        std::erase_if(game_.explosions, [&](const Explosion& explosion) {
            return !explosion.isLive() || (!removed_.empty() && removed_.contains(explosion.waveId));
        });
        if (cut_.empty()) {
            return;
        }
        for (Explosion& explosion : game_.explosions) {
            if (cut_.contains(explosion.waveId)) {
                explosion.steps = stepsPastAnyRange;
            }
        }
    }

  private:
    void update(Explosion& explosion);
    bool step(Explosion& explosion) const;
    void meetWall(Explosion& explosion, const Player& owner);
    void meetBomb(Explosion& explosion, Square square);

    Game& game_;
    WaveSet removed_;  // vanish at once
    WaveSet cut_;      // stop advancing; what burns goes on until it would step
};

// Whether the element is looked at in this frame.
bool FlamePass::step(Explosion& explosion) const {
    const int before = explosion.timer;
    --explosion.timer;
    const int tested = game_.replay.isOlderThan(splitTrainsFrom) ? before : explosion.timer;
    if (tested > 0) {
        return explosion.firstFrame;
    }
    explosion.x += explosion.dx;
    explosion.y += explosion.dy;
    explosion.timer = scaledFrames(flameStepFrames);
    ++explosion.steps;
    return true;
}

void FlamePass::update(Explosion& explosion) {
    if (!step(explosion)) {
        return;
    }
    explosion.firstFrame = false;
    const Square square = explosion.square();
    if (!isInsideGrid(square)) {
        explosion.owner.reset();
        removed_.add(explosion.waveId);
        return;
    }
    const auto owner = explosion.owner.lock();
    if (owner == nullptr || explosion.steps > owner->range) {
        explosion.owner.reset();
        return;
    }
    if (squareGrid.at(square) != SquareKind::Empty) {
        meetWall(explosion, *owner);
        return;
    }
    if (hasBomb(square)) {
        meetBomb(explosion, square);
        return;
    }
    if (!owner->annihilator) {
        bonusGrid.at(square) = 0;
    }
}

void FlamePass::meetWall(Explosion& explosion, const Player& owner) {
    const Square square = explosion.square();
    const int kind = squareGrid.at(square);
    if (!owner.annihilator || isIndestructible(kind)) {
        explosion.owner.reset();
        if (explosion.layer == 1) {
            WaveSet& stopped = game_.replay.isOlderThan(lingeringTailsFrom) ? removed_ : cut_;
            stopped.add(explosion.waveId);
        }
    }
    if (explosion.layer == 1) {
        squareGrid.set(square, damagedKind(kind));
    }
}

void FlamePass::meetBomb(Explosion& explosion, Square square) {
    Bomb& bomb = bombGrid.edit(square);
    bomb.fuse = scaledFrames(detonationFuse);
    bomb.kind = BombKind::Ticking;
    bomb.owner.lock()->remoteActive = false;
    explosion.owner.reset();
    removed_.add(explosion.waveId);
}

}  // namespace

void Game::explodeBomb(Square square, const std::shared_ptr<Player>& owner) {
    const bool oldTrains = replay.isOlderThan(splitTrainsFrom);
    const std::array<LayerStart, 3> newStarts{{{1, scaledFrames(flameStepFrames), 1, true},
                                               {2, scaledFrames(flameStepFrames), 0, false},
                                               {3, scaledFrames(2 * flameStepFrames), 0, false}}};
    constexpr std::array<LayerStart, 3> oldStarts{{{1, 0, 0, false}, {2, 4, 0, false}, {3, 8, 0, false}}};
    for (int dx = -1; dx <= 1; ++dx) {
        for (int dy = -1; dy <= 1; ++dy) {
            const bool diagonal = dx != 0 && dy != 0;
            if ((dx == 0 && dy == 0) || (diagonal && !owner->ultraBomb)) {
                continue;
            }
            const int waveId = nextWaveId++;
            for (const LayerStart& start : oldTrains ? oldStarts : newStarts) {
                const Square at{square.x + dx * start.stepsOut, square.y + dy * start.stepsOut};
                if (isInnerSquare(at)) {
                    explosions.push_back({owner, start.layer, at.x, at.y, dx, dy, start.timer, start.stepsOut, waveId,
                                          false, start.firstFrame});
                }
            }
        }
    }
}

void Game::fireFlame(Square square, Square direction, const std::shared_ptr<Player>& owner) {
    const int waveId = nextWaveId++;
    for (int layer = 1; layer <= 3; ++layer) {
        const int timer = flameStepFrames * (layer - 1);
        explosions.push_back(
            {owner, layer, square.x, square.y, direction.x, direction.y, timer, 0, waveId, true, false});
    }
}

void Game::updateExplosions() {
    if (!explosions.empty()) {
        FlamePass(*this).run();
    }
}

}  // namespace vandrel
