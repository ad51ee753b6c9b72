#include <cstdlib>

#include "platform/linux/confinement/linux_confinement.h"

namespace vantor {

std::unique_ptr<Confinement> makeNativeConfinement() {
    const char* const display = std::getenv("DISPLAY");
    return std::make_unique<LinuxConfinement>(display ? display : "");
}

}  // namespace vantor
