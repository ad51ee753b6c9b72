#pragma once

class QWidget;

namespace vantor {

/// The window that a dialog belongs in front of: the one with the keyboard, else any that is on the
/// screen, and never a menu or another passing one. None when there is none.
QWidget* frontWindow();

}  // namespace vantor
