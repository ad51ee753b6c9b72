#pragma once

#include <QByteArray>

namespace vantor {

/// Whether somebody listens at that path, or at the name of no file that is spelled like it, and
/// takes a connection without being waited for.
bool takesConnections(const QByteArray& path);

}  // namespace vantor
