// One painted and presented frame of a round that runs, against clearing and presenting a bitmap of the same size,
// frame about. `ratio` is what counts: painting the arena should not cost as much again as showing it. Run it from
// game/, with a display; times are per painted frame, the display being 1920 by 1080.
#include <allegro5/allegro.h>
#include <allegro5/allegro_image.h>
#include <allegro5/allegro_opengl.h>
#include <allegro5/allegro_primitives.h>
#include <allegro5/allegro_ttf.h>
#include <benchmark/benchmark.h>

#include <chrono>
#include <memory>
#include <random>
#include <stdexcept>

#include "arena/game.h"
#include "arena/game_drawing.h"
#include "arena/level_generation.h"
#include "match/options/automatic_options.h"
#include "match/options/game_options.h"
#include "match/options/name_tables.h"
#include "players/player.h"
#include "players/sprites_drawing.h"
#include "presentation/bitmaps.h"
#include "presentation/drawing.h"
#include "presentation/plain_shader.h"
#include "presentation/recolour_shader.h"
#include "presentation/text.h"
#include "shell/frame_counter.h"
#include "shell/game_screen.h"
#include "shell/large_blocks.h"
#include "shell/log.h"

namespace vandrel {
namespace {

constexpr int warmUpUpdates = 300;

// Walks a while in one direction, then in another, and lays a bomb now and then.
class WanderingControls final : public Controls {
  public:
    explicit WanderingControls(unsigned seed) : generator_(seed) {}
    bool isConnected() const override { return true; }
    bool leftPressed() const override {
        if (--frames_ < 1) {
            direction_ = static_cast<int>(generator_() % 4);
            bomb_ = generator_() % 4 == 0;
            frames_ = 10 + static_cast<int>(generator_() % 30);
        }
        return direction_ == 0;
    }
    bool rightPressed() const override { return direction_ == 1; }
    bool upPressed() const override { return direction_ == 2; }
    bool downPressed() const override { return direction_ == 3; }
    bool bombPressed() const override { return bomb_; }
    bool button2Pressed() const override { return false; }
    bool pausePressed() const override { return false; }
    std::string description() const override { return "wandering"; }
    std::string buttonText(ControlInput /*input*/) const override { return ""; }

  private:
    mutable std::mt19937 generator_;
    mutable int direction_ = 0;
    mutable int frames_ = 0;
    mutable bool bomb_ = false;
};

void (*waitForPlatform)() = nullptr;

void startDisplay() {
    if (al_get_current_display() != nullptr) {
        return;
    }
    keepLargeBlocksApart();
    setDebugOutput([](const char* /*line*/, std::size_t /*length*/) {});
    if (!al_init() || !al_init_image_addon() || !al_init_primitives_addon() || !al_init_font_addon() ||
        !al_init_ttf_addon()) {
        throw std::runtime_error("the platform library did not start");
    }
    al_set_new_display_flags(ALLEGRO_WINDOWED | ALLEGRO_PROGRAMMABLE_PIPELINE | ALLEGRO_OPENGL);
    al_set_new_display_option(ALLEGRO_VSYNC, 2, ALLEGRO_SUGGEST);
    ALLEGRO_DISPLAY* display = al_create_display(1920, 1080);
    if (display == nullptr) {
        throw std::runtime_error("no display");
    }
    displayBitmap = std::make_shared<BitmapWrapper>(al_get_backbuffer(display), false);
    waitForPlatform = reinterpret_cast<void (*)()>(al_get_opengl_proc_address("glFinish"));
    loadBitmaps();
    loadFonts();
    createRecolourShader();
    createPlainShader();
}

// A Deathmatch on an arena of the size table, in full swing.
class PaintedRound {
  public:
    PaintedRound(int arenaSize, int playerCount) {
        startDisplay();
        gameOptions = GameOptions{};
        gameOptions.gameMode = GameMode::Deathmatch;
        gameOptions.arenaSize = arenaSize;
        gameOptions.gridBlocks = 2;
        gameOptions.auctions = 0;
        gameOptions.numPlayers = playerCount;
        automaticOptions();
        for (int i = 0; i < playerCount; ++i) {
            players.push_back(std::make_shared<Player>(i, 0, -1, defaultPlayerLook(i),
                                                       std::make_shared<WanderingControls>(static_cast<unsigned>(i))));
        }
        const ArenaSize& size = arenaSizes.at(static_cast<std::size_t>(arenaSize));
        game_ = std::make_unique<Game>(PackagedReplayData{});
        setUpRound({size.width, size.height}, {}, *game_, false);
        game_->shrinkCountdown = gameOptions.timeBeforeShrinkingFrames.value();
        for (const auto& player : players) {
            player->startRound();
        }
        setGameScreenSize(arenaWidthPixels(), arenaHeightPixels());
        frameCounter = 0;
        for (int i = 0; i < warmUpUpdates; ++i) {
            update();
        }
        paint();
    }
    ~PaintedRound() {
        game_ = nullptr;
        players.clear();
        releaseSpriteCache();
    }
    PaintedRound(const PaintedRound&) = delete;
    PaintedRound& operator=(const PaintedRound&) = delete;

    void update() {
        bool roundOver = false;
        bool replayEnded = false;
        game_->update(roundOver, replayEnded, nullptr);
        ++frameCounter;
    }
    void paint() { drawGame(*game_, *screen, false); }

  private:
    std::unique_ptr<Game> game_;
};

template <class Paint>
double secondsToShow(Paint&& paint) {
    const auto start = std::chrono::steady_clock::now();
    paint();
    presentFrame();
    waitForPlatform();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void paintedFrame(benchmark::State& state) {
    PaintedRound round(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    double cleared = 0.0;
    double painted = 0.0;
    drawCount = 0;
    for ([[maybe_unused]] auto _ : state) {
        round.update();
        cleared += secondsToShow([] { clearTo(*screen, toColour({57, 123, 8})); });
        const double seconds = secondsToShow([&round] { round.paint(); });
        painted += seconds;
        state.SetIterationTime(seconds);
    }
    const auto frames = static_cast<double>(state.iterations());
    state.counters["clear_ms"] = cleared / frames * 1000.0;
    state.counters["ratio"] = painted / cleared;
    state.counters["draws"] = drawCount / frames;
}
// 27 by 15, 59 by 35 and 119 by 67 squares.
BENCHMARK(paintedFrame)
    ->ArgNames({"arena", "players"})
    ->Args({3, 4})
    ->Args({6, 32})
    ->Args({8, 100})
    ->Iterations(100)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vandrel

BENCHMARK_MAIN();
