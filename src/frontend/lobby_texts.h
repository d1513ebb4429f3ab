// What the lobby says about devices. Texts only.
#pragma once

#include <string>
#include <vector>

#include "input/controls_manager.h"

namespace vandrel {

// The lines below a device's spot: which device it is and, once somebody holds it, which of its buttons change looks.
std::vector<std::string> deviceLines(const Controls& device, bool isHeld);

// How to leave, by the keyboard or by any of these devices; a button that several share is named once.
std::string exitHint(const DeviceList& menuDevices);

}  // namespace vandrel
