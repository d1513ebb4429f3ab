#include "frontend/lootbox_show.h"

#include <algorithm>
#include <cstdint>

#include "match/options/game_options.h"
#include "presentation/play_sample.h"
#include "shell/switches.h"

namespace vandrel {

namespace {

constexpr const char* section = "lootbox";
constexpr const char* totalKey = "lootboxPoints";

constexpr float minDelay = 0.05f;  // seconds
constexpr float delayStep = 0.01f;
constexpr float stepGrowth = 0.05f;    // points, once the ticks come no faster
constexpr float prizesSeconds = 2.0f;  // before the first prize

bool mayBeShown(const Prize& prize) {
    return std::ranges::all_of(prize.requiredOptions,
                               [](ConfigOptionWrapper<bool>* option) { return option == nullptr || option->get(); });
}

}  // namespace

std::optional<LootboxShow> LootboxShow::open() {
    const int stored = getConfigInt(section, totalKey, 0);
    if (!lootboxesEnabled || stored >= lootboxPoints) {
        return {};
    }
    return LootboxShow(stored);
}

void LootboxShow::close() {
    setConfigInt(section, totalKey, lootboxPoints);
}

LootboxShow::LootboxShow(int stored) : shownPoints_(stored) {
    for (const Prize& prize : prizes) {
        if (getConfigInt(section, prize.key, 0) != 0) {
            unlocked_.insert(prize.key);
        }
    }
}

void LootboxShow::update(const std::function<bool()>& spacePressed) {
    timer_ -= 1.0f / static_cast<float>(gameOptions.updaterate);
    if (timer_ < 0.0f) {
        switch (phase_) {
            case Phase::Intro:
                phase_ = Phase::Count;
                break;
            case Phase::Count:
                count();
                break;
            case Phase::Prizes:
                showPrizes(spacePressed);
                break;
        }
    }
    if (countDone_) {
        done_ = spacePressed();
    }
}

void LootboxShow::count() {
    if (shownPoints_ < lootboxPoints) {
        // The total comes from a file, so it may be any number.
        const std::int64_t next = std::int64_t{shownPoints_} + static_cast<int>(step_);
        shownPoints_ = static_cast<int>(std::min<std::int64_t>(lootboxPoints, next));
        playSample(SampleIds::Cash2);
        timer_ = delay_;
        quicken();
        winPrizes();
    } else if (!newPrizes_.empty()) {
        timer_ = prizesSeconds;
        phase_ = Phase::Prizes;
    } else {
        countDone_ = true;
        promptShown_ = true;
    }
}

// First the ticks come faster; when they come no faster, each of them counts more.
void LootboxShow::quicken() {
    delay_ = std::max(delay_ - delayStep, minDelay);
    if (delay_ == minDelay) {
        step_ += stepGrowth;
    }
}

// A prize that is won stays won whatever happens after, so its key is written at once.
void LootboxShow::winPrizes() {
    for (const Prize& prize : prizes) {
        if (prize.points <= shownPoints_ && !unlocked_.contains(prize.key) && mayBeShown(prize)) {
            unlocked_.insert(prize.key);
            newPrizes_.push_back(&prize);
            setConfigInt(section, prize.key, 1);
        }
    }
}

void LootboxShow::showPrizes(const std::function<bool()>& spacePressed) {
    if (current_ == nullptr) {
        takeNextPrize();
    }
    promptShown_ = true;
    if (!spacePressed()) {
        return;
    }
    if (newPrizes_.empty()) {
        done_ = true;
    } else {
        takeNextPrize();
    }
}

void LootboxShow::takeNextPrize() {
    current_ = newPrizes_.front();
    newPrizes_.pop_front();
}

}  // namespace vandrel
