#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace vantor {

/// A Mac's system management controller, which is asked by records of 80 bytes. Any thread, and
/// several connections at once; one connection is one thread's.
///
/// macOS: IOServiceGetMatchingService("AppleSMC"), IOServiceOpen, IOConnectCallStructMethod,
/// IOServiceClose, IOObjectRelease.
class SystemController {
  public:
    using Service = std::uint32_t;     ///< 0 = none
    using Connection = std::uint32_t;  ///< 0 = none

    virtual ~SystemController() = default;

    /// 0 when the machine has no controller; else to be released.
    virtual Service matchingService() = 0;
    virtual void release(Service service) = 0;

    /// 0 when it could not be opened; else to be closed.
    virtual Connection open(Service service) = 0;
    virtual void close(Connection connection) = 0;

    /// Selector 2 takes and gives a record. 0 when it could be asked; `responseSize` is then what
    /// was written into `response`.
    virtual int callStructMethod(Connection connection, std::uint32_t selector,
                                 std::span<const std::byte> request, std::span<std::byte> response,
                                 std::size_t& responseSize) = 0;
};

}  // namespace vantor
