#include "base/version.h"

#include <fmt/format.h>

namespace vandrel {

std::string versionText(int version) {
    return fmt::format("{}.{}.{}", version >> 24, (version >> 12) & 0xFFF, version & 0xFFF);
}

}  // namespace vandrel
