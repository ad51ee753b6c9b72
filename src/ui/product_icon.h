#pragma once

#include <QIcon>

namespace vantor {

/// The product's tile, drawn at whatever size it is asked for.
QIcon productIcon();

}  // namespace vantor
