#include "shell/large_blocks.h"

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace vandrel {

void keepLargeBlocksApart() {
#ifdef __GLIBC__
    // Left alone, this library raises the bound to the largest block ever freed, which is soon a page of the atlas.
    // Screens of one size would then leave holes in the heap that those of another do not fill.
    constexpr int leastLargeBlock = 1 << 20;  // bytes
    mallopt(M_MMAP_THRESHOLD, leastLargeBlock);
    // A software renderer takes and frees some MiB of smaller blocks in each frame, so these stay with the heap.
    constexpr int keptFree = 8 << 20;  // bytes
    mallopt(M_TRIM_THRESHOLD, keptFree);
#endif
}

}  // namespace vandrel
