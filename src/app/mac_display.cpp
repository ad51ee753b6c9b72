#include "app/session/safe_environment.h"

namespace vantor {

// The program is on the Mac's own screen, whatever else is named.
bool isLocalDisplayMissing() {
    return false;
}

}  // namespace vantor
