#pragma once

#include "mach/mach.h"

struct mach_timebase_info_data_t {
    std::uint32_t numer;
    std::uint32_t denom;
};

kern_return_t mach_timebase_info(mach_timebase_info_data_t* info);
