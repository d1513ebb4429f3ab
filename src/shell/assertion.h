// The fatal assertion, which replays and the grid rely on. It is active in every build and never lets the run go on:
// what it throws ends at the one guard around the whole run. The text names the rule that was broken, not the C++ that
// tests it.
#pragma once

#include <optional>

namespace vandrel {

// Logs and flushes "Assertion failed: '<expression>' at line <line>" and a newline, and behind it, if a position is
// given, "replayInput pos <position>" and a newline; throws std::runtime_error with the same text.
[[noreturn]] void assertFailed(const char* expression, int line,
                               std::optional<long long> replayInputPosition = std::nullopt);

}  // namespace vandrel

// `condition` must hold; `text` is what the message calls it.
#define VANDREL_CHECK(condition, text)                 \
    do {                                               \
        if (!(condition)) [[unlikely]] {               \
            ::vandrel::assertFailed((text), __LINE__); \
        }                                              \
    } while (false)

// The same with the position of the replay's input stream, an optional that is empty when no replay is played. The
// position is asked for on failure only, since asking a stream is slow.
#define VANDREL_CHECK_AT(condition, text, positionExpression)                \
    do {                                                                     \
        if (!(condition)) [[unlikely]] {                                     \
            ::vandrel::assertFailed((text), __LINE__, (positionExpression)); \
        }                                                                    \
    } while (false)
