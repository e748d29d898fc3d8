# Layering rules. The core must not see Qt or a Word back end: Qt is kept out
# because core targets never link it; all headers share the include root, so a
# build step checks every include against the table in CheckLayers.cmake.

set(LP_SRC ${PROJECT_SOURCE_DIR}/src)

# lp_core_library(NAME SOURCES...): a core layer, compiled against src/ only.
function(lp_core_library name)
  add_library(${name} STATIC ${ARGN})
  target_include_directories(${name} PUBLIC ${LP_SRC})
  set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTORCC OFF)
  set_property(GLOBAL APPEND PROPERTY LP_CORE_TARGETS ${name})
endfunction()

# Writes the UI library's sources, absolute, for the check to exempt from the
# Qt rule, and runs the check on every build.
function(lp_check_layers)
  # Without the UI library nothing tells a dialog's file from the core's; a
  # build without dialogs (the sanitized one) leaves the check to the full build.
  if(NOT TARGET lp_ui)
    return()
  endif()
  set(list_file ${PROJECT_BINARY_DIR}/ui_sources.txt)
  set(sources "")
  if(TARGET lp_ui)
    get_target_property(ui_dir lp_ui SOURCE_DIR)
    get_target_property(ui_sources lp_ui SOURCES)
    foreach(s ${ui_sources})
      if(NOT IS_ABSOLUTE ${s})
        set(s ${ui_dir}/${s})
      endif()
      list(APPEND sources ${s})
    endforeach()
  endif()
  list(JOIN sources "\n" content)
  file(WRITE ${list_file} "${content}\n")
  add_custom_target(check_layers ALL
    COMMAND ${CMAKE_COMMAND} -DSRC=${LP_SRC} -DUI_SOURCES=${list_file}
            -P ${PROJECT_SOURCE_DIR}/cmake/CheckLayers.cmake
    COMMENT "Checking every include against the layer table")
endfunction()
