// The screen at the end of every round: the score table, the new trophies, and after the last round the winners.
#pragma once

#include <string>
#include <vector>

#include "match/round_transitions.h"

namespace vandrel {

// Shows the table until somebody leaves it. With `noWinner` nobody gained a trophy. `text` stands in the corner. The
// game screen keeps the table's size. Lets `OggMusic::Failure` pass when the victory music is missing.
void trophyRoom(std::vector<ScoringEntity> entities, bool noWinner, const std::string& text);

}  // namespace vandrel
