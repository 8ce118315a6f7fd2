# tessel_add_test_program(<name> [SOURCES ...] [LIBRARIES ...] [DEFINITIONS ...])
# One test program from <name>.cpp, with the three libraries, Qt Test and the tests' own support library. Only <name>.cpp
# may need the meta-object compiler, which is called directly: CMake's own search for what needs it takes longer, for
# hundreds of programs, than compiling some of them.
function(tessel_add_test_program name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES;DEFINITIONS" ${ARGN})
    set(meta ${CMAKE_CURRENT_BINARY_DIR}/${name}.moc)
    qt5_generate_moc(${name}.cpp ${meta})
    add_executable(${name} ${name}.cpp ${meta} ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
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
endfunction()

# tessel_add_fixtures(<name> [SOURCES ...] [MOC ...] [LIBRARIES ...] [DEFINITIONS ...])
# What several test programs share, compiled once. MOC names the headers with classes for the meta-object compiler, each
# of which is compiled by itself: a program links those that it uses, and what the others call alike is no matter.
function(tessel_add_fixtures name)
    cmake_parse_arguments(ARG "" "" "SOURCES;MOC;LIBRARIES;DEFINITIONS" ${ARGN})
    qt5_wrap_cpp(meta ${ARG_MOC})
    add_library(${name} STATIC ${ARG_SOURCES} ${ARG_MOC} ${meta})
    target_link_libraries(${name} PUBLIC test_support ${ARG_LIBRARIES} PRIVATE tessel_warnings)
    target_compile_definitions(${name} PRIVATE ${ARG_DEFINITIONS})
    target_precompile_headers(${name} REUSE_FROM test_support)
endfunction()

# tessel_add_test_resources(<name> <qrc>)
# Resources that programs compile in; here the tests link what is made once. Objects, because nothing calls them.
function(tessel_add_test_resources name qrc)
    add_library(${name} OBJECT ${qrc})
    set_target_properties(${name} PROPERTIES AUTORCC ON)
    target_link_libraries(${name} PRIVATE Qt5::Core)
endfunction()

# tessel_add_test(<name> ...)
# A test program that needs no display. Arguments as above.
function(tessel_add_test name)
    tessel_add_test_program(${name} ${ARGN})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8"
        TIMEOUT 120
    )
endfunction()

# tessel_add_property_test(<name> ...)
# A test program that makes up what it tries, from a fixed seed: every run tries the same. Arguments as above.
function(tessel_add_property_test name)
    tessel_add_test(${name} ${ARGN})
    set_property(TEST ${name} APPEND PROPERTY ENVIRONMENT "RC_PARAMS=seed=2026 max_success=200")
endfunction()

# tessel_add_window_test(<name> ...)
# A test program with an X display of its own, on which the program xdotool moves the pointer. Arguments as above.
function(tessel_add_window_test name)
    find_program(TESSEL_XVFB_RUN xvfb-run REQUIRED)
    find_program(TESSEL_XDOTOOL xdotool REQUIRED)
    tessel_add_test_program(${name} ${ARGN})
    add_test(NAME ${name} COMMAND
        ${TESSEL_XVFB_RUN} --auto-servernum --server-args "-screen 0 1024x768x24" $<TARGET_FILE:${name}>
    )
    # No desktop's bus and no OpenGL: neither is needed, and both libraries leak.
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=xcb;QT_XCB_GL_INTEGRATION=none;DBUS_SESSION_BUS_ADDRESS=disabled:;LC_ALL=C.UTF-8"
        ENVIRONMENT_MODIFICATION "ASAN_OPTIONS=path_list_append:suppressions=${PROJECT_SOURCE_DIR}/tests/asan.supp"
        TIMEOUT 120
    )
endfunction()
