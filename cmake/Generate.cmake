# Runs the generator over the definitions. It is one run for all of them; a file whose text has not
# changed is not touched, so nothing that depends on it is built again.

set(ZEL_KIV_GENERATED ${PROJECT_BINARY_DIR}/generated)
file(GLOB ZEL_KIV_DEFINITIONS CONFIGURE_DEPENDS ${ZEL_KIV_SERVICES}/*/*.toml)

# The files of an output, PATTERN being a part of the path to take only some: generated_files(RESULT
# OUTPUT PATTERN). The build has to know them before there is a generator to ask, and a generator of
# another machine is asked no sooner; so it reads the rows that the generator itself makes them by.
# `kivgen --list` tells the same.
set(outputs ${PROJECT_SOURCE_DIR}/generator/pages/Outputs.cpp)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${outputs})
function(generated_files result output pattern)
    file(STRINGS ${outputs} forms REGEX "^    \\{\"${output}\", \"[^\"]*${pattern}\"")
    if(NOT forms)
        message(FATAL_ERROR "${outputs} has no row of the output ${output} with ${pattern}")
    endif()
    set(files)
    foreach(form IN LISTS forms)
        string(REGEX REPLACE "^[^,]*, \"([^\"]*)\".*" "${ZEL_KIV_GENERATED}/\\1" path ${form})
        foreach(definition IN LISTS ZEL_KIV_DEFINITIONS)
            cmake_path(GET definition STEM resource)
            cmake_path(GET definition PARENT_PATH folder)
            cmake_path(GET folder FILENAME service)
            if(NOT resource STREQUAL "service") # services/<service>/service.toml becomes no class
                string(REPLACE "$service$" ${service} file ${path})
                string(REPLACE "$Resource$" ${resource} file ${file})
                list(APPEND files ${file})
            endif()
        endforeach()
    endforeach()
    list(REMOVE_DUPLICATES files)
    set(${result} ${files} PARENT_SCOPE)
endfunction()
generated_files(ZEL_KIV_SERVICE_HEADERS classes [.]h)
generated_files(ZEL_KIV_SERVICE_SOURCES classes [.]cpp)
generated_files(ZEL_KIV_CATALOGUE_SOURCES catalogue [.]cpp)

# It is given the folder and not the files: what lies there and is no definition is its to complain of.
add_custom_command(
    OUTPUT ${ZEL_KIV_SERVICE_HEADERS} ${ZEL_KIV_SERVICE_SOURCES} ${ZEL_KIV_CATALOGUE_SOURCES}
    COMMAND kivgen ${ZEL_KIV_SERVICES} ${ZEL_KIV_GENERATED}
    DEPENDS kivgen ${ZEL_KIV_DEFINITIONS}
    COMMENT "Generating classes and catalogue from the definitions"
    VERBATIM)
add_custom_target(zel_kiv_generate DEPENDS ${ZEL_KIV_SERVICE_HEADERS})
