#pragma once

#include <cstdint>

// Played by fake_proc_kernel.cpp.
int proc_listallpids(void* buffer, int byteCount);
int proc_pidinfo(int pid, int flavor, std::uint64_t argument, void* buffer, int byteCount);
int proc_pidpath(int pid, void* buffer, std::uint32_t byteCount);
int proc_name(int pid, void* buffer, std::uint32_t byteCount);
