# Debian packages, one for each component.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zel-kiv)
set(CPACK_PACKAGE_VENDOR ZelKivServices)
set(CPACK_PACKAGE_CONTACT "The maintainers of ZelKivServices")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
if(CMAKE_CROSSCOMPILING AND CMAKE_SYSTEM_PROCESSOR STREQUAL aarch64)
    set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE arm64)
endif()
# Where the libraries lie that the packages hold themselves.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS
    ${PROJECT_BINARY_DIR}/frame
    ${PROJECT_BINARY_DIR}/platform/dataformats
    ${PROJECT_BINARY_DIR}/platform/kivcommon)

set(runtime libzel-kiv-services${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime})
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "Data binding of the infotainment service interface")
# The platform is whatever brings the two libraries; the stand-ins are one that does.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS zel-kiv-platform)

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libzel-kiv-services-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "Headers and build files for the data binding of the infotainment service interface")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${runtime} (= ${PROJECT_VERSION}), zel-kiv-platform-dev")

set(CPACK_DEBIAN_STANDINS_PACKAGE_NAME zel-kiv-platform-standins)
set(CPACK_COMPONENT_STANDINS_DESCRIPTION
    "Stand-ins for the platform libraries that the data binding of the infotainment service interface runs on")
set(CPACK_DEBIAN_STANDINS_PACKAGE_PROVIDES "zel-kiv-platform, zel-kiv-platform-dev")

set(CPACK_COMPONENTS_ALL runtime development)
if(NOT ZEL_KIV_PLATFORM)
    list(APPEND CPACK_COMPONENTS_ALL standins)
endif()
if(TARGET kiv OR NOT ZEL_KIV_GENERATOR)
    list(APPEND CPACK_COMPONENTS_ALL tools)
endif()
set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME zel-kiv-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION devel)
set(CPACK_COMPONENT_TOOLS_DESCRIPTION
    "Tools for the data binding of the infotainment service interface: kiv shows it and converts documents, kivgen makes its classes")
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${runtime} (= ${PROJECT_VERSION})")

include(CPack)
