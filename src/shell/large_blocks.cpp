#include "shell/large_blocks.h"

#include <malloc.h>

namespace vandrel {

void keepLargeBlocksApart() {
    // Left alone, the C library raises the bound to the largest block ever freed, which is soon the menus' screen. The
    // screens of rounds and score tables would then leave holes in the heap that those of another size do not fill.
    constexpr int leastLargeBlock = 1 << 20;  // bytes
    mallopt(M_MMAP_THRESHOLD, leastLargeBlock);
    // With more than that free at the end of the heap, large blocks would be cut from there after all.
    mallopt(M_TRIM_THRESHOLD, leastLargeBlock);
}

}  // namespace vandrel
