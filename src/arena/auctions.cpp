// Auctions: at intervals a powerup is offered to all who have cash, and the highest bidder pays when the time is over.
// A bid is made in the player's own update.
#include <fmt/format.h>

#include <algorithm>

#include "arena/bonus.h"
#include "arena/game.h"
#include "arena/sparks.h"
#include "base/checked.h"
#include "base/version.h"
#include "match/options/game_options.h"
#include "match/options/name_tables.h"
#include "players/player.h"
#include "replay/unit/field_check.h"
#include "replay/unit/streams.h"
#include "shell/assertion.h"
#include "shell/log.h"

namespace vandrel {

namespace {

constexpr int auctionFrames = 540;
constexpr int bombsAndRangesInLot = 3;
constexpr int severalInLotFrom = replayVersion(1, 0, 3);

bool mayBid(const Player& player) {
    return player.canUsePowerups() && player.cash > 0;
}

bool anybodyMayBid() {
    return std::any_of(players.begin(), players.end(), [](const auto& player) { return mayBid(*player); });
}

int drawLot(const PackagedReplayData& replay) {
    if (replay.playback) {
        logText("Get auction powerup from replay\n");
        const char c = static_cast<char>(readByte(replay.input));
        VANDREL_CHECK(c == 'A', "c == 'A'");
        return checkedField("auction bonus", readSignedByte(replay.input), 0, bonusCount - 1);
    }
    const int bonus = chooseBonus(true);
    if (replay.writes()) {
        writeByte(replay.output, 'A');
        writeByte(replay.output, bonus);
    }
    return bonus;
}

void announceLot(Game& game, const Auction& auction) {
    const int quantity = game.auctionQuantity(auction.bonus);
    std::string text = fmt::format("Auction: {}", checkedAt(bonusNames, auction.bonus).displayName);
    if (quantity > 1) {
        text += fmt::format(" x{}", quantity);
    }
    game.announce(text, {arenaWidthPixels() / 2, arenaHeightPixels()}, auction.timer);
}

void showBidButtons(Game& game) {
    for (const auto& player : players) {
        if (mayBid(*player)) {
            game.tell(fmt::format("Bid: {}", player->controls->buttonText(ControlInput::Button2)), player->centre());
        }
    }
}

}  // namespace

int Game::auctionQuantity(int bonus) const {
    const bool several = bonus == Bonus::Bomb || bonus == Bonus::Range;
    return several && !replay.isOlderThan(severalInLotFrom) ? bombsAndRangesInLot : 1;
}

void Game::openAuction() {
    auctionCountdown = gameOptions.auctionInterval.value();
    if (!anybodyMayBid() || endMarkSeen) {
        return;
    }
    const int bonus = drawLot(replay);
    if (bonus == Bonus::None) {
        return;
    }
    logText(fmt::format("Auction: {}\n", bonus));
    auction = std::make_unique<Auction>();
    auction->bonus = bonus;
    auction->timer = scaledFrames(auctionFrames);
    announceLot(*this, *auction);
    if (!replay.playback) {
        showBidButtons(*this);
    }
}

void Game::closeAuction() {
    const auto bidder = auction->bidder;
    if (bidder != nullptr && bidder->canUsePowerups()) {
        logText(fmt::format("Player {} wins auction\n", bidder->num));
        const int quantity = auctionQuantity(auction->bonus);
        for (int i = 0; i < quantity; ++i) {
            bidder->givePowerup(auction->bonus);
        }
        bidder->cash -= auction->price;
        addSparks(bidder->centre());
    }
    auction = nullptr;
}

void Game::updateAuction() {
    if (gameOptions.auctionInterval.value() == 0) {
        return;
    }
    if (auction == nullptr) {
        --auctionCountdown;
        if (auctionCountdown <= 0) {
            openAuction();
        }
        return;
    }
    --auction->timer;
    if (auction->timer <= 0) {
        closeAuction();
    }
}

}  // namespace vandrel
