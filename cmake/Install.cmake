# What is installed where, in components: runtime, development, diagnostics (the library that tells),
# standins (libraries and headers that the real platform brings instead) and tools. Target components hold no generator.

include(CMakePackageConfigHelpers)

# Builds all of it.
add_custom_target(shipped DEPENDS zel_kiv_services)
if(TARGET zel_kiv_services_diagnostics)
    add_dependencies(shipped zel_kiv_services_diagnostics)
endif()

set(include_root ${CMAKE_INSTALL_INCLUDEDIR}/zel-kiv)
set(cmake_root ${CMAKE_INSTALL_LIBDIR}/cmake)

# The platform may lie beside the library, wherever the prefix is put.
set_target_properties(zel_kiv_services PROPERTIES INSTALL_RPATH "$ORIGIN")
install(TARGETS zel_kiv_services
    EXPORT ZelKivServicesTargets
    LIBRARY COMPONENT runtime NAMELINK_COMPONENT development)
list(TRANSFORM ZEL_KIV_FRAME_HEADERS PREPEND frame/)
install(FILES ${ZEL_KIV_FRAME_HEADERS} DESTINATION ${include_root}/frame COMPONENT development)
foreach(header IN LISTS ZEL_KIV_SERVICE_HEADERS)
    cmake_path(GET header PARENT_PATH folder)
    cmake_path(RELATIVE_PATH folder BASE_DIRECTORY ${ZEL_KIV_GENERATED})
    install(FILES ${header} DESTINATION ${include_root}/${folder} COMPONENT development)
endforeach()

install(EXPORT ZelKivServicesTargets
    NAMESPACE ZelKiv::
    DESTINATION ${cmake_root}/ZelKivServices
    COMPONENT development)
configure_package_config_file(
    cmake/ZelKivServicesConfig.cmake.in
    ${PROJECT_BINARY_DIR}/cmake/ZelKivServicesConfig.cmake
    INSTALL_DESTINATION ${cmake_root}/ZelKivServices
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(
    ${PROJECT_BINARY_DIR}/cmake/ZelKivServicesConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/cmake/ZelKivServicesConfig.cmake
    ${PROJECT_BINARY_DIR}/cmake/ZelKivServicesConfigVersion.cmake
    cmake/FindZelKivPlatform.cmake
    DESTINATION ${cmake_root}/ZelKivServices
    COMPONENT development)

# The file lies in <prefix>/<libdir>/pkgconfig, from where it finds the prefix.
string(REGEX REPLACE "[^/]+" ".." up ${CMAKE_INSTALL_LIBDIR})
configure_file(cmake/zel-kiv-services.pc.in
    ${PROJECT_BINARY_DIR}/cmake/zel-kiv-services.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/cmake/zel-kiv-services.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT development)

# The check of a platform is built by whoever has one.
set(check_folder ${CMAKE_INSTALL_DATADIR}/zel-kiv/platform-check)
install(DIRECTORY platform-check/ DESTINATION ${check_folder} COMPONENT development
    USE_SOURCE_PERMISSIONS)
install(FILES cmake/FindZelKivPlatform.cmake DESTINATION ${check_folder} COMPONENT development)

if(NOT ZEL_KIV_PLATFORM)
    add_dependencies(shipped dataformats kivcommon)
    install(TARGETS values dataformats kivcommon
        EXPORT ZelKivPlatformTargets
        LIBRARY COMPONENT standins)
    install(DIRECTORY values/
        DESTINATION ${include_root}/values
        COMPONENT standins
        FILES_MATCHING PATTERN "*.h")
    install(EXPORT ZelKivPlatformTargets
        FILE ZelKivPlatformConfig.cmake
        NAMESPACE ZelKiv::
        DESTINATION ${cmake_root}/ZelKivPlatform
        COMPONENT standins)
endif()

if(TARGET kiv)
    # The packages for another machine hold no tools.
    if(NOT CMAKE_CROSSCOMPILING)
        add_dependencies(shipped kiv)
    endif()
    file(RELATIVE_PATH libraries
        ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
    set_target_properties(kiv PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries}")
    install(TARGETS kiv RUNTIME COMPONENT tools)
    install(FILES docs/man/kiv.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tools)
    # bash looks for it under the name of the command.
    install(FILES tools/kiv/completion/kiv.bash
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
        RENAME kiv
        COMPONENT tools)
endif()
if(NOT ZEL_KIV_GENERATOR)
    add_dependencies(shipped kivgen)
    install(TARGETS kivgen RUNTIME COMPONENT tools)
    install(FILES docs/man/kivgen.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tools)
endif()
