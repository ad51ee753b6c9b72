#include "platform/unconfined.h"

namespace vantor {

// In place of linux_native_confinement.cpp, for builds that are to be looked into (VANTOR_CONFINED
// off).
std::unique_ptr<Confinement> makeNativeConfinement() {
    return std::make_unique<Unconfined>();
}

}  // namespace vantor
