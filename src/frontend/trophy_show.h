// What happens in the trophy room, apart from its picture and its clock: a drum, the gong with which the new trophies
// are there, a rest, and then, after the last round of a match, music and flying winners until somebody presses.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "frontend/winner_flight.h"
#include "match/round_transitions.h"
#include "presentation/music.h"

namespace vandrel {

// What the show asks of the world around it.
struct TrophyShowWorld {
    std::function<std::shared_ptr<Music>()> makeVictoryMusic;
    std::function<bool()> spacePressed;  // asked only once the show may be left
};

class TrophyShow {
  public:
    // Plays the drum. The match counts as over when the best score is `winsNeeded` to the point.
    TrophyShow(std::vector<ScoringEntity> entities, bool noWinner, TrophyShowWorld world);

    // One tick, of which there are `updaterate` a second, on a screen of this size in pixels.
    void update(int width, int height);

    const std::vector<ScoringEntity>& entities() const { return entities_; }
    // How many trophies the entity has on the table now.
    int trophiesOf(const ScoringEntity& entity) const;
    // The player's flight; null for who stands on the table.
    WinnerFlight* flightOf(const Player& player);
    bool matchOver() const { return matchOver_; }
    bool promptShown() const { return phase_ >= Phase::Rest && timer_ <= 0.0f; }
    bool done() const { return done_; }

  private:
    enum class Phase { Drum, Gong, Rest, Open };

    void launchWinners();
    void advancePlayers(int width, int height);

    std::vector<ScoringEntity> entities_;
    bool noWinner_;
    TrophyShowWorld world_;
    bool matchOver_;
    float timer_;  // seconds
    Phase phase_ = Phase::Drum;
    std::shared_ptr<Music> music_;
    std::map<const Player*, WinnerFlight> flights_;  // walked in the table's order, never in its own
    bool done_ = false;
};

}  // namespace vandrel
