#pragma once

#include <QString>
#include <QWidget>

namespace vantor {

/// The token by which the launcher allows this program to come forward, from the environment; empty
/// where there is none. To be called before the toolkit's application object is made, which may
/// remove it.
QString activationTokenOfEnvironment();

/// Shows the window, iconified or hidden as it may be, above all others and with the keyboard's
/// focus, as far as the desktop lets programs do that. Main thread.
void bringToFront(QWidget& window, const QString& activationToken);

}  // namespace vantor
