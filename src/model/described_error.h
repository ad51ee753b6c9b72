#pragma once

#include <string>

namespace vantor {

/// Why something could not be done, in words for whoever wanted it done: whole sentences, UTF-8.
struct DescribedError {
    std::string description;

    bool operator==(const DescribedError&) const = default;
};

}  // namespace vantor
