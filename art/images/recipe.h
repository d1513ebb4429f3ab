// What every recipe in this folder offers: the pictures of one family, by name. write_family.h turns them into files.
#pragma once

#include <string>
#include <vector>

#include "painter/canvas.h"

namespace vandrel::art {

struct Picture {
    std::string name;  // the file's name without ".png", as the game's table of bitmaps has it
    Canvas canvas;
};

using Pictures = std::vector<Picture>;

// All pictures of the family, in any order. Each recipe's program links exactly one definition.
Pictures paintFamily();

}  // namespace vandrel::art
