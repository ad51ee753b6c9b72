#pragma once

#include <QString>
#include <QWidget>

namespace vantor {

/// The token by which whoever has started this program allows it to come forward, from the
/// environment; empty where there is none. To be asked before the toolkit's application object is
/// made, which may take it away.
QString activationTokenOfEnvironment();

/// Shows the window, iconified or hidden as it may be, above all others and with the keyboard's
/// focus, as far as the desktop lets programs do that. Main thread.
void bringToFront(QWidget& window, const QString& activationToken);

}  // namespace vantor
