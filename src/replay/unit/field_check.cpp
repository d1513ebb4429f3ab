#include "replay/unit/field_check.h"

#include <fmt/format.h>

#include <stdexcept>

namespace vandrel {

void refuseField(std::string_view name, long long value) {
    throw std::runtime_error(fmt::format("Replay field {} has the value {}", name, value));
}

int checkedField(std::string_view name, int value, int low, int high) {
    if (value < low || value > high) {
        refuseField(name, value);
    }
    return value;
}

int checkedFrames(std::string_view name, int value) {
    constexpr int mostFrames = 10'000'000;
    return checkedField(name, value, -mostFrames, mostFrames);
}

}  // namespace vandrel
