// The sound effects by name. The values are the positions in the table of file names.
#pragma once

#include <array>
#include <cstddef>

namespace vandrel {

enum class SampleIds : int {
    Beat2,
    Blart,
    Cash2,
    CrapDing,
    Explosion1,
    Fire,
    Flamer,
    FX012,
    HitBass,
    Gong2,
    Pickup_Anh,
    Plugin,
    Rocket,
    Slide,
    Snake,
    Splurge,
    Strength,
    Wimbaah,
};

inline constexpr std::array<const char*, 18> sampleNames{
    "Beat2", "Blart",      "Cash2",  "CrapDing", "Explosion1", "Fire",  "Flamer",  "FX012",    "HitBass",
    "Gong2", "Pickup_Anh", "Plugin", "Rocket",   "Slide",      "Snake", "Splurge", "Strength", "Wimbaah"};
static_assert(sampleNames.size() == static_cast<std::size_t>(SampleIds::Wimbaah) + 1);

}  // namespace vandrel
