#pragma once

#include <string>
#include <variant>

#include "model/snapshot_document.h"

namespace vantor {

/// The snapshot's document, or "failed: " and why.
inline std::string documentOf(const SystemSnapshot& snapshot) {
    const auto result = encodedSnapshot(snapshot);
    const std::string* document = std::get_if<std::string>(&result);
    return document ? *document : "failed: " + std::get<DescribedError>(result).description;
}

}  // namespace vantor
