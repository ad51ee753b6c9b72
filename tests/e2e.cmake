find_package(Qt6 6.4 REQUIRED COMPONENTS DBus)

# The program itself, in a real X server with a window manager.
add_executable(vantor_e2e_tests
    e2e/assistive_client.cpp
    e2e/assistive_test.cpp
    e2e/bus_tray_test.cpp
    e2e/desktop.cpp
    e2e/export_failures_test.cpp
    e2e/export_scene.cpp
    e2e/export_test.cpp
    e2e/lifecycle_test.cpp
    e2e/main.cpp
    e2e/program_test.cpp
    e2e/running_program.cpp
    e2e/small_screen_test.cpp
    e2e/tray_test.cpp
    e2e/wayland_test.cpp
    e2e/window_test.cpp
    e2e/windows_test.cpp
    support/served_folder.cpp
    support/played_notifier_tray.cpp)
vantor_set_up_test_target(vantor_e2e_tests)
target_precompile_headers(vantor_e2e_tests REUSE_FROM vantor_widget_test_headers)
# The system's own Python first: that is the one whose packages the scripts install.
find_program(VANTOR_PYTHON python3 PATHS /usr/bin NO_DEFAULT_PATH)
find_program(VANTOR_PYTHON python3)
target_compile_definitions(vantor_e2e_tests PRIVATE
    VANTOR_PROGRAM="$<TARGET_FILE:vantor>"
    VANTOR_INSTANCE_PROGRAM="$<TARGET_FILE:instance_program>"
    VANTOR_PYTHON="${VANTOR_PYTHON}")
target_link_libraries(vantor_e2e_tests PRIVATE vantor_app)
add_dependencies(vantor_e2e_tests instance_program vantor)
add_dependencies(vantor_all_tests vantor_e2e_tests)
# Each test by itself: they take seconds, and so more of them can run side by side.
include(GoogleTest)
gtest_discover_tests(vantor_e2e_tests DISCOVERY_TIMEOUT 60
    XML_OUTPUT_DIR ${VANTOR_TEST_RESULTS}/vantor_e2e_tests
    PROPERTIES TIMEOUT ${VANTOR_TEST_TIMEOUT} LABELS e2e:vantor_e2e_tests)
