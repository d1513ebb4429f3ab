#include "frontend/replay_browser.h"

#include <allegro5/keycodes.h>

#include <filesystem>
#include <sstream>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "frontend/message_screen.h"
#include "replay/unit/describe_replay.h"
#include "replay/unit/replay_names.h"
#include "replay/unit/verify_files.h"
#include "shell/switches.h"

namespace vandrel {

namespace {

std::string descriptionOf(const ReplayInfo& info) {
    std::ostringstream text;
    describeReplay(text, info);
    return std::move(text).str();
}

void showErrors(const std::vector<std::string>& errors) {
    std::vector<std::string> lines{"Error:"};
    lines.insert(lines.end(), errors.begin(), errors.end());
    lines.emplace_back("Press ENTER to exit");
    msgScreen(lines, ALLEGRO_KEY_ENTER, noCancelKey);
}

// The row stays until the list is made anew, so that nothing moves under the cursor.
void askAndDelete(const std::string& path, CmdButtonAction& row) {
    if (!msgScreen({"Confirm deletion of replay: Y or bomb button to confirm, ESC or Button 2 to cancel"},
                   ALLEGRO_KEY_Y, ALLEGRO_KEY_ESCAPE)) {
        return;
    }
    for (const std::string& file : {path, plainVerifyPath(path), compressedVerifyPath(path)}) {
        std::error_code error;
        std::filesystem::remove(file, error);
        if (error) {
            throw std::filesystem::filesystem_error("remove", file, error);
        }
    }
    row.setText("DELETED");
    row.onPress = {};
    row.onDelete = {};
}

void addReplay(VandrelMenu& menu, MenuContext& context, const ReplayInfo& info, const ReplayPlayer& play) {
    std::function<void()> press;
    if (info.errors.empty()) {
        press = [&context, path = info.path, play] { play(path, {}, context.music); };
    } else {
        press = [errors = info.errors] { showErrors(errors); };
    }
    menu.addAction(context.x, descriptionOf(info), std::move(press),
                   [path = info.path](CmdButtonAction& row) { askAndDelete(path, row); });
}

}  // namespace

std::shared_ptr<VandrelMenu> replayMenu(MenuContext& context, const ReplayPlayer& play) {
    auto menu = std::make_shared<VandrelMenu>(&layoutSmall);
    if (showReplayTestOptions) {
        menu->addAction(context.x, "Test all replays", [&context, play] { testAllReplays(context.music, play); });
    }
    for (const ReplayInfo& info : getAllReplays(true)) {
        addReplay(*menu, context, info, play);
    }
    addBack(*menu, context.x, context.stack);
    return menu;
}

}  // namespace vandrel
