#pragma once

#include <memory>

#include "platform/confinement.h"
#include "ui/app_metadata.h"

class QMessageBox;
class QWidget;

namespace vantor {

/// Shows the panel with the program's version and its confinement, in front. Owned by `owner`;
/// destroyed when it is closed.
QMessageBox* showVantorAboutPanel(const AppMetadata& metadata, const ConfinementState& confinement,
                                  QWidget* owner);

}  // namespace vantor
