#include <arpa/inet.h>
#include <ifaddrs.h>
#include <libproc.h>
#include <mach/mach.h>
#include <mach/mach_time.h>
#include <net/if.h>
#include <net/if_var.h>
#include <net/route.h>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/errno.h>
#include <sys/proc_info.h>
#include <sys/socket.h>
#include <sys/sysctl.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "platform/darwin/interface_calls.h"
#include "platform/darwin/interface_message.h"
#include "platform/darwin/smc_record.h"
#include "platform/host_memory.h"
#include "platform/host_processors.h"
#include "platform/macos/network/interface_entry.h"
#include "platform/process_table.h"

// What the readers and this adapter take for granted of the system, held against its own headers.
namespace vantor {

namespace {

// Processors: four counters of 32 bits each, in this order, whole and for each processor.
static_assert(CPU_STATE_USER == 0 && CPU_STATE_SYSTEM == 1 && CPU_STATE_IDLE == 2 &&
              CPU_STATE_NICE == 3 && CPU_STATE_MAX == 4);
static_assert(HOST_CPU_LOAD_INFO_COUNT == 4 && PROCESSOR_CPU_LOAD_INFO_COUNT == 4);
static_assert(sizeof(host_cpu_load_info_data_t) == 4 * sizeof(std::uint32_t));
static_assert(sizeof(processor_cpu_load_info_data_t) == 4 * sizeof(std::uint32_t));
static_assert(sizeof(integer_t) == sizeof(std::uint32_t));
static_assert(std::is_same_v<mach_port_t, HostProcessors::Port> &&
              std::is_same_v<mach_port_t, HostMemory::Port>);
static_assert(std::is_same_v<mach_msg_type_number_t, std::uint32_t> &&
              std::is_same_v<natural_t, std::uint32_t>);

// Memory: where the counts stand, in words, and that a record fits into what the reader offers.
constexpr bool isWordOfRecord(std::size_t word, std::size_t offset) {
    return word * sizeof(std::uint32_t) == offset;
}
using MemoryRecord = vm_statistics64_data_t;
using Layout = HostMemory::Layout;
static_assert(isWordOfRecord(Layout::active, offsetof(MemoryRecord, active_count)));
static_assert(isWordOfRecord(Layout::inactive, offsetof(MemoryRecord, inactive_count)));
static_assert(isWordOfRecord(Layout::wired, offsetof(MemoryRecord, wire_count)));
static_assert(isWordOfRecord(Layout::purgeable, offsetof(MemoryRecord, purgeable_count)));
static_assert(isWordOfRecord(Layout::compressor, offsetof(MemoryRecord, compressor_page_count)));
static_assert(std::is_same_v<decltype(MemoryRecord::active_count), std::uint32_t> &&
              std::is_same_v<decltype(MemoryRecord::purgeable_count), std::uint32_t> &&
              std::is_same_v<decltype(MemoryRecord::compressor_page_count), std::uint32_t>);
static_assert(HOST_VM_INFO64_COUNT > Layout::compressor && HOST_VM_INFO64_COUNT <= 62);

// Processes.
static_assert(sizeof(proc_taskallinfo) == ProcessTable::taskAllInfoSize);
static_assert(sizeof(proc_bsdinfo) + sizeof(proc_taskinfo) == sizeof(proc_taskallinfo));
static_assert(std::is_same_v<decltype(proc_bsdinfo::pbi_start_tvsec), std::uint64_t> &&
              std::is_same_v<decltype(proc_bsdinfo::pbi_start_tvusec), std::uint64_t> &&
              std::is_same_v<decltype(proc_taskinfo::pti_resident_size), std::uint64_t> &&
              std::is_same_v<decltype(proc_taskinfo::pti_total_user), std::uint64_t> &&
              std::is_same_v<decltype(proc_taskinfo::pti_total_system), std::uint64_t>);
static_assert(sizeof(pid_t) == sizeof(std::int32_t) && PROC_PIDTASKALLINFO == 2);
static_assert(PROC_PIDPATHINFO_MAXSIZE == 4096, "the room that the reader offers for a path");
static_assert(2 * MAXCOMLEN < 1024, "the room that it offers for a name");
static_assert(std::is_same_v<decltype(mach_timebase_info_data_t::numer), std::uint32_t> &&
              std::is_same_v<decltype(mach_timebase_info_data_t::denom), std::uint32_t>);

// Interfaces: the list with 64-bit counters.
namespace message = interface_message;
static_assert(message::path[0] == CTL_NET && message::path[1] == PF_ROUTE &&
              message::path[3] == AF_UNSPEC && message::path[4] == NET_RT_IFLIST2);
static_assert(message::version == RTM_VERSION && message::type == RTM_IFINFO2);
static_assert(sizeof(if_msghdr2) == message::size);
static_assert(offsetof(if_msghdr2, ifm_msglen) == message::lengthOffset &&
              offsetof(if_msghdr2, ifm_version) == message::versionOffset &&
              offsetof(if_msghdr2, ifm_type) == message::typeOffset &&
              offsetof(if_msghdr2, ifm_index) == message::indexOffset);
static_assert(offsetof(if_msghdr2, ifm_data) + offsetof(if_data64, ifi_ibytes) ==
                  message::receivedOffset &&
              offsetof(if_msghdr2, ifm_data) + offsetof(if_data64, ifi_obytes) ==
                  message::sentOffset);
static_assert(sizeof(if_msghdr2::ifm_msglen) == 2 && sizeof(if_msghdr2::ifm_index) == 2 &&
              sizeof(if_data64::ifi_ibytes) == 8 && sizeof(if_data64::ifi_obytes) == 8);
static_assert(__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__);

// Interfaces: the list of addresses.
static_assert(InterfaceCalls::up == IFF_UP && InterfaceCalls::loopback == IFF_LOOPBACK &&
              InterfaceCalls::pointToPoint == IFF_POINTOPOINT &&
              InterfaceCalls::running == IFF_RUNNING);
static_assert(address_family::ipv4 == AF_INET && address_family::link == AF_LINK &&
              address_family::ipv6 == AF_INET6);
static_assert(std::is_same_v<decltype(if_data::ifi_ibytes), std::uint32_t> &&
              std::is_same_v<decltype(if_data::ifi_obytes), std::uint32_t>);
static_assert(sizeof(in_addr) == 4 && sizeof(in6_addr) == 16);
static_assert(IF_NAMESIZE == 16 && NI_MAXHOST == 1025, "the rooms that the reader offers");

// Kernel values.
static_assert(ENOMEM == 12);

// The system management controller has no public header: this is its record by its parts, laid out
// as any C compiler does.
struct ControllerRecord {
    std::uint32_t key;
    struct {
        std::uint8_t major, minor, build, reserved;
        std::uint16_t release;
    } version;
    struct {
        std::uint16_t version, length;
        std::uint32_t processor, graphics, memory;
    } limits;
    struct {
        std::uint32_t size;
        std::uint32_t type;
        std::uint8_t attributes;
    } info;
    std::uint8_t result;
    std::uint8_t status;
    std::uint8_t command;
    std::uint32_t number;
    std::array<std::uint8_t, 32> value;
};
static_assert(sizeof(ControllerRecord) == SMCRecord::size);
static_assert(offsetof(ControllerRecord, key) == SMCRecord::keyOffset &&
              offsetof(ControllerRecord, info.size) == SMCRecord::dataSizeOffset &&
              offsetof(ControllerRecord, info.type) == SMCRecord::dataTypeOffset &&
              offsetof(ControllerRecord, result) == SMCRecord::resultOffset &&
              offsetof(ControllerRecord, command) == SMCRecord::commandOffset &&
              offsetof(ControllerRecord, value) == SMCRecord::valueOffset &&
              sizeof(ControllerRecord::value) == SMCRecord::valueSize);

}  // namespace

}  // namespace vantor
