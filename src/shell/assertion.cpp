#include "shell/assertion.h"

#include <sstream>
#include <stdexcept>

#include "shell/log.h"

namespace vandrel {

void assertFailed(const char* expression, int line, std::optional<long long> replayInputPosition) {
    std::ostringstream text;
    text << "Assertion failed: '" << expression << "' at line " << line << '\n';
    if (replayInputPosition) {
        text << "replayInput pos " << *replayInputPosition << '\n';
    }
    logAndFlush(text.str());
    throw std::runtime_error(text.str());
}

}  // namespace vandrel
