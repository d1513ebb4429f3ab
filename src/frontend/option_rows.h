// Menu rows that edit the match's options, as tables: the screens of a custom game are lists of these.
#pragma once

#include <span>
#include <string_view>
#include <variant>

#include "frontend/menu_stack.h"
#include "match/options/game_options.h"

namespace vandrel {

// A choice among names. The field holds the index of a name, from `first` to the last.
struct ChoiceRow {
    const char* label;
    int GameOptions::*field;
    std::span<const std::string_view> names;
    int first = 0;
};

struct NumberRow {
    const char* label;
    int GameOptions::*field;
    int minValue;
    int maxValue;
};

struct SwitchRow {
    const char* label;
    bool GameOptions::*field;
};

using OptionRow = std::variant<ChoiceRow, NumberRow, SwitchRow>;

// Adds the rows in their order. Each writes straight into `gameOptions`.
void addOptionRows(VandrelMenu& menu, const MenuContext& context, std::span<const OptionRow> rows);

}  // namespace vandrel
