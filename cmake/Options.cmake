# What everything is compiled with, as targets to link: `zel_kiv_options` for the shipped libraries
# and the stand-ins, `zel_kiv_library_options` for what goes into a library of services,
# `zel_kiv_tool_options` for generator, tools and tests. `zel_kiv_small` and `zel_kiv_quickly_built`
# say how a release is optimised where speed is not what counts.

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
    set(flags -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all
        -fsanitize-ignorelist=${PROJECT_SOURCE_DIR}/tests/fuzz/ignored.txt)
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

# No call inside a library of services is taken over from outside it, which lets the compiler see
# what cannot throw. An accessor that cannot needs no unwind table, and there are thousands of them;
# the compiler leaves those out only where it writes the tables itself.
set(flags_for_libraries
    -fno-semantic-interposition -fno-asynchronous-unwind-tables -fno-dwarf2-cfi-asm)
# Passes that are left out. The first keep addresses in registers that are as soon formed anew; each of
# those takes room on the stack at every level of nesting. The others take time and make the code of
# the classes, which is short steps in a row, no smaller or even larger.
set(flags_for_size
    -fno-gcse -fno-rerun-cse-after-loop -fno-split-wide-types -fno-move-loop-invariants
    -fno-cse-follow-jumps -fno-guess-branch-probability -fno-ipa-sra -fno-schedule-insns2
    -fno-thread-jumps -fno-tree-loop-optimize -fno-tree-pre)
# `scripts/lint` takes these out of what it gives to clang-tidy.
list(JOIN flags_for_libraries "\n" library_lines)
list(JOIN flags_for_size "\n" size_lines)
file(WRITE ${PROJECT_BINARY_DIR}/flags-of-gcc.txt "-Winvalid-pch\n${library_lines}\n${size_lines}\n")

set(is_gcc_release $<AND:$<CONFIG:Release>,$<CXX_COMPILER_ID:GNU>>)
add_library(zel_kiv_library_options INTERFACE)
target_link_libraries(zel_kiv_library_options INTERFACE values zel_kiv_options)
target_compile_options(zel_kiv_library_options INTERFACE
    "$<${is_gcc_release}:${flags_for_libraries}>")
target_include_directories(zel_kiv_library_options INTERFACE
    ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR}/generated)

add_library(zel_kiv_small INTERFACE)
target_compile_options(zel_kiv_small INTERFACE
    $<$<CONFIG:Release>:-Os> "$<${is_gcc_release}:${flags_for_size}>")

add_library(zel_kiv_quickly_built INTERFACE)
target_compile_options(zel_kiv_quickly_built INTERFACE $<$<CONFIG:Release>:-O1>)

# Code of shared libraries, of which comes out only what says so. Several units of the services have
# structures of the same name in unnamed namespaces, so no two units are made one.
function(keep_hidden)
    set_target_properties(${ARGN} PROPERTIES
        POSITION_INDEPENDENT_CODE ON
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        UNITY_BUILD OFF)
endfunction()

# The file of a shared library, lib<name>.so, found by the major version.
function(name_shared_library target name version)
    string(REGEX MATCH "^[0-9]+" major ${version})
    keep_hidden(${target})
    set_target_properties(${target} PROPERTIES
        OUTPUT_NAME ${name} VERSION ${version} SOVERSION ${major})
endfunction()

if(NOT ZEL_KIV_SANITIZE_ADDRESS AND NOT ZEL_KIV_SANITIZE_THREAD AND NOT ZEL_KIV_FUZZ)
    target_link_libraries(zel_kiv_options INTERFACE zel_kiv_hardening)
    target_link_libraries(zel_kiv_tool_options INTERFACE zel_kiv_hardening)
endif()
