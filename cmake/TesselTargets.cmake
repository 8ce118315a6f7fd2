include(GNUInstallDirs)

# tessel_add_library(<name> FOLDER <dir> DEFINE <macro> SOURCES ... HEADERS ... LINK ...)
# A shared library of the system: hidden symbols, SONAME lib<name>.so.1, headers installed as <include>/tessel/<dir>/...
function(tessel_add_library name)
    cmake_parse_arguments(ARG "" "FOLDER;DEFINE" "SOURCES;HEADERS;LINK" ${ARGN})
    add_library(${name} SHARED ${ARG_SOURCES} ${ARG_HEADERS})
    add_library(Tessel::${name} ALIAS ${name})
    target_compile_definitions(${name} PRIVATE ${ARG_DEFINE})
    target_compile_features(${name} PUBLIC cxx_std_17)
    target_include_directories(${name} PUBLIC
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/tessel>
    )
    target_link_libraries(${name} PUBLIC ${ARG_LINK} PRIVATE $<BUILD_INTERFACE:tessel_warnings>)
    target_link_options(${name} PRIVATE LINKER:--version-script=${PROJECT_SOURCE_DIR}/cmake/symbols.map)
    set_target_properties(${name} PROPERTIES
        LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/symbols.map
        CXX_VISIBILITY_PRESET hidden
        INSTALL_RPATH "$ORIGIN"
        VISIBILITY_INLINES_HIDDEN ON
        SOVERSION ${PROJECT_VERSION_MAJOR}
        VERSION ${PROJECT_VERSION}
    )
    install(TARGETS ${name} EXPORT TesselTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    )
    foreach(header IN LISTS ARG_HEADERS)
        get_filename_component(folder ${header} DIRECTORY)
        install(FILES ${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tessel/${ARG_FOLDER}/${folder})
    endforeach()
endfunction()
