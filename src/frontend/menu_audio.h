// The editor of the two volumes.
#pragma once

#include <memory>
#include <optional>

#include "frontend/vandrel_menu.h"
#include "presentation/bitmap_wrapper.h"

namespace vandrel {

// Shows the editor until it is left. A change is heard and stored at once. `background` is drawn behind it, null for
// black; `layout` is null for the usual one; `x` is that of the rows, the usual one if nothing is said.
void menuAudio(const std::shared_ptr<BitmapWrapper>& background, const VandrelMenuLayoutOptions* layout,
               std::optional<int> x);

}  // namespace vandrel
