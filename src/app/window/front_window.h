#pragma once

class QWidget;

namespace vantor {

/// The window that a dialog belongs to: the one with the keyboard focus, else any visible one, and
/// never a menu or other popup. Null when there is none.
QWidget* frontWindow();

}  // namespace vantor
