# Run after a program of tests is linked: writes a file for ctest in which each suite of PROGRAM is a
# test. A test by itself would be a process of its own, and starting these takes longer than all tests.
execute_process(COMMAND ${PROGRAM} --gtest_list_tests
    OUTPUT_VARIABLE listing RESULT_VARIABLE status TIMEOUT 60)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} does not list its tests: ${status}")
endif()

# So many are a test of ctest's; more are dealt out to several, which can run side by side.
set(most 60)
get_filename_component(program_name ${PROGRAM} NAME)
set(file "")

# add(NAME SUITE VARIABLE...): a test of ctest's.
function(add name suite)
    string(PREPEND name "${PREFIX}")
    string(REPLACE "/" "." results "${name}")
    set(variables "GTEST_OUTPUT=xml:${RESULTS}/${program_name}/${results}.xml" ${ARGN})
    string(APPEND file
        "add_test([==[${name}]==] [==[${PROGRAM}]==] [==[--gtest_filter=${suite}.*]==])\n"
        "set_tests_properties([==[${name}]==] PROPERTIES TIMEOUT ${TIMEOUT} LABELS [==[${LABEL}]==]"
        " ENVIRONMENT [==[${variables}]==])\n")
    set(file "${file}" PARENT_SCOPE)
endfunction()

function(add_suite suite count)
    math(EXPR parts "(${count} + ${most} - 1) / ${most}")
    if(parts LESS_EQUAL 1)
        add("${suite}" "${suite}")
    else()
        foreach(part RANGE 1 ${parts})
            math(EXPR index "${part} - 1")
            add("${suite}.part-${part}" "${suite}"
                GTEST_TOTAL_SHARDS=${parts} GTEST_SHARD_INDEX=${index})
        endforeach()
    endif()
    set(file "${file}" PARENT_SCOPE)
endfunction()

# "Suite.", and under it a line for each test, with two spaces before its name.
string(REGEX MATCHALL "(^|\n)[^ \n][^\n]*|\n  [^ \n]" lines "${listing}")
set(suite "")
set(count 0)
foreach(line IN LISTS lines ITEMS "\nend.")
    if(line MATCHES "^\n  ")
        math(EXPR count "${count} + 1")
    elseif(line MATCHES "^\n?([^ ]+)\\.( *#.*)?$")
        if(count GREATER 0)
            add_suite("${suite}" ${count})
        endif()
        set(suite "${CMAKE_MATCH_1}")
        set(count 0)
    endif()
endforeach()
file(WRITE ${FILE} "${file}")
