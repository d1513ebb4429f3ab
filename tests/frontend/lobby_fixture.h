// The lobby without a screen: devices whose keys the test holds, an update at a time.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <vector>

#include "arena/arena.h"
#include "frontend/lobby.h"
#include "match/match_players.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "presentation/play_sample.h"
#include "shell/log.h"
#include "shell/switches.h"
#include "support/round_fixture.h"

namespace vandrel {

class LobbyStage {
  protected:
    LobbyStage() : optionsBefore_(gameOptions), outputBefore_(setDebugOutput(nullptr)) {
        gameOptions = GameOptions();
        setSamplePlayer(nullptr);
        fillTeamPalettes();
        addDevices(4);
    }
    ~LobbyStage() {
        lobby_ = nullptr;
        clearMatch();
        gameOptions = optionsBefore_;
        setDebugOutput(outputBefore_);
    }

    void addDevices(int count) {
        for (int i = 0; i < count; ++i) {
            devices_.push_back(std::make_shared<ScriptedControls>());
        }
    }
    void open(GameMode mode = GameMode::Classic) {
        lobby_ = nullptr;
        gameOptions.gameMode = mode;
        lobby_ = std::make_unique<Lobby>(devices_);
    }
    HeldKeys& keys(std::size_t device) { return static_cast<ScriptedControls&>(*devices_.at(device)).held; }
    void step(int updates = 1, bool startAsked = false) {
        for (int i = 0; i < updates; ++i) {
            lobby_->updateReadiness(startAsked);
            lobby_->update();
        }
    }
    // One update with this key of the device, one without.
    void press(std::size_t device, bool HeldKeys::*key) {
        keys(device).*key = true;
        step();
        keys(device).*key = false;
        step();
    }
    Player& join(std::size_t device) {
        press(device, &HeldKeys::fire);
        return *Lobby::holderOf(*devices_.at(device));
    }
    // As a player stands who has walked there.
    void standAt(Player& player, Pixel centre) {
        player.x = centre.x - halfSquare;
        player.y = centre.y - halfSquare;
        step();
    }
    Pixel marker(std::size_t team) const { return lobby_->teamMarkers().at(team); }
    static std::vector<int> numbers() {
        std::vector<int> found;
        std::ranges::transform(players, std::back_inserter(found), [](const auto& player) { return player->num; });
        return found;
    }

    DeviceList devices_;
    std::unique_ptr<Lobby> lobby_;

  private:
    GameOptions optionsBefore_;
    DebugOutput outputBefore_;
};

class LobbyTest : public testing::Test, protected LobbyStage {};

}  // namespace vandrel
