#pragma once

#include <cstddef>

// Played by fake_proc_kernel.cpp.
int sysctlbyname(const char* name, void* value, std::size_t* size, void* newValue,
                 std::size_t newSize);
