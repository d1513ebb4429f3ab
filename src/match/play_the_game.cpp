#include "match/play_the_game.h"

#include <allegro5/keycodes.h>
#include <fmt/format.h>

#include <optional>
#include <utility>

#include "arena/game.h"
#include "arena/level_generation.h"
#include "base/checked.h"
#include "base/version.h"
#include "frontend/join_screen.h"
#include "frontend/lootbox_room.h"
#include "frontend/message_screen.h"
#include "frontend/trophy_room.h"
#include "input/controls_manager.h"
#include "match/match_players.h"
#include "match/options/automatic_options.h"
#include "match/options/game_options.h"
#include "match/options/name_tables.h"
#include "match/round_files.h"
#include "match/round_start.h"
#include "match/round_transitions.h"
#include "players/player.h"
#include "presentation/ogg_music.h"
#include "replay/unit/replay_names.h"
#include "shell/game_screen.h"
#include "shell/log.h"
#include "shell/switches.h"
#include "shell/timing.h"
#include "shell/update_rate.h"

namespace vandrel {

namespace {

constexpr int teamsInHeaderFrom = replayVersion(0, 0, 4);  // since when a replay brings its own teams

void logFrameRate() {
    logText(fmt::format("Average FPS: {:.1f}\n", frameRateFigure()));
}

MatchWorld realMatchWorld() {
    MatchWorld world;
    world.frames = realWorld();
    world.devices = [] { return theControlsManager->devices; };
    world.joinPlayers = playerJoinScreen;
    world.makeMusic = makeMatchMusic;
    world.setUpdateRate = [](int rate) { setUpdateRate(rate, gameOptions); };
    world.showRandomness = showRandomness;
    world.roundEnd = {trophyRoom, lootboxRoom};
    world.showNoSpace = [](const std::string& text) {
        setGameScreenSlot(menuScreenSlot);
        msgScreen({text}, ALLEGRO_KEY_ENTER, noCancelKey);
    };
    return world;
}

// One match. Its members last for the match; what lasts a round is local to `playRound`.
class Match {
  public:
    Match(bool record, const std::string& replayName, ReplayTestOptions testOptions, const MatchWorld& world)
        : record_(record),
          replayName_(replayName),
          testOptions_(testOptions),
          world_(world),
          optionsBackup_(gameOptions) {}

    bool play();

  private:
    enum class RoundResult { NextRound, MatchOver, Quit, NoSpace };

    void enter();
    bool makePlayers();
    RoundResult playRound();
    bool setUp(Game& game, const PackagedReplayData& data);
    RoundEnding runFrames(Game& game);
    RoundResult endRound(Game& game, const RoundEnding& ending, RoundBeingRecorded& recorded);
    void leave();
    bool isPlayback() const { return replay_.has_value(); }

    bool record_;
    std::string replayName_;
    ReplayTestOptions testOptions_;
    const MatchWorld& world_;
    GameOptions optionsBackup_;
    std::optional<ReplayBeingPlayed> replay_;
    std::shared_ptr<Music> music_;
    bool firstRound_ = true;
};

void Match::enter() {
    logText("New game" + (replayName_.empty() ? "" : ", replay: " + replayName_) + "\n");
    clearMatch();
    if (replayName_.empty()) {
        reaches = Reaches{};
        return;
    }
    replay_.emplace(replayName_);
    // The clock takes the file's rate. The multiplier stays the file's too: old rounds at a high rate have their own.
    const int multiplier = gameOptions.frameMultiplier;
    world_.setUpdateRate(gameOptions.updaterate);
    gameOptions.frameMultiplier = multiplier;
}

// False when nobody is to play after all.
bool Match::makePlayers() {
    if (!isPlayback() && gameOptions.quickStartPlayers > 0) {
        gameOptions.numPlayers = gameOptions.quickStartPlayers + 1;  // the teams are made for these
    }
    const bool headerHasTeams = isPlayback() && replay_->version() >= teamsInHeaderFrom;
    if (!headerHasTeams && gameOptions.quickStartPlayers >= 1 && isTeamMode(gameOptions.gameMode)) {
        makeQuickStartTeams();
    }
    if (isPlayback()) {
        makeReplayPlayers(replay_->playerSetups(), replay_->version(), world_.devices());
    } else if (gameOptions.quickStartPlayers > 0) {
        makeQuickStartPlayers(world_.devices());
    } else if (!world_.joinPlayers()) {
        return false;
    }
    makeSnakeHunterTeams();
    return true;
}

bool Match::setUp(Game& game, const PackagedReplayData& data) {
    Square size{grid_squares_x, grid_squares_y};
    if (!isPlayback()) {
        const ArenaSize& chosen = checkedAt(arenaSizes, gameOptions.arenaSizeResolved.value());
        size = {chosen.width, chosen.height};
    }
    try {
        setUpRound(size, data, game, false);
    } catch (const Game::PlayerPositionSetupError& error) {
        world_.showNoSpace(error.what());
        return false;
    }
    return true;
}

RoundEnding Match::runFrames(Game& game) {
    startRound(game);
    if (game.shrinkAllowed) {
        music_ = world_.makeMusic();
    }
    return FrameLoop(game, music_, testOptions_, replayName_, world_.frames).run();
}

Match::RoundResult Match::playRound() {
    logText(fmt::format("New round; randomness {}\n", gameOptions.randomness));
    if (!isPlayback()) {
        automaticOptions();
    }
    RoundBeingRecorded recorded(record_ && !isPlayback() ? claimReplayName() : std::string());
    const PackagedReplayData data = isPlayback() ? replay_->data(record_) : recorded.data();
    Game game(data);
    if (!firstRound_ && !isPlayback() && gameOptions.randomnessIncrease != 0 && gameOptions.randomness < 2) {
        incrementRandomness(game, world_.showRandomness);
    }
    if (!setUp(game, data)) {
        return RoundResult::NoSpace;
    }
    firstRound_ = false;
    const RoundEnding ending = runFrames(game);
    return endRound(game, ending, recorded);
}

Match::RoundResult Match::endRound(Game& game, const RoundEnding& ending, RoundBeingRecorded& recorded) {
    if (ending.roundOver) {
        logText("Round over\n");
    }
    if (ending.quit) {
        logText("Quit\n");
    }
    if (ending.replayEnded) {
        logText("Replay ended early\n");
    }
    logFrameRate();
    if (music_ != nullptr) {
        music_->stop();
    }
    if (isPlayback()) {
        replay_->finish(!ending.quit && !ending.replayEnded);
    } else {
        recorded.finish();
    }
    if (ending.quit) {
        return RoundResult::Quit;
    }
    bool matchOver = false;
    if (!ending.replayEnded && !testOptions_.skipRoundEnd) {
        matchOver = finishRound(game, recorded.name(), world_.roundEnd);
    }
    return matchOver || isPlayback() ? RoundResult::MatchOver : RoundResult::NextRound;
}

void Match::leave() {
    fastForward = false;
    logText("Game ended\n");
    clearMatch();
    gameOptions = optionsBackup_;
    world_.setUpdateRate(gameOptions.updaterate);
}

bool Match::play() {
    enter();
    if (!makePlayers()) {
        clearMatch();
        return true;
    }
    if (testOptions_.fastForward) {
        fastForward = true;
    }
    RoundResult result = RoundResult::NextRound;
    while (result == RoundResult::NextRound) {
        result = playRound();
    }
    if (result == RoundResult::NoSpace) {
        // Nothing is put back: the next match begins with the options that did not fit, and its entry lets the players
        // go.
        return true;
    }
    leave();
    return result == RoundResult::Quit;
}

}  // namespace

bool play_the_game(bool record, const std::string& replayName, ReplayTestOptions testOptions) {
    onArenaResized = setGameScreenSize;
    theControlsManager->listHolders = listDeviceHolders;
    return play_the_game(record, replayName, testOptions, realMatchWorld());
}

bool play_the_game(bool record, const std::string& replayName, ReplayTestOptions testOptions, const MatchWorld& world) {
    return Match(record, replayName, testOptions, world).play();
}

}  // namespace vandrel
