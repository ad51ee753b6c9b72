#include "model/shared_text.h"

#include "model/undying.h"

namespace vantor {

const std::string& SharedText::emptyString() {
    static const Undying<std::string> empty{std::string{}};
    return empty.get();
}

}  // namespace vantor
