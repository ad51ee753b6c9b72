#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>

#include "platform/file_descriptor.h"

namespace vantor {

/// Asks the kernel for whole lists over one netlink socket that is kept open, with a buffer that is
/// kept too. One thread at a time.
///
/// The socket belongs to the network namespace that the program is in at the first question.
class NetlinkDump {
  public:
    using OpenSocket = std::function<FileDescriptor()>;

    /// Takes the payload of one message of the list; false when it is malformed.
    struct Receiver {
        virtual ~Receiver() = default;
        virtual void restart() = 0;  ///< what came so far is not the list: it comes anew
        virtual bool take(std::uint16_t type, std::span<const std::byte> payload) = 0;
    };

    explicit NetlinkDump(OpenSocket openSocket = openRouteSocket)
        : openSocket_(std::move(openSocket)) {}

    /// Sends `request`, which begins with its nlmsghdr (flags and number are filled in here), and
    /// hands the answer over. A list that changed while the kernel wrote it, or that did not fit
    /// into the buffer, is asked for again, a few times. False when there is no whole list.
    bool dump(std::span<std::byte> request, Receiver& receiver);

    /// A socket of NETLINK_ROUTE whose reads time out after two seconds.
    static FileDescriptor openRouteSocket();

  private:
    enum class Outcome { whole, again, failed };

    Outcome dumpOnce(std::span<std::byte> request, Receiver& receiver);
    bool send(std::span<std::byte> request);
    void makeBuffer(std::size_t size);
    Outcome receive(std::span<const std::byte>& datagram);

    OpenSocket openSocket_;
    FileDescriptor socket_;
    std::uint32_t sequence_ = 0;
    std::unique_ptr<std::byte[]> buffer_;  // not cleared: what is never filled takes no memory
    std::size_t bufferSize_ = 0;
};

}  // namespace vantor
