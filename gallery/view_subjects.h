#pragma once

#include <vector>

#include "subjects.h"

namespace vantor {

/// Adds the panel at the menu bar, the settings and the help, in every state.
void addViews(std::vector<Subject>& all);

}  // namespace vantor
