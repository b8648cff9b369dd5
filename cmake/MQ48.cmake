# Shared helpers for the subsystem libraries and their tests.

set(MQ48_WARNINGS -Wall -Wextra)

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

# mq48_tests(<name> [DEPS targets...]): one GoogleTest executable from every test_*.cpp
# of the calling folder, registered with CTest and run headless.
function(mq48_tests name)
    cmake_parse_arguments(ARG "" "" "DEPS" ${ARGN})
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
    add_test(NAME ${name} COMMAND test_${name})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8"
        TIMEOUT 600)
endfunction()
