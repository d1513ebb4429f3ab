// The main of every prize recipe's program: paints the scenes of the recipe and writes one framed picture each.
//
//     <program> DIRECTORY NAME...
//
// The names are those that the build promises; a recipe that paints another set is an error.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <set>
#include <stdexcept>
#include <string>

#include "images/recipe.h"
#include "prizes/photo.h"

namespace {

void writePrizes(const std::filesystem::path& directory, std::set<std::string> promised) {
    for (const vandrel::art::Picture& picture : vandrel::art::paintFamily()) {
        if (promised.erase(picture.name) == 0) {
            throw std::runtime_error("The build does not list the picture " + picture.name);
        }
        vandrel::art::writePhoto(picture.canvas, directory / (picture.name + ".png"));
    }
    if (!promised.empty()) {
        throw std::runtime_error("The recipe lacks the picture " + *promised.begin());
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s DIRECTORY NAME...\n", argv[0]);
        return 2;
    }
    try {
        writePrizes(argv[1], std::set<std::string>(argv + 2, argv + argc));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", argv[0], error.what());
        return 1;
    }
    return 0;
}
