vantor_add_tests(model_tests LABEL core LIBRARIES vantor_record_coding SOURCES
    model/equality_test.cpp
    model/number_text_test.cpp
    model/empty_records_test.cpp
    model/record_coding_test.cpp
    model/record_fields_test.cpp
    model/record_values_test.cpp
    model/shared_text_test.cpp
    model/snapshot_document_test.cpp
    model/snapshot_document_values_test.cpp
    model/snapshot_file_name_test.cpp
    model/timestamp_test.cpp
    model/utf8_test.cpp)

vantor_add_tests(probes_tests LABEL core SOURCES
    probes/interface_rules_test.cpp
    probes/cpu_reader_cores_test.cpp
    probes/cpu_reader_identity_test.cpp
    probes/cpu_reader_test.cpp
    probes/cpu_ticks_test.cpp
    probes/gpu_extraction_test.cpp
    probes/gpu_flattening_test.cpp
    probes/gpu_matching_test.cpp
    probes/gpu_names_test.cpp
    probes/gpu_reader_rows_test.cpp
    probes/gpu_reader_test.cpp
    probes/hardware_temperature_reader_test.cpp
    probes/top_n_test.cpp
    probes/interface_order_test.cpp
    probes/memory_reader_test.cpp
    probes/network_reader_interfaces_test.cpp
    probes/network_reader_primary_test.cpp
    probes/network_reader_test.cpp
    probes/pid_map_test.cpp
    probes/power_reader_test.cpp
    probes/process_names_test.cpp
    probes/process_reader_listing_test.cpp
    probes/process_reader_names_test.cpp
    probes/process_reader_stress_test.cpp
    probes/process_reader_test.cpp
    probes/process_reader_time_base_test.cpp
    probes/process_storage_test.cpp
    probes/storage_reader_test.cpp
    probes/system_info_reader_test.cpp)

vantor_add_tests(sequence_tests LABEL core LIBRARIES vantor_sequences SOURCES
    sequences/sequences_test.cpp)

vantor_add_tests(platform_tests LABEL core SOURCES
    platform/name_map_test.cpp
    platform/property_value_test.cpp
    platform/published_test.cpp
    platform/reusable_list_test.cpp
    platform/simulated/fake_main_loop_test.cpp
    platform/simulated/fake_serial_queue_test.cpp
    platform/sysctl_test.cpp
    support/threaded_main_loop_test.cpp
    platform/threads/threaded_serial_queue_test.cpp
    platform/unique_function_test.cpp)

if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
    vantor_add_tests(linux_tests LABEL core SOURCES
        platform/linux/network/address_text_test.cpp
        platform/linux/graphics/amdgpu_ids_test.cpp
        platform/linux/memory/arc_stats_test.cpp
        platform/linux/files/attribute_file_test.cpp
        platform/linux/power/battery_charge_test.cpp
        platform/linux/storage/block_device_test.cpp
        platform/linux/graphics/card_back_off_test.cpp
        platform/linux/processor/cpu_identity_test.cpp
        platform/linux/processor/cpu_list_test.cpp
        platform/linux/confinement/denied_attempts.cpp
        platform/linux/graphics/drm_clients_test.cpp
        platform/linux/graphics/drm_fdinfo_test.cpp
        platform/linux/graphics/engine_use_test.cpp
        platform/linux/graphics/failing_card_sensor_test.cpp
        platform/linux/sensors/failing_processor_sensor_test.cpp
        platform/linux/storage/file_system_kind_test.cpp
        platform/linux/storage/file_systems_test.cpp
        platform/linux/graphics/graphics_names_test.cpp
        platform/linux/storage/hidden_block_device_test.cpp
        platform/linux/system/kernel_facts_test.cpp
        platform/linux/files/kernel_file_test.cpp
        platform/linux/files/kernel_list_file_test.cpp
        platform/linux/network/link_messages_test.cpp
        platform/linux/network/link_notices_test.cpp
        platform/linux/network/link_source_test.cpp
        platform/linux/graphics/linux_accelerators_test.cpp
        platform/posix/libc_name_order_test.cpp
        platform/linux/confinement/linux_confinement_test.cpp
        platform/linux/graphics/linux_graphics_devices_test.cpp
        platform/linux/memory/linux_host_memory_test.cpp
        platform/linux/processor/linux_host_processors_test.cpp
        platform/linux/system/linux_kernel_values_test.cpp
        platform/linux/processor/linux_load_averages_test.cpp
        platform/linux/storage/linux_mounted_volumes_test.cpp
        platform/linux/network/linux_network_interfaces_test.cpp
        platform/linux/network/linux_primary_interface_test.cpp
        platform/linux/system/linux_process_info_test.cpp
        platform/linux/processes/linux_process_table_listing_test.cpp
        platform/linux/processes/linux_process_table_names_test.cpp
        platform/linux/processes/linux_process_table_test.cpp
        platform/linux/sensors/linux_sensors_test.cpp
        platform/linux/memory/live_memory_test.cpp
        platform/linux/network/live_network_test.cpp
        platform/linux/processes/live_process_churn_test.cpp
        platform/linux/processes/live_process_names_test.cpp
        platform/linux/processes/live_process_namespace_test.cpp
        platform/linux/processes/live_processes_test.cpp
        platform/linux/processor/live_processors_test.cpp
        platform/linux/system/live_system_info_test.cpp
        platform/linux/sensors/live_temperature_test.cpp
        platform/linux/storage/live_volumes_test.cpp
        platform/linux/power/low_power_mode_test.cpp
        platform/linux/memory/mem_info_test.cpp
        platform/linux/memory/memory_breakdown_test.cpp
        platform/linux/storage/mount_table_file_test.cpp
        platform/linux/storage/mount_table_test.cpp
        platform/linux/network/netlink_dump_test.cpp
        platform/linux/network/netlink_messages_test.cpp
        platform/linux/graphics/nvml_library_test.cpp
        platform/linux/system/os_release_test.cpp
        platform/linux/graphics/pci_address_test.cpp
        platform/linux/graphics/pci_ids_test.cpp
        platform/linux/processes/pid_listing_test.cpp
        platform/linux/power/power_supply_test.cpp
        platform/linux/processor/proc_stat_test.cpp
        platform/linux/processes/process_arguments_test.cpp
        platform/linux/processes/process_clocks_test.cpp
        platform/linux/processes/process_stat_test.cpp
        platform/linux/processes/reclaim_watch_test.cpp
        platform/linux/sensors/processor_sensor_names_test.cpp
        platform/linux/processor/recorded_proc_stat_test.cpp
        platform/linux/network/route_source_test.cpp
        platform/linux/network/route_tables_test.cpp
        platform/linux/graphics/runtime_status_test.cpp
        platform/linux/power/silent_battery_test.cpp
        platform/linux/graphics/sleeping_graphics_card_test.cpp
        platform/linux/files/small_file_test.cpp
        platform/linux/files/monotonic_counter_test.cpp
        platform/linux/sensors/thermal_zones_test.cpp
        platform/linux/storage/udev_data_test.cpp
        platform/linux/storage/volume_list_test.cpp
        platform/linux/memory/zram_devices_test.cpp
        platform/posix/failing_file_writes_test.cpp
        platform/posix/killed_file_writes_test.cpp
        platform/posix/leftover_files_test.cpp
        platform/posix/posix_atomic_file_writer_test.cpp
        platform/posix/posix_local_calendar_test.cpp
        platform/posix/posix_shared_file_test.cpp)
    if(ICU_FOUND)
        target_sources(linux_tests PRIVATE
            platform/posix/icu_name_order_test.cpp
            platform/posix/plain_name_key_test.cpp)
    endif()
    vantor_add_failing_reads(linux_tests)
    # The libraries that nvml_library_test.cpp loads.
    foreach(variant "" _OLD _USELESS _NO_SHUTDOWN _NO_HANDLE _NO_UTILIZATION)
        string(TOLOWER "fake_nvml${variant}" library)
        add_library(${library} MODULE support/fake_nvml.cpp)
        target_include_directories(${library} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
        target_compile_definitions(${library} PRIVATE FAKE_NVML${variant})
        target_link_libraries(${library} PRIVATE vantor_warnings)
        # The driver's own library tells no sanitizer of its functions' types either.
        target_compile_options(${library} PRIVATE
            $<$<CXX_COMPILER_ID:Clang>:-fno-sanitize=function>)
        add_dependencies(linux_tests ${library})
        set_property(SOURCE platform/linux/graphics/nvml_library_test.cpp APPEND PROPERTY
            COMPILE_DEFINITIONS FAKE_NVML${variant}_FILE="$<TARGET_FILE:${library}>")
    endforeach()
    # Those of them with threads.
    vantor_add_tests(linux_thread_tests LABEL core SOURCES
        platform/linux/storage/hanging_volume_test.cpp
        platform/linux/power/linux_power_sources_test.cpp
        platform/linux/storage/patient_file_systems_test.cpp
        platform/linux/processes/pid_tracker_test.cpp
        platform/linux/sensors/processor_sensors_search_test.cpp
        platform/linux/sensors/processor_sensors_test.cpp
        platform/linux/storage/served_volumes_test.cpp
        platform/linux/storage/silent_file_system_test.cpp
        support/served_folder.cpp)
    vantor_add_failing_reads(linux_thread_tests)
    # A program of its own: its process leaves the network namespace that it was started in.
    vantor_add_tests(network_namespace_tests LABEL core SOURCES
        platform/linux/network/network_changes_test.cpp
        platform/linux/network/network_transfer_test.cpp
        support/network_namespace.cpp)
endif()

# On every system: a Mac's calls by script.
vantor_add_tests(darwin_tests LABEL core SOURCES
    platform/darwin/chip_family_test.cpp
    platform/darwin/darwin_network_interfaces_test.cpp
    platform/darwin/darwin_primary_interface_test.cpp
    platform/darwin/darwin_sensors_test.cpp
    platform/darwin/gpu_sensors_test.cpp
    platform/darwin/hid_sensors_test.cpp
    platform/darwin/hid_temperature_reader_test.cpp
    platform/darwin/interface_dump_reader_test.cpp
    platform/darwin/interface_dump_test.cpp
    platform/darwin/smc_record_test.cpp
    platform/darwin/smc_temperature_reader_test.cpp
    platform/darwin/smc_value_test.cpp)

# On every system: the frameworks of a Mac are stood in for.
vantor_add_tests(macos_platform_tests LABEL core SOURCES
    platform/macos/frameworks/fake_core_foundation.cpp
    platform/macos/fake_darwin.cpp
    platform/macos/frameworks/fake_event_system.cpp
    platform/macos/frameworks/fake_io_kit.cpp
    platform/macos/frameworks/fake_objective_c.cpp
    platform/macos/frameworks/fake_objects.cpp
    platform/macos/frameworks/fake_volumes.cpp
    platform/macos/frameworks/frameworks_test.cpp
    platform/macos/frameworks/frameworks_test_support.cpp
    platform/macos/graphics/mac_accelerators_test.cpp
    platform/macos/network/mac_dynamic_store_test.cpp
    platform/macos/system/mac_foundation_info_test.cpp
    platform/macos/graphics/mac_graphics_devices_test.cpp
    platform/macos/sensors/mac_hid_event_system_test.cpp
    platform/macos/storage/mac_mounted_volumes_test.cpp
    platform/macos/system/mac_name_order_test.cpp
    platform/macos/power/mac_power_sources_test.cpp
    platform/macos/mac_readers_test.cpp
    platform/macos/sensors/mac_system_controller_test.cpp
    platform/macos/frameworks/property_conversion_test.cpp
    platform/macos/frameworks/retained_reference_test.cpp)
target_link_libraries(macos_platform_tests PRIVATE vantor_macos_logic)

# The adapter for macOS runs here as well: what needs its system's headers, on a stand-in for them.
if(NOT CMAKE_SYSTEM_NAME STREQUAL "Darwin")
    vantor_add_tests(macos_kernel_tests LABEL core SOURCES
        platform/macos/network/interface_entry_test.cpp
        platform/macos/kernel_calls_test.cpp
        platform/macos/system/mac_queue_factory_test.cpp
        platform/macos/fake_dispatcher.cpp
        platform/macos/fake_mac_kernel.cpp
        platform/macos/system/product_version_test.cpp)
    add_library(vantor_macos_kernel STATIC
        ${CMAKE_SOURCE_DIR}/src/platform/macos/memory/mac_host_memory.cpp
        ${CMAKE_SOURCE_DIR}/src/platform/macos/processor/mac_host_processors.cpp
        ${CMAKE_SOURCE_DIR}/src/platform/macos/system/mac_kernel_values.cpp
        ${CMAKE_SOURCE_DIR}/src/platform/macos/processor/mac_load_averages.cpp
        ${CMAKE_SOURCE_DIR}/src/platform/macos/processes/mac_process_table.cpp
        ${CMAKE_SOURCE_DIR}/src/platform/macos/system/mac_queue_factory.cpp)
    target_include_directories(vantor_macos_kernel BEFORE PUBLIC platform/macos/fake_headers)
    target_link_libraries(vantor_macos_kernel PUBLIC vantor_macos_logic PRIVATE vantor_warnings)
    target_link_libraries(macos_kernel_tests PRIVATE vantor_macos_kernel)
endif()

if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
    add_test(NAME LiveReadings.AreTrueForAnOrdinaryUserToo
        COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/support/as_ordinary_user.sh
            $<TARGET_FILE:linux_tests> *Live*)
    set_tests_properties(LiveReadings.AreTrueForAnOrdinaryUserToo PROPERTIES
        TIMEOUT 120 SKIP_RETURN_CODE 77 LABELS core)
    add_test(NAME Confinement.HoldsForAnOrdinaryUserToo
        COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/support/as_ordinary_user.sh
            $<TARGET_FILE:linux_tests> LinuxConfinement*)
    set_tests_properties(Confinement.HoldsForAnOrdinaryUserToo PROPERTIES
        TIMEOUT 120 SKIP_RETURN_CODE 77 LABELS core)
endif()

add_test(NAME MacBundle.WantsTheNewerOfOurOldestSystemAndTheToolkits
    COMMAND ${CMAKE_COMMAND} -P ${CMAKE_CURRENT_SOURCE_DIR}/platform/macos/minimum_system_test.cmake)
set_tests_properties(MacBundle.WantsTheNewerOfOurOldestSystemAndTheToolkits PROPERTIES LABELS core)

# The console program on the machine that the tests run on.
add_test(NAME VantorProbe.HasAnAnswerOfWhatMustAnswer COMMAND vantor_probe)
set_tests_properties(VantorProbe.HasAnAnswerOfWhatMustAnswer PROPERTIES TIMEOUT 120 LABELS core)
add_dependencies(core_tests vantor_probe)

vantor_add_tests(settings_tests LABEL core SOURCES
    settings/app_settings_test.cpp
    settings/appearance_test.cpp
    settings/autostart_entry_test.cpp
    settings/damaged_defaults_test.cpp
    settings/defaults_file_test.cpp
    settings/full_disk_test.cpp
    settings/ini_text_test.cpp
    settings/login_item_test.cpp
    settings/settings_loading_test.cpp
    settings/stored_settings_test.cpp)

vantor_add_tests(architecture_tests LABEL core SOURCES
    architecture/call_rules.cpp
    architecture/calls_test.cpp
    architecture/document_rules.cpp
    architecture/documents_test.cpp
    architecture/layer_rules.cpp
    architecture/layers_test.cpp)
