#include "replay/tool/state_fields.h"

#include <array>
#include <functional>
#include <random>

#include "arena/arena.h"
#include "arena/bonus.h"
#include "players/player.h"

namespace vandrel {

namespace {

// FNV-1a, 64 bits. The names decide the hash, so that code may move without changing a digest.
constexpr std::uint64_t hashOf(std::string_view text, std::uint64_t hash = 0xCBF29CE484222325U) {
    for (const char c : text) {
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    }
    return hash;
}

// One row of a table: what the field is called and how it is read.
template <class Object>
struct Field {
    std::string_view name;
    std::int64_t (*read)(const Object& object);
    std::uint64_t hash = 0;  // of the object's and the field's name; `kindOf` fills it in
};

// A data member or a member function without arguments, as a reader.
template <auto Member, class Object>
std::int64_t value(const Object& object) {
    return static_cast<std::int64_t>(std::invoke(Member, object));
}

// The objects of one kind: their group, their name and a row for each field.
template <class Object, std::size_t N>
struct Kind {
    StateGroup group;
    std::string_view object;
    std::array<Field<Object>, N> fields;
};

template <class Object, std::size_t N>
consteval Kind<Object, N> kindOf(StateGroup group, std::string_view object, const Field<Object> (&rows)[N]) {
    Kind<Object, N> kind{group, object, std::to_array(rows)};
    for (Field<Object>& field : kind.fields) {
        field.hash = hashOf(field.name, hashOf(object));
    }
    return kind;
}

int numberOf(const std::weak_ptr<Player>& player) {
    const auto found = player.lock();
    return found == nullptr ? -1 : found->num;
}

// The next output tells the place in a sequence whose seed is known.
std::int64_t nextOutput(std::mt19937 copy) {
    return static_cast<std::int64_t>(copy());
}

// What is left out, because only pictures, sounds or the match read it: the walk frames, trail, particles, look and
// locator ring of players; the pace of the flamethrower's sound; rounds won and devices; the score shown at a base;
// toasts; how closing walls arrive; what is kept to find things faster (flame stamps, active squares, `snakesInPlay`).
// `gameRand` and `globalGenerator` are left out because a playback does not draw from them what decides the round.

constexpr Field<Player> playerFields[]{
    {"number", value<&Player::num>},
    {"x", value<&Player::x>},
    {"y", value<&Player::y>},
    {"dead", value<&Player::dead>},
    {"facing", value<&Player::facing>},
    {"AI snake", value<&Player::isAI>},
    {"team", value<&Player::team>},
    {"bombs placed", value<&Player::bombsPlaced>},
    {"most bombs", value<&Player::maxBombs>},
    {"range", value<&Player::range>},
    {"speed", value<&Player::speed>},
    {"bomb type", value<&Player::bombType>},
    {"ultra bomb", value<&Player::ultraBomb>},
    {"fast ignition", value<&Player::fastIgnition>},
    {"annihilator", value<&Player::annihilator>},
    {"strength", value<&Player::strength>},
    {"frames since rocket", value<&Player::framesSinceRocket>},
    {"remote active", value<&Player::remoteActive>},
    {"remote bomb x", value<&Player::remoteBombX>},
    {"remote bomb y", value<&Player::remoteBombY>},
    {"remote step delay", value<&Player::remoteStepDelay>},
    {"fire handled", value<&Player::fireHandled>},
    {"fire blocked by ghost", value<&Player::fireBlockedByGhost>},
    {"fire locked", value<&Player::fireLocked>},
    {"button 2 held", value<&Player::button2Prev>},
    {"shield", value<&Player::shield>},
    {"ghost", value<&Player::ghost>},
    {"shield timer", value<&Player::shieldTimer>},
    {"slow timer", value<&Player::slowTimer>},
    {"minor stun timer", value<&Player::minorStunTimer>},
    {"stop timer", value<&Player::stopTimer>},
    {"respawn timer", value<&Player::respawnTimer>},
    {"start x", value<&Player::startX>},
    {"start y", value<&Player::startY>},
    {"crawling", value<&Player::crawling>},
    {"crawl timer", value<&Player::crawlTimer>},
    {"revive progress", value<&Player::reviveProgress>},
    {"cash", value<&Player::cash>},
    {"kills", value<&Player::kills>},
};
constexpr auto playerKind = kindOf(StateGroup::Players, "player", playerFields);

constexpr Field<Player> snakeFields[]{
    {"length", value<&Player::snakeLengthNow>},
    {"parts", [](const Player& p) -> std::int64_t { return static_cast<std::int64_t>(p.snakeParts.size()); }},
    {"way", [](const Player& p) -> std::int64_t { return static_cast<std::int64_t>(p.snakeHistory.size()); }},
};
constexpr auto snakeKind = kindOf(StateGroup::Snakes, "snake", snakeFields);

constexpr Field<SnakePart> snakePartFields[]{
    {"x", [](const SnakePart& part) -> std::int64_t { return std::get<0>(part); }},
    {"y", [](const SnakePart& part) -> std::int64_t { return std::get<1>(part); }},
    {"facing", [](const SnakePart& part) -> std::int64_t { return static_cast<int>(std::get<2>(part)); }},
};
constexpr auto snakePartKind = kindOf(StateGroup::Snakes, "snake part", snakePartFields);

constexpr Field<Pixel> snakeWayFields[]{
    {"x", value<&Pixel::x>},
    {"y", value<&Pixel::y>},
};
constexpr auto snakeWayKind = kindOf(StateGroup::Snakes, "snake way", snakeWayFields);

constexpr Field<Square> squareFields[]{
    {"kind", [](const Square& square) -> std::int64_t { return squareGrid.at(square); }},
};
constexpr auto squareKind = kindOf(StateGroup::Squares, "square", squareFields);

constexpr Field<Square> powerupFields[]{
    {"powerup", [](const Square& square) -> std::int64_t { return bonusGrid.at(square); }},
};
constexpr auto powerupKind = kindOf(StateGroup::Powerups, "square", powerupFields);

// What only a flying rocket has. In other bombs it is left over from the last rocket on the square and means nothing.
template <auto Member>
std::int64_t ofRocket(const Bomb& bomb) {
    return bomb.kind == BombKind::Rocket ? value<Member>(bomb) : 0;
}

constexpr Field<Bomb> bombFields[]{
    {"owner", [](const Bomb& bomb) -> std::int64_t { return numberOf(bomb.owner); }},
    {"fuse", value<&Bomb::fuse>},
    {"kind", value<&Bomb::kind>},
    {"rocket step", ofRocket<&Bomb::rocketStep>},
    {"direction", ofRocket<&Bomb::direction>},
    {"moved this frame", ofRocket<&Bomb::movedThisFrame>},
};
constexpr auto bombKind = kindOf(StateGroup::Bombs, "bomb", bombFields);

constexpr Field<Explosion> flameFields[]{
    {"owner", [](const Explosion& flame) -> std::int64_t { return numberOf(flame.owner); }},
    {"layer", value<&Explosion::layer>},
    {"x", value<&Explosion::x>},
    {"y", value<&Explosion::y>},
    {"dx", value<&Explosion::dx>},
    {"dy", value<&Explosion::dy>},
    {"timer", value<&Explosion::timer>},
    {"steps", value<&Explosion::steps>},
    {"wave", value<&Explosion::waveId>},
    {"flamethrower", value<&Explosion::isFlamethrower>},
    {"first frame", value<&Explosion::firstFrame>},
};
constexpr auto flameKind = kindOf(StateGroup::Flames, "flame", flameFields);

constexpr Field<Flag> flagFields[]{
    {"x", value<&Flag::x>},
    {"y", value<&Flag::y>},
    {"team", value<&Flag::team>},
    {"carrier", [](const Flag& flag) -> std::int64_t { return numberOf(flag.carrier); }},
    {"in base", value<&Flag::inBase>},
};
constexpr auto flagKind = kindOf(StateGroup::FlagsAndTeams, "flag", flagFields);

constexpr Field<Team> teamFields[]{
    {"score", value<&Team::score>},  {"base x", value<&Team::baseX>}, {"base y", value<&Team::baseY>},
    {"push x", value<&Team::pushX>}, {"push y", value<&Team::pushY>},
};
constexpr auto teamKind = kindOf(StateGroup::FlagsAndTeams, "team", teamFields);

constexpr Field<std::weak_ptr<Player>> memberFields[]{
    {"player", [](const std::weak_ptr<Player>& member) -> std::int64_t { return numberOf(member); }},
};
constexpr auto memberKind = kindOf(StateGroup::FlagsAndTeams, "team member", memberFields);

constexpr Field<Game> hillFields[]{
    {"left", value<&Game::hillLeft>},
    {"top", value<&Game::hillTop>},
    {"right", value<&Game::hillRight>},
    {"bottom", value<&Game::hillBottom>},
};
constexpr auto hillKind = kindOf(StateGroup::FlagsAndTeams, "hill", hillFields);

constexpr Field<Game> closingWallsFields[]{
    {"state", value<&Game::shrinkState>},
    {"countdown", value<&Game::shrinkCountdown>},
    {"step countdown", value<&Game::shrinkStepCountdown>},
    {"allowed", value<&Game::shrinkAllowed>},
};
constexpr auto closingWallsKind = kindOf(StateGroup::Walls, "closing walls", closingWallsFields);

constexpr Field<ShrinkCursor> cursorFields[]{
    {"x", value<&ShrinkCursor::x>},
    {"y", value<&ShrinkCursor::y>},
    {"dx", value<&ShrinkCursor::dx>},
    {"dy", value<&ShrinkCursor::dy>},
};
constexpr auto cursorKind = kindOf(StateGroup::Walls, "closing wall", cursorFields);

constexpr Field<Game> returningWallsFields[]{
    {"countdown", value<&Game::respawnCountdown>},
    {"phase active", value<&Game::respawnPhaseActive>},
};
constexpr auto returningWallsKind = kindOf(StateGroup::Walls, "returning walls", returningWallsFields);

constexpr Field<PendingWall> pendingWallFields[]{
    {"x", value<&PendingWall::x>},
    {"y", value<&PendingWall::y>},
    {"frames", value<&PendingWall::frames>},
};
constexpr auto pendingWallKind = kindOf(StateGroup::Walls, "returning wall", pendingWallFields);

constexpr Field<Game> auctionCountdownFields[]{
    {"countdown", value<&Game::auctionCountdown>},
};
constexpr auto auctionCountdownKind = kindOf(StateGroup::Auction, "auctions", auctionCountdownFields);

constexpr Field<Auction> auctionFields[]{
    {"powerup", value<&Auction::bonus>},
    {"price", value<&Auction::price>},
    {"bidder", [](const Auction& auction) -> std::int64_t { return numberOf(auction.bidder); }},
    {"timer", value<&Auction::timer>},
};
constexpr auto auctionKind = kindOf(StateGroup::Auction, "auction", auctionFields);

constexpr Field<Game> counterFields[]{
    {"round end countdown", value<&Game::roundEndCountdown>},
    {"AI snake countdown", value<&Game::aiSnakeCountdown>},
    {"AI snakes left", value<&Game::aiSnakesLeft>},
    {"next AI snake number", value<&Game::nextAISnakeNumber>},
    {"next wave", value<&Game::nextWaveId>},
};
constexpr auto counterKind = kindOf(StateGroup::Counters, "round", counterFields);

constexpr Field<Game> randomFields[]{
    {"placement", [](const Game& game) -> std::int64_t { return nextOutput(game.spawnRng); }},
    {"old placement", [](const Game& game) -> std::int64_t { return nextOutput(game.legacyRespawnRng); }},
};
constexpr auto randomKind = kindOf(StateGroup::RandomSources, "random source", randomFields);

using Visit = std::function<void(const StateField&)>;

// `first` and `second` tell the object from others of its kind.
template <class Object, std::size_t N>
void visitFields(const Visit& visit, const Kind<Object, N>& kind, const Object& object, int first = 0, int second = 0) {
    for (const Field<Object>& field : kind.fields) {
        visit({kind.group, kind.object, first, second, field.name, field.hash, field.read(object)});
    }
}

template <class List, class Object, std::size_t N>
void visitList(const Visit& visit, const Kind<Object, N>& kind, const List& list) {
    int place = 0;
    for (const Object& element : list) {
        visitFields(visit, kind, element, place++);
    }
}

// A list that belongs to the object at `owner`.
template <class List, class Object, std::size_t N>
void visitListOf(const Visit& visit, const Kind<Object, N>& kind, int owner, const List& list) {
    int place = 0;
    for (const Object& element : list) {
        visitFields(visit, kind, element, owner, place++);
    }
}

void visitPlayers(const Visit& visit) {
    int place = 0;
    for (const auto& player : players) {
        visitFields(visit, playerKind, *player, place);
        visitFields(visit, snakeKind, *player, place);
        visitListOf(visit, snakePartKind, place, player->snakeParts);
        visitListOf(visit, snakeWayKind, place, player->snakeHistory);
        ++place;
    }
}

// Empty squares, squares without a powerup and bombs that are gone are left out.
void visitLayers(const Visit& visit) {
    for (int x = 0; x < grid_squares_x; ++x) {
        for (int y = 0; y < grid_squares_y; ++y) {
            const Square square{x, y};
            if (squareGrid.at(square) != SquareKind::Empty) {
                visitFields(visit, squareKind, square, x, y);
            }
            if (bonusGrid.at(square) != Bonus::None) {
                visitFields(visit, powerupKind, square, x, y);
            }
            if (bombGrid.at(square).isLive()) {
                visitFields(visit, bombKind, bombGrid.at(square), x, y);
            }
        }
    }
}

void visitTeams(const Visit& visit) {
    visitList(visit, teamKind, teams);
    int place = 0;
    for (const Team& team : teams) {
        visitListOf(visit, memberKind, place, team.members);
        ++place;
    }
}

}  // namespace

void visitState(const Game& game, const std::function<void(const StateField&)>& visit) {
    visitPlayers(visit);
    visitLayers(visit);
    visitList(visit, flameKind, game.explosions);
    visitList(visit, flagKind, game.flags);
    visitTeams(visit);
    visitFields(visit, hillKind, game);
    visitFields(visit, closingWallsKind, game);
    visitList(visit, cursorKind, game.shrinkCursors);
    visitFields(visit, returningWallsKind, game);
    visitList(visit, pendingWallKind, game.pendingWalls);
    visitFields(visit, auctionCountdownKind, game);
    if (game.auction != nullptr) {
        visitFields(visit, auctionKind, *game.auction);
    }
    visitFields(visit, counterKind, game);
    visitFields(visit, randomKind, game);
}

}  // namespace vandrel
