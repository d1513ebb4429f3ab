// Replaces a file in one step: whatever happens meanwhile, a full disk or a power cut, its path holds the old bytes or
// the new ones, whole. The configuration and the packing of verification files use it.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace vandrel {

// Calls `write` with the path of a file beside `path`. If that gives true, flushes the file to the disk and moves it to
// `path`. A symbolic link stays, its target is replaced; an existing file keeps its permissions. Throws
// std::system_error with the path and the system's reason; the file beside is gone then.
void replaceFile(const std::string& path, const std::function<bool(const std::string& beside)>& write);

// The same with these bytes.
void replaceFile(const std::string& path, std::string_view bytes);

}  // namespace vandrel
