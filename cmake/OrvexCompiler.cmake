# How everything is compiled: language, warnings, sanitizers, compiler cache.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
# Only the few rooms with QObjects ask for moc (option MOC of orvex_room and orvex_program).
set(CMAKE_AUTOMOC OFF)

# Asserts and the checks of the standard library stay on except in releases. Line tables are enough for back traces and
# keep the everyday build small; the debug preset has everything.
set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O2 -g1")
# -O3 gains nothing measurable here, and GCC 12 warns of faults there that aren't any.
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
add_compile_definitions($<$<NOT:$<CONFIG:Release>>:_GLIBCXX_ASSERTIONS>)

# Drawings must come out the same from every compiler at every optimisation, so no multiply-add may be fused.
add_compile_options(-ffp-contract=off -fno-semantic-interposition)

# Paths in the objects are relative to the tree, whichever folder it stands in.
add_compile_options(-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)

add_compile_options(
    -Wall -Wextra -Wpedantic -Werror
    -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wformat=2 -Wundef -Wconversion
    # The interface counts in int and the standard library in size_t; at each crossing a cast would hide more than it shows.
    -Wno-sign-conversion)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC 12 takes the concatenation of strings for overlapping copies.
    add_compile_options(-Wno-restrict)
endif()

if(ORVEX_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        message(FATAL_ERROR "ORVEX_FUZZ needs clang")
    endif()
    # AddressSanitizer would take four fifths of the time, watching each comparison half of the rest. What a run learned
    # is played by the build with sanitizers.
    set(orvex_sanitizers "fuzzer-no-link")
    add_compile_options(-fno-sanitize-coverage=trace-cmp,indirect-calls)
else()
    set(orvex_sanitizers "${ORVEX_SANITIZE}")
endif()
if(orvex_sanitizers)
    add_compile_options(-fsanitize=${orvex_sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${orvex_sanitizers})
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # The checks that the sanitizers put in confuse GCC's own flow analysis.
        add_compile_options(-Wno-maybe-uninitialized)
    endif()
endif()

# A library that is named but not used isn't needed at run time either; some toolchains make that the default.
add_link_options(-Wl,--as-needed)

# A shared library has to name what it needs. (Clang links the sanitizers' runtime into programs only.)
if(NOT orvex_sanitizers OR CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    string(APPEND CMAKE_SHARED_LINKER_FLAGS " -Wl,--no-undefined")
    string(APPEND CMAKE_MODULE_LINKER_FLAGS " -Wl,--no-undefined")
endif()

# The base folder lets several checkouts of the tree share the cache.
find_program(ORVEX_CCACHE ccache)
mark_as_advanced(ORVEX_CCACHE)
if(ORVEX_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        /usr/bin/env CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${ORVEX_CCACHE})
endif()
