// What happens in the loot box room, apart from its picture and its clock: the stored total is counted up to the cash
// of now, in ticks that quicken; each prize that the count passes is won at once, and then all are shown one by one.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <unordered_set>

#include "frontend/lootbox_prizes.h"

namespace vandrel {

class LootboxShow {
  public:
    // A show from the stored total to `lootboxPoints`. Empty when there is nothing new or loot boxes are switched off.
    static std::optional<LootboxShow> open();

    // One tick, of which there are `updaterate` a second. `spacePressed` is asked only once the show may go on by it.
    // Writes the keys of the prizes as they are won.
    void update(const std::function<bool()>& spacePressed);

    // Stores the total. A show that is not closed counts from the same total at its next opening.
    static void close();

    // Whether the total is on the screen, and not the prizes.
    bool isCounting() const { return phase_ != Phase::Prizes; }
    int shownPoints() const { return shownPoints_; }
    // The prize on the screen; null while none is.
    const Prize* current() const { return current_; }
    bool promptShown() const { return promptShown_; }
    bool done() const { return done_; }

  private:
    enum class Phase { Intro, Count, Prizes };

    explicit LootboxShow(int stored);
    void count();
    void quicken();
    void winPrizes();
    void showPrizes(const std::function<bool()>& spacePressed);
    void takeNextPrize();

    float timer_ = 0.0f;  // seconds
    Phase phase_ = Phase::Intro;
    int shownPoints_;
    float step_ = 1.0f;    // points a tick, of which the whole ones count
    float delay_ = 0.25f;  // seconds from tick to tick
    std::unordered_set<std::string> unlocked_;
    std::deque<const Prize*> newPrizes_;  // won, waiting to be shown
    const Prize* current_ = nullptr;
    bool promptShown_ = false;
    bool countDone_ = false;  // with nothing to show
    bool done_ = false;
};

}  // namespace vandrel
