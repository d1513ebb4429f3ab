// The main of every recipe's program: paints the family and writes one file a picture.
//
//     <program> DIRECTORY NAME...
//
// The names are those that the build promises; a recipe that paints another set is an error, since the build would
// neither rebuild nor miss the files of the difference.
#pragma once

#include <filesystem>

#include "painter/canvas.h"

namespace vandrel::art {

// `write` writes one picture as the family wants it.
int writeFamily(int argc, char** argv, void (*write)(const Canvas& picture, const std::filesystem::path& path));

}  // namespace vandrel::art
