#pragma once

#include <cstddef>
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

namespace vantor {

/// A line of the sources that breaks the order of the layers.
struct Breach {
    std::string file;  ///< below the folder of the sources
    std::size_t line = 0;
    std::string reason;

    bool operator==(const Breach&) const = default;

    friend std::ostream& operator<<(std::ostream& out, const Breach& breach) {
        return out << breach.file << ':' << breach.line << ": " << breach.reason;
    }
};

/// Checks every .h and .cpp below `sources`, each of whose folders is a module:
///
/// - a file includes only files of its own module and of lower layers;
/// - nothing below the views knows the toolkit;
/// - nothing but the platform asks which operating system it is built for.
///
/// The breaches come sorted by file and line.
std::vector<Breach> findBreaches(const std::filesystem::path& sources);

}  // namespace vantor
