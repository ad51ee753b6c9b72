#pragma once

#include <memory>

#include "platform/confinement.h"
#include "ui/app_metadata.h"

class QMessageBox;
class QWidget;

namespace vantor {

/// The panel that says what this program is and what it is kept from, and brings it to the front.
/// Owned by `owner`; goes when it is closed.
QMessageBox* showVantorAboutPanel(const AppMetadata& metadata, const ConfinementState& confinement,
                                  QWidget* owner);

}  // namespace vantor
