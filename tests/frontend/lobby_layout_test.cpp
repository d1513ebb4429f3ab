// Where things stand in the lobby, and what it says about devices: numbers and texts alone.
#include "frontend/lobby_layout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "frontend/lobby_texts.h"

namespace vandrel {
namespace {

using testing::ElementsAre;

struct SizeCase {
    int devices;
    bool inTeams;
    LobbySize size;
};

TEST(LobbyLayout, HoldsAllDevices) {
    for (const SizeCase& c : std::vector<SizeCase>{{4, false, {3, 6}},
                                                   {12, false, {3, 6}},
                                                   {13, false, {4, 10}},
                                                   {30, false, {4, 10}},
                                                   {31, false, {5, 13}},
                                                   {39, false, {5, 13}},
                                                   {40, false, {6, 16}},
                                                   {100, false, {6, 16}},
                                                   {6, true, {3, 6}},
                                                   {7, true, {4, 10}},
                                                   {20, true, {4, 10}},
                                                   {21, true, {5, 13}},
                                                   {39, true, {5, 13}},
                                                   {40, true, {6, 16}}}) {
        EXPECT_EQ(lobbySizeFor(c.devices, c.inTeams), c.size) << c.devices << (c.inTeams ? " in teams" : " alone");
    }
}

TEST(LobbyLayout, PutsSpotsInRowsAndMarkersAtTheBottom) {
    EXPECT_THAT(lobbySpots(4, 6, 864), ElementsAre(Pixel{160, 48}, Pixel{320, 48}, Pixel{480, 48}, Pixel{640, 48}));
    const std::vector<Pixel> two = lobbySpots(13, 10, 992);
    EXPECT_EQ(two.at(9), (Pixel{840, 48}));
    EXPECT_EQ(two.at(10), (Pixel{84, 176}));
    const std::vector<Pixel> three = lobbySpots(31, 13, 1248);
    EXPECT_EQ(three.at(12), (Pixel{1092, 48}));
    EXPECT_EQ(three.at(30), (Pixel{420, 304}));
    const std::vector<Pixel> seven = lobbySpots(100, 16, 1888);
    EXPECT_EQ(seven.at(15), (Pixel{1712, 48}));
    EXPECT_EQ(seven.at(99), (Pixel{428, 816}));
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
