// An X server with no screen behind it, for tests of what only a display can do. It runs as long as this object lives,
// and nothing is started where a display is there already.
#pragma once

#include <sys/types.h>

namespace vandrel {

class VirtualDisplay {
  public:
    // Sets DISPLAY of this process. Throws std::runtime_error when the server does not come up.
    VirtualDisplay();
    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;
    ~VirtualDisplay();

  private:
    pid_t server_ = 0;
};

}  // namespace vandrel
