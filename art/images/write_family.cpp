// The main of every recipe's program: paints the family and writes one PNG a picture.
//
//     <program> DIRECTORY NAME...
//
// The names are those that the build promises; a recipe that paints another set is an error, since the build would
// neither rebuild nor miss the files of the difference.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <set>
#include <stdexcept>
#include <string>

#include "images/recipe.h"
#include "painter/png_file.h"

namespace {

void writeFamily(const std::filesystem::path& directory, const std::set<std::string>& promised) {
    std::set<std::string> painted;
    for (const vandrel::art::Picture& picture : vandrel::art::paintFamily()) {
        if (!promised.contains(picture.name)) {
            throw std::runtime_error("The build does not list the picture " + picture.name);
        }
        if (!painted.insert(picture.name).second) {
            throw std::runtime_error("Two pictures are called " + picture.name);
        }
        vandrel::art::writePng(picture.canvas, directory / (picture.name + ".png"));
    }
    for (const std::string& name : promised) {
        if (!painted.contains(name)) {
            throw std::runtime_error("The recipe lacks the picture " + name);
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s DIRECTORY NAME...\n", argv[0]);
        return 2;
    }
    try {
        writeFamily(argv[1], std::set<std::string>(argv + 2, argv + argc));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", argv[0], error.what());
        return 1;
    }
    return 0;
}
