#include "support/round_fixture.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/random.h"
#include "presentation/play_sample.h"
#include "replay/unit/streams.h"
#include "shell/frame_counter.h"
#include "shell/switches.h"

namespace vandrel {

namespace {

constexpr int farOff = 1'000'000;  // frames, longer than any test
constexpr int deadHaveRecordsBelow = replayVersion(0, 95, 10);

std::vector<HeardSample> heard;

void hear(SampleIds id, int volume, int pan, int speed) {
    heard.push_back({id, volume, pan, speed});
}

GameOptions quietOptions(const RoundSetup& setup) {
    GameOptions options;
    options.updaterate = setup.rate;
    options.frameMultiplier = setup.rate == 120 || setup.rate == 144 ? 2 : 1;
    options.gameMode = setup.mode;
    options.arenaSizeResolved = 1;
    options.shrinkSpeedFrames = 10;
    options.timeBeforeShrinkingFrames = farOff;
    options.shrinkStyleResolved = 1;
    options.gridBlocksResolved = setup.pillars;
    options.wallPercent = 0;
    options.powerupPercent = 0;
    options.auctionInterval = 0;
    options.snakeSpawnFrames = farOff;
    options.snakePreparationFrames = farOff;
    options.snakeCount = 0;
    options.snakesAtOnce = 0;
    options.respawnWallsResolved = {};
    if (setup.tune != nullptr) {
        setup.tune(options);
    }
    return options;
}

int kindOf(char letter) {
    switch (letter) {
        case '#':
            return SquareKind::EdgeWall;
        case 'X':
            return SquareKind::GridBlock;
        case 'w':
            return SquareKind::Wall;
        case 'h':
            return SquareKind::HardWall;
        case '~':
            return SquareKind::WallCrumbling;
        default:
            return SquareKind::Empty;
    }
}

int directionOfKeys(bool negative, bool positive) {
    return negative ? -1 : (positive ? 1 : 0);
}

HeldKeys& keysOf(const Player& player) {
    return static_cast<ScriptedControls&>(*player.controls).held;
}

}  // namespace

TestRound::TestRound(const RoundSetup& setup)
    : optionsBefore_(gameOptions),
      lootboxPointsBefore_(lootboxPoints),
      verifyBefore_(std::exchange(verifyEnabled, false)),
      outputBefore_(setDebugOutput(nullptr)),
      version_(setup.version) {
    gameOptions = quietOptions(setup);
    players.clear();
    teams.clear();
    heard.clear();
    setSamplePlayer(hear);
    frameCounter = 0;
    drawArena(setup);
    PackagedReplayData replayData;
    replayData.playback = setup.version.has_value();
    replayData.version = setup.version;
    replayData.input = replayData.playback ? &records_ : nullptr;
    game_ = std::make_unique<Game>(replayData);
    game_->shrinkCountdown = farOff;
    game_->aiSnakesLeft = 0;
    game_->aiSnakeCountdown = farOff;
}

TestRound::~TestRound() {
    game_->auction = nullptr;
    game_->toasts.clear();
    players.clear();
    teams.clear();
    game_ = nullptr;
    setSamplePlayer(nullptr);
    gameOptions = optionsBefore_;
    lootboxPoints = lootboxPointsBefore_;
    verifyEnabled = verifyBefore_;
    frameCounter = 0;
    setDebugOutput(outputBefore_);
}

void TestRound::drawArena(const RoundSetup& setup) {
    const bool drawn = !setup.rows.empty();
    resizeArena(drawn ? Square{static_cast<int>(setup.rows.front().size()), static_cast<int>(setup.rows.size())}
                      : setup.size);
    for (int x = 0; x < grid_squares_x; ++x) {
        for (int y = 0; y < grid_squares_y; ++y) {
            if (!isInnerSquare({x, y})) {
                squareGrid.set(x, y, SquareKind::EdgeWall);
            } else if (drawn) {
                squareGrid.set(x, y,
                               kindOf(setup.rows.at(static_cast<std::size_t>(y)).at(static_cast<std::size_t>(x))));
            } else if (setup.pillars && x % 2 == 0 && y % 2 == 0) {
                squareGrid.set(x, y, SquareKind::GridBlock);
            }
        }
    }
}

std::shared_ptr<Player> TestRound::add(Square square, int team, bool isAI) {
    auto player = std::make_shared<Player>(static_cast<int>(players.size()), 0, team, PlayerLook{},
                                           std::make_shared<ScriptedControls>());
    player->reset();
    player->isAI = isAI;
    player->game = game_.get();
    player->startX = square.x;
    player->startY = square.y;
    player->x = square.x * squareSize;
    player->y = square.y * squareSize;
    players.push_back(player);
    if (team >= 0) {
        teams.at(static_cast<std::size_t>(team)).members.push_back(player);
    }
    return player;
}

std::shared_ptr<Player> TestRound::addPlayer(Square square, int team) {
    return add(square, team, false);
}

std::shared_ptr<Player> TestRound::addSnake(Square head, Facing facing, int length, bool isAI) {
    auto snake = add(head, -1, isAI);
    snake->facing = facing;
    snake->setSnakeLength(length);
    for (int part = 0; part < length; ++part) {
        snake->snakeParts.emplace_back(snake->x, snake->y, facing);
    }
    snake->speed = 3;
    return snake;
}

void TestRound::addTeam(Square base, Square push) {
    Team team;
    team.baseX = base.x;
    team.baseY = base.y;
    team.pushX = push.x;
    team.pushY = push.y;
    teams.push_back(team);
}

void TestRound::hold(const Player& player, const HeldKeys& keys) {
    keysOf(player) = keys;
}

// The records of one update, as a recording of these keys would hold them. A byte that no record is stands behind
// them, so that the replay goes on.
void TestRound::writeRecords() {
    std::ostringstream bytes;
    const bool deadToo = *version_ < deadHaveRecordsBelow;
    for (const auto& player : players) {
        if (player->dead && !deadToo) {
            continue;
        }
        const HeldKeys& keys = keysOf(*player);
        const auto xBits = static_cast<unsigned>(directionOfKeys(keys.left, keys.right)) & 3U;
        const auto yBits = static_cast<unsigned>(directionOfKeys(keys.up, keys.down)) & 3U;
        const unsigned control = xBits | yBits << 2U | (keys.fire ? 16U : 0U) | (keys.button2 ? 32U : 0U);
        writeByte(&bytes, player->num);
        writeByte(&bytes, static_cast<int>(control));
        bytes << behindRecord_[player->num];
    }
    behindRecord_.clear();
    bytes << '\0';
    records_.clear();
    records_.str(bytes.str());
}

void TestRound::step(int updates) {
    for (int i = 0; i < updates; ++i) {
        if (version_.has_value()) {
            writeRecords();
        }
        game_->update(roundOver, replayEnded, nullptr);
        ++frameCounter;
    }
}

void TestRound::press(const Player& player, const HeldKeys& keys) {
    hold(player, keys);
    step();
    release(player);
    step();
}

std::vector<HeardSample> TestRound::takeHeard() {
    return std::exchange(heard, {});
}

std::vector<std::string> TestRound::toastTexts() const {
    std::vector<std::string> texts;
    for (const auto& toast : game_->toasts) {
        texts.push_back(toast->text);
    }
    return texts;
}

void placeBomb(Square square, const std::shared_ptr<Player>& owner, int fuse) {
    Bomb& bomb = bombGrid.edit(square);
    bomb = Bomb{};
    bomb.owner = owner;
    bomb.fuse = fuse;
    ++owner->bombsPlaced;
}

void placeRocket(Square square, const std::shared_ptr<Player>& owner, Facing direction) {
    placeBomb(square, owner, 500);
    Bomb& rocket = bombGrid.edit(square);
    rocket.kind = BombKind::Rocket;
    rocket.direction = direction;
    rocket.rocketStep = 2;
}

int countBombs(const Player& owner) {
    int count = 0;
    for (int x = 0; x < grid_squares_x; ++x) {
        for (int y = 0; y < grid_squares_y; ++y) {
            count += bombGrid.at(x, y).owner.lock().get() == &owner ? 1 : 0;
        }
    }
    return count;
}

bool isFlame(const Game& game, Square square) {
    return std::any_of(game.explosions.begin(), game.explosions.end(),
                       [&](const Explosion& flame) { return flame.isLive() && flame.square() == square; });
}

std::ostream& operator<<(std::ostream& out, const HeardSample& sample) {
    return out << sampleNames.at(static_cast<std::size_t>(sample.id)) << " volume " << sample.volume << " pan "
               << sample.pan << " speed " << sample.speed;
}

std::ostream& operator<<(std::ostream& out, Facing facing) {
    constexpr std::array<const char*, 4> names{"Right", "Up", "Left", "Down"};
    return out << names.at(static_cast<std::size_t>(facing));
}

}  // namespace vandrel
