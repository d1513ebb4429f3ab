// The prizes of the loot box room: pictures that the cash of all matches wins, each at its number of points.
#pragma once

#include <array>

#include "presentation/bitmap_ids.h"
#include "shell/config.h"

namespace vandrel {

struct Prize {
    const char* key;  // of section "lootbox"; not 0 there once the prize was won
    int points;
    const char* caption;
    BitmapIds bitmap;
    // All of them must be on; null for none. With one off the prize waits.
    std::array<ConfigOptionWrapper<bool>*, 2> requiredOptions{};
};

// In the order in which one tick of the count wins several.
inline constexpr std::array<Prize, 30> prizes{{
    {"Alien1", 10, "A cat", BitmapIds::Alien1, {&catsEnabled}},
    {"Santa", 20, "Santa", BitmapIds::Santa},
    {"Django", 30, "A dog", BitmapIds::Django, {&dogsEnabled}},
    {"Squirrel", 30, "A squirrel", BitmapIds::Squirrel},
    {"Marmite", 40, "Marmite on pitta bread", BitmapIds::Marmite},
    {"Cat1", 50, "A cat", BitmapIds::Cat1, {&catsEnabled}},
    {"Narwhals", 60, "Narwhals", BitmapIds::Narwhals},
    {"CatInBin1", 70, "A cat", BitmapIds::CatInBin1, {&catsEnabled}},
    {"Owl1", 80, "An owl", BitmapIds::Owl1, {&owlsEnabled}},
    {"Kittens2_7", 90, "A cat", BitmapIds::Kittens2_7, {&catsEnabled}},
    {"Sasha2004082811", 100, "A cat", BitmapIds::Sasha2004082811, {&catsEnabled}},
    {"Hamster1", 120, "A hamster", BitmapIds::Hamster1, {&hamstersEnabled}},
    {"Platypus", 140, "A platypus", BitmapIds::Platypus},
    {"Owl2", 160, "An owl", BitmapIds::Owl2, {&owlsEnabled}},
    {"SashaFloor", 180, "A cat", BitmapIds::SashaFloor, {&catsEnabled}},
    {"JanusBird", 200, "Janus Bird", BitmapIds::JanusBird},
    {"CatrickPiano", 230, "Cat and piano", BitmapIds::CatrickPiano, {&catsEnabled}},
    {"Owl3", 260, "An owl", BitmapIds::Owl3, {&owlsEnabled}},
    {"CatFerret", 290, "Cat and ferret", BitmapIds::CatFerret, {&catsEnabled, &ferretsEnabled}},
    {"Ralph", 320, "A cat", BitmapIds::Ralph, {&catsEnabled}},
    {"Hamster2", 350, "A hamster", BitmapIds::Hamster2, {&hamstersEnabled}},
    {"Yuffy", 380, "A cat", BitmapIds::Yuffy, {&catsEnabled}},
    {"Isolde", 420, "A cat", BitmapIds::Isolde, {&catsEnabled}},
    {"Timothy", 460, "A portrait", BitmapIds::Timothy},
    {"Cat2", 500, "A cat", BitmapIds::Cat2, {&catsEnabled}},
    {"Hamster3", 550, "A hamster", BitmapIds::Hamster3, {&hamstersEnabled}},
    {"Cat3", 600, "A cat", BitmapIds::Cat3, {&catsEnabled}},
    {"Django01", 650, "A dog", BitmapIds::Django_01, {&dogsEnabled}},
    {"ArtWall1", 900, "Art wall 1", BitmapIds::ArtWall1},
    {"ArtWall2", 1000, "Art wall 2", BitmapIds::ArtWall2},
}};

}  // namespace vandrel
