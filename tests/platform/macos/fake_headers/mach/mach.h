#pragma once

#include <cstdint>

// Played by fake_proc_kernel.cpp.
using kern_return_t = int;
using mach_port_t = std::uint32_t;
using natural_t = std::uint32_t;
using mach_msg_type_number_t = std::uint32_t;
using integer_t = int;
using host_info_t = integer_t*;
using host_info64_t = integer_t*;
using processor_info_array_t = integer_t*;
using vm_address_t = std::uintptr_t;
using vm_size_t = std::uintptr_t;

#define KERN_SUCCESS 0
#define KERN_FAILURE 5
#define HOST_CPU_LOAD_INFO 3
#define HOST_CPU_LOAD_INFO_COUNT 4U
#define HOST_VM_INFO64 4
#define PROCESSOR_CPU_LOAD_INFO 2

mach_port_t mach_host_self();
mach_port_t mach_task_self();
kern_return_t mach_port_deallocate(mach_port_t task, mach_port_t port);
kern_return_t host_statistics(mach_port_t host, int flavor, host_info_t info,
                              mach_msg_type_number_t* count);
kern_return_t host_statistics64(mach_port_t host, int flavor, host_info64_t info,
                                mach_msg_type_number_t* count);
kern_return_t host_processor_info(mach_port_t host, int flavor, natural_t* processorCount,
                                  processor_info_array_t* info, mach_msg_type_number_t* count);
kern_return_t host_page_size(mach_port_t host, vm_size_t* size);
kern_return_t vm_deallocate(mach_port_t task, vm_address_t address, vm_size_t size);
