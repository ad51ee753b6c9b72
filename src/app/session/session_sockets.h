#pragma once

#include <QByteArray>

namespace vantor {

/// Whether a program listens at that path, or at the abstract name that is spelled like it, and
/// takes a connection at once.
bool takesConnections(const QByteArray& path);

}  // namespace vantor
