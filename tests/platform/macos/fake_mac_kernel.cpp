#include "platform/macos/fake_mac_kernel.h"

#include <libproc.h>
#include <mach/mach_time.h>
#include <sys/proc_info.h>
#include <sys/sysctl.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <map>
#include <memory>
#include <utility>

namespace {

vantor::FakeMacKernel* kernel = nullptr;
constexpr mach_port_t hostPort = 0x507;
constexpr mach_port_t taskPort = 0x103;

std::map<const void*, std::unique_ptr<integer_t[]>>& arrays() {
    static std::map<const void*, std::unique_ptr<integer_t[]>> arrays;
    return arrays;
}

/// As the kernel answers: with as much as there is and is asked for.
kern_return_t copyRecord(const std::vector<std::uint32_t>& record, integer_t* info,
                         mach_msg_type_number_t* count) {
    *count = std::min<mach_msg_type_number_t>(*count, static_cast<std::uint32_t>(record.size()));
    std::memcpy(info, record.data(), *count * sizeof(std::uint32_t));
    return KERN_SUCCESS;
}

int copyText(const std::string& text, void* buffer, std::uint32_t byteCount) {
    if (text.empty() || text.size() >= byteCount) return 0;
    std::memcpy(buffer, text.c_str(), text.size() + 1);
    return static_cast<int>(text.size());
}

}  // namespace

namespace vantor {

FakeMacKernel::FakeMacKernel() {
    kernel = this;
}

FakeMacKernel::~FakeMacKernel() {
    kernel = nullptr;
}

FakeMacKernel& FakeMacKernel::current() {
    return *kernel;
}

}  // namespace vantor

mach_port_t mach_host_self() {
    ++kernel->portsHeld;
    return hostPort;
}

mach_port_t mach_task_self() {
    return taskPort;
}

kern_return_t mach_port_deallocate(mach_port_t task, mach_port_t port) {
    if (task != taskPort || port != hostPort) return KERN_FAILURE;
    --kernel->portsHeld;
    return KERN_SUCCESS;
}

kern_return_t host_statistics(mach_port_t host, int flavor, host_info_t info,
                              mach_msg_type_number_t* count) {
    if (kernel->fails || host != hostPort || flavor != HOST_CPU_LOAD_INFO ||
        *count < HOST_CPU_LOAD_INFO_COUNT) {
        return KERN_FAILURE;
    }
    return copyRecord(kernel->total, info, count);
}

kern_return_t host_statistics64(mach_port_t host, int flavor, host_info64_t info,
                                mach_msg_type_number_t* count) {
    if (kernel->fails || host != hostPort || flavor != HOST_VM_INFO64) return KERN_FAILURE;
    return copyRecord(kernel->memoryRecord, info, count);
}

kern_return_t host_processor_info(mach_port_t host, int flavor, natural_t* processorCount,
                                  processor_info_array_t* info, mach_msg_type_number_t* count) {
    if (kernel->fails || host != hostPort || flavor != PROCESSOR_CPU_LOAD_INFO) {
        return KERN_FAILURE;
    }
    const auto& words = kernel->perProcessor;
    auto array = std::make_unique<integer_t[]>(words.size());
    std::memcpy(array.get(), words.data(), words.size() * sizeof(integer_t));
    *info = array.get();
    *count = static_cast<mach_msg_type_number_t>(words.size());
    *processorCount = *count / 4;
    kernel->arraysHeld.push_back(words.size() * sizeof(integer_t));
    arrays().emplace(*info, std::move(array));
    return KERN_SUCCESS;
}

kern_return_t host_page_size(mach_port_t host, vm_size_t* size) {
    if (kernel->fails || host != hostPort) return KERN_FAILURE;
    *size = kernel->pageSize;
    return KERN_SUCCESS;
}

kern_return_t vm_deallocate(mach_port_t task, vm_address_t address, vm_size_t size) {
    auto& held = kernel->arraysHeld;
    const auto known = std::find(held.begin(), held.end(), size);
    const auto array = arrays().find(reinterpret_cast<const void*>(address));
    if (task != taskPort || known == held.end() || array == arrays().end()) return KERN_FAILURE;
    held.erase(known);
    arrays().erase(array);
    return KERN_SUCCESS;
}

kern_return_t mach_timebase_info(mach_timebase_info_data_t* info) {
    if (kernel->fails) return KERN_FAILURE;
    *info = {kernel->numerator, kernel->denominator};
    return KERN_SUCCESS;
}

int proc_listallpids(void* buffer, int byteCount) {
    if (kernel->fails) return -1;
    const auto count = static_cast<int>(kernel->processes.size());
    if (!buffer) return count + 20;  // with some to spare, as the true one
    const int written = std::min(count, byteCount / int{sizeof(std::int32_t)});
    auto* to = static_cast<std::int32_t*>(buffer);
    for (auto process = kernel->processes.begin();
         to != static_cast<std::int32_t*>(buffer) + written; ++process)
        *to++ = process->first;
    return written;
}

int proc_pidinfo(int pid, int flavor, std::uint64_t, void* buffer, int byteCount) {
    const auto found = kernel->processes.find(pid);
    if (kernel->fails || found == kernel->processes.end() || flavor != PROC_PIDTASKALLINFO ||
        byteCount != int{sizeof(proc_taskallinfo)}) {
        return 0;
    }
    const auto& process = found->second;
    proc_taskallinfo info{};
    info.pbsd = {process.startSeconds, process.startMicroseconds};
    info.ptinfo = {process.resident, process.user, process.system};
    std::memcpy(buffer, &info, sizeof info);
    return byteCount;
}

int proc_pidpath(int pid, void* buffer, std::uint32_t byteCount) {
    kernel->maxBytesOfPath = std::max(kernel->maxBytesOfPath, static_cast<int>(byteCount));
    const auto found = kernel->processes.find(pid);
    if (kernel->fails || found == kernel->processes.end()) return 0;
    if (byteCount > PROC_PIDPATHINFO_MAXSIZE) return 0;  // EOVERFLOW
    return copyText(found->second.path, buffer, byteCount);
}

int proc_name(int pid, void* buffer, std::uint32_t byteCount) {
    const auto found = kernel->processes.find(pid);
    if (kernel->fails || found == kernel->processes.end()) return 0;
    return copyText(found->second.name, buffer, byteCount);
}

int sysctlbyname(const char* name, void* value, std::size_t* size, void*, std::size_t) {
    const auto found = kernel->values.find(name);
    if (kernel->fails || found == kernel->values.end()) {
        errno = ENOENT;
        return -1;
    }
    const auto& bytes = found->second;
    const std::size_t room = *size;
    *size = bytes.size();
    if (!value) return 0;
    std::memcpy(value, bytes.data(), std::min(room, bytes.size()));
    if (room >= bytes.size()) return 0;
    errno = ENOMEM;
    return -1;
}
