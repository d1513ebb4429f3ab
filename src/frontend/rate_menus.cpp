#include "frontend/rate_menus.h"

#include <array>
#include <span>

#include "match/options/game_options.h"
#include "shell/update_rate.h"

namespace vandrel {

namespace {

struct RateRow {
    const char* label;
    int rate;  // updates a second
};

constexpr std::array<const char*, 1> slowMotionHeadings{"Slow motion settings"};
constexpr std::array<RateRow, 4> slowMotionRates{
    {{"Quarter speed", 15}, {"Half speed", 30}, {"Three quarter speed", 45}, {"Normal speed", 60}}};

constexpr std::array<const char*, 6> highFrameRateHeadings{
    "High frame rate settings", "Warning: high refresh rate modes are experimental and",
    "may have bugs.",           "Some aspects of gameplay and balance will be different,",
    "especially at 144Hz",      "Not compatible with slow motion mode."};
constexpr std::array<RateRow, 3> highFrameRates{{{"60Hz (default)", 60}, {"120Hz", 120}, {"144Hz", 144}}};

std::shared_ptr<VandrelMenu> rateMenu(MenuContext& context, std::span<const char* const> headings,
                                      std::span<const RateRow> rates) {
    auto menu = std::make_shared<VandrelMenu>(&layoutDefault);
    for (const char* heading : headings) {
        menu->addHeading(context.headingX, heading);
    }
    for (const RateRow& row : rates) {
        menu->addAction(context.x, row.label, [rate = row.rate] { setUpdateRate(rate, gameOptions); });
    }
    addBack(*menu, context.x, context.stack);
    return menu;
}

}  // namespace

std::shared_ptr<VandrelMenu> slowMotionMenu(MenuContext& context) {
    return rateMenu(context, slowMotionHeadings, slowMotionRates);
}

std::shared_ptr<VandrelMenu> highFrameRateMenu(MenuContext& context) {
    return rateMenu(context, highFrameRateHeadings, highFrameRates);
}

}  // namespace vandrel
