# The packages everything is built on, all from Debian 12; tools/setup installs them.

find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui Widgets Svg LinguistTools)
find_package(Boost 1.74 REQUIRED)
find_package(CLI11 2.1 REQUIRED)
find_package(nlohmann_json 3.11 REQUIRED)
find_package(Threads REQUIRED)

if(ORVEX_BUILD_TESTS)
    find_package(GTest 1.12 REQUIRED)
    find_package(Qt5 5.15 REQUIRED COMPONENTS Test)
    include(GoogleTest)
    # Debian's own interpreter: python3-ezdxf is installed for no other.
    set(ORVEX_PYTHON /usr/bin/python3)
endif()
if(ORVEX_BUILD_BENCHMARKS)
    find_package(benchmark 1.7 REQUIRED)
endif()
