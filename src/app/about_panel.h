#pragma once

#include <memory>

#include "ui/app_metadata.h"

class QMessageBox;
class QWidget;

namespace vantor {

/// The panel that says what this program is, and brings it to the front. Owned by `owner`; goes
/// when it is closed.
QMessageBox* showVantorAboutPanel(const AppMetadata& metadata, QWidget* owner);

}  // namespace vantor
