// Where things stand in the lobby, and what it says about devices: numbers and texts alone.
#include "frontend/lobby_layout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "frontend/lobby_texts.h"

namespace vandrel {
namespace {

using testing::ElementsAre;

TEST(LobbyLayout, HoldsAllDevices) {
    // The most devices of each size, alone and in teams.
    const std::tuple<LobbySize, int, int> sizes[] = {{{3, 6}, 12, 6}, {{4, 10}, 30, 20}, {{5, 13}, 39, 39}};
    for (const bool inTeams : {false, true}) {
        int fewest = 4;
        for (const auto& [size, mostAlone, mostInTeams] : sizes) {
            const int most = inTeams ? mostInTeams : mostAlone;
            EXPECT_EQ(lobbySizeFor(fewest, inTeams), size) << fewest << (inTeams ? " in teams" : " alone");
            EXPECT_EQ(lobbySizeFor(most, inTeams), size) << most << (inTeams ? " in teams" : " alone");
            fewest = most + 1;
        }
        EXPECT_EQ(lobbySizeFor(40, inTeams), (LobbySize{6, 16}));
        EXPECT_EQ(lobbySizeFor(100, inTeams), (LobbySize{6, 16}));
    }
}

TEST(LobbyLayout, PutsSpotsInRowsAndMarkersAtTheBottom) {
    EXPECT_THAT(lobbySpots(4, 6, 864), ElementsAre(Pixel{160, 48}, Pixel{320, 48}, Pixel{480, 48}, Pixel{640, 48}));
    // The last spot of a row, and the last of all in the row below it.
    const std::tuple<int, int, int, Pixel, Pixel> lobbies[] = {{13, 10, 992, {840, 48}, {252, 176}},
                                                               {31, 13, 1248, {1092, 48}, {420, 304}},
                                                               {100, 16, 1888, {1712, 48}, {428, 816}}};
    for (const auto& [devices, columns, lobbyWidth, endOfRow, last] : lobbies) {
        const std::vector<Pixel> spots = lobbySpots(devices, columns, lobbyWidth);
        EXPECT_EQ(spots.at(static_cast<std::size_t>(columns) - 1), endOfRow) << devices;
        EXPECT_EQ(spots.back(), last) << devices;
    }
    EXPECT_THAT(lobbyTeamMarkers(4, 864, 480),
                ElementsAre(Pixel{108, 416}, Pixel{324, 416}, Pixel{540, 416}, Pixel{756, 416}));
}

// A pad that names itself and its buttons.
class NamedPad final : public InertControls {
  public:
    NamedPad(std::string name, std::string pause) : name_(std::move(name)), pause_(std::move(pause)) {}
    std::string description() const override { return name_; }
    std::string buttonText(ControlInput input) const override {
        return input == ControlInput::Pause ? pause_ : input == ControlInput::ChangeSkin ? "Button 3" : "Y Button";
    }

  private:
    std::string name_;
    std::string pause_;
};

TEST(LobbyTexts, NameDevicesAndTheirButtons) {
    const NamedPad pad("Twin Stick Gamepad", "Start");
    EXPECT_THAT(deviceLines(pad, false), ElementsAre("Twin Stick", "Gamepad"));
    EXPECT_THAT(deviceLines(pad, true), ElementsAre("Twin Stick", "Gamepad", "Skin: 3", "Color: Y"));
    const DeviceList pads{std::make_shared<NamedPad>("A", "Start"), std::make_shared<NamedPad>("B", "Start"),
                          std::make_shared<NamedPad>("C", "Back")};
    EXPECT_EQ(exitHint(pads), "ESC/Start/Back: exit");
    EXPECT_EQ(exitHint({}), "ESC: exit");
}

}  // namespace
}  // namespace vandrel
