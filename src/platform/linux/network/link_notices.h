#pragma once

#include <functional>
#include <utility>

#include "platform/file_descriptor.h"

namespace vantor {

/// Tells whether links or their addresses may have changed, by a socket that the kernel writes to
/// whenever one comes, goes or is altered (rtnetlink(7), the groups of links and of the addresses
/// of both families). What it writes is not looked at. One thread at a time.
class LinkNotices {
  public:
    using OpenSocket = std::function<FileDescriptor()>;

    explicit LinkNotices(OpenSocket openSocket = openGroupSocket)
        : openSocket_(std::move(openSocket)) {}

    /// Whether anything may have changed since the last call. True at the first one, whenever some
    /// notices were lost, and always where there is no such socket. Never waits.
    bool take();

    /// A socket of NETLINK_ROUTE that is in these groups.
    static FileDescriptor openGroupSocket();

  private:
    OpenSocket openSocket_;
    FileDescriptor socket_;
};

}  // namespace vantor
