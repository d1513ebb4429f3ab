#include "files/program.h"

#include <cstdio>
#include <exception>

namespace vandrel::art {

int runProgram(int argc, char** argv, std::size_t least, std::size_t most, const char* usage,
               const std::function<void(const std::vector<std::string>& words)>& run) {
    const std::vector<std::string> words(argv + 1, argv + argc);
    if (words.size() < least || words.size() > most) {
        std::fprintf(stderr, "usage: %s %s\n", argv[0], usage);
        return 2;
    }
    try {
        run(words);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", argv[0], error.what());
        return 1;
    }
    return 0;
}

}  // namespace vandrel::art
