# Layering rules. The core must not see Qt or a Word back end: Qt is kept out
# because core targets never link it; back-end headers share the include root,
# so a build step greps the core folders and fails the build on such an include.

set(LP_SRC ${PROJECT_SOURCE_DIR}/src)

# lp_core_library(NAME SOURCES...): a core layer, compiled against src/ only.
function(lp_core_library name)
  add_library(${name} STATIC ${ARGN})
  target_include_directories(${name} PUBLIC ${LP_SRC})
  set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTORCC OFF)
  set_property(GLOBAL APPEND PROPERTY LP_CORE_TARGETS ${name})
endfunction()

function(lp_check_layers)
  add_custom_target(check_layers ALL
    COMMAND ${CMAKE_COMMAND} -DSRC=${LP_SRC} -P ${PROJECT_SOURCE_DIR}/cmake/CheckLayers.cmake
    COMMENT "Checking that the core includes no Qt and no Word back end")
endfunction()
