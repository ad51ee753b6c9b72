#include <malloc.h>

#include "platform/native_machine.h"

namespace vantor {

void tuneMalloc() {
#ifdef M_ARENA_MAX
    // Otherwise each provider's thread gets a heap of its own, most of it never used.
    ::mallopt(M_ARENA_MAX, 1);
#endif
}

void giveBackUnusedMemory() {
#ifdef __GLIBC__
    ::malloc_trim(0);
#endif
}

}  // namespace vantor
