# The catalogues of the complete languages, compiled into the program. Without the toolkit's tools for
# translators the program is built in English.
file(STRINGS ${CMAKE_SOURCE_DIR}/translations/complete vantor_languages REGEX "^[^#]")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/translations/complete)
find_program(VANTOR_LRELEASE NAMES lrelease6 lrelease-qt6 lrelease
    HINTS /usr/lib/qt6/bin /usr/lib64/qt6/bin ${Qt6_DIR}/../../../bin ${Qt6_DIR}/../../../libexec)
if(CMAKE_CROSSCOMPILING)
    set(vantor_languages)  # what is linked nowhere needs none
elseif(NOT VANTOR_LRELEASE)
    message(STATUS "Without the toolkit's lrelease the program is in English only")
    set(vantor_languages)
endif()

set(vantor_catalogues ${CMAKE_BINARY_DIR}/translations)
set(vantor_catalogue_list "<RCC><qresource prefix=\"/translations\">\n")
set(vantor_catalogue_files)
foreach(language IN LISTS vantor_languages)
    set(source ${CMAKE_SOURCE_DIR}/translations/vantor_${language}.ts)
    set(compiled ${vantor_catalogues}/vantor_${language}.qm)
    add_custom_command(OUTPUT ${compiled}
        COMMAND ${VANTOR_LRELEASE} -silent -removeidentical ${source} -qm ${compiled}
        DEPENDS ${source} VERBATIM)
    string(APPEND vantor_catalogue_list "<file>vantor_${language}.qm</file>\n")
    list(APPEND vantor_catalogue_files ${compiled})
endforeach()
string(APPEND vantor_catalogue_list "</qresource></RCC>\n")
file(CONFIGURE OUTPUT ${vantor_catalogues}/translations.qrc CONTENT "${vantor_catalogue_list}" @ONLY)

add_library(vantor_translations OBJECT)
set(vantor_catalogue_source ${vantor_catalogues}/qrc_translations.cpp)
if(vantor_languages)
    # Not compressed: the chosen one is then read where it lies in the program, and needs no memory of its own.
    add_custom_command(OUTPUT ${vantor_catalogue_source}
        COMMAND Qt6::rcc --no-compress --name translations ${vantor_catalogues}/translations.qrc -o ${vantor_catalogue_source}
        DEPENDS ${vantor_catalogues}/translations.qrc ${vantor_catalogue_files} VERBATIM)
else()
    file(CONFIGURE OUTPUT ${vantor_catalogue_source} CONTENT "// No language but English.\nextern const int vantorHasNoCatalogues;\nconst int vantorHasNoCatalogues = 1;\n")
endif()
target_sources(vantor_translations PRIVATE ${vantor_catalogue_source})
target_link_libraries(vantor_translations PUBLIC Qt6::Core)
