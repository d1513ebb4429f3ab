// Where the process keeps its own files. What differs from system to system about folders is in this one file.
#pragma once

#include <string>

namespace vandrel {

// The folder of the log, the configuration and the replays, without a slash at its end: "vandrel" in the user's folder
// for local application data. Created, with all that is missing above it, for the user alone. Throws
// std::filesystem::filesystem_error with the operation "create_directory".
std::string appDataDir();

// The same path as text only: nothing is created, so nothing throws. For messages that lead a user to a file there.
std::string appDataPath();

// appDataDir() + "/replays", created in the same way; throws the same.
std::string replaysDir();

}  // namespace vandrel
