#pragma once

#include <filesystem>
#include <vector>

#include "architecture/layer_rules.h"

namespace vantor {

/// Checks the documents of a tree, those in `root` and in its folder docs (*.md): every path in
/// them that begins with one of the tree's own folders exists, and so does what their links lead
/// to. In a path, `*` and `<name>` stand for any part of a name, and of `{a,b}` each has to exist.
///
/// The breaches come sorted by file and line.
std::vector<Breach> findMissingPaths(const std::filesystem::path& root);

}  // namespace vantor
