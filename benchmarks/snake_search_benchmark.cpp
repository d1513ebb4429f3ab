// The search of the snakes of the computer against the plain recursion that the rules put it as, and the depth that a
// decision settles at by its own rule of time.
#include <benchmark/benchmark.h>

#include <chrono>
#include <random>

#include "../tests/players/snake_scene.h"
#include "../tests/players/snake_search_reference.h"
#include "players/snake_search.h"

namespace {

using namespace vandrel;
using test::SceneSize;
using test::SnakeScene;
using Clock = std::chrono::steady_clock;

constexpr Square ways[] = {{0, 1}, {0, -1}, {1, 0}};  // a snake that looks right

// The nodes of the plain recursion's tree. Both searches answer for all of them.
std::int64_t countNodes(const Game& game, Square square, std::vector<Square>& path, int depth) {
    if (depth == 0 || game.isSquareBlocked(square, Blocked::SolidOrSnake) || game.isShrinkCursorAt(square) ||
        std::find(path.begin(), path.end(), square) != path.end()) {
        return 1;
    }
    path.push_back(square);
    std::int64_t nodes = 1;
    for (const Square way : {Square{1, 0}, Square{-1, 0}, Square{0, 1}, Square{0, -1}}) {
        if (square + way != path.front()) {
            nodes += countNodes(game, square + way, path, depth - 1);
        }
    }
    path.pop_back();
    return nodes;
}

std::int64_t countDecisionNodes(const SnakeScene& scene, int depth) {
    std::int64_t nodes = 0;
    for (const Square way : ways) {
        std::vector<Square> path{scene.chooser->square()};
        nodes += countNodes(*scene.game, path.front() + way, path, depth);
    }
    return nodes;
}

void searchFast(const SnakeScene& scene, int depth) {
    const SnakeBoard board(*scene.game, *scene.chooser, scene.chooser->square(), depth, 2);
    for (const Square way : ways) {
        benchmark::DoNotOptimize(board.checkDirection(way));
    }
}

void searchPlainly(const SnakeScene& scene, int depth) {
    const Square head = scene.chooser->square();
    for (const Square way : ways) {
        benchmark::DoNotOptimize(
            test::referenceCheckDirection(*scene.game, head + way, {head}, depth, 0, 2, scene.chooser));
    }
}

double secondsOf(const auto& work) {
    const auto start = Clock::now();
    work();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

// A snake in the open of a real board: its three ways are free.
std::unique_ptr<SnakeScene> sceneFor(const SceneSize& size) {
    std::mt19937 generator(4);
    while (true) {
        auto scene = std::make_unique<SnakeScene>(size, generator);
        Player& chooser = *scene->chooser;
        chooser.facing = Facing::Right;
        chooser.snakeParts.assign(12, {chooser.x - squareSize, chooser.y, Facing::Right});
        const bool open = std::all_of(std::begin(ways), std::end(ways), [&](Square way) {
            return !scene->game->isSquareBlocked(chooser.square() + way, Blocked::SolidOrSnake);
        });
        if (open && countDecisionNodes(*scene, 8) > 300) {
            return scene;
        }
    }
}

// One decision of each kind in turn, on one thread and on the same board; the ratio is of the sums.
void decision(benchmark::State& state, SceneSize size, int depth) {
    const auto scene = sceneFor(size);
    const auto nodes = static_cast<double>(countDecisionNodes(*scene, depth));
    double fast = 0;
    double plain = 0;
    for (auto _ : state) {
        const double once = secondsOf([&] { searchFast(*scene, depth); });
        fast += once;
        plain += secondsOf([&] { searchPlainly(*scene, depth); });
        state.SetIterationTime(once);
    }
    const auto runs = static_cast<double>(state.iterations());
    state.counters["nodes"] = nodes;
    state.counters["nodes_per_s"] = nodes * runs / fast;
    state.counters["plain_nodes_per_s"] = nodes * runs / plain;
    state.counters["times_faster"] = plain / fast;
}

constexpr SceneSize few{.width = 27, .height = 15, .otherSnakes = 0, .humans = 4};
constexpr SceneSize fewOpen{.width = 27, .height = 15, .pillars = false, .otherSnakes = 0, .humans = 4};
constexpr SceneSize crowd{.width = 119, .height = 67, .otherSnakes = 29, .humans = 100};

BENCHMARK_CAPTURE(decision, OneSnakeFourPeopleDepth15, few, 15)
    ->UseManualTime()
    ->Iterations(5000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(decision, OneSnakeFourPeopleOpenDepth10, fewOpen, 10)
    ->UseManualTime()
    ->Iterations(500)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(decision, ThirtySnakesHundredPeopleDepth15, crowd, 15)
    ->UseManualTime()
    ->Iterations(100)
    ->Unit(benchmark::kMicrosecond);

// Snakes that roam an arena and decide on their way as in a round, three tasks at once. What is reported is the mean
// depth after a start of two hundred decisions, and a decision's time.
void roaming(benchmark::State& state, SceneSize size, bool pillars) {
    size.pillars = pillars;
    const auto scene = sceneFor(size);
    gameOptions.gridBlocksResolved = pillars;
    gameOptions.aiSearchDepth = pillars ? 15 : 5;
    gameOptions.snakeTargetLength = 12;
    Player& snake = *scene->chooser;
    const PackagedReplayData replay;
    double depths = 0;
    double seconds = 0;
    double slowest = 0;
    std::int64_t decisions = 0;
    for (auto _ : state) {
        snake.setSnakeLength(12);
        snake.dead = false;
        snake.speed = 1;
        const Pixel before = snake.position();
        const bool decides = snake.x % squareSize == 0 && snake.y % squareSize == 0;
        const double time = secondsOf([&] { snake.update(replay, scene->game.get(), false); });
        if (snake.position() == before) {
            // Caught among those that do not move here: it turns round, its body gathered under its head.
            snake.facing = opposite(snake.facing);
            snake.snakeHistory.clear();
            snake.snakeParts.clear();
        } else if (decides && ++decisions > 200) {
            depths += gameOptions.aiSearchDepth;
            seconds += time;
            slowest = std::max(slowest, time);
        }
    }
    const auto counted = static_cast<double>(std::max<std::int64_t>(decisions - 200, 1));
    state.counters["decisions"] = counted;
    state.counters["depth"] = depths / counted;
    state.counters["decision_ms"] = seconds / counted * 1000;
    state.counters["slowest_ms"] = slowest * 1000;
}

constexpr SceneSize middling{.width = 27, .height = 15, .wallPercent = 20, .otherSnakes = 0, .humans = 4};
constexpr SceneSize huge{.width = 119, .height = 67, .wallPercent = 20, .otherSnakes = 29, .humans = 100};

BENCHMARK_CAPTURE(roaming, Pillars27x15, middling, true)->Iterations(32 * 1000);
BENCHMARK_CAPTURE(roaming, Open27x15, middling, false)->Iterations(32 * 1000);
BENCHMARK_CAPTURE(roaming, Pillars119x67, huge, true)->Iterations(32 * 1000);
BENCHMARK_CAPTURE(roaming, Open119x67, huge, false)->Iterations(32 * 1000);

}  // namespace

BENCHMARK_MAIN();
