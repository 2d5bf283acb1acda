# Language level, where things land, compiler cache.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

# The programs lie together, beside the data files that they read.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

find_program(RLX_CCACHE ccache)
if(RLX_CCACHE)
    set(RLX_LAUNCHER ${CMAKE_COMMAND} -E env
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${RLX_CCACHE})
    set(CMAKE_CXX_COMPILER_LAUNCHER ${RLX_LAUNCHER})
    set(CMAKE_C_COMPILER_LAUNCHER ${RLX_LAUNCHER})
endif()

if(CMAKE_BUILD_TYPE STREQUAL "Release")
    include(CheckIPOSupported)
    check_ipo_supported(RESULT RLX_IPO OUTPUT RLX_IPO_WHY LANGUAGES CXX)
endif()
