# Builds on platform libraries from elsewhere instead of the stand-ins.

find_package(ZelKivPlatform MODULE REQUIRED)

# The source tree, an include root itself, has declarations of its own under the same names, so
# theirs must come first, for every target, and not among the system's, which come last.
set_target_properties(ZelKiv::dataformats ZelKiv::kivcommon PROPERTIES IMPORTED_NO_SYSTEM ON)
include_directories(BEFORE ${ZelKivPlatform_INCLUDE_DIR})

add_library(values INTERFACE)
target_link_libraries(values INTERFACE ZelKiv::dataformats)
add_library(dataformats ALIAS ZelKiv::dataformats)
add_library(kivcommon ALIAS ZelKiv::kivcommon)
