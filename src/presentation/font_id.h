// The five fonts by name, so that the rules can say in which font a text appears without knowing a font.
#pragma once

namespace vandrel {

enum class FontId { Builtin, Font20, Font24, Font30, Font64 };

}  // namespace vandrel
