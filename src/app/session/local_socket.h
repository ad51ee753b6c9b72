#pragma once

#include <QByteArray>

#include "platform/file_descriptor.h"

namespace vantor {

/// Sockets of this machine, at a path; they never block and are not inherited. Failures, and a path
/// that is too long for an address, return no descriptor.
FileDescriptor listeningAt(const QByteArray& path);
FileDescriptor connectedTo(const QByteArray& path);

/// The next client; none when there is none, with the reason in errno.
FileDescriptor acceptedFrom(const FileDescriptor& listening);

}  // namespace vantor
