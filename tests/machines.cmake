# Whole machines recorded as text, see machines/README.md.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
    vantor_add_tests(machines_tests LABEL core LIBRARIES vantor_record_coding SOURCES
        documents/machine_snapshots_test.cpp
        machines/damaged_machines_test.cpp
        machines/machine_document.cpp
        machines/machines_test.cpp
        machines/recorded_graphics_test.cpp
        machines/recorded_sensors_test.cpp
        machines/sleeping_card_test.cpp
        support/line_difference.cpp)
    vantor_add_failing_reads(machines_tests)

    # Takes what is said of the recorded machines now for what is meant to be said. To be reviewed
    # figure by figure before it is committed.
    add_custom_target(update_goldens
        COMMAND ${CMAKE_COMMAND} -E env VANTOR_UPDATE_GOLDENS=1
            $<TARGET_FILE:machines_tests> --gtest_filter=*IsAsAgreed*
        COMMENT "Writing tests/machines/*/golden.json and tests/documents/agreed anew"
        USES_TERMINAL VERBATIM)

    # Exported documents, checked by a validator and a reader that are not ours.
    add_executable(export_machines_program
        documents/export_machines_program.cpp)
    vantor_set_up_test_target(export_machines_program)
    target_precompile_headers(export_machines_program REUSE_FROM vantor_test_headers)
    target_link_libraries(export_machines_program PRIVATE vantor_record_coding vantor_test_support)
    add_dependencies(core_tests export_machines_program)
    # The system's own Python first: that is the one whose packages the scripts install.
    find_program(VANTOR_PYTHON python3 PATHS /usr/bin NO_DEFAULT_PATH)
    find_program(VANTOR_PYTHON python3)
    # It builds for itself: once is enough.
    if(NOT VANTOR_SANITIZE)
        add_test(NAME ExportedDocuments.AreTheSameWhateverCompilerAndOptimisationBuiltTheWriter
            COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/documents/compare_compilers.sh
                ${CMAKE_SOURCE_DIR}
                ${CMAKE_CURRENT_BINARY_DIR}/compared_documents)
        set_tests_properties(ExportedDocuments.AreTheSameWhateverCompilerAndOptimisationBuiltTheWriter
            PROPERTIES TIMEOUT 900 LABELS core)
    endif()
    if(VANTOR_PYTHON)
        add_test(NAME ExportedDocuments.FitTheirSchemaAndReadBackTheSame
            COMMAND ${VANTOR_PYTHON} ${CMAKE_CURRENT_SOURCE_DIR}/documents/validate_documents.py
                $<TARGET_FILE:export_machines_program>
                ${CMAKE_SOURCE_DIR}/docs/snapshot.schema.json
                ${CMAKE_CURRENT_BINARY_DIR}/exported_documents)
        set_tests_properties(ExportedDocuments.FitTheirSchemaAndReadBackTheSame PROPERTIES
            TIMEOUT 120 SKIP_RETURN_CODE 77 LABELS core)
    endif()
endif()
