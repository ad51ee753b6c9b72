vantor_add_tests(sampling_tests LABEL core SOURCES
    sampling/commit_gpu_test.cpp
    sampling/commit_test.cpp
    sampling/commit_times_test.cpp
    sampling/gpu_monitoring_test.cpp
    sampling/histories_test.cpp
    sampling/main_task_test.cpp
    sampling/monitor_end_test.cpp
    sampling/provider_gate_test.cpp
    sampling/sampler_temperature_test.cpp
    sampling/snapshot_export_end_test.cpp
    sampling/snapshot_export_test.cpp
    sampling/system_monitor_control_test.cpp
    sampling/system_monitor_history_test.cpp
    sampling/system_monitor_loop_test.cpp
    sampling/system_monitor_receive_test.cpp
    sampling/system_sampler_provider_test.cpp
    sampling/system_sampler_test.cpp)

vantor_add_tests(sampling_thread_tests LABEL core SOURCES
    sampling/hanging_probe_test.cpp
    sampling/monitor_stress_test.cpp
    sampling/sampler_stress_test.cpp
    sampling/snapshot_export_thread_test.cpp)
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
    target_sources(sampling_thread_tests PRIVATE
        sampling/hanging_volumes_test.cpp)
endif()

# Programs that end while a thread of theirs hangs for ever, or is at work.
foreach(end hanging_end hanging_volumes_end busy_end)
    add_executable(${end}_program sampling/${end}_program.cpp)
    vantor_set_up_test_target(${end}_program)
    target_link_libraries(${end}_program PRIVATE vantor_test_support)
    target_precompile_headers(${end}_program REUSE_FROM vantor_test_headers)
    add_dependencies(sampling_thread_tests ${end}_program)
    string(TOUPPER ${end} END)
    target_compile_definitions(sampling_thread_tests PRIVATE
        VANTOR_${END}_PROGRAM="$<TARGET_FILE:${end}_program>")
endforeach()

# A program of its own, because it replaces operator new; the sanitizers replace it themselves.
if(NOT VANTOR_SANITIZE AND CMAKE_SYSTEM_NAME STREQUAL "Linux")
    vantor_add_tests(allocation_tests LABEL core SOURCES
        sampling/allocation_test.cpp
        sampling/counted_allocations.cpp
        sampling/gpu_allocation_test.cpp
        sampling/network_allocation_test.cpp
        sampling/process_allocation_test.cpp
        sampling/slow_state_allocation_test.cpp)
endif()
