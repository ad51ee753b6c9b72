find_package(Qt6 6.4 REQUIRED COMPONENTS DBus)

# The program, of the same name as windows know it by, that a denied call ends.
add_executable(strict_program e2e/strict_program.cpp)
set_target_properties(strict_program PROPERTIES
    OUTPUT_NAME vantor RUNTIME_OUTPUT_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/strict)
target_link_libraries(strict_program PRIVATE vantor_app vantor_warnings)

# The program itself, in a real X server with a window manager.
add_executable(vantor_e2e_tests
    e2e/actions_test.cpp
    e2e/assistive_client.cpp
    e2e/appearance_test.cpp
    e2e/assistive_test.cpp
    e2e/languages_test.cpp
    e2e/bus_tray_test.cpp
    e2e/confined_minute_test.cpp
    e2e/confined_on_wayland_test.cpp
    e2e/confinement_test.cpp
    e2e/desktop.cpp
    e2e/export_failures_test.cpp
    e2e/export_portal_test.cpp
    e2e/export_scene.cpp
    e2e/export_test.cpp
    e2e/hung_volume_test.cpp
    e2e/known_calls_test.cpp
    e2e/lifecycle_test.cpp
    e2e/login_test.cpp
    e2e/main.cpp
    e2e/main_thread_files_test.cpp
    e2e/program_test.cpp
    e2e/running_program.cpp
    e2e/scarcity_test.cpp
    e2e/settings_faults_test.cpp
    e2e/small_screen_test.cpp
    e2e/tray_test.cpp
    e2e/wayland_test.cpp
    e2e/window_test.cpp
    e2e/windows_test.cpp
    e2e/spoken_program.cpp
    e2e/whole_use.cpp
    support/fake_notifier_tray.cpp
    support/fake_portal.cpp
    support/fake_settings_portal.cpp
    support/served_folder.cpp)
vantor_set_up_test_target(vantor_e2e_tests)
target_precompile_headers(vantor_e2e_tests REUSE_FROM vantor_widget_test_headers)
# The system's own Python first: that is the one whose packages the scripts install.
find_program(VANTOR_PYTHON python3 PATHS /usr/bin NO_DEFAULT_PATH)
find_program(VANTOR_PYTHON python3)
target_compile_definitions(vantor_e2e_tests PRIVATE
    VANTOR_PROGRAM="$<TARGET_FILE:vantor>"
    VANTOR_STRICT_PROGRAM="$<TARGET_FILE:strict_program>"
    VANTOR_INSTANCE_PROGRAM="$<TARGET_FILE:instance_program>"
    VANTOR_TRANSLATIONS="${CMAKE_SOURCE_DIR}/translations"
    VANTOR_PYTHON="${VANTOR_PYTHON}")
target_link_libraries(vantor_e2e_tests PRIVATE vantor_app)
add_dependencies(vantor_e2e_tests instance_program strict_program vantor)
add_dependencies(vantor_all_tests vantor_e2e_tests)
# Each test by itself: they take seconds, and so more of them can run side by side.
include(GoogleTest)
gtest_discover_tests(vantor_e2e_tests DISCOVERY_TIMEOUT 60
    XML_OUTPUT_DIR ${VANTOR_TEST_RESULTS}/vantor_e2e_tests
    PROPERTIES TIMEOUT ${VANTOR_TEST_TIMEOUT} LABELS e2e:vantor_e2e_tests)

# What a program should never meet, for scripts/faults: most of it takes minutes. It is built with the
# other tests so that it stays able to run; what is short runs with them.
add_library(shifted_clock MODULE e2e/faults/shifted_clock.cpp)
target_link_libraries(shifted_clock PRIVATE vantor_warnings)
foreach(program mount_crowd process_crowd still_window)
    add_executable(${program} e2e/faults/${program}.cpp)
    target_link_libraries(${program} PRIVATE vantor_warnings)
endforeach()
target_link_libraries(still_window PRIVATE Qt6::Widgets)
# Finding a function at its first call takes more stack than its processes have.
target_link_options(process_crowd PRIVATE -Wl,-z,now)
add_executable(vantor_fault_tests
    e2e/assistive_client.cpp
    e2e/desktop.cpp
    e2e/faults/crowds_test.cpp
    e2e/faults/fault_scene.cpp
    e2e/faults/hung_home_test.cpp
    e2e/faults/kills_test.cpp
    e2e/faults/silence_meter.cpp
    e2e/faults/stop_and_clock_test.cpp
    e2e/faults/x_server_test.cpp
    e2e/main.cpp
    e2e/running_program.cpp
    support/served_folder.cpp)
vantor_set_up_test_target(vantor_fault_tests)
target_precompile_headers(vantor_fault_tests REUSE_FROM vantor_widget_test_headers)
target_compile_definitions(vantor_fault_tests PRIVATE
    VANTOR_PROGRAM="$<TARGET_FILE:vantor>"
    VANTOR_MOUNT_CROWD="$<TARGET_FILE:mount_crowd>"
    VANTOR_PROCESS_CROWD="$<TARGET_FILE:process_crowd>"
    VANTOR_SHIFTED_CLOCK="$<TARGET_FILE:shifted_clock>"
    VANTOR_STILL_WINDOW="$<TARGET_FILE:still_window>")
find_library(VANTOR_XCB xcb REQUIRED)
target_link_libraries(vantor_fault_tests PRIVATE vantor_app ${VANTOR_XCB})
add_dependencies(vantor_fault_tests mount_crowd process_crowd shifted_clock still_window vantor)
add_dependencies(vantor_all_tests vantor_fault_tests)
gtest_discover_tests(vantor_fault_tests DISCOVERY_TIMEOUT 60
    TEST_FILTER "HungHome.*:XServer.*"
    XML_OUTPUT_DIR ${VANTOR_TEST_RESULTS}/vantor_fault_tests
    PROPERTIES TIMEOUT ${VANTOR_TEST_TIMEOUT} LABELS e2e:vantor_fault_tests)

add_test(NAME Install.GoesToAnyPrefixAndAwayAgain
    COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/packaging/install.sh ${CMAKE_COMMAND} ${CMAKE_BINARY_DIR})
set_tests_properties(Install.GoesToAnyPrefixAndAwayAgain PROPERTIES LABELS e2e:install)
