// The first thing that the process does. Apart from the log itself, since it needs message boxes.
#pragma once

namespace vandrel {

// Creates "vandrel.log" in the application data directory, or empties the one of the last run. If that fails, a box
// says so and the run goes on without a file.
void openLog();

}  // namespace vandrel
