#include "replay/tool/headless_recording.h"

#include "arena/arena.h"
#include "arena/level_generation.h"
#include "arena/sparks.h"
#include "base/checked.h"
#include "base/random.h"
#include "match/match_players.h"
#include "match/options/automatic_options.h"
#include "match/options/name_tables.h"
#include "match/round_start.h"
#include "players/player.h"
#include "shell/frame_counter.h"

namespace vandrel {

HeadlessRecording::HeadlessRecording(const RandomRoundSettings& settings) : backup_(gameOptions) {
    reaches = Reaches{};
    globalGenerator.seed(settings.seed);
    seedGameRand(settings.seed);
    std::vector<std::shared_ptr<Controls>> devices;
    for (int i = 0; i < gameOptions.numPlayers; ++i) {
        const unsigned seed = settings.seed * 1000U + static_cast<unsigned>(i);
        devices_.push_back(std::make_shared<RandomControls>(seed, settings.bombsEvery));
        devices.push_back(devices_.back());
    }
    clearMatch();
    if (isTeamMode(gameOptions.gameMode)) {
        makeQuickStartTeams();
    }
    makeQuickStartPlayers(devices);
    makeSnakeHunterTeams();
    automaticOptions();
    if (settings.adjustResolved) {
        settings.adjustResolved();
    }
    const ArenaSize& size = checkedAt(arenaSizes, gameOptions.arenaSizeResolved.value());
    files_.emplace(settings.path);
    const PackagedReplayData data = files_->data();
    game_ = std::make_unique<Game>(data);
    setUpRound({size.width, size.height}, data, *game_, false);
    startRound(*game_);
}

HeadlessRecording::~HeadlessRecording() {
    game_.reset();
    clearMatch();
    sparks.clear();
    gameOptions = backup_;
}

bool HeadlessRecording::step() {
    if (roundOver_) {
        return false;
    }
    for (const auto& device : devices_) {
        device->advance();
    }
    bool replayEnded = false;
    game_->update(roundOver_, replayEnded, nullptr);
    ++frameCounter;
    return !roundOver_;
}

void HeadlessRecording::finish() {
    files_->finish();
}

}  // namespace vandrel
