# The package that other projects find with find_package(Tessel CONFIG REQUIRED).
include(CMakePackageConfigHelpers)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Tessel)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/TesselConfig.cmake.in
    ${PROJECT_BINARY_DIR}/TesselConfig.cmake
    INSTALL_DESTINATION ${package_dir}
)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/TesselConfigVersion.cmake
    COMPATIBILITY SameMajorVersion
)
install(FILES ${PROJECT_BINARY_DIR}/TesselConfig.cmake ${PROJECT_BINARY_DIR}/TesselConfigVersion.cmake
    DESTINATION ${package_dir}
)
install(EXPORT TesselTargets NAMESPACE Tessel:: DESTINATION ${package_dir})
