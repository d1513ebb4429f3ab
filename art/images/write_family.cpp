#include "images/write_family.h"

#include <limits>
#include <set>
#include <stdexcept>
#include <string>

#include "files/program.h"
#include "images/recipe.h"

namespace vandrel::art {

int writeFamily(int argc, char** argv, void (*write)(const Canvas& picture, const std::filesystem::path& path)) {
    constexpr std::size_t anyNumber = std::numeric_limits<std::size_t>::max();
    return runProgram(argc, argv, 2, anyNumber, "DIRECTORY NAME...", [&](const std::vector<std::string>& words) {
        const std::filesystem::path directory = words.front();
        const std::set<std::string> promised(words.begin() + 1, words.end());
        std::set<std::string> painted;
        for (const Picture& picture : paintFamily()) {
            if (!promised.contains(picture.name)) {
                throw std::runtime_error("The build does not list the picture " + picture.name);
            }
            if (!painted.insert(picture.name).second) {
                throw std::runtime_error("Two pictures are called " + picture.name);
            }
            write(picture.canvas, directory / (picture.name + ".png"));
        }
        for (const std::string& name : promised) {
            if (!painted.contains(name)) {
                throw std::runtime_error("The recipe lacks the picture " + name);
            }
        }
    });
}

}  // namespace vandrel::art
