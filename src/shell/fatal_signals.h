// The last line of a log whose process dies without an exception: an abort in a library, or a fault.
#pragma once

namespace vandrel {

// From now on a fatal signal (ABRT, BUS, FPE, ILL, SEGV) leaves its name in the log before it ends the process as it
// would have.
void logFatalSignals();

}  // namespace vandrel
