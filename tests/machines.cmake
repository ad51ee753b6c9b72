# Whole machines recorded as text, see machines/README.md.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
    vantor_add_tests(machines_tests LABEL core SOURCES
        machines/damaged_machines_test.cpp
        machines/machine_document.cpp
        machines/machines_test.cpp
        machines/recorded_graphics_test.cpp
        machines/recorded_sensors_test.cpp
        machines/sleeping_card_test.cpp
        support/line_difference.cpp
        support/opened_files.cpp
        support/recorded_calls.cpp
        support/recorded_machine.cpp
        support/recorded_tree.cpp)
    vantor_add_failing_reads(machines_tests)

    # Takes what is said of the recorded machines now for what is meant to be said. To be reviewed
    # figure by figure before it is committed.
    add_custom_target(update_goldens
        COMMAND ${CMAKE_COMMAND} -E env VANTOR_UPDATE_GOLDENS=1
            $<TARGET_FILE:machines_tests> --gtest_filter=*IsAsAgreed*
        COMMENT "Writing tests/machines/*/golden.json anew"
        USES_TERMINAL VERBATIM)
endif()
