// A team of the match: its members, its base of this round, its scores. Teams outlive rounds.
#pragma once

#include <memory>
#include <vector>

#include "base/colour.h"
#include "base/vector2.h"

namespace vandrel {

class Game;
class Player;

struct Team {
    int score = 0;           // the true score of this round
    int displayedScore = 0;  // the number at the base; follows `score` as toasts arrive
    int wins = 0;            // rounds won in this match
    int baseX = 0;           // square of the base
    int baseY = 0;
    int pushX = 0;  // where the base moves when a closing wall is laid on it
    int pushY = 0;
    ALLEGRO_COLOR colour{};
    std::vector<std::weak_ptr<Player>> members;

    int getScore() const { return score; }
    Square base() const { return {baseX, baseY}; }

    // `score` rises at once; the same points fly from `player` to the base, where the number shown follows.
    void addScore(int points, Game& game, const Player& player);
    // Both scores rise at once.
    void addScoreAtOnce(int points);
    // Drops members that no longer exist.
    void dropExpiredMembers();
};

}  // namespace vandrel
