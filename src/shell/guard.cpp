#include "shell/guard.h"

#include <allegro5/allegro.h>

#include <exception>
#include <string>

#include "shell/log.h"
#include "shell/message_box.h"
#include "shell/paths.h"

namespace vandrel {
namespace {

constexpr const char* supportContact = "support@quillmere.example";

// `what` is whole lines. The path is asked for as text only: what failed may be that very directory.
void report(const std::string& what) {
    const std::string text = what + "Please send " + appDataPath() + "/vandrel.log to " + supportContact + "\n";
    logAndFlush(text);
    if (al_is_system_installed()) {
        showMessageBox(text);
    }
}

}  // namespace

void runGuarded(const std::function<void()>& run) {
    try {
        run();
    } catch (const std::exception& failure) {
        report(std::string("An exception occurred:\n") + failure.what() + "\n");
    } catch (...) {
        report("An exception of unknown type occurred.\n");
    }
}

}  // namespace vandrel
