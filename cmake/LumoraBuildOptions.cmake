# SPDX-License-Identifier: MIT
# lumora_build_options carries what every target compiles with; no option is set globally.
add_library(lumora_build_options INTERFACE)
target_compile_options(lumora_build_options INTERFACE
  -Wall -Wextra -Wshadow -Wold-style-cast -Woverloaded-virtual -Wnon-virtual-dtor
  $<$<CXX_COMPILER_ID:GNU>:-Wsuggest-override>
  $<$<BOOL:${LUMORA_WARNINGS_AS_ERRORS}>:-Werror>
  # Libraries and programs are compiled alike, so that all of them can share the precompiled headers.
  -fPIC
  $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
target_compile_definitions(lumora_build_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_URL_CAST_FROM_STRING QT_USE_QSTRINGBUILDER)
target_include_directories(lumora_build_options INTERFACE ${CMAKE_SOURCE_DIR} ${CMAKE_BINARY_DIR})

# Release builds face hostile files: the compiler's and the linker's own guards are on.
target_compile_options(lumora_build_options INTERFACE
  $<$<CONFIG:Release>:-fstack-protector-strong -fstack-clash-protection -fcf-protection -D_FORTIFY_SOURCE=2>)
target_link_options(lumora_build_options INTERFACE
  $<$<CONFIG:Release>:-Wl,-z,relro,-z,now -Wl,--as-needed>)

if(LUMORA_SANITIZERS)
  target_compile_options(lumora_build_options INTERFACE
    -fsanitize=${LUMORA_SANITIZERS} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  # An index past the end of what is used, yet inside what is allocated, is no report of a sanitizer: the containers' own checks see it.
  target_compile_definitions(lumora_build_options INTERFACE QT_FORCE_ASSERTS _GLIBCXX_ASSERTIONS)
  target_link_options(lumora_build_options INTERFACE -fsanitize=${LUMORA_SANITIZERS})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND LUMORA_SANITIZERS MATCHES "address")
    # As shared libraries the two runtimes share one setting for where reports go, and only one of them follows it.
    target_link_options(lumora_build_options INTERFACE -static-libasan -static-libubsan)
  endif()
endif()
