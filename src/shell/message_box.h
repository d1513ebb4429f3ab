// Every message box of the program goes through here. What differs from system to system about boxes is in this one
// file.
#pragma once

#include <functional>
#include <string>

namespace vandrel {

// Shows the text until it is answered, with an optional heading. The text also goes to standard error, since without a
// display server there is no box. Works before the platform library is installed.
void showMessageBox(const std::string& text, const std::string& heading = {});

// Stands in for the boxes of the system from now on; an empty function brings them back.
using MessageBox = std::function<void(const std::string& text, const std::string& heading)>;
void setMessageBox(MessageBox box);

}  // namespace vandrel
