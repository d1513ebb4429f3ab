// What a test reads of a menu, and how it finds a row to press.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "frontend/vandrel_menu.h"

namespace vandrel {

// The entries from top to bottom, "# " before a heading.
inline std::vector<std::string> textsOf(const VandrelMenu& menu) {
    std::vector<std::string> texts;
    for (const auto& entry : menu.entries()) {
        texts.push_back((entry->isHeading() ? "# " : "") + entry->text());
    }
    return texts;
}

// The first row whose text begins so.
inline CmdButtonBase& rowOf(const VandrelMenu& menu, const std::string& text) {
    for (const auto& entry : menu.entries()) {
        if (!entry->isHeading() && entry->text().starts_with(text)) {
            return *entry;
        }
    }
    throw std::runtime_error("no row " + text);
}

}  // namespace vandrel
