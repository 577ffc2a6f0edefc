# SPDX-License-Identifier: MIT
# lumora_library(NAME SOURCES ... [LINKS ...] [PRIVATE_LINKS ...])
#   A static library of one subsystem. What a library links decides whether it is an engine or a pane: a library that (through any of its
#   LINKS) reaches Qt Widgets shares the widgets' precompiled header, any other the engines'.
# lumora_test(NAME SOURCES ... [LINKS ...] [LABELS ...])
#   One Qt Test program, run by CTest without a screen.
# lumora_time_limit(SECONDS TESTS...)
#   How long the tests may take on a machine that is busy. To be called last, after everything else was said of them.
# lumora_check_layers() is called at the end of app/ and fails the configuration where a link crosses a border: an engine that
#   reaches Qt Widgets, a tool that reaches another tool, a library below the tools that reaches one.

add_library(lumora_pch_engine STATIC ${CMAKE_SOURCE_DIR}/cmake/empty.cpp)
target_link_libraries(lumora_pch_engine PUBLIC lumora_build_options Qt6::Gui)
target_precompile_headers(lumora_pch_engine PRIVATE ${CMAKE_SOURCE_DIR}/cmake/engine_pch.h)

add_library(lumora_pch_widgets STATIC ${CMAKE_SOURCE_DIR}/cmake/empty.cpp)
target_link_libraries(lumora_pch_widgets PUBLIC lumora_build_options Qt6::Widgets)
target_precompile_headers(lumora_pch_widgets PRIVATE ${CMAKE_SOURCE_DIR}/cmake/widgets_pch.h)

function(lumora_target_defaults name kind)
  set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC OFF)
  set_target_properties(${name} PROPERTIES AUTOUIC_SEARCH_PATHS ${CMAKE_SOURCE_DIR}/resources/interfaces)
  if(kind STREQUAL "widgets")
    target_link_libraries(${name} PUBLIC Qt6::Widgets)
  else()
    target_link_libraries(${name} PUBLIC Qt6::Gui)
  endif()
  target_link_libraries(${name} PUBLIC lumora_build_options)
  target_precompile_headers(${name} REUSE_FROM lumora_pch_${kind})
endfunction()

# The engines: values in, values out; Qt Core and Qt Gui only.
function(lumora_engine name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE ${ARG_PRIVATE_LINKS})
  lumora_target_defaults(${name} engine)
  set_property(GLOBAL APPEND PROPERTY LUMORA_ENGINES ${name})
endfunction()

# The user interface.
function(lumora_widget_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE ${ARG_PRIVATE_LINKS})
  lumora_target_defaults(${name} widgets)
  set_property(GLOBAL APPEND PROPERTY LUMORA_WIDGET_LIBRARIES ${name})
endfunction()

function(lumora_test name)
  cmake_parse_arguments(ARG "WIDGETS" "TIMEOUT" "SOURCES;LINKS;LABELS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} Qt6::Test)
  target_compile_definitions(${name} PRIVATE LUMORA_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
  # A test includes its own .moc, so this file is nearly empty; the precompiled header would take a second for each test.
  set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/mocs_compilation.cpp
    PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
  if(ARG_WIDGETS)
    lumora_target_defaults(${name} widgets)
  else()
    lumora_target_defaults(${name} engine)
  endif()
  add_test(NAME ${name} COMMAND ${name})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 120)
  endif()
  set_tests_properties(${name} PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;QT_LOGGING_RULES=" LABELS "${ARG_LABELS}")
  lumora_time_limit(${ARG_TIMEOUT} ${name})
endfunction()

# Instrumented code is slow. This one factor multiplies all limits; tests multiply their own waiting times by
# LUMORA_TIME_FACTOR, too.
set(lumora_time_factor 1)
if(LUMORA_SANITIZERS)
  set(lumora_time_factor 10)
endif()
function(lumora_time_limit seconds)
  math(EXPR limit "${seconds} * ${lumora_time_factor}")
  set_tests_properties(${ARGN} PROPERTIES TIMEOUT ${limit})
  # The test library's own limit is for each function, in milliseconds.
  set_property(TEST ${ARGN} APPEND PROPERTY ENVIRONMENT
    LUMORA_TIME_FACTOR=${lumora_time_factor} QTEST_FUNCTION_TIMEOUT=${limit}000)
endfunction()

# Fails the configuration if a library depends, directly or indirectly, on a library that its kind must not know. Dependencies
# of the libraries named after `wanted` do not count.
function(lumora_reaches result name wanted)
  set(seen "${ARGN}")
  set(open ${name})
  set(found FALSE)
  while(open)
    list(POP_FRONT open current)
    if(current IN_LIST seen)
      continue()
    endif()
    list(APPEND seen ${current})
    if(current MATCHES "${wanted}" AND NOT current STREQUAL name)
      set(found ${current})
      break()
    endif()
    if(TARGET ${current} AND current MATCHES "^lumora_")
      get_target_property(links ${current} LINK_LIBRARIES)
      if(links)
        list(APPEND open ${links})
      endif()
    endif()
  endwhile()
  set(${result} ${found} PARENT_SCOPE)
endfunction()

# The tool that a target belongs to: "icons" for lumora_icons_engine and lumora_icons_pane; empty for any other target.
function(lumora_tool_of result name)
  set(tool "")
  if(name MATCHES "^lumora_([a-z]+)_(engine|pane)$")
    set(tool ${CMAKE_MATCH_1})
  endif()
  set(${result} "${tool}" PARENT_SCOPE)
endfunction()

function(lumora_check_layers)
  get_property(engines GLOBAL PROPERTY LUMORA_ENGINES)
  get_property(libraries GLOBAL PROPERTY LUMORA_WIDGET_LIBRARIES)
  foreach(engine IN LISTS engines)
    lumora_reaches(culprit ${engine} "^Qt6::(Widgets|SvgWidgets)$|_pane$|^lumora_(widgets|tool|shell)$")
    if(culprit)
      message(FATAL_ERROR "The engine ${engine} must not link ${culprit}: engines know no widgets.")
    endif()
    # Drawing SVG files is the work of one library, by which engines may reach Qt Svg.
    lumora_reaches(culprit ${engine} "^Qt6::Svg$" lumora_svg)
    if(culprit AND NOT engine STREQUAL "lumora_svg")
      message(FATAL_ERROR "The engine ${engine} must not link ${culprit}: SVG files are drawn by lumora_svg.")
    endif()
  endforeach()
  foreach(library IN LISTS engines libraries)
    lumora_tool_of(tool ${library})
    if(tool)
      set(others icons placeholders resizer color devices validator)
      list(REMOVE_ITEM others ${tool})
      list(JOIN others "|" others)
      lumora_reaches(culprit ${library} "^lumora_(${others})_(engine|pane)$|^lumora_(shell|cli)$")
      if(culprit)
        message(FATAL_ERROR "${library} must not link ${culprit}: a tool knows no other tool.")
      endif()
    elseif(library MATCHES "^lumora_(foundation|resources|pictures|svg|widgets|tool)$")
      lumora_reaches(culprit ${library} "_engine$|_pane$|^lumora_(shell|cli)$")
      if(culprit)
        message(FATAL_ERROR "${library} must not link ${culprit}: what tools are built on knows no tool.")
      endif()
    endif()
  endforeach()
endfunction()
