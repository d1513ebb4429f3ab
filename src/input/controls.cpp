#include "input/controls.h"

namespace vandrel {

std::string InertControls::description() const {
    return {};
}

std::string InertControls::buttonText(ControlInput /*input*/) const {
    return {};
}

}  // namespace vandrel
