#pragma once

#include <QMenu>

#include <vector>

#include "app/tray/status_bar.h"

namespace vantor {

/// Replaces the menu's entries. An action runs in the next turn of the loop, as it may destroy the
/// menu.
void fillStatusMenu(QMenu& menu, const std::vector<StatusMenuEntry>& entries);

}  // namespace vantor
