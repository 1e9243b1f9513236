# Where things go in the build tree and in an installation.
#
# In the build tree all that runs together lies together in bin/: programs, libraries, the module, its resource library
# and Support/. A program finds the module beside itself there. Tests, benchmarks and fuzzers have folders of their own
# next to it.
#
# An installation has bin/ for the programs, lib/orvex/ for libraries and module, share/orvex/ for data.

include(GNUInstallDirs)

set(ORVEX_BIN_DIR ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${ORVEX_BIN_DIR})
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${ORVEX_BIN_DIR})
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)

set(ORVEX_INSTALL_LIB lib/orvex)
set(ORVEX_INSTALL_DATA share/orvex)
set(ORVEX_INSTALL_PYTHON lib/python3/dist-packages)

# Relative and the same in the build tree and in an installation, so that either may be moved as a whole.
set(CMAKE_BUILD_WITH_INSTALL_RPATH ON)
set(CMAKE_INSTALL_RPATH "$ORIGIN" "$ORIGIN/../lib/orvex")
# For what lies in a folder beside bin/ and is never installed.
set(ORVEX_BESIDE_BIN_RPATH "$ORIGIN/../bin")
