#pragma once

#include <QString>

#include "platform/alert.h"

namespace vantor {

/// Alerts in a box of the toolkit, in front of the front window, which waits for it; other windows
/// do not. Without any window it stands alone.
class QtAlerts : public Alerts {
  public:
    void runModal(const AlertText& text) override;

    /// The same text, with invisible places to break (U+200B) in words that are too long for a
    /// line, as a file's name may be.
    static QString breakable(const QString& text);
};

}  // namespace vantor
