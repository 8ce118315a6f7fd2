# The installed package, as another project finds and uses it. What the main build is instrumented with, the
# consumer needs too.
set(consumer_flags)
set(consumer_link_flags)
if(TESSEL_SANITIZE)
    set(consumer_flags "-fsanitize=${TESSEL_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all")
    set(consumer_link_flags "-fsanitize=${TESSEL_SANITIZE}")
endif()
if(TESSEL_COVERAGE)
    string(APPEND consumer_link_flags " --coverage")
endif()
add_test(NAME consumer_finds_the_package
    COMMAND ${CMAKE_COMMAND}
        -D BUILD_DIR=${PROJECT_BINARY_DIR}
        -D WORK_DIR=${PROJECT_BINARY_DIR}/tests/consumer
        -D GENERATOR=${CMAKE_GENERATOR}
        -D COMPILER=${CMAKE_CXX_COMPILER}
        -D LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER}
        -D BUILD_TYPE=${CMAKE_BUILD_TYPE}
        -D CXX_FLAGS=${consumer_flags}
        -D LINK_FLAGS=${consumer_link_flags}
        -P ${CMAKE_CURRENT_LIST_DIR}/run.cmake
)
set_tests_properties(consumer_finds_the_package PROPERTIES TIMEOUT 600)
