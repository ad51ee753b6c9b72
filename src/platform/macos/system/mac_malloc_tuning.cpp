#include <malloc/malloc.h>

#include "platform/native_machine.h"

namespace vantor {

// The system's allocator shares its zones between threads as it is.
void tuneMalloc() {}

void giveBackUnusedMemory() {
    ::malloc_zone_pressure_relief(nullptr, 0);  // all zones, as much as there is
}

}  // namespace vantor
