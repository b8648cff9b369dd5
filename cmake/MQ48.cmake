# Shared helpers for the subsystem libraries and their tests.

set(MQ48_WARNINGS -Wall -Wextra)

# With MQ48_SANITIZE every target, the tests included, is built with AddressSanitizer (leak
# checking included) and UndefinedBehaviorSanitizer; any finding ends the program with an error.
# GCC's "undefined" group leaves out float-cast-overflow, which is added by hand. The tests run
# with the suppression file of cmake/lsan.supp, which names only leaks inside Qt itself; since
# Qt's libraries keep no frame pointers, allocations are recorded with the full unwinder, so
# that a suppression can tell Qt's own leaks from ours by the whole stack.
set(MQ48_TEST_ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8")
if(MQ48_SANITIZE)
    set(MQ48_SANITIZE_FLAGS -fsanitize=address,undefined,float-cast-overflow
                            -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_compile_options(${MQ48_SANITIZE_FLAGS})
    add_link_options(${MQ48_SANITIZE_FLAGS})
    list(APPEND MQ48_TEST_ENVIRONMENT
         "ASAN_OPTIONS=detect_leaks=1:fast_unwind_on_malloc=0:malloc_context_size=16"
         "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/cmake/lsan.supp:print_suppressions=0"
         "UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1")
endif()

# How long one test program may run: a sanitized build runs several times slower (every
# allocation is recorded with its whole stack).
set(MQ48_TEST_TIMEOUT 600)
if(MQ48_SANITIZE)
    set(MQ48_TEST_TIMEOUT 3000)
endif()

# Gives a test the environment of the unit tests (headless, and the sanitizers' options).
function(mq48_test_environment test)
    set_tests_properties(${test} PROPERTIES ENVIRONMENT "${MQ48_TEST_ENVIRONMENT}")
endfunction()

# mq48_library(<name> [DEPS targets...]): a static library from every source in the
# folder of the calling CMakeLists (subfolders included), named mq48_<name>.
function(mq48_library name)
    cmake_parse_arguments(ARG "" "" "DEPS" ${ARGN})
    file(GLOB_RECURSE srcs CONFIGURE_DEPENDS
         ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
    if(NOT srcs)
        # An empty subsystem still gives a library so that others can link it.
        set(srcs ${PROJECT_SOURCE_DIR}/cmake/empty.cpp)
    endif()
    add_library(mq48_${name} STATIC ${srcs})
    target_include_directories(mq48_${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_compile_options(mq48_${name} PRIVATE ${MQ48_WARNINGS})
    target_link_libraries(mq48_${name} PUBLIC ${ARG_DEPS})
endfunction()

# mq48_tests(<name> [SHARDS n] [DEPS targets...]): one GoogleTest executable from every
# test_*.cpp of the calling folder, registered with CTest (as n shards when given) and run
# headless.
function(mq48_tests name)
    cmake_parse_arguments(ARG "" "SHARDS" "DEPS" ${ARGN})
    file(GLOB_RECURSE srcs CONFIGURE_DEPENDS
         ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
    if(NOT srcs)
        return()
    endif()
    add_executable(test_${name} ${srcs})
    target_compile_options(test_${name} PRIVATE ${MQ48_WARNINGS})
    target_link_libraries(test_${name} PRIVATE mq48_testmain ${ARG_DEPS})
    target_compile_definitions(test_${name} PRIVATE
        MQ48_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
        MQ48_FIXTURES_DIR="${PROJECT_SOURCE_DIR}/tests/fixtures"
        MQ48_BUILD_DB_DIR="${CMAKE_BINARY_DIR}/bin/MQ48DB")
    if(NOT ARG_SHARDS OR ARG_SHARDS LESS 2)
        add_test(NAME ${name} COMMAND test_${name})
        set_tests_properties(${name} PROPERTIES TIMEOUT ${MQ48_TEST_TIMEOUT})
        mq48_test_environment(${name})
        return()
    endif()
    # A long suite runs as SHARDS processes, each with its share of the tests, so that CTest
    # can spread them over the cores.
    math(EXPR last "${ARG_SHARDS} - 1")
    foreach(index RANGE ${last})
        add_test(NAME ${name}_${index} COMMAND test_${name})
        set_tests_properties(${name}_${index} PROPERTIES TIMEOUT ${MQ48_TEST_TIMEOUT} ENVIRONMENT
            "${MQ48_TEST_ENVIRONMENT};GTEST_TOTAL_SHARDS=${ARG_SHARDS};GTEST_SHARD_INDEX=${index}")
    endforeach()
endfunction()
