// A small round for tests of the rules: an arena drawn as text or empty, players whose keys the test holds, an update
// at a time. All that it changes of the process is put back when it goes. The tests of players and of the arena use it.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "arena/arena.h"
#include "arena/bonus.h"
#include "arena/game.h"
#include "base/version.h"
#include "input/controls.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "presentation/sample_ids.h"
#include "shell/log.h"

namespace vandrel {

struct HeldKeys {
    bool up = false;
    bool down = false;
    bool left = false;
    bool right = false;
    bool fire = false;
    bool button2 = false;
    bool skin = false;
    bool colour = false;
    bool connected = true;
    bool pause = false;
};

// A device that answers what the test holds.
class ScriptedControls final : public Controls {
  public:
    bool isConnected() const override { return held.connected; }
    bool upPressed() const override { return held.up; }
    bool downPressed() const override { return held.down; }
    bool leftPressed() const override { return held.left; }
    bool rightPressed() const override { return held.right; }
    bool bombPressed() const override { return held.fire; }
    bool button2Pressed() const override { return held.button2; }
    bool pausePressed() const override { return held.pause; }
    bool skinPressed() const override { return held.skin; }
    bool colourPressed() const override { return held.colour; }
    std::string description() const override { return "Scripted"; }
    std::string buttonText(ControlInput /*input*/) const override { return "Key"; }

    HeldKeys held;
};

// One call of `playSample`.
struct HeardSample {
    SampleIds id{};
    int volume = 200;
    int pan = 128;
    int speed = 1000;

    friend bool operator==(const HeardSample&, const HeardSample&) = default;
};

struct RoundSetup {
    Square size{15, 11};
    // Instead of `size`: a line a row, '#' edge wall, 'X' pillar, 'w' wall, 'h' hard wall, '~' crumbling wall, any
    // other character a free square. The ring is edge wall in any case.
    std::vector<std::string> rows{};
    bool pillars = false;  // on squares of even x and even y
    int rate = 60;         // updates a second
    GameMode mode = GameMode::Classic;
    // Plays a replay of this version, whose records hold what the keys say. Empty for live play.
    std::optional<int> version{};
    // A last touch to the options, before the game is built.
    void (*tune)(GameOptions& options) = nullptr;
};

// One round, for as long as the object lives; there is one at a time. Nothing happens in it by itself: no auction, no
// closing walls, no snakes, no returning walls.
class TestRound {
  public:
    explicit TestRound(const RoundSetup& setup = {});
    ~TestRound();
    TestRound(const TestRound&) = delete;
    TestRound& operator=(const TestRound&) = delete;

    Game& game() { return *game_; }
    const PackagedReplayData& replay() const { return game_->replay; }

    // A human on the square, as after `reset`. Members join their team, which must exist.
    std::shared_ptr<Player> addPlayer(Square square, int team = -1);
    // A human or a snake of the computer in snake form, all of its body at the head.
    std::shared_ptr<Player> addSnake(Square head, Facing facing, int length, bool isAI = false);
    // A team of nobody yet, with its base there.
    void addTeam(Square base, Square push = {});

    // The player's keys from now on.
    void hold(const Player& player, const HeldKeys& keys);
    void release(const Player& player) { hold(player, {}); }

    // Updates of the round, each followed by a count of `frameCounter`.
    void step(int updates = 1);
    // One update with these keys, then one without any.
    void press(const Player& player, const HeldKeys& keys);
    // Steps until `done`; gives the number of updates, or -1 if `most` were not enough.
    template <class Done>
    int stepUntil(Done done, int most = 2000) {
        for (int updates = 1; updates <= most; ++updates) {
            step();
            if (done()) {
                return updates;
            }
        }
        return -1;
    }

    // In playback: bytes that stand in the replay behind this player's record of the next update.
    void putBehindRecord(const Player& player, const std::string& bytes) { behindRecord_[player.num] = bytes; }

    // What was played since the last call.
    std::vector<HeardSample> takeHeard();
    // Texts of the toasts on show, oldest first.
    std::vector<std::string> toastTexts() const;

    bool roundOver = false;
    bool replayEnded = false;

  private:
    std::shared_ptr<Player> add(Square square, int team, bool isAI);
    void drawArena(const RoundSetup& setup);
    void writeRecords();

    GameOptions optionsBefore_;
    int lootboxPointsBefore_;
    bool verifyBefore_;
    DebugOutput outputBefore_;
    std::optional<int> version_;
    std::stringstream records_;
    std::map<int, std::string> behindRecord_;
    std::unique_ptr<Game> game_;
};

// A ticking bomb of the owner that is in order with the owner's count.
void placeBomb(Square square, const std::shared_ptr<Player>& owner, int fuse);
// A rocket of the owner, with a long fuse, that goes on in the next bomb pass.
void placeRocket(Square square, const std::shared_ptr<Player>& owner, Facing direction);
// How many live bombs of the player lie in the arena.
int countBombs(const Player& owner);
// Whether a live flame burns on the square.
bool isFlame(const Game& game, Square square);

// For readable failures.
template <class T>
std::ostream& operator<<(std::ostream& out, const Vector2Base<T>& pair) {
    return out << '(' << pair.x << ", " << pair.y << ')';
}
std::ostream& operator<<(std::ostream& out, const HeardSample& sample);
std::ostream& operator<<(std::ostream& out, Facing facing);

}  // namespace vandrel
