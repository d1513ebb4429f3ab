// A benchmark that players can run from the options menu: many small writes to a file, then many small pictures.
#pragma once

namespace vandrel {

// Runs both and returns when Escape is pressed. The two test files stay in the application data directory. Throws
// std::ios_base::failure if they cannot be written.
void profile();

}  // namespace vandrel
