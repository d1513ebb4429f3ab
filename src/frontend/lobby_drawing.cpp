#include "frontend/lobby_drawing.h"

#include <fmt/format.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "arena/arena.h"
#include "arena/game_drawing.h"
#include "frontend/lobby.h"
#include "frontend/lobby_texts.h"
#include "input/menu_input.h"
#include "players/player.h"
#include "players/players_drawing.h"
#include "presentation/colours.h"
#include "presentation/drawing.h"
#include "presentation/text.h"

namespace vandrel {

namespace {

constexpr RGB grey{128, 128, 128};
constexpr RGB red{255, 32, 32};

// Pixels.
constexpr int lineHeight = 10;  // of the built-in font
constexpr int promptAboveSpot = 32;
constexpr int deviceTextBelowSpot = 40;
constexpr int markerRadiusX = 16;
constexpr int markerRadiusY = 4;
constexpr int teamNameBelowMarker = 16;
constexpr int teamHintAboveBottom = 8;
constexpr int highestHeadline = 150;
constexpr int headlineBelowSpots = 70;
constexpr int readyHintBelowHeadline = 90;
constexpr int holdHintBelowHeadline = 140;
constexpr int refusalBelowHeadline = 160;
constexpr int refusalHeight = 40;

class LobbyPainter {
  public:
    LobbyPainter(Lobby& lobby, const BitmapWrapper& target)
        : lobby_(lobby), target_(target), middle_(arenaWidthPixels() / 2) {}

    void paint() const {
        drawGame(lobby_.game(), target_, true);
        const DrawingBatch batch(target_);
        for (std::size_t i = 0; i < lobby_.devices().size(); ++i) {
            paintSpot(*lobby_.devices()[i], lobby_.spots().at(i));
        }
        drawPlayers(target_);
        if (Lobby::isInTeams()) {
            paintTeams();
        }
        paintHeadline();
        paintExitHint();
    }

  private:
    void write(std::string_view text, Pixel top, FontId font = FontId::Builtin, RGB colour = white) const {
        drawText(target_, font, top.x, top.y, toColour(colour), text, alignCentre);
    }
    void paintSpot(const Controls& device, Pixel spot) const;
    void paintTeams() const;
    void paintHeadline() const;
    void paintRefusals(int y) const;
    void paintExitHint() const;

    Lobby& lobby_;
    const BitmapWrapper& target_;
    int middle_;
};

void LobbyPainter::paintSpot(const Controls& device, Pixel spot) const {
    const bool isHeld = Lobby::holderOf(device) != nullptr;
    const int x = spot.x + halfSquare;
    const int promptY = spot.y - promptAboveSpot;
    write(isHeld ? "UNJOIN" : "JOIN", {x, promptY});
    write(device.buttonText(isHeld ? ControlInput::Button2 : ControlInput::Fire), {x, promptY + lineHeight});
    int y = spot.y + deviceTextBelowSpot;
    for (const std::string& line : deviceLines(device, isHeld)) {
        write(line, {x, y}, FontId::Builtin, isHeld ? white : grey);
        y += lineHeight;
    }
}

void LobbyPainter::paintTeams() const {
    write("Form 2 or more teams", {middle_, arenaHeightPixels() - teamHintAboveBottom});
    const std::vector<Pixel>& markers = lobby_.teamMarkers();
    for (std::size_t i = 0; i < markers.size(); ++i) {
        const Pixel marker = markers[i];
        drawFilledEllipse(target_, marker.x, marker.y, markerRadiusX, markerRadiusY, teams.at(i).colour);
        write(fmt::format("Team {}", i + 1), {marker.x, marker.y + teamNameBelowMarker});
    }
    for (const auto& player : players) {
        if (player->team != -1) {
            const auto team = static_cast<std::size_t>(player->team);
            const Pixel marker = markers.at(team);
            const Pixel centre = player->centre();
            drawLine(target_, marker.x, marker.y, centre.x, centre.y, teams.at(team).colour, 1.0f);
        }
    }
}

void LobbyPainter::paintHeadline() const {
    const int lastSpot = lobby_.spots().empty() ? 0 : lobby_.spots().back().y;
    const int y = std::max(highestHeadline, lastSpot + headlineBelowSpots);
    const bool wantsTeams = Lobby::isInTeams() && lobby_.hasEnoughPlayers();
    write(wantsTeams ? "Select a team!" : "Waiting for players", {middle_, y}, FontId::Font30);
    write("Press SPACE when ready", {middle_, y + readyHintBelowHeadline}, FontId::Font30);
    write("(or all players hold bomb button)", {middle_, y + holdHintBelowHeadline});
    if (lobby_.showsRefusals()) {
        paintRefusals(y + refusalBelowHeadline);
    }
}

void LobbyPainter::paintRefusals(int y) const {
    for (const std::string& line : lobby_.refusals()) {
        write(line, {middle_, y}, FontId::Font30, red);
        y += refusalHeight;
    }
}

void LobbyPainter::paintExitHint() const {
    const std::string hint = exitHint(theControlsManager->menuDevices(menuControlMode, true));
    drawText(target_, FontId::Builtin, 0, 0, toColour(white), hint);
}

}  // namespace

void drawLobby(Lobby& lobby, const BitmapWrapper& target) {
    LobbyPainter(lobby, target).paint();
}

}  // namespace vandrel
