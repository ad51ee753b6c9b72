#pragma once

#include <string>

namespace vantor {

/// Why an operation failed, in words for the user: whole sentences, UTF-8.
struct DescribedError {
    std::string description;

    bool operator==(const DescribedError&) const = default;
};

}  // namespace vantor
