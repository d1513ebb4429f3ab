// The page that says who made what.
#pragma once

namespace vandrel {

// Shows the page, with the makers' seal wandering behind the text, until Escape or what stands for it is pressed.
void credits();

}  // namespace vandrel
