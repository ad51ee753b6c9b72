# A program that is kept open all day costs its memory all day, so a release is made small. What runs
# for each process, each network link or each pixel at every tick is made fast: these files.
set(hot
    platform/linux/kernel_file.cpp
    platform/linux/kernel_list_file.cpp
    platform/linux/linux_host_memory.cpp
    platform/linux/linux_host_processors.cpp
    platform/linux/linux_process_table.cpp
    platform/linux/mem_info.cpp
    platform/linux/netlink_messages.cpp
    platform/linux/pid_listing.cpp
    platform/linux/proc_stat.cpp
    platform/linux/process_census.cpp
    platform/linux/process_clocks.cpp
    platform/linux/process_stat.cpp
    probes/cpu_reader.cpp
    probes/cpu_ticks.cpp
    probes/interface_accumulators.cpp
    probes/interface_dump.cpp
    probes/interface_dump_reader.cpp
    probes/process_names.cpp
    probes/process_reader.cpp
    probes/process_storage.cpp
    sampling/commit.cpp
    ui/drawing/ground.cpp
    ui/drawing/line_raster.cpp
    ui/drawing/ring_raster.cpp
    ui/drawing/text_shapes.cpp)
set_source_files_properties(${hot} PROPERTIES COMPILE_OPTIONS $<$<CONFIG:Release>:-O2>)
