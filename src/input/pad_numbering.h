// Which button of a pad is meant by a number of the rules. Those are the numbers of the pads that the rules were
// written for: 0 the bottom face button, 1 right, 2 left, 3 top, 4 and 5 the right and left shoulder, 6 and 7 the right
// and left stick pressed down, 8 Back, 9 Start, 10 to 13 the directional pad's right, left, down, up. Drivers that
// number by event codes put the same buttons elsewhere; the number of buttons tells the shape of the pad.
#pragma once

#include <optional>

namespace vandrel {

// The driver's number of the rules' button `number`, 0 to 13, on a pad with `buttons` buttons, or nothing if the pad
// has it as no button. The directional pad is buttons only where no stick is it. A pad of an unknown shape keeps the
// rules' numbers; what it then lacks is for the caller to see.
std::optional<int> driverButton(int number, int buttons, bool hasDigitalStick);

}  // namespace vandrel
