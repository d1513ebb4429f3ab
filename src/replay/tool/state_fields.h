// The state that decides how a round goes on, as a list of named numbers. The state digest sums it up and
// `vandrel-replay digest --fields` prints it. The tables stand in state_fields.cpp.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>

#include "arena/game.h"

namespace vandrel {

enum class StateGroup : std::size_t {
    Players,
    Snakes,
    Squares,
    Powerups,
    Bombs,
    Flames,
    FlagsAndTeams,
    Walls,  // closing and returning
    Auction,
    Counters,
    RandomSources,
};

inline constexpr std::array<std::string_view, 11> stateGroupNames{"players", "snakes",   "squares",         "powerups",
                                                                  "bombs",   "flames",   "flags and teams", "walls",
                                                                  "auction", "counters", "random sources"};

// One number of the state: a field of an object. `first` and `second` tell objects of one kind apart: the place in a
// list, or the square. They are 0 where there is only one.
struct StateField {
    StateGroup group;
    std::string_view object;
    int first;
    int second;
    std::string_view name;
    std::uint64_t nameHash;  // of object and name
    std::int64_t value;
};

// Calls `visit` for every field of the round and of the arena, players and teams in it. Fields that only a picture or a
// sound depends on are left out. The order of the calls carries no meaning.
void visitState(const Game& game, const std::function<void(const StateField&)>& visit);

}  // namespace vandrel
