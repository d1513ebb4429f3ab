#include "replay/unit/proof.h"

namespace vandrel {

Proof proof;

}  // namespace vandrel
