# Against which the program's own drawings are compared.
find_package(Qt6 6.4 REQUIRED COMPONENTS Svg)

add_library(vantor_widget_test_headers OBJECT support/precompiled.cpp)
vantor_set_up_test_target(vantor_widget_test_headers)
target_link_libraries(vantor_widget_test_headers PRIVATE vantor_ui)
target_precompile_headers(vantor_widget_test_headers PRIVATE support/precompiled_widgets.h)

# What tests of widgets share: the main that makes the toolkit's application, and looking at pixels.
add_library(vantor_widget_testing STATIC
    ui/main.cpp
    ui/picture.cpp
    ui/rendering.cpp)
target_include_directories(vantor_widget_testing PUBLIC ${CMAKE_SOURCE_DIR}/tests)
target_compile_definitions(vantor_widget_testing PRIVATE
    VANTOR_BUILD_DIR="${CMAKE_BINARY_DIR}")
target_link_libraries(vantor_widget_testing PUBLIC vantor_ui GTest::gmock PRIVATE vantor_warnings)
vantor_set_up_test_target(vantor_widget_testing)
target_precompile_headers(vantor_widget_testing REUSE_FROM vantor_widget_test_headers)

vantor_add_tests(ui_tests WIDGETS LABEL ui LIBRARIES vantor_ui Qt6::Svg SOURCES
    # With the monitor's records: first, so that these share batches, and a record that changes spares
    # the others.
    ui/absence_test.cpp
    ui/accessibility_test.cpp
    ui/cpu_card_test.cpp
    ui/cpu_card_view_test.cpp
    ui/dashboard_view_test.cpp
    ui/dashboard_view_layout_test.cpp
    ui/footer_test.cpp
    ui/gpu_storage_card_test.cpp
    ui/help_view_test.cpp
    ui/memory_network_card_test.cpp
    ui/menu_bar_dashboard_test.cpp
    ui/mirrored_test.cpp
    ui/picture_test.cpp
    ui/process_explorer_test.cpp
    ui/process_explorer_view_test.cpp
    ui/process_table_view_test.cpp
    ui/process_mini_list_test.cpp
    ui/repaint_test.cpp
    ui/not_saved_view_test.cpp
    ui/settings_login_test.cpp
    ui/settings_look_test.cpp
    ui/settings_view_test.cpp
    ui/system_card_test.cpp
    # Without.
    ui/app_metadata_test.cpp
    ui/byte_count_formatter_test.cpp
    ui/capsule_button_test.cpp
    ui/chart_view_test.cpp
    ui/compatible_form_test.cpp
    ui/core_activity_test.cpp
    ui/dashboard_card_test.cpp
    ui/dashboard_header_test.cpp
    ui/dashboard_header_texts_test.cpp
    ui/form_controls_test.cpp
    ui/formatters_test.cpp
    ui/background_test.cpp
    ui/horizontal_fit_test.cpp
    ui/layouts_test.cpp
    ui/menu_picker_test.cpp
    ui/metric_row_test.cpp
    ui/neighbours_test.cpp
    ui/path_data_test.cpp
    ui/pixels_test.cpp
    ui/rasters_test.cpp
    ui/ring_gauge_test.cpp
    ui/scroll_view_test.cpp
    ui/shown_text_test.cpp
    ui/small_components_test.cpp
    ui/sparkline_test.cpp
    ui/strangers_texts_test.cpp
    ui/symbols_test.cpp
    ui/glyph_run_cache_test.cpp
    ui/theme_test.cpp
    ui/typography_test.cpp
    ui/usage_bar_test.cpp
    ui/vantor_style_test.cpp
    ui/vector_drawing_test.cpp)

foreach(program ending_program instance_program quitting_program)
    add_executable(${program} app/session/${program}.cpp)
    vantor_set_up_test_target(${program})
    target_link_libraries(${program} PRIVATE vantor_app)
    target_precompile_headers(${program} REUSE_FROM vantor_widget_test_headers)
endforeach()

vantor_add_tests(app_tests WIDGETS LABEL ui LIBRARIES vantor_app Qt6::Test SOURCES
    # With the monitor's records, as above.
    app/appearance_test.cpp
    app/window/dock_reopen_test.cpp
    app/tray/menu_bar_test.cpp
    app/tray/menu_bar_commands_test.cpp
    app/languages/pseudo_language_test.cpp
    app/languages/room_test.cpp
    app/readable_texts_test.cpp
    app/vantor_app_test.cpp
    app/vantor_app_actions_test.cpp
    # Without.
    app/build_info_test.cpp
    app/files/autostart_test.cpp
    app/app_delegate_test.cpp
    app/app_commands_test.cpp
    app/languages/catalogues_test.cpp
    app/languages/user_language_test.cpp
    app/languages/plurals_test.cpp
    app/languages/translated_files_test.cpp
    app/session/changing_bus_test.cpp
    app/session/command_line_test.cpp
    app/window/launch_stabilizer_test.cpp
    app/session/local_claim_test.cpp
    app/qt_alerts_test.cpp
    app/qt_main_loop_test.cpp
    app/tray/qt_menu_bar_extras_test.cpp
    app/files/qt_save_dialogs_test.cpp
    app/session/quit_watch_test.cpp
    app/session/hung_folders_test.cpp
    app/session/safe_environment_test.cpp
    app/files/save_location_test.cpp
    app/session/single_instance_test.cpp
    app/session/termination_signals_test.cpp
    app/files/toolkit_ini_test.cpp
    app/files/user_defaults_test.cpp
    app/window/window_geometry_test.cpp
    app/window/window_geometry_states_test.cpp
    app/window/window_placement_test.cpp)
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
    target_sources(app_tests PRIVATE
        app/appearance/portal_appearance_test.cpp
        app/files/folder_looks_test.cpp
        app/files/linux_save_dialogs_test.cpp
        app/files/patient_questions_test.cpp
        app/files/portal_save_dialog_test.cpp
        app/tray/qt_status_bar_test.cpp
        app/tray/notifier_item_test.cpp
        app/files/save_panel_test.cpp
        app/files/save_panel_folders_test.cpp
        app/languages/pseudo_dialogs_test.cpp
        support/fake_notifier_tray.cpp
        support/fake_portal.cpp
        support/fake_settings_portal.cpp)
endif()
# Catalogues of the tests' own, for the rules of languages: without the translators' tools there are none.
set(vantor_test_catalogues)
if(VANTOR_LRELEASE AND NOT CMAKE_CROSSCOMPILING)
    foreach(language ar pl ru)
        set(source ${CMAKE_CURRENT_SOURCE_DIR}/fixtures/translations/vantor_${language}.ts)
        set(compiled ${CMAKE_CURRENT_BINARY_DIR}/translations/vantor_${language}.qm)
        add_custom_command(OUTPUT ${compiled}
            COMMAND ${VANTOR_LRELEASE} -silent ${source} -qm ${compiled}
            DEPENDS ${source} VERBATIM)
        list(APPEND vantor_test_catalogues ${compiled})
    endforeach()
    file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/translations)
endif()
add_custom_target(vantor_test_catalogues DEPENDS ${vantor_test_catalogues})
add_dependencies(app_tests vantor_test_catalogues)
target_compile_definitions(app_tests PRIVATE
    VANTOR_TRANSLATIONS="${CMAKE_SOURCE_DIR}/translations"
    VANTOR_PACKAGING="${CMAKE_SOURCE_DIR}/packaging/linux"
    VANTOR_TEST_CATALOGUES="${CMAKE_CURRENT_BINARY_DIR}/translations"
    VANTOR_ENDING_PROGRAM="$<TARGET_FILE:ending_program>"
    VANTOR_INSTANCE_PROGRAM="$<TARGET_FILE:instance_program>"
    VANTOR_QUITTING_PROGRAM="$<TARGET_FILE:quitting_program>")
add_dependencies(app_tests ending_program instance_program quitting_program)

# What is chosen on a Mac is compiled wherever the tests are.
if(NOT CMAKE_SYSTEM_NAME STREQUAL "Darwin")
    add_library(vantor_mac_desktop OBJECT
        ${CMAKE_SOURCE_DIR}/src/app/appearance/mac_desktop_appearance.cpp
        ${CMAKE_SOURCE_DIR}/src/app/mac_desktop.cpp
        ${CMAKE_SOURCE_DIR}/src/app/mac_display.cpp
        ${CMAKE_SOURCE_DIR}/src/app/files/mac_native_save_dialogs.cpp)
    target_link_libraries(vantor_mac_desktop PRIVATE vantor_app vantor_warnings)
    add_dependencies(app_tests vantor_mac_desktop)
endif()

# Takes what the components look like now for what they are meant to look like. To be reviewed
# picture by picture before it is committed.
add_custom_target(update_pictures
    COMMAND ui_tests --gtest_filter=*Picture* --update-pictures
    COMMENT "Drawing the pictures in tests/ui/pictures anew"
    USES_TERMINAL VERBATIM)
