#include "arena/square_score.h"

#include <algorithm>

#include "arena/game.h"
#include "base/distance.h"
#include "base/random.h"
#include "players/player.h"

namespace vandrel {

namespace {

constexpr int pairsPerSample = 1000;

// Keeps the first of the best.
class Best {
  public:
    void offer(Square square, float score) {
        if (!square_.has_value() || score > score_) {
            square_ = square;
            score_ = score;
        }
    }
    std::optional<Square> square() const { return square_; }

  private:
    std::optional<Square> square_;
    float score_ = 0.0f;
};

}  // namespace

std::optional<Square> findBestSquare(Square min, Square max, const SquareScore& score) {
    Best best;
    for (int y = min.y; y <= max.y; ++y) {
        for (int x = min.x; x <= max.x; ++x) {
            if (!isSolid({x, y})) {
                best.offer({x, y}, score({x, y}));
            }
        }
    }
    return best.square();
}

float leastSquaredDistance(Square square, const std::vector<Square>& others, float ifNone) {
    float least = ifNone;
    for (const Square other : others) {
        least = std::min(least, squaredDistance(square, other));
    }
    return least;
}

std::vector<Square> squaresOfTheLiving() {
    std::vector<Square> squares;
    for (const auto& player : players) {
        if (!player->dead) {
            squares.push_back(player->square());
        }
    }
    return squares;
}

std::optional<Square> Game::sampleBestSquare(Square min, Square max, const SquareScore& score, int samples) {
    Best best;
    for (int sample = 0; sample < samples; ++sample) {
        Square candidate;
        int pairs = 0;
        do {
            candidate.x = uniformInt(spawnRng, min.x, max.x);
            candidate.y = uniformInt(spawnRng, min.y, max.y);
            if (++pairs > pairsPerSample) {
                return std::nullopt;
            }
        } while (isSolid(candidate));
        best.offer(candidate, score(candidate));
    }
    return best.square();
}

}  // namespace vandrel
