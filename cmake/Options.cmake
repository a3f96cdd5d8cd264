# What everything is compiled with, as targets to link: `zel_kiv_options` for the shipped libraries
# and the stand-ins, `zel_kiv_tool_options` for generator, tools and tests.

option(ZEL_KIV_SANITIZE_ADDRESS "Build with the address and undefined-behaviour sanitizers" OFF)
option(ZEL_KIV_SANITIZE_THREAD "Build with the thread sanitizer" OFF)
option(ZEL_KIV_FUZZ "Build with clang's fuzzer, and for addresses and undefined behaviour" OFF)

set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")

add_library(zel_kiv_warnings INTERFACE)
target_compile_options(zel_kiv_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
# The headers of a platform from elsewhere are not ours to mend.
if(NOT ZEL_KIV_PLATFORM)
    target_compile_options(zel_kiv_warnings INTERFACE -Werror)
endif()

# The same source gives the same bytes wherever it lies.
add_library(zel_kiv_reproducible INTERFACE)
target_compile_options(zel_kiv_reproducible INTERFACE
    -ffile-prefix-map=${PROJECT_BINARY_DIR}=build
    -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)
target_link_options(zel_kiv_reproducible INTERFACE -Wl,--build-id=sha1)

add_library(zel_kiv_hardening INTERFACE)
target_compile_options(zel_kiv_hardening INTERFACE
    -fstack-protector-strong
    $<$<CONFIG:Release>:-D_FORTIFY_SOURCE=2>)
target_link_options(zel_kiv_hardening INTERFACE
    -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack -Wl,-z,defs)

add_library(zel_kiv_sanitizers INTERFACE)
if(ZEL_KIV_SANITIZE_ADDRESS)
    target_compile_options(zel_kiv_sanitizers INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(zel_kiv_sanitizers INTERFACE -fsanitize=address,undefined)
elseif(ZEL_KIV_SANITIZE_THREAD)
    target_compile_options(zel_kiv_sanitizers INTERFACE -fsanitize=thread -fno-omit-frame-pointer)
    target_link_options(zel_kiv_sanitizers INTERFACE -fsanitize=thread)
elseif(ZEL_KIV_FUZZ)
    set(flags -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all)
    target_compile_options(zel_kiv_sanitizers INTERFACE ${flags} -fno-omit-frame-pointer)
    target_link_options(zel_kiv_sanitizers INTERFACE ${flags})
endif()

add_library(zel_kiv_options INTERFACE)
target_link_libraries(zel_kiv_options INTERFACE
    zel_kiv_warnings zel_kiv_reproducible zel_kiv_sanitizers)
target_compile_features(zel_kiv_options INTERFACE cxx_std_17)

add_library(zel_kiv_tool_options INTERFACE)
target_link_libraries(zel_kiv_tool_options INTERFACE
    zel_kiv_warnings zel_kiv_reproducible zel_kiv_sanitizers)
target_compile_features(zel_kiv_tool_options INTERFACE cxx_std_20)
target_include_directories(zel_kiv_tool_options INTERFACE ${PROJECT_SOURCE_DIR})

if(NOT ZEL_KIV_SANITIZE_ADDRESS AND NOT ZEL_KIV_SANITIZE_THREAD AND NOT ZEL_KIV_FUZZ)
    target_link_libraries(zel_kiv_options INTERFACE zel_kiv_hardening)
    target_link_libraries(zel_kiv_tool_options INTERFACE zel_kiv_hardening)
endif()
