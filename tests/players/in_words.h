// Players and squares in a word or a letter, for the rows of tables and for expectations that read like the arena.
#pragma once

#include <fmt/format.h>

#include <string>

#include "support/round_fixture.h"

namespace vandrel {

// What a player can be made before an act. Each lasts for longer than a test looks.
inline void asItIs(Player& /*player*/) {}
inline void asGhost(Player& player) {
    player.ghost = true;
    player.shieldTimer = Player::lastingShield();
}
inline void asShielded(Player& player) {
    player.shield = true;
    player.shieldTimer = Player::lastingShield();
}
inline void asCrawler(Player& player) {
    player.crawling = true;
    player.crawlTimer = 500;
}
inline void asSnake(Player& player) {
    player.setSnakeLength(4);
}
inline void asStopped(Player& player) {
    player.stopTimer = 500;
}
inline void asDead(Player& player) {
    player.dead = true;
}

// A row of a table of players: who it is and how to make one.
struct Who {
    const char* who;
    void (*make)(Player& player);
};

// "walking", "crawling", "ghost", "snake of 4" or "dead", and whether there is a shield.
inline std::string formOf(const Player& player) {
    const std::string form = player.dead        ? "dead"
                             : player.isSnake() ? fmt::format("snake of {}", player.snakeLengthNow())
                             : player.crawling  ? "crawling"
                             : player.ghost     ? "ghost"
                                                : "walking";
    return form + (player.shield ? ", shielded" : "");
}

// '*' a flame; a bomb by its kind: 'o' ticking, 's' steered, 'a' armed, 'r' a rocket; walls as a setup draws them, '1'
// and '2' hard ones hit once and twice, '=' crumbling ones; 'b' a powerup that lies open; '.' nothing.
inline char markOf(const Game& game, Square square) {
    if (isFlame(game, square)) {
        return '*';
    }
    if (hasBomb(square)) {
        return std::string("osar").at(static_cast<std::size_t>(bombGrid.at(square).kind));
    }
    const int kind = squareGrid.at(square);
    if (kind == SquareKind::Empty) {
        return bonusGrid.at(square) == Bonus::None ? '.' : 'b';
    }
    if (kind >= SquareKind::WallCrumbling) {
        return kind >= SquareKind::HardWallCrumbling ? '=' : '~';
    }
    return std::string(".X#wh12").at(static_cast<std::size_t>(kind));
}

inline std::string rowOf(const Game& game, int y) {
    std::string row;
    for (int x = 0; x < grid_squares_x; ++x) {
        row += markOf(game, {x, y});
    }
    return row;
}

// Holds the keys for some updates, and on.
inline void act(TestRound& round, const Player& player, const HeldKeys& keys, int updates = 1) {
    round.hold(player, keys);
    round.step(updates);
}

// The kind of bomb on the square, which its owner counts.
inline void placeBombOf(BombKind kind, Square square, const std::shared_ptr<Player>& owner, int fuse = 500) {
    placeBomb(square, owner, fuse);
    bombGrid.edit(square).kind = kind;
}

inline constexpr BombKind bombKinds[] = {BombKind::Ticking, BombKind::Steered, BombKind::Armed, BombKind::Rocket};

// All of the snake's parts at their place of rest, but for `part`, which is mainly on `square`.
inline void layParts(Player& snake, Square rest, std::size_t part, Square square) {
    const auto length = static_cast<std::size_t>(snake.snakeLengthNow());
    snake.snakeParts.assign(length, {rest.x * squareSize, rest.y * squareSize, Facing::Up});
    if (part < length) {
        snake.snakeParts[part] = {square.x * squareSize, square.y * squareSize, Facing::Up};
    }
}

}  // namespace vandrel
