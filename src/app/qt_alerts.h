#pragma once

#include <QString>

#include "platform/alert.h"

namespace vantor {

/// Alerts in a box of the toolkit, in front of the front window, which waits for it; other windows
/// do not. Without any window it stands alone.
class QtAlerts : public Alerts {
  public:
    void runModal(const AlertText& text) override;

    /// The same text, with places to go on in the next line (U+200B) in words that are too long for
    /// one, as a file's name may be. They cannot be seen.
    static QString breakable(const QString& text);
};

}  // namespace vantor
