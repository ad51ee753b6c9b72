vantor_add_tests(sampling_tests LABEL core SOURCES
    sampling/commit_gpu_test.cpp
    sampling/commit_test.cpp
    sampling/main_task_test.cpp
    sampling/provider_gate_test.cpp
    sampling/system_monitor_control_test.cpp
    sampling/system_monitor_history_test.cpp
    sampling/system_monitor_loop_test.cpp
    sampling/system_monitor_receive_test.cpp
    sampling/system_sampler_provider_test.cpp
    sampling/system_sampler_test.cpp)

vantor_add_tests(sampling_thread_tests LABEL core SOURCES
    sampling/hanging_probe_test.cpp
    sampling/monitor_stress_test.cpp
    sampling/sampler_stress_test.cpp)

# Quits by itself while one of its threads hangs for ever.
add_executable(hanging_probe_program sampling/hanging_probe_program.cpp)
target_include_directories(hanging_probe_program PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(hanging_probe_program PRIVATE vantor_core vantor_warnings)
add_dependencies(sampling_thread_tests hanging_probe_program)
target_compile_definitions(sampling_thread_tests PRIVATE
    VANTOR_HANGING_PROGRAM="$<TARGET_FILE:hanging_probe_program>")

# A program of its own, because it replaces operator new; the sanitizers replace it themselves.
if(NOT VANTOR_SANITIZE)
    vantor_add_tests(allocation_tests LABEL core SOURCES
        sampling/allocation_test.cpp
        sampling/counted_allocations.cpp)
endif()
