#pragma once

#include <QByteArray>

#include "platform/file_descriptor.h"

namespace vantor {

/// Sockets of this machine, at a path; none of them ever blocks or is inherited. What fails, or a
/// path that is too long for an address, gives no descriptor.
FileDescriptor listeningAt(const QByteArray& path);
FileDescriptor connectedTo(const QByteArray& path);

/// Who has knocked, if anybody has; errno tells why not.
FileDescriptor acceptedFrom(const FileDescriptor& listening);

}  // namespace vantor
