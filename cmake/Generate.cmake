# Runs the generator over the definitions. It is one run for all of them; a file whose text has not
# changed is not touched, so nothing that depends on it is built again.

set(ZEL_KIV_GENERATED ${PROJECT_BINARY_DIR}/generated)
file(GLOB ZEL_KIV_DEFINITIONS CONFIGURE_DEPENDS ${ZEL_KIV_SERVICES}/*/*.toml)

set(ZEL_KIV_SERVICE_HEADERS)
set(ZEL_KIV_SERVICE_SOURCES)
set(ZEL_KIV_CATALOGUE_SOURCES ${ZEL_KIV_GENERATED}/catalogue/Table.cpp)
foreach(definition IN LISTS ZEL_KIV_DEFINITIONS)
    cmake_path(GET definition STEM resource)
    if(resource STREQUAL "service") # services/<service>/service.toml becomes no class
        continue()
    endif()
    cmake_path(GET definition PARENT_PATH folder)
    cmake_path(GET folder FILENAME service)
    list(APPEND ZEL_KIV_SERVICE_HEADERS ${ZEL_KIV_GENERATED}/services/${service}/${resource}.h)
    list(APPEND ZEL_KIV_SERVICE_SOURCES ${ZEL_KIV_GENERATED}/services/${service}/${resource}.cpp)
    list(APPEND ZEL_KIV_CATALOGUE_SOURCES ${ZEL_KIV_GENERATED}/catalogue/${service}.cpp)
endforeach()
list(REMOVE_DUPLICATES ZEL_KIV_CATALOGUE_SOURCES)

# It is given the folder and not the files: what lies there and is no definition is its to complain of.
add_custom_command(
    OUTPUT ${ZEL_KIV_SERVICE_HEADERS} ${ZEL_KIV_SERVICE_SOURCES} ${ZEL_KIV_CATALOGUE_SOURCES}
    COMMAND kivgen ${ZEL_KIV_SERVICES} ${ZEL_KIV_GENERATED}
    DEPENDS kivgen ${ZEL_KIV_DEFINITIONS}
    COMMENT "Generating classes and catalogue from the definitions"
    VERBATIM)
add_custom_target(zel_kiv_generate DEPENDS ${ZEL_KIV_SERVICE_HEADERS})
