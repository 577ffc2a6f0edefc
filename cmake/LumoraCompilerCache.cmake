# SPDX-License-Identifier: MIT
# ccache makes rebuilds fast. With these settings another checkout of the same tree can use its entries, precompiled headers
# included.
find_program(LUMORA_CCACHE ccache)
mark_as_advanced(LUMORA_CCACHE)
if(LUMORA_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER
    ${CMAKE_COMMAND} -E env
    CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}
    CCACHE_NOHASHDIR=1
    CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
    ${LUMORA_CCACHE})
endif()
