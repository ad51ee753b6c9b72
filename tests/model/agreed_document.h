#pragma once

#include <string>

#include "support/temporary_folder.h"

namespace vantor::filled {

/// What is written of `filled::snapshot()`, as was agreed upon.
inline std::string agreedDocument() {
    return contentOf(VANTOR_TESTS_DIR "/documents/agreed/filled.json");
}

}  // namespace vantor::filled
