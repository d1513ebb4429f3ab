// The rules of the lobby before a match: a live arena in which every device has a spot. Its bomb button joins a player
// there, who then walks about, tries bombs, changes looks, and in team modes picks a team by standing near its marker.
// The players and teams of the match are what the lobby leaves behind. Nothing here is drawn: `playerJoinScreen` runs
// it, lobby_drawing.h shows it.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "arena/game.h"
#include "base/vector2.h"
#include "input/controls_manager.h"

namespace vandrel {

class Player;

class Lobby {
  public:
    // A lobby of these devices for the mode of `gameOptions`. Players and teams of an earlier one are gone.
    explicit Lobby(const DeviceList& devices);
    ~Lobby();
    Lobby(const Lobby&) = delete;
    Lobby& operator=(const Lobby&) = delete;

    // Makes arena, spots and markers for these devices: at first, and again whenever a device comes or goes. Players
    // keep their places, but for those who would stand outside the new arena: they are put on their spots. Bombs go.
    void setUp(const DeviceList& devices);

    // The two parts of one update, in this order; the first is left out while the lobby is in pause. The first starts
    // the match if somebody asks for it, or everybody has held the bomb button long enough, and nothing is in the way.
    void updateReadiness(bool startAsked);
    void update();

    // Counts down for how many more frames a refusal is shown; once for each frame drawn.
    void countFrame() { refusalFrames_ -= refusalFrames_ > 0 ? 1 : 0; }

    // Whether the match may begin.
    bool isReady() const { return ready_; }
    // Ends a lobby that is ready: teams of nobody go, and the others move up.
    static void closeRanks();

    const DeviceList& devices() const { return devices_; }
    // By device.
    const std::vector<Pixel>& spots() const { return spots_; }
    // By team. There are teams in every mode; only team modes show and use them.
    const std::vector<Pixel>& teamMarkers() const { return teamMarkers_; }
    static bool isInTeams();
    int minPlayers() const { return minPlayers_; }
    bool hasEnoughPlayers() const;
    // Why the match can't start now, a line each; none if it can.
    std::vector<std::string> refusals() const;
    bool showsRefusals() const { return refusalFrames_ > 0; }
    Game& game() { return *game_; }

    // The player who holds the device, or null.
    static std::shared_ptr<Player> holderOf(const Controls& device);

  private:
    void bringInside(Player& player) const;
    bool isHoldComplete();
    void testStart();
    void joinAndUnjoin();
    void join(int index);
    void joinNearestTeam(const std::shared_ptr<Player>& player) const;

    int minPlayers_;
    int mostTeams_;
    DeviceList devices_;
    std::vector<Pixel> spots_;
    std::vector<Pixel> teamMarkers_;
    std::unique_ptr<Game> game_;
    bool ready_ = false;
    int holdCounter_ = 0;    // updates in which every player has held the bomb button
    int refusalFrames_ = 0;  // frames for which the reasons stay in sight
};

}  // namespace vandrel
