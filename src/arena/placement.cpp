// Where everybody starts. Each mode has its own list or walk; who is still without a square gets the one farthest from
// the rest.
#include <algorithm>
#include <array>
#include <iterator>
#include <set>
#include <stdexcept>
#include <vector>

#include "arena/game.h"
#include "base/checked.h"
#include "match/options/game_options.h"
#include "match/options/name_tables.h"
#include "players/player.h"

namespace vandrel {

namespace {

constexpr float farFromNobody = 1e9f;

struct SquareLess {
    bool operator()(Square a, Square b) const { return a.x != b.x ? a.x < b.x : a.y < b.y; }
};

class Placement {
  public:
    std::vector<Square> placeAll();

  private:
    void placeTwoTeams();
    void placeTeamOfTwo(std::size_t team);
    void placeTeamsAroundBases();
    void placeTeamAtBase(std::size_t team);
    void placeBattleRoyale();
    void placeRoyaleTeam(std::size_t team, const std::vector<Square>& teamStarts);
    Square squareBeside(Square teamStart) const;
    void placeByList();
    void fill();

    Square farthest() const;
    void take(std::size_t player, Square square) {
        checkedAt(result_, static_cast<std::ptrdiff_t>(player)) = square;
        used_.insert(square);
    }
    bool isUsed(Square square) const { return used_.count(square) != 0; }
    // The places in `players` of the team's members, in the team's order.
    static std::vector<std::size_t> memberIndices(std::size_t team);

    const int gx_ = grid_squares_x;
    const int gy_ = grid_squares_y;
    const int cx_ = grid_squares_x / 2;
    const int cy_ = grid_squares_y / 2;
    const Square low_ = firstInnerSquare();
    const Square high_ = lastInnerSquare();
    const std::size_t playerCount_ = static_cast<std::size_t>(gameOptions.numPlayers);
    std::vector<Square> result_;  // (0, 0) is a slot not yet filled
    std::set<Square, SquareLess> used_;
};

std::vector<std::size_t> Placement::memberIndices(std::size_t team) {
    std::vector<std::size_t> indices;
    for (const auto& member : teams[team].members) {
        const auto found = std::find(players.begin(), players.end(), member.lock());
        if (found != players.end()) {
            indices.push_back(static_cast<std::size_t>(found - players.begin()));
        }
    }
    return indices;
}

Square Placement::farthest() const {
    const auto slots = static_cast<std::ptrdiff_t>(std::min(playerCount_, result_.size()));
    std::vector<Square> filled;
    std::copy_if(result_.begin(), result_.begin() + slots, std::back_inserter(filled),
                 [](Square square) { return square != Square{}; });
    const auto best =
        findBestSquare(low_, high_, [&](Square square) { return leastSquaredDistance(square, filled, farFromNobody); });
    if (!best.has_value()) {
        throw std::runtime_error("Not enough space for players");
    }
    return *best;
}

// Two teams walk inward from opposite corners, mirroring top and bottom at each step.
void Placement::placeTwoTeams() {
    result_.resize(playerCount_);
    placeTeamOfTwo(0);
    placeTeamOfTwo(1);
}

void Placement::placeTeamOfTwo(std::size_t team) {
    Square at = team == 0 ? low_ : high_;
    const int startY = at.y;
    for (const std::size_t player : memberIndices(team)) {
        take(player, at);
        const int mirrored = gy_ - 2 - at.y;
        int newY = mirrored + 1;
        if (team == 0 && newY < cy_) {
            newY = mirrored + 3;
        } else if (team == 1 && newY > cy_) {
            newY = mirrored - 1;
        }
        if (!isUsed({at.x, newY})) {
            at.y = newY;
            continue;
        }
        at.x += at.x < cx_ ? 2 : -2;
        at.y = startY;
        if (at.x == cx_) {
            throw Game::PlayerPositionSetupError();
        }
    }
}

// Three or four teams spread along their edge from the base, both ways by turns, and step inward when the edge is full.
void Placement::placeTeamsAroundBases() {
    result_.resize(playerCount_);
    for (std::size_t team = 0; team < teams.size(); ++team) {
        placeTeamAtBase(team);
    }
}

void Placement::placeTeamAtBase(std::size_t team) {
    const std::array<Square, 4> starts{{{1, cy_}, {gx_ - 2, cy_}, {cx_, 1}, {cx_, gy_ - 2}}};
    const bool alongY = team < 2;
    const int size = alongY ? gy_ : gx_;
    const int centre = alongY ? cy_ : cx_;
    const int otherCentre = alongY ? cx_ : cy_;
    const int upper = alongY ? gy_ - 5 : gx_ - 2;
    const int lower = alongY ? 5 : 1;
    int spread = alongY ? starts[team].y : starts[team].x;
    int inward = alongY ? starts[team].x : starts[team].y;
    const int spreadStart = spread;
    bool mirror = false;
    for (const std::size_t player : memberIndices(team)) {
        const Square square = alongY ? Square{inward, spread} : Square{spread, inward};
        if (isUsed(square)) {
            throw Game::PlayerPositionSetupError();
        }
        take(player, square);
        if (mirror) {
            spread = size - spread - 1;
        } else {
            spread += spread < centre ? -2 : 2;
        }
        mirror = !mirror;
        if (spread > upper || spread < lower) {
            inward += inward < otherCentre ? 2 : -2;
            spread = spreadStart;
            mirror = false;
        }
    }
}

// Where team-mates of a Battle Royale team may stand from their first, in order of preference.
constexpr std::array<Square, 36> royaleOffsets{
    {{2, 0}, {-2, 0}, {0, 2},  {0, -2},  {2, 2}, {-2, 2}, {2, -2}, {-2, -2}, {1, 0}, {-1, 0}, {0, 1},  {0, -1},
     {3, 0}, {-3, 0}, {0, 3},  {0, -3},  {1, 1}, {1, -1}, {-1, 1}, {-1, -1}, {3, 3}, {3, -3}, {-3, 3}, {-3, -3},
     {2, 1}, {2, -1}, {-2, 1}, {-2, -1}, {1, 2}, {1, -2}, {-1, 2}, {-1, -2}, {4, 0}, {-4, 0}, {0, 4},  {0, -4}}};

void Placement::placeBattleRoyale() {
    result_.resize(playerCount_);
    const std::vector<Square> teamStarts{low_,     high_,          {1, gy_ - 2}, {gx_ - 2, 1},
                                         {cx_, 1}, {cx_, gy_ - 2}, {1, cy_},     {gx_ - 2, cy_}};
    for (std::size_t team = 0; team < teams.size(); ++team) {
        placeRoyaleTeam(team, teamStarts);
    }
}

// The teams behind the list of starts begin far from everybody.
void Placement::placeRoyaleTeam(std::size_t team, const std::vector<Square>& teamStarts) {
    const std::vector<std::size_t> members = memberIndices(team);
    if (members.empty()) {
        return;
    }
    const Square start = team < teamStarts.size() ? teamStarts[team] : farthest();
    take(members.front(), start);
    for (std::size_t i = 1; i < members.size(); ++i) {
        take(members[i], squareBeside(start));
    }
}

Square Placement::squareBeside(Square teamStart) const {
    for (const Square offset : royaleOffsets) {
        const Square candidate = teamStart + offset;
        if (isInnerSquare(candidate) && squareGrid.at(candidate) != SquareKind::GridBlock && !isUsed(candidate)) {
            return candidate;
        }
    }
    throw Game::PlayerPositionSetupError();
}

struct ListReach {
    int a;
    int b;
    int c;
};

// How far from the middle and from the corners the last starts of the list stand, in squares. `arenaSize` is an index
// of `arenaSizes`; only those that have the room put them farther out.
ListReach listReach(int arenaSize) {
    switch (arenaSize) {
        case largeArena:
            return {6, 4, 4};
        case hugeArena:
            return {10, 6, 6};
        case colossalArena:
            return {16, 10, 14};
        default:
            return {4, 2, 2};
    }
}

void Placement::placeByList() {
    const auto [a, b, c] = listReach(gameOptions.arenaSizeResolved.value());
    result_ = {low_,
               high_,
               {1, gy_ - 2},
               {gx_ - 2, 1},
               {cx_, cy_},
               {cx_, 1},
               {cx_, gy_ - 2},
               {1, cy_},
               {gx_ - 2, cy_},
               {cx_ - a, cy_ - b},
               {cx_ + a, cy_ + b},
               {cx_ - a, cy_ + b},
               {cx_ + a, cy_ - b},
               {c + 1, c + 1},
               {gx_ - 2 - c, gy_ - 2 - c},
               {gx_ - 2 - c, c + 1},
               {c + 1, gy_ - 2 - c}};
}

void Placement::fill() {
    used_.insert(result_.begin(), result_.end());
    while (result_.size() < playerCount_) {
        result_.push_back(farthest());
    }
}

std::vector<Square> Placement::placeAll() {
    if (hasBases()) {
        if (teams.size() == 2) {
            placeTwoTeams();
        } else if (teams.size() == 3 || teams.size() == 4) {
            placeTeamsAroundBases();
        }
    } else if (isModeActive(GameMode::BattleRoyale)) {
        placeBattleRoyale();
    } else {
        placeByList();
    }
    fill();
    return result_;
}

}  // namespace

std::vector<Square> Game::getInitialPlayerPositions() {
    return Placement().placeAll();
}

}  // namespace vandrel
