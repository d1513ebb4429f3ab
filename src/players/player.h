// One combatant of a match: a human behind a device, or a snake of the computer. A plain class: what varies is a flag
// and the device. `Game` updates each player once a frame and players ask `Game` what stands where. The rules stand in
// the files of this folder, a thought each: lifecycle, update, walking, pushing, fire control, powerups, snake form.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "arena/arena.h"
#include "base/facing.h"
#include "base/vector2.h"
#include "input/controls.h"
#include "players/player_look.h"
#include "players/sprite_key.h"
#include "replay/unit/packaged_replay_data.h"

namespace vandrel {

class Game;
struct Flag;

// What the fire control lays.
enum class BombType : int { Normal = 0, RocketLauncher = 1, Flamethrower = 2, RemoteControl = 3, Detonator = 4 };

enum class DeathReason : int {
    Explosion = 0,
    PushedWall = 1,
    Wall = 2,
    Eaten = 3,
    BonusDeath = 4,  // in the table of names only
    SnakeHeadCollision = 5,
    SnakeBodyHitByExplosion = 6,
    SnakeBodyHitByAppearingWall = 7,
    SnakeHeadPushedWall = 8,
    SnakeBodyPushedWall = 9,
};

struct TrailPoint {
    int x = 0;
    int y = 0;
    Facing facing = Facing::Down;
};

// x, y in pixels, and the heading of the path there.
using SnakePart = std::tuple<int, int, Facing>;

// The square on which the part mainly stands.
inline Square squareOf(const SnakePart& part) {
    return squareUnder({std::get<0>(part), std::get<1>(part)});
}

// One frame's input. `xDir`, `yDir` are -1, 0 or 1.
struct FrameInput {
    int xDir = 0;
    int yDir = 0;
    bool fire = false;
    bool button2 = false;
    bool skinPressed = false;
    bool colourPressed = false;
};

// How far a flag may be to be taken or captured and a team-mate to rescue, in pixels, and how long a rescue takes, in
// frames. The match driver sets them; a replay's header brings the first.
struct Reaches {
    float flag = 13.0f;
    float rescue = 32.0f;
    int rescueFrames = 180;
};
extern Reaches reaches;

class Player : public std::enable_shared_from_this<Player> {
  public:
    // A new player at pixel (0, 0), looking down. Logs its number and device.
    Player(int num, int cash, int team, const PlayerLook& look, std::shared_ptr<Controls> controls);
    ~Player();
    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;

    // One frame. `currentGame` is kept for the calls back.
    void update(const PackagedReplayData& replayData, Game* currentGame, bool inJoinScreen);

    // To the state of a fresh life: powerups, timers and form are gone; place, team, cash, wins and device stay.
    void reset();
    // To the start of a round.
    void startRound();

    bool canUsePowerups() const;
    // Gives the effect of the powerup, its sound and its toast; nothing to who cannot use powerups.
    void givePowerup(int bonus);
    // A hit. `killer` is credited if it ends this life; empty for nobody.
    void hurt(DeathReason reason, const PackagedReplayData& replayData, const std::shared_ptr<Player>& killer);
    void die();
    // The end of snake form: a human crawls on, a snake of the computer dies.
    void becomeHuman();
    // On the killer: points or a kill for `victim`, which `survived` a halving or did not.
    void creditKill(const std::shared_ptr<Player>& victim, bool survived);
    // The square where this player comes back.
    Square respawnPosition() const;
    // Pixels walked in this frame.
    int getSpeed(const PackagedReplayData& replayData) const;
    // Has every live bomb of this player tick; with `restartFuse` from a full fuse.
    void releaseBombs(bool restartFuse);

    Pixel position() const { return {x, y}; }
    Pixel centre() const { return {x + halfSquare, y + halfSquare}; }
    Square square() const { return squareUnder({x, y}); }
    bool isSnake() const { return snakeLength > 0; }
    int snakeLengthNow() const { return snakeLength; }
    // The number of body parts it should have; 0 ends snake form.
    void setSnakeLength(int length);
    // Takes snake form, with its sound: by powerup, by option, or as a new snake of the computer.
    void becomeSnake();
    // Whether this is a snake with a part of its body mainly on the square.
    bool hasBodyOn(Square square) const;
    // Players now in snake form, living or not. While there is none the queries for heads and bodies have nothing to
    // look at.
    static int snakesInPlay();

    // The value of `shieldTimer` that stands still until a hit, a flag or the closing walls start it, and the one it
    // then has.
    static int lastingShield();
    static int runningShield();

    Game* game = nullptr;
    int num;
    int x = 0;  // pixel position of the top-left corner of the 32x32 cell
    int y = 0;
    bool dead = false;
    int bombsPlaced = 0;  // bombs and rockets of this player on the board
    int maxBombs = 0;
    int range = 0;  // steps that a flame may take
    int speed = 0;  // pixels a frame at 60 Hz
    Facing facing = Facing::Down;
    int animFrame = 0;    // walk frame, 1 to 6; 0 only before the first reset
    int animCounter = 0;  // pixels until the next walk frame
    int animStep = 0;
    PlayerLook look;
    int framesSinceRocket = 0;
    int flameCounter = 0;  // 10 to 1, paces the flamethrower's sound
    BombType bombType = BombType::Normal;
    bool ultraBomb = false;           // flames run diagonally too
    bool remoteActive = false;        // a Remote Control or Detonator bomb waits
    bool fireHandled = false;         // this press was acted on
    bool fireBlockedByGhost = false;  // the press that ended ghost form must be released first
    bool fireLocked = false;          // ignored until released; set at round start
    bool button2Prev = false;         // last frame's state, for edges
    bool skinPrev = false;
    bool colourPrev = false;
    int remoteBombX = 0;  // square of the steered bomb
    int remoteBombY = 0;
    int remoteStepDelay = 0;  // frames until it may step again
    bool shield = false;
    bool ghost = false;
    int shieldTimer = 0;     // frames of shield or ghost left, see `lastingShield`
    int slowTimer = 0;       // Snail; major stun of a snake of the computer
    int minorStunTimer = 0;  // minor stun of a snake of the computer
    bool strength = false;   // pushes walls and bombs
    bool fastIgnition = false;
    bool annihilator = false;  // flames pass breakable walls and spare powerups
    int stopTimer = 0;
    int respawnTimer = 0;
    int startX = 0;  // square where the round began
    int startY = 0;
    int team = -1;  // index in `teams`
    bool crawling = false;
    int reviveProgress = 0;  // frames a team-mate has stood close
    int cash = 0;
    int wins = 0;  // rounds won in this match
    int kills = 0;
    int pingTimer = 0;                 // radius of the locator ring, pixels
    std::deque<Pixel> snakeHistory;    // every pixel the head was at, oldest first, no two equal neighbours
    std::deque<SnakePart> snakeParts;  // nearest the head first
    int crawlTimer = 0;                // frames until crawling ends by itself; 0 waits for rescue
    bool isAI = false;
    std::vector<PlayerParticle> particles;
    int trailTimer = 0;
    std::shared_ptr<Controls> controls;
    std::vector<TrailPoint> trail;  // at most 20

  private:
    static constexpr int walkFramePixels = 10;   // of way, for one walk frame
    static constexpr int flameSoundPeriod = 10;  // frames

    using RecordInput = std::function<void(int xDir, int yDir, bool fire, bool button2)>;

    // Lifecycle.
    void startCrawling(const PackagedReplayData& replayData);
    void halveSnake(const std::shared_ptr<Player>& killer);
    void scatterParts(std::size_t firstPart);
    void hurtSnake(DeathReason reason, const PackagedReplayData& replayData, const std::shared_ptr<Player>& killer);
    // The shield of a powerup or a start, which lasts until it is needed, and the one after a hit or a return, which
    // runs out at once.
    void takeLastingShield();
    void takeRunningShield();
    // What ends the wait of a lasting shield.
    void useShield();

    // The steps of `update`.
    void updateTrail();
    bool readInput(const PackagedReplayData& replayData, FrameInput& input);
    void playInput(const PackagedReplayData& replayData, FrameInput& input) const;
    void pollDevice(FrameInput& input) const;
    void recordInput(const PackagedReplayData& replayData, const FrameInput& input) const;
    void changeLook(const FrameInput& input);
    void updateTimers();
    void updateParticles();
    void spinWhileStopped();
    void actAlive(const PackagedReplayData& replayData, FrameInput& input, bool inJoinScreen, bool& needRecord);
    void updateCrawling();
    void updateButton2(const FrameInput& input);
    void updateDead(const PackagedReplayData& replayData);
    void respawn(const PackagedReplayData& replayData);
    void verifyPosition(const PackagedReplayData& replayData) const;

    // Walking.
    void move(int xDir, int yDir, bool& remoteSteered, const PackagedReplayData& replayData);
    void advanceWalk(int pixels);
    bool isFreeToWalk(Square square) const;
    void assistCorner(int xDir, int pixels, Square ahead);
    bool push(int xDir, int yDir, Square ahead, const PackagedReplayData& replayData);
    void crushUnderPushedWall(Square target, const PackagedReplayData& replayData);
    void steerBomb(int xDir, int yDir);

    // Flags.
    void updateFlagsTouched(const PackagedReplayData& replayData);
    void touchLooseFlag(Flag& flag, const PackagedReplayData& replayData);
    bool canCapture(const PackagedReplayData& replayData) const;
    void capture(Flag& flag, const PackagedReplayData& replayData);

    // Fire.
    void updateFire(bool fire);
    void releaseFire();
    void fireRemote(Square square);
    void fireRocket(Square square);
    void fireFlamethrower(Square square);
    void layBomb(Square square);

    // Powerups.
    void pickUp();
    void applyPowerup(int bonus, std::string& suffix);
    void changeFire(int bonus);
    void changeForm(int bonus, std::string& suffix);
    void afflictOthers(int bonus);
    void takeCash(std::string& suffix);
    void takeExtraBomb();
    void takeSpeed(std::string& suffix);
    void takeGhost();
    void takeDeath();
    template <class Effect>
    void forEveryOther(Effect&& effect);

    // Snake form.
    void moveSnake(int xDir, int yDir, const PackagedReplayData& replayData, const RecordInput& record);
    bool stepSnake(int& xDir, int& yDir, const PackagedReplayData& replayData, const RecordInput& record, bool& chosen);
    bool hasWayOut() const;
    void eatWall(Square square);
    void rebuildBody();
    void turnSnake(int xDir, int yDir);
    void moveOldSnake(int xDir, int yDir);
    void rebuildOldBody();
    void aiSnakeControlChoice(int& xDir, int& yDir);

    int snakeLength = 0;
};

// Whether players come back in this match's mode.
bool isRespawningAllowed();

// A snake of the computer on the square, which becomes empty. `version` is that of a replay being played.
std::shared_ptr<Player> createAISnake(int num, Square square, std::optional<int> version);

// The pixel, relative to the player's position, at which it holds a flag.
Pixel handPoint(const Player& player);

}  // namespace vandrel
