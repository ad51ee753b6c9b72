# Run after a program of tests is linked: writes a file for ctest in which each suite of PROGRAM is a
# test. A test by itself would be a process of its own, and starting these takes longer than all tests.
execute_process(COMMAND ${PROGRAM} --gtest_list_tests
    OUTPUT_VARIABLE listing RESULT_VARIABLE status TIMEOUT 60)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} does not list its tests: ${status}")
endif()

get_filename_component(name ${PROGRAM} NAME)
set(file "")
string(REGEX MATCHALL "(^|\n)[^ \n][^ \n]*\\.[^\n]*" lines "${listing}")
foreach(line IN LISTS lines)
    string(REGEX REPLACE "^\n|\\. *(#.*)?$" "" suite "${line}")
    string(REPLACE "/" "." results "${suite}")
    string(APPEND file
        "add_test([==[${suite}]==] [==[${PROGRAM}]==] [==[--gtest_filter=${suite}.*]==])\n"
        "set_tests_properties([==[${suite}]==] PROPERTIES TIMEOUT ${TIMEOUT} LABELS [==[${LABEL}]==]"
        " ENVIRONMENT [==[GTEST_OUTPUT=xml:${RESULTS}/${name}/${results}.xml]==])\n")
endforeach()
file(WRITE ${FILE} "${file}")
