#include "model/shared_text.h"

#include "model/never_destroyed.h"

namespace vantor {

const std::string& SharedText::emptyString() {
    static const NeverDestroyed<std::string> empty{std::string{}};
    return empty.get();
}

}  // namespace vantor
