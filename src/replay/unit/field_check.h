// Bounds for numbers that come from a file. A damaged or forged replay is refused by name before anything is allocated,
// indexed or multiplied by what it says.
#pragma once

#include <string_view>

namespace vandrel {

// Throws std::runtime_error "Replay field <name> has the value <value>".
[[noreturn]] void refuseField(std::string_view name, long long value);

// `value` if it lies in `low` to `high`, both included; refused otherwise.
int checkedField(std::string_view name, int value, int low, int high);

// For lengths of time in frames and for counts of snakes and squares: far more than any round lasts, on either side of
// zero, and few enough that the rules can add and multiply them.
int checkedFrames(std::string_view name, int value);

}  // namespace vandrel
