# A cross build has no toolkit of its system. The building machine's headers, which are the same on
# every system, are enough to compile against; nothing can be linked.
find_path(VANTOR_QT_FOLDER QtWidgets/QWidget
    PATHS /usr/include /usr/local/include
    PATH_SUFFIXES x86_64-linux-gnu/qt6 aarch64-linux-gnu/qt6 qt6
    NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
foreach(part Core DBus Gui Test Widgets)
    add_library(Qt6::${part} INTERFACE IMPORTED)
    target_include_directories(Qt6::${part} SYSTEM INTERFACE
        ${VANTOR_QT_FOLDER} ${VANTOR_QT_FOLDER}/Qt${part})
endforeach()
foreach(part DBus Gui)
    target_link_libraries(Qt6::${part} INTERFACE Qt6::Core)
endforeach()
target_link_libraries(Qt6::Widgets INTERFACE Qt6::Gui)

function(qt_add_resources sources)
    set(none ${CMAKE_BINARY_DIR}/borrowed/no_resources.cpp)
    file(WRITE ${none} "")
    set(${sources} ${none} PARENT_SCOPE)
endfunction()
