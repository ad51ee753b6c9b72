# For building Mac programs on another system, with the compiler that scripts/check-macos puts into
# build/macos. VANTOR_MACOS_ARCHITECTURE is arm64 or x86_64.
set(CMAKE_SYSTEM_NAME Darwin)
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES VANTOR_MACOS_ARCHITECTURE)
if(NOT VANTOR_MACOS_ARCHITECTURE)
    message(FATAL_ERROR "VANTOR_MACOS_ARCHITECTURE must be arm64 or x86_64")
endif()
set(CMAKE_SYSTEM_PROCESSOR ${VANTOR_MACOS_ARCHITECTURE})

set(tools ${CMAKE_CURRENT_LIST_DIR}/../build/macos/tools)
cmake_path(NORMAL_PATH tools)
set(CMAKE_CXX_COMPILER ${tools}/${VANTOR_MACOS_ARCHITECTURE}-c++)
if(NOT EXISTS ${CMAKE_CXX_COMPILER})
    message(FATAL_ERROR "There is no ${CMAKE_CXX_COMPILER}: please run scripts/check-macos, which makes it")
endif()
set(CMAKE_AR ${tools}/ar CACHE FILEPATH "")
set(CMAKE_RANLIB ${tools}/ranlib CACHE FILEPATH "")
set(CMAKE_INSTALL_NAME_TOOL ${tools}/none CACHE FILEPATH "Nothing is installed from such a build")

# The compiler is told the target and where its headers are; nothing of this system is looked for.
set(CMAKE_OSX_SYSROOT "" CACHE PATH "")
set(CMAKE_FIND_ROOT_PATH ${tools})
foreach(kind LIBRARY INCLUDE PACKAGE)
    set(CMAKE_FIND_ROOT_PATH_MODE_${kind} ONLY)
endforeach()
