# Runs the quick tests of a build directory under valgrind, and fails with what valgrind says.
#
#   DIRECTORY=... [NAME=...] ctest --script memcheck.cmake
set(CTEST_SOURCE_DIRECTORY ${CMAKE_CURRENT_LIST_DIR}/..)
set(CTEST_BINARY_DIRECTORY $ENV{DIRECTORY})
find_program(CTEST_MEMORYCHECK_COMMAND valgrind REQUIRED)
# Leaks are the address sanitizer's to find.
set(CTEST_MEMORYCHECK_COMMAND_OPTIONS
    "--leak-check=no --track-origins=yes --num-callers=30 --error-exitcode=99")
set(SELECTION)
if(NOT "$ENV{NAME}" STREQUAL "")
    set(SELECTION INCLUDE "$ENV{NAME}")
endif()
ctest_start(Experimental)
ctest_memcheck(EXCLUDE_LABEL "slow|script" ${SELECTION} PARALLEL_LEVEL 2 RETURN_VALUE FAILED DEFECT_COUNT DEFECTS)
if(FAILED OR DEFECTS)
    file(GLOB LOGS ${CTEST_BINARY_DIRECTORY}/Testing/Temporary/MemoryChecker.*.log)
    foreach(LOG ${LOGS})
        file(READ ${LOG} TEXT)
        if(TEXT MATCHES "ERROR SUMMARY: [1-9]")
            message("${TEXT}")
        endif()
    endforeach()
    message(FATAL_ERROR "Failed under valgrind")
endif()
