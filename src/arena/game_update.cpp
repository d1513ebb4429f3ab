// One step of a round. The order of the passes is what replays rest on: every pass reads what those before it wrote,
// and a change of order changes who dies in a tie, which flame reaches a bomb first, and so every later frame.
#include <algorithm>
#include <ios>
#include <istream>
#include <stdexcept>

#include "arena/game.h"
#include "base/version.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "replay/unit/round_writer.h"
#include "replay/unit/streams.h"
#include "shell/log.h"

namespace vandrel {

namespace {

constexpr int roundEndFrames = 240;
constexpr float roundEndFadeSeconds = 4.0f;
constexpr int crawlingTeamsFrom = replayVersion(0, 95, 2);

bool atEndOfFile(std::istream* stream) {
    return stream != nullptr && stream->eof();
}

enum class NextByte { Record, EndMark, EndOfFile };

NextByte peekReplay(std::istream* input) {
    if (input == nullptr) {
        throw std::runtime_error("File not open for reading");
    }
    try {
        return input->peek() == replayEndMark ? NextByte::EndMark : NextByte::Record;
    } catch (const std::ios_base::failure&) {
        logText("peek: ios_base failure\n");
        if (!atEndOfFile(input)) {
            throw;
        }
        logText("EOF (peek replayEnd)\n");
        return NextByte::EndOfFile;
    }
}

}  // namespace

void Game::update(bool& roundOver, bool& replayEnded, const std::shared_ptr<Music>& music) {
    if (replay.playback) {
        const NextByte next = peekReplay(replay.input);
        if (next != NextByte::Record) {
            meetEndOfRecords(replayEnded);
        }
        if (next == NextByte::EndOfFile) {
            return;
        }
    }
    updateAuction();
    updatePlayers(replayEnded);
    if (isModeActive(GameMode::CaptureTheFlag)) {
        updateFlags();
    }
    if (isModeActive(GameMode::KingOfTheHill)) {
        updateHill();
    }
    updateBombs();
    updateExplosions();
    checkPlayerHits();
    updateShrink();
    if (isModeActive(GameMode::SnakeHunter)) {
        updateAISnakes(replayEnded);
    }
    updateCrawlingTeams();
    updateRespawningWalls();
    updateToasts();
    roundOver = updateRoundEnd(music);
    if (replay.writer != nullptr) {
        replay.writer->endUpdate();
    }
}

// The round goes on in full after its condition was first met, and a later change of the condition has no effect.
bool Game::updateRoundEnd(const std::shared_ptr<Music>& music) {
    if (roundEndCountdown == -1) {
        if (isRoundOver()) {
            roundEndCountdown = scaledFrames(roundEndFrames);
            if (music != nullptr) {
                music->fadeTo(roundEndFadeSeconds, 0);
            }
        }
        return false;
    }
    if (roundEndCountdown > 0) {
        --roundEndCountdown;
    }
    return roundEndCountdown == 0;
}

void Game::updatePlayers(bool& replayEnded) {
    try {
        const std::size_t count = players.size();
        for (std::size_t i = 0; i < count; ++i) {
            players[i]->update(replay, this, false);
        }
    } catch (const std::ios_base::failure&) {
        if (!replay.playback || !atEndOfFile(replay.input)) {
            throw;
        }
        logText("EOF (p->update)\n");
        meetEndOfRecords(replayEnded);
    } catch (int mark) {
        if (mark != replayEndMark) {
            throw;
        }
        meetEndOfRecords(replayEnded);
    }
}

void Game::meetEndOfRecords(bool& replayEnded) {
    replayEnded = true;
    endMarkSeen = true;
}

// A team dies out when the last of its members able to rescue falls.
void Game::updateCrawlingTeams() {
    if (replay.isOlderThan(crawlingTeamsFrom)) {
        return;
    }
    const auto waitsForRescue = [](const Player& player) { return player.crawling && player.crawlTimer == 0; };
    for (const Team& team : teams) {
        const bool allDown = std::all_of(team.members.begin(), team.members.end(), [&](const auto& member) {
            const auto player = member.lock();
            return player == nullptr || player->dead || waitsForRescue(*player);
        });
        if (!allDown) {
            continue;
        }
        for (const auto& member : team.members) {
            const auto player = member.lock();
            if (player != nullptr && !player->dead && waitsForRescue(*player)) {
                player->die();
            }
        }
    }
}

void Game::updateToasts() {
    toasts.remove_if([](const std::unique_ptr<Toast>& toast) { return toast->update(); });
}

}  // namespace vandrel
