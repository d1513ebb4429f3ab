#include "shell/message_box.h"

#include <allegro5/allegro.h>
#include <allegro5/allegro_native_dialog.h>

#include <clocale>
#include <cstdio>
#include <utility>

namespace vandrel {
namespace {

MessageBox replacement;

}  // namespace

void showMessageBox(const std::string& text, const std::string& heading) {
    if (replacement) {
        replacement(text, heading);
        return;
    }
    if (!heading.empty()) {
        std::fprintf(stderr, "%s: ", heading.c_str());
    }
    std::fprintf(stderr, "%s\n", text.c_str());
    ALLEGRO_DISPLAY* parent = al_is_system_installed() ? al_get_current_display() : nullptr;
    al_show_native_message_box(parent, "", heading.c_str(), text.c_str(), nullptr, 0);
    // The toolkit behind the box takes on the user's locale; numbers in the log and on screens always have a point.
    std::setlocale(LC_NUMERIC, "C");
}

void setMessageBox(MessageBox box) {
    replacement = std::move(box);
}

}  // namespace vandrel
