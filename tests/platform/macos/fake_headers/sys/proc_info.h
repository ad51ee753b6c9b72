#pragma once

#include <cstdint>

// The facts that are used, at any place: their true places are proved against the true header.
struct proc_bsdinfo {
    std::uint64_t pbi_start_tvsec;
    std::uint64_t pbi_start_tvusec;
};
struct proc_taskinfo {
    std::uint64_t pti_resident_size;
    std::uint64_t pti_total_user;
    std::uint64_t pti_total_system;
};
struct proc_taskallinfo {
    proc_bsdinfo pbsd;
    proc_taskinfo ptinfo;
    std::uint8_t rest[232 - sizeof(proc_bsdinfo) - sizeof(proc_taskinfo)];
};

#define PROC_PIDTASKALLINFO 2
#define PROC_PIDPATHINFO_MAXSIZE 4096
