#include "platform/unconfined.h"

namespace vantor {

// A Mac has no supported call by which a program confines itself; what it enforces instead (the
// hardened runtime) belongs to the bundle's signature.
std::unique_ptr<Confinement> makeNativeConfinement() {
    return std::make_unique<Unconfined>();
}

}  // namespace vantor
