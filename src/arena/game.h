// Everything that lasts one round beside the arena's layers: the closing walls, the hill, flags, flames, toasts, the
// auction, the countdowns and the round's two random sources. Its passes, in the order of `update`, are the rules of a
// round; they stand in the files of this folder, a thought each. The match driver builds one for each round and the
// join screen one for its lobby.
#pragma once

#include <list>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "arena/arena.h"
#include "arena/explosion.h"
#include "arena/flag.h"
#include "arena/square_score.h"
#include "match/options/game_options.h"
#include "presentation/music.h"
#include "presentation/toasts.h"
#include "replay/unit/packaged_replay_data.h"

namespace vandrel {

struct ArenaPictures;

// One end of the closing walls: the square of the next wall, and the direction in which it goes on.
struct ShrinkCursor {
    int x = 0;
    int y = 0;
    int dx = 0;
    int dy = 0;

    Square square() const { return {x, y}; }
};

enum class ShrinkState : int { Waiting = 0, Warning = 1, Shrinking = 2, Finished = 3 };

// A wall that has been announced and appears when `frames` falls below 1, unless its square is taken by then.
struct PendingWall {
    int x = 0;
    int y = 0;
    int frames = 0;

    Square square() const { return {x, y}; }
};

struct Auction {
    int bonus = 0;
    int price = 0;                   // highest bid so far; 0 before the first
    std::shared_ptr<Player> bidder;  // empty before the first bid
    int timer = 0;                   // updates left
};

// The tests of `isSquareBlocked`.
namespace Blocked {
inline constexpr int Edge = 1;
inline constexpr int Block = 2;
inline constexpr int Wall = 4;  // any that still stands; crumbling ones do not count
inline constexpr int SnakeHead = 8;
inline constexpr int SnakeBody = 16;
inline constexpr int Solid = Edge | Block;
inline constexpr int AnySnake = SnakeHead | SnakeBody;
inline constexpr int SolidOrSnake = Solid | AnySnake;
inline constexpr int All = SolidOrSnake | Wall;
}  // namespace Blocked

// Who won a round: players, or teams (indices in `teams`, ascending). An empty list is a draw.
struct PlayerWinners {
    std::vector<std::shared_ptr<Player>> players;
};
struct TeamWinners {
    std::vector<int> teams;
};
using Winners = std::variant<PlayerWinners, TeamWinners>;

class Game {
  public:
    // Copies `replayData`, draws how the closing walls arrive, becomes the current game, and logs the auctions'
    // interval. The layers are left alone.
    explicit Game(const PackagedReplayData& replayData);
    ~Game();
    Game(const Game&) = delete;
    Game& operator=(const Game&) = delete;

    // The game that runs now, which is the newest there is; null between rounds.
    static Game* current();

    // One step of the round. `roundOver` is written by every call that reaches its last pass, `replayEnded` only ever
    // goes to true. `music` gets the fade at the end of the round; it may be null.
    void update(bool& roundOver, bool& replayEnded, const std::shared_ptr<Music>& music);

    // The passes of `update`. The lobby calls some of them alone.
    void updateAuction();
    void updatePlayers(bool& replayEnded);
    void updateFlags();
    void updateHill();
    void updateBombs();
    void updateExplosions();
    void checkPlayerHits();
    void updateShrink();
    void updateAISnakes(bool& replayEnded);
    void updateCrawlingTeams();
    void updateRespawningWalls();
    void updateToasts();

    // Queries.
    // Whether any of the tests in `mask` hits; the head of `ignoredPlayer` does not count, bodies of all do.
    // `foundPlayer` receives the snake whose head was found.
    bool isSquareBlocked(Square square, int mask, const Player* ignoredPlayer = nullptr,
                         std::shared_ptr<Player>* foundPlayer = nullptr) const;
    bool hasExplosion(Square square) const;
    bool isShrinkCursorAt(Square square) const;
    // Whether a cursor stands on the square or its next step lands there.
    bool isShrinkCursorEntering(Square square) const;
    // Whether such a thing lies within `radius` squares (Euclidean, compared in float).
    bool isBombNear(Square square, float radius) const;
    bool isExplosionNear(Square square, float radius) const;
    bool isShrinkCursorNear(Square square, float radius) const;
    // Whether a living player other than `ignoredPlayer`, no ghost, has its corner on the square.
    bool isPlayerOnSquare(int x, int y, const Player* ignoredPlayer) const;
    // The first living human other than `ignoredPlayer` who mainly stands on the square, or null.
    std::shared_ptr<Player> playerOnSquare(Square square, const Player* ignoredPlayer) const;
    // Whether the spiral has all but closed: what respawns and slides waits from then on.
    bool isArenaAlmostClosed() const;
    bool isOnHill(Square square) const;
    int countDeadHumans() const;
    bool noAISnakesLeft() const;
    bool isRoundOver() const;
    // Taken once, after the last update of the round.
    Winners getWinners() const;

    // Commands.
    void addToast(std::unique_ptr<Toast> toast);
    // A small text that rises from this pixel for a second and a half: what happened to a player or a flag.
    void tell(const std::string& text, Pixel from);
    // A large text for everybody, which rises twice as fast for this many updates.
    void announce(const std::string& text, Pixel from, int frames);
    // The points fly from the player's centre to the base of the team, within `scoreToastFrames` updates.
    void addScoreToast(int points, const Player& player, Team& team);
    // A bomb's flames: three layers in each direction, diagonals with `ultraBomb`.
    void explodeBomb(Square square, const std::shared_ptr<Player>& owner);
    // A flamethrower's flame: three layers that set out from the square in this direction.
    void fireFlame(Square square, Square direction, const std::shared_ptr<Player>& owner);
    // Playback has come to the end of its records, or of its file.
    void meetEndOfRecords(bool& replayEnded);
    // How many of the powerup the winner of an auction gets.
    int auctionQuantity(int bonus) const;
    // The square for the next snake of the computer, drawn from `spawnRng`; empty when a thousand pairs were no use.
    std::optional<Square> getAISnakeSpawnPos();
    // The start square of each player in `players` order; there may be more. Throws `PlayerPositionSetupError`, or
    // std::runtime_error "Not enough space for players".
    static std::vector<Square> getInitialPlayerPositions();

    class PlayerPositionSetupError : public std::exception {
      public:
        const char* what() const noexcept override;
    };

    // The best of `samples` squares drawn from `spawnRng` in the inclusive rectangle `min` to `max`, by `score`; the
    // first of equals. Pillars and edge walls are drawn again. Empty when `samples` is below 1, or when a thousand
    // pairs were no use: what was drawn stays drawn, since playback draws the same.
    std::optional<Square> sampleBestSquare(Square min, Square max, const SquareScore& score, int samples);

    // State. Counts of frames are updates.
    ShrinkState shrinkState = ShrinkState::Waiting;
    int shrinkCountdown = 0;      // until the warning; goes on below zero during it
    int shrinkStepCountdown = 0;  // until the walls next advance
    std::vector<ShrinkCursor> shrinkCursors;
    int hillLeft = 0;  // the hill in squares, inclusive on all sides
    int hillTop = 0;
    int hillRight = 0;
    int hillBottom = 0;
    bool shrinkAllowed = true;           // the warning never ends while this is false
    int aiSnakeCountdown = notResolved;  // until the next snake of the computer
    int aiSnakesLeft = notResolved;      // still to come
    int nextAISnakeNumber = 120;
    int nextWaveId = 0;
    std::vector<Flag> flags;
    std::mt19937 spawnRng;  // only `sampleBestSquare` draws from it; playback draws the same
    PackagedReplayData replay;
    int roundEndCountdown = -1;  // -1 while the round runs
    std::vector<Explosion> explosions;
    std::list<std::unique_ptr<Toast>> toasts;
    int wallAppearStyle;  // 0 to 4, how a closing wall arrives
    int respawnCountdown = 0;
    bool respawnPhaseActive = false;
    std::vector<PendingWall> pendingWalls;
    std::mt19937 legacyRespawnRng;  // for replays from before squares were scored
    std::unique_ptr<Auction> auction;
    int auctionCountdown = 0;
    int scoreToastFrames = 90;
    bool endMarkSeen = false;  // after `meetEndOfRecords`: what is left of the update reads no record

    // What only drawing needs, made when first drawn: the hill's tiles, the flags' frames, the wall strips.
    std::shared_ptr<ArenaPictures> pictures;

  private:
    // The last pass; true when the round is over.
    bool updateRoundEnd(const std::shared_ptr<Music>& music);
    void markFlames();
    bool isBurning(Square square) const { return flameStamps_.at(square) == flameStamp_; }
    void checkHitsOf(const std::shared_ptr<Player>& player, std::vector<std::shared_ptr<Player>>& collided);
    void checkFlames(Player& player);
    bool isBodyInWall(const Player& player) const;
    void openAuction();
    void closeAuction();
    void updatePendingWalls();
    void standWall(const PendingWall& wall);
    bool wantsMoreWalls();
    std::optional<Square> chooseWallSquare();
    void layShrinkWalls();
    void layShrinkWall(ShrinkCursor& cursor);
    void startShrinking();

    Layer<int> flameStamps_;  // the hit check that last found a flame on the square
    int flameStamp_ = 0;
};

// Whether teams have bases in this match's mode.
bool hasBases();

// Where a closing wall goes on from here, and whether it turned.
std::pair<ShrinkCursor, bool> nextShrinkStep(const ShrinkCursor& cursor);

// Whether a breakable wall may come back on the square: nothing blocks it, nobody human stands there, no powerup lies
// there.
bool canRespawnWallAt(const Game& game, Square square);

}  // namespace vandrel
