// What lies between two rounds of a match: the winners are scored, and the level's randomness may rise.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "arena/game.h"

namespace vandrel {

// A player or a team on the score table.
struct ScoringEntity {
    int previousScore = 0;  // rounds won before this one
    int score = 0;          // and after it
    std::vector<std::shared_ptr<Player>> players;
    std::optional<ALLEGRO_COLOR> teamColour;  // empty for a single player
};

// Adds the round to the tally of its winners and gives the score table: all teams, or all players, in their order.
std::vector<ScoringEntity> scoreRound(const Winners& winners);

// The screens that close a round and a match.
struct RoundEndScreens {
    // Shows the score table, to a gong or, with `noWinner`, to groans; `text` stands in its corner.
    std::function<void(std::vector<ScoringEntity> entities, bool noWinner, const std::string& text)> trophyRoom;
    // Counts the cash of all matches, where there is more of it than before.
    std::function<void()> lootboxRoom;
};

// Scores the round, shows the score table with the whole field on it, removes the snakes of the computer, and says
// whether the match is over: somebody has `winsNeeded` rounds. Then the cash is counted. `replayFile` is the path of
// the round's recording, shown with the table in diagnostic mode; empty where there is none.
bool finishRound(const Game& game, const std::string& replayFile, const RoundEndScreens& screens);

// May raise `randomness` by one, and then has it shown. Called between two rounds of a match whose randomness can still
// rise; draws once from `globalGenerator` in any case.
void incrementRandomness(Game& game, const std::function<void(Game& game)>& show);

// The screen of a rise, which runs for 120 ticks; the toast on it belongs to the coming round.
void showRandomness(Game& game);

}  // namespace vandrel
