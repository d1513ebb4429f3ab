// The one guard around the whole run. Every fatal condition of the program is an exception that ends here and is
// followed by the normal shutdown.
#pragma once

#include <functional>

namespace vandrel {

// Calls `run`. An exception is logged and flushed, and shown in a box if the platform library is up; it goes no
// further.
void runGuarded(const std::function<void()>& run);

}  // namespace vandrel
