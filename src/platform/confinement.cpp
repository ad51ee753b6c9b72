#include "platform/confinement.h"

namespace vantor {

std::string ConfinementState::text() const {
    if (!isConfined) return "no";
    if (missing.empty()) return "yes";
    std::string list;
    for (const std::string& one : missing)
        list += (list.empty() ? "" : ", ") + one;
    return "in part (without " + list + ")";
}

}  // namespace vantor
