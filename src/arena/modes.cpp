// What the modes add to the arena: scores, flags, the hill, the end of a round and its winners. A mode is a set of
// switches read through `isModeActive`; the end and the winners go by the mode itself.
#include <algorithm>
#include <vector>

#include "arena/game.h"
#include "base/numeric.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "shell/frame_counter.h"

namespace vandrel {

namespace {

constexpr int hillTrailFrames = 61;

bool canStillRescue(const std::weak_ptr<Player>& member) {
    const auto player = member.lock();
    return player != nullptr && !player->dead && !(player->crawling && player->crawlTimer == 0);
}

bool standsUpright(const std::weak_ptr<Player>& member) {
    const auto player = member.lock();
    return player != nullptr && !player->crawling && !player->dead;
}

template <class Test>
bool anyMember(const Team& team, Test test) {
    return std::any_of(team.members.begin(), team.members.end(), test);
}

TeamWinners teamsWithHighestScore() {
    TeamWinners winners;
    int highest = 1;  // who has not scored does not win
    for (const Team& team : teams) {
        highest = std::max(highest, team.score);
    }
    for (std::size_t i = 0; i < teams.size(); ++i) {
        if (teams[i].score == highest) {
            winners.teams.push_back(static_cast<int>(i));
        }
    }
    return winners;
}

TeamWinners firstTeamUpright() {
    for (std::size_t i = 0; i < teams.size(); ++i) {
        if (anyMember(teams[i], standsUpright)) {
            return {{static_cast<int>(i)}};
        }
    }
    return {};
}

PlayerWinners playersWithMostKills() {
    PlayerWinners winners;
    if (players.empty()) {
        return winners;
    }
    const auto best = std::max_element(players.begin(), players.end(),
                                       [](const auto& a, const auto& b) { return a->kills < b->kills; });
    const int most = (*best)->kills;
    std::copy_if(players.begin(), players.end(), std::back_inserter(winners.players),
                 [&](const auto& player) { return player->kills == most; });
    if (winners.players.size() == players.size()) {
        winners.players.clear();
    }
    return winners;
}

}  // namespace

bool hasBases() {
    return gameOptions.gameMode == GameMode::Everything || isModeActive(GameMode::CaptureTheFlag) ||
           isModeActive(GameMode::KingOfTheHill);
}

void Team::addScore(int points, Game& game, const Player& player) {
    score += points;
    game.addScoreToast(points, player, *this);
}

void Team::addScoreAtOnce(int points) {
    score += points;
    displayedScore += points;
}

void Team::dropExpiredMembers() {
    std::erase_if(members, [](const auto& member) { return member.expired(); });
}

Square flagHome(const Flag& flag) {
    return flag.team < 0 ? middleSquare() : teams.at(static_cast<std::size_t>(flag.team)).base();
}

void Game::updateFlags() {
    for (Flag& flag : flags) {
        if (!flag.carrier.expired() || isArenaAlmostClosed()) {
            continue;
        }
        const Square square = squareUnder(flag.position());
        const Pixel target = squareToPixel(isSolid(square) ? flagHome(flag) : square);
        flag.x = approach(flag.x, target.x, 1);
        flag.y = approach(flag.y, target.y, 1);
    }
}

void Game::updateHill() {
    if (frameCounter % gameOptions.updaterate != 0) {
        return;
    }
    for (const auto& player : players) {
        if (player->dead || player->ghost || player->isAI || player->team == -1) {
            continue;
        }
        if (isOnHill(player->square())) {
            teams.at(static_cast<std::size_t>(player->team)).addScore(1, *this, *player);
            player->trailTimer = hillTrailFrames;
        }
    }
}

bool Game::isRoundOver() const {
    switch (gameOptions.gameMode) {
        case GameMode::Classic:
            return countDeadHumans() >= gameOptions.numPlayers - 1;
        case GameMode::BattleRoyale:
            return std::count_if(teams.begin(), teams.end(),
                                 [](const Team& team) { return anyMember(team, canStillRescue); }) <= 1;
        case GameMode::SnakeHunter:
            if (gameOptions.snakeHunterRespawn) {
                return shrinkState == ShrinkState::Finished || noAISnakesLeft();
            }
            return countDeadHumans() == gameOptions.numPlayers || noAISnakesLeft();
        default:
            return shrinkState == ShrinkState::Finished;
    }
}

Winners Game::getWinners() const {
    switch (gameOptions.gameMode) {
        case GameMode::CaptureTheFlag:
        case GameMode::KingOfTheHill:
        case GameMode::Everything:
            return teamsWithHighestScore();
        case GameMode::BattleRoyale:
            return firstTeamUpright();
        case GameMode::SnakeHunter:
            return TeamWinners{{noAISnakesLeft() ? 0 : 1}};
        case GameMode::Deathmatch:
            return playersWithMostKills();
        case GameMode::Classic:
            break;
    }
    PlayerWinners winners;
    std::copy_if(players.begin(), players.end(), std::back_inserter(winners.players),
                 [](const auto& player) { return !player->dead; });
    return winners;
}

}  // namespace vandrel
