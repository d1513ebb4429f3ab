// Takes everything down that start-up brought up, as far as it came.
#pragma once

namespace vandrel {

// The display and the platform library stay: the library's own exit handler takes them down.
void shutDown();

}  // namespace vandrel
