# Run by ctest: adds one test for every GoogleTest suite of `program`. A process under Wine takes a tenth of a second to
# start, so that a suite is the better unit than a single test. The list is asked for again when the program changed.
set(list ${program}.suites)
if(NOT EXISTS ${program})
    add_test(${prefix}${name} ${program})
    return()
endif()
if(NOT EXISTS ${list} OR ${program} IS_NEWER_THAN ${list})
    execute_process(
        COMMAND ${emulator} ${program} --gtest_list_tests
        OUTPUT_VARIABLE output RESULT_VARIABLE result TIMEOUT 60)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${program} does not list its tests: ${result}\n${output}")
    endif()
    string(REGEX MATCHALL "(^|\n)[^ \r\n]+\\." suites "${output}")
    list(TRANSFORM suites STRIP)
    file(WRITE ${list} "${suites}")
endif()

file(READ ${list} suites)
foreach(suite IN LISTS suites)
    string(REGEX REPLACE "\\.$" "" suiteName ${suite})
    add_test(${prefix}${suiteName} ${emulator} ${program} --gtest_filter=${suite}* --gtest_brief=1)
    # Wine ends a program that has crashed with status 0.
    set_tests_properties(${prefix}${suiteName} PROPERTIES ${properties} FAIL_REGULAR_EXPRESSION "Unhandled (page fault|exception)")
endforeach()
