#include "frontend/lobby_texts.h"

#include <fmt/format.h>

#include <boost/algorithm/string.hpp>

#include "input/keyboard_controls.h"
#include "presentation/word_wrap.h"

namespace vandrel {

namespace {

constexpr int lineWidth = 12;  // characters

}  // namespace

std::vector<std::string> deviceLines(const Controls& device, bool isHeld) {
    std::string text = wordWrap(device.description(), lineWidth);
    // A keyboard has no keys for looks.
    if (isHeld && !isKeyboard(device)) {
        const std::string looks = fmt::format("\nSkin: {}\nColor: {}", device.buttonText(ControlInput::ChangeSkin),
                                              device.buttonText(ControlInput::ChangeColour));
        text += boost::erase_all_copy(looks, " Button");
    }
    std::vector<std::string> lines;
    boost::split(lines, text, [](char c) { return c == '\n'; });
    return lines;
}

std::string exitHint(const DeviceList& menuDevices) {
    std::string hint = "ESC";
    for (const auto& device : menuDevices) {
        const std::string button = device->buttonText(ControlInput::Pause);
        if (hint.find(button) == std::string::npos) {
            hint += "/" + button;
        }
    }
    return hint + ": exit";
}

}  // namespace vandrel
