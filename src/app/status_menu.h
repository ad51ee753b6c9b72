#pragma once

#include <QMenu>

#include <vector>

#include "app/status_bar.h"

namespace vantor {

/// Puts these entries into the menu in place of those that are there. An action runs in a turn of
/// its own: it may take away the menu that it was chosen from.
void fillStatusMenu(QMenu& menu, const std::vector<StatusMenuEntry>& entries);

}  // namespace vantor
