#pragma once

#include <cstddef>

namespace vantor {

/// How often the program has asked for memory with new, on all threads together. Only in programs
/// that link counted_allocations.cpp.
std::size_t countedAllocations();

}  // namespace vantor
