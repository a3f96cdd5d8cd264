# Finds the platform libraries and makes the targets ZelKiv::dataformats and ZelKiv::kivcommon.
# Given ZEL_KIV_PLATFORM, a prefix, it looks there alone; otherwise where CMake looks for everything.

set(options)
if(ZEL_KIV_PLATFORM)
    set(options HINTS ${ZEL_KIV_PLATFORM} NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
endif()
set(library_suffixes lib lib64)
if(CMAKE_LIBRARY_ARCHITECTURE)
    list(PREPEND library_suffixes lib/${CMAKE_LIBRARY_ARCHITECTURE})
endif()

find_path(ZelKivPlatform_INCLUDE_DIR values/values.h ${options}
    PATH_SUFFIXES include/zel-kiv zel-kiv include)
find_library(ZelKivPlatform_DATAFORMATS zel.dataformats ${options}
    PATH_SUFFIXES ${library_suffixes})
find_library(ZelKivPlatform_KIVCOMMON zel.kiv.common ${options} PATH_SUFFIXES ${library_suffixes})

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(ZelKivPlatform
    REQUIRED_VARS ZelKivPlatform_DATAFORMATS ZelKivPlatform_KIVCOMMON ZelKivPlatform_INCLUDE_DIR
    REASON_FAILURE_MESSAGE
        "Needed are include/values/values.h, libzel.dataformats.so and libzel.kiv.common.so. -DZEL_KIV_PLATFORM=<prefix> says where.")
mark_as_advanced(
    ZelKivPlatform_INCLUDE_DIR ZelKivPlatform_DATAFORMATS ZelKivPlatform_KIVCOMMON)

if(ZelKivPlatform_FOUND AND NOT TARGET ZelKiv::dataformats)
    foreach(each IN ITEMS dataformats kivcommon)
        string(TOUPPER ${each} variable)
        add_library(ZelKiv::${each} SHARED IMPORTED)
        set_target_properties(ZelKiv::${each} PROPERTIES
            IMPORTED_LOCATION ${ZelKivPlatform_${variable}}
            INTERFACE_INCLUDE_DIRECTORIES ${ZelKivPlatform_INCLUDE_DIR})
    endforeach()
endif()
