// Boards for a snake to look at: drawn by hand as text, or at random. The tests and the benchmark of its search share
// them.
#pragma once

#include <algorithm>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "arena/arena.h"
#include "arena/game.h"
#include "input/controls.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "shell/log.h"

namespace vandrel::test {

struct SceneSize {
    int width = 19;
    int height = 11;
    bool pillars = true;
    int wallPercent = 25;
    int otherSnakes = 0;
    int humans = 0;
    int cursors = 0;
};

// One arena with a snake that is to choose, for as long as the object lives.
class SnakeScene {
  public:
    // A row is a line of squares: '#' edge wall, '%' pillar, 'w' wall, 'v' hard wall hit once, '~' crumbling wall, 'H'
    // the head of the chooser, which looks right, 'o' another snake's head, 'b' its body; 'p' a human, 'g' a ghost,
    // 'u', 'r' and 's' humans with ultrabomb, rockets and top speed, '2' a ghost in front of a human, '3' a human in
    // front of a ghost, 'D' a dead human; 'c' a closing wall, 'C' one that closes on a snake's body; '.' nothing.
    explicit SnakeScene(const std::vector<std::string>& rows) {
        start({static_cast<int>(rows.front().size()), static_cast<int>(rows.size())});
        for (int y = 0; y < grid_squares_y; ++y) {
            for (int x = 0; x < grid_squares_x; ++x) {
                place({x, y}, rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]);
            }
        }
    }

    SnakeScene(const SceneSize& size, std::mt19937& generator) {
        start({size.width, size.height});
        fillAtRandom(size, generator);
        const auto mostParts = 1 + generator() % 12;
        const auto parts = generator() % mostParts;
        chooser = addSnake(randomFreeSquare(generator), parts, generator);
        chooser->facing = static_cast<Facing>(generator() % 4);
        for (int i = 0; i < size.otherSnakes; ++i) {
            const auto otherParts = 1 + generator() % 16;
            addSnake(randomFreeSquare(generator), otherParts, generator);
        }
        for (int i = 0; i < size.humans; ++i) {
            addRandomHuman(generator);
        }
        // The game has humans in front; here any order may come.
        for (std::size_t i = players.size() - 1; i > 0; --i) {
            std::swap(players[i], players[generator() % (i + 1)]);
        }
        for (int i = 0; i < size.cursors; ++i) {
            const Square square = randomFreeSquare(generator);
            game->shrinkCursors.push_back({.x = square.x, .y = square.y, .dx = 1, .dy = 0});
        }
    }

    ~SnakeScene() {
        chooser.reset();
        players.clear();
        game.reset();
        gameOptions = optionsBefore;
        setDebugOutput(outputBefore);
    }
    SnakeScene(const SnakeScene&) = delete;
    SnakeScene& operator=(const SnakeScene&) = delete;

    std::unique_ptr<Game> game;
    std::shared_ptr<Player> chooser;

  private:
    void start(Square size) {
        outputBefore = setDebugOutput(nullptr);
        optionsBefore = gameOptions;
        gameOptions.gridBlocksResolved = true;
        players.clear();
        resizeArena(size);
        game = std::make_unique<Game>(PackagedReplayData{});
    }

    std::shared_ptr<Player> addPlayer(Pixel position) {
        auto player = std::make_shared<Player>(static_cast<int>(players.size()), 0, -1, PlayerLook{},
                                               std::make_shared<NoControls>());
        player->reset();
        player->x = position.x;
        player->y = position.y;
        player->game = game.get();
        players.push_back(player);
        return player;
    }

    // The body follows a walk at random of steps of half a square, over walls too.
    std::shared_ptr<Player> addSnake(Square head, std::size_t parts, std::mt19937& generator) {
        auto snake = addPlayer(squareToPixel(head));
        snake->isAI = true;
        snake->setSnakeLength(static_cast<int>(parts) + 1);
        Pixel at = snake->position();
        for (std::size_t i = 0; i < parts; ++i) {
            const auto way = static_cast<Facing>(generator() % 4);
            const Square step = directionOf(way);
            at = {std::clamp(at.x + step.x * halfSquare, 0, arenaWidthPixels() - squareSize),
                  std::clamp(at.y + step.y * halfSquare, 0, arenaHeightPixels() - squareSize)};
            snake->snakeParts.emplace_back(at.x, at.y, way);
        }
        return snake;
    }

    void fillAtRandom(const SceneSize& size, std::mt19937& generator) {
        for (int x = 0; x < size.width; ++x) {
            for (int y = 0; y < size.height; ++y) {
                if (!isInnerSquare({x, y})) {
                    squareGrid.set(x, y, SquareKind::EdgeWall);
                } else if (size.pillars && x % 2 == 0 && y % 2 == 0) {
                    squareGrid.set(x, y, SquareKind::GridBlock);
                } else if (static_cast<int>(generator() % 100) < size.wallPercent) {
                    constexpr int kinds[] = {SquareKind::Wall,
                                             SquareKind::HardWall,
                                             SquareKind::HardWallHitOnce,
                                             SquareKind::HardWallHitTwice,
                                             SquareKind::WallCrumbling,
                                             SquareKind::HardWallCrumbling + 7};
                    squareGrid.set(x, y, kinds[generator() % std::size(kinds)]);
                }
            }
        }
    }

    Square randomFreeSquare(std::mt19937& generator) const {
        while (true) {
            const int x = 1 + static_cast<int>(generator() % static_cast<unsigned>(grid_squares_x - 2));
            const int y = 1 + static_cast<int>(generator() % static_cast<unsigned>(grid_squares_y - 2));
            if (!isIndestructible(squareGrid.at(x, y))) {
                return {x, y};
            }
        }
    }

    void addRandomHuman(std::mt19937& generator) {
        const Pixel corner = squareToPixel(randomFreeSquare(generator));
        const auto offset = [&] { return static_cast<int>(generator() % 33) - 16; };
        const int dx = offset();
        const int dy = offset();
        const auto human = addPlayer({corner.x + dx, corner.y + dy});
        const auto chance = [&](unsigned oneIn) { return generator() % oneIn == 0; };
        human->dead = chance(8);
        human->ghost = chance(6);
        human->ultraBomb = chance(10);
        human->speed = chance(10) ? gameOptions.speedCap : 2;
        human->bombType = chance(5) ? BombType::Detonator : BombType::Normal;
        if (chance(10)) {
            human->setSnakeLength(4);
            human->snakeParts.assign(4, {corner.x, corner.y, Facing::Up});
        }
    }

    void place(Square square, char mark) {
        constexpr std::pair<char, int> kinds[] = {{'.', SquareKind::Empty},           {'#', SquareKind::EdgeWall},
                                                  {'%', SquareKind::GridBlock},       {'w', SquareKind::Wall},
                                                  {'v', SquareKind::HardWallHitOnce}, {'~', SquareKind::WallCrumbling}};
        for (const auto& [known, kind] : kinds) {
            if (known == mark) {
                squareGrid.set(square, kind);
                return;
            }
        }
        const Pixel corner = squareToPixel(square);
        const bool body = mark == 'b' || mark == 'C';
        if (body) {
            addBody(corner);
        }
        if (mark == 'c' || mark == 'C') {
            game->shrinkCursors.push_back({.x = square.x, .y = square.y, .dx = 0, .dy = 1});
        } else if (!body) {
            placePlayer(corner, mark);
        }
    }

    void placePlayer(Pixel corner, char mark) {
        if (std::string("Hopgurs23D").find(mark) == std::string::npos) {
            throw std::invalid_argument(std::string("no such square: ") + mark);
        }
        const auto player = addPlayer(corner);
        if (mark == 'H') {
            chooser = player;
            player->facing = Facing::Right;
        }
        if (mark == 'H' || mark == 'o') {
            player->isAI = true;
            player->setSnakeLength(1);
        }
        if (mark == '2' || mark == '3') {
            addPlayer(corner)->ghost = mark == '3';
        }
        player->ghost = mark == 'g' || mark == '2';
        player->ultraBomb = mark == 'u';
        player->bombType = mark == 'r' ? BombType::RocketLauncher : BombType::Normal;
        player->speed = mark == 's' ? gameOptions.speedCap : player->speed;
        player->dead = mark == 'D';
    }

    // A part whose snake has its head in the corner of the arena, where no path comes.
    void addBody(Pixel corner) {
        const auto snake = addPlayer({0, 0});
        snake->isAI = true;
        snake->setSnakeLength(1);
        snake->snakeParts.emplace_back(corner.x, corner.y, Facing::Up);
    }

    GameOptions optionsBefore;
    DebugOutput outputBefore = nullptr;
};

}  // namespace vandrel::test
