# tessel_add_test(<name> [SOURCES ...] [LIBRARIES ...] [DEFINITIONS ...])
# One test program from <name>.cpp, with the three libraries, Qt Test and the tests' own support library.
function(tessel_add_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES;DEFINITIONS" ${ARGN})
    add_executable(${name} ${name}.cpp ${ARG_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC ON AUTORCC ON)
    target_link_libraries(${name} PRIVATE
        test_support
        Business_Tessel
        utilitarian
        model_Tessel
        tessel_warnings
        ${ARG_LIBRARIES}
    )
    target_compile_definitions(${name} PRIVATE ${ARG_DEFINITIONS})
    target_precompile_headers(${name} REUSE_FROM test_support)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8"
        TIMEOUT 120
    )
endfunction()
