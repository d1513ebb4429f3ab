#include "presentation/toasts_drawing.h"

#include "presentation/colours.h"
#include "presentation/text.h"

namespace vandrel {

void drawToasts(const std::list<std::unique_ptr<Toast>>& toasts, const BitmapWrapper& target) {
    for (const std::unique_ptr<Toast>& toast : toasts) {
        drawText(target, toast->font, static_cast<int>(toast->x), static_cast<int>(toast->y), toColour(white),
                 toast->text, alignCentre);
    }
}

}  // namespace vandrel
