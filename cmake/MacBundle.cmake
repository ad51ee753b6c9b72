# Makes the program a bundle that a Mac's Finder can start: Vantor.app.
include(${CMAKE_CURRENT_LIST_DIR}/MinimumSystem.cmake)
vantor_toolkit_least_system(least "${Qt6_VERSION}")
vantor_least_system(VANTOR_LEAST_SYSTEM ${CMAKE_OSX_DEPLOYMENT_TARGET} ${least})
set(VANTOR_INFO_PLIST ${CMAKE_BINARY_DIR}/packaging/Info.plist)
configure_file(${CMAKE_SOURCE_DIR}/packaging/macos/Info.plist.in ${VANTOR_INFO_PLIST} @ONLY)

function(vantor_make_bundle target)
    set(icon ${CMAKE_SOURCE_DIR}/packaging/macos/Vantor.icns)
    set_source_files_properties(${icon} PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
    target_sources(${target} PRIVATE ${icon})
    set_target_properties(${target} PROPERTIES
        MACOSX_BUNDLE ON
        MACOSX_BUNDLE_INFO_PLIST ${VANTOR_INFO_PLIST}
        OUTPUT_NAME Vantor)
endfunction()
