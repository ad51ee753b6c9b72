# A cross build takes the JSON library from the building machine: it is made of headers alone. They
# lie among those of the machine's own system, none of which may be seen: so they get a folder to
# themselves.
find_path(VANTOR_JSON_FOLDER nlohmann/json.hpp PATHS /usr/include /usr/local/include
    NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/borrowed)
file(CREATE_LINK ${VANTOR_JSON_FOLDER}/nlohmann ${CMAKE_BINARY_DIR}/borrowed/nlohmann SYMBOLIC)
add_library(nlohmann_json::nlohmann_json INTERFACE IMPORTED)
target_include_directories(nlohmann_json::nlohmann_json SYSTEM INTERFACE ${CMAKE_BINARY_DIR}/borrowed)
