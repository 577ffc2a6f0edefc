# SPDX-License-Identifier: MIT
# lumora_build_options has the compile options of every target; no option is set globally.
include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)
add_library(lumora_build_options INTERFACE)

# lumora_compile_flags([CONFIG] FLAGS...) Adds each flag that the compiler knows; CONFIG limits them to one build type.
function(lumora_compile_flags config)
  foreach(flag IN LISTS ARGN)
    string(MAKE_C_IDENTIFIER "LUMORA_COMPILER_KNOWS${flag}" known)
    check_cxx_compiler_flag(${flag} ${known})
    if(NOT ${known})
      continue()
    endif()
    if(config STREQUAL "ANY")
      target_compile_options(lumora_build_options INTERFACE ${flag})
    else()
      target_compile_options(lumora_build_options INTERFACE $<$<CONFIG:${config}>:${flag}>)
    endif()
  endforeach()
endfunction()

lumora_compile_flags(ANY
  -Wall -Wextra -Wshadow -Wold-style-cast -Woverloaded-virtual -Wnon-virtual-dtor -Wsuggest-override
  # Libraries and programs are compiled with the same options, so that all of them can share the precompiled headers.
  -fPIC)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  lumora_compile_flags(ANY -fpch-preprocess)
endif()
if(LUMORA_WARNINGS_AS_ERRORS)
  lumora_compile_flags(ANY -Werror)
endif()
target_compile_definitions(lumora_build_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_URL_CAST_FROM_STRING QT_USE_QSTRINGBUILDER)
target_include_directories(lumora_build_options INTERFACE ${CMAKE_SOURCE_DIR} ${CMAKE_BINARY_DIR})

# Release builds read hostile files, so the hardening of compiler and linker is on. Each processor has its own protection of
# jumps and returns.
lumora_compile_flags(Release -fstack-protector-strong -fstack-clash-protection -fcf-protection -mbranch-protection=standard)
# A distribution's own level is kept.
if(NOT "${CMAKE_CXX_FLAGS} ${CMAKE_CXX_FLAGS_RELEASE}" MATCHES "_FORTIFY_SOURCE")
  target_compile_definitions(lumora_build_options INTERFACE $<$<CONFIG:Release>:_FORTIFY_SOURCE=2>)
endif()
foreach(flag IN ITEMS -Wl,-z,relro,-z,now -Wl,--as-needed)
  string(MAKE_C_IDENTIFIER "LUMORA_LINKER_KNOWS${flag}" known)
  check_linker_flag(CXX ${flag} ${known})
  if(${known})
    target_link_options(lumora_build_options INTERFACE $<$<CONFIG:Release>:${flag}>)
  endif()
endforeach()

if(LUMORA_SANITIZERS)
  target_compile_options(lumora_build_options INTERFACE
    -fsanitize=${LUMORA_SANITIZERS} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  # The sanitizers do not report an index beyond a container's end but inside its memory; the containers' own checks do.
  target_compile_definitions(lumora_build_options INTERFACE QT_FORCE_ASSERTS _GLIBCXX_ASSERTIONS)
  target_link_options(lumora_build_options INTERFACE -fsanitize=${LUMORA_SANITIZERS})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND LUMORA_SANITIZERS MATCHES "address")
    # As shared libraries the two runtimes share one setting for the place of reports, and only one of them uses it.
    target_link_options(lumora_build_options INTERFACE -static-libasan -static-libubsan)
  endif()
endif()
