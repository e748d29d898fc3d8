# Fails when a source includes a header its folder may not use. Each row is a
# folder of src/ and the folders it may include from; a file belongs to the
# longest folder that holds it. Sources of the UI library (the dialogs beside
# their logic, whatever their name) may use Qt, src/ui and the launcher as
# well; no other source may include Qt. ARCHITECTURE.md shows the same table,
# and tests/layers checks that the two agree and that the table has no cycle.
#
# Run as: cmake -DSRC=<src> -DUI_SOURCES=<file listing the UI library's sources> -P CheckLayers.cmake

cmake_policy(VERSION 3.22)

set(LP_LAYERS
  "runtime:"
  "word:runtime"
  "word/fake:runtime word"
  "word/com:runtime word"
  "word/docx/host:runtime word"
  "word/docx/drawing:runtime word word/docx/host"
  "word/docx:runtime word word/docx/host word/docx/drawing"
  "errorlog:runtime word"
  "settings:runtime word errorlog"
  "session:runtime word errorlog settings"
  "toolkit:runtime"
  "pictures:runtime"
  "formula:runtime word errorlog settings session toolkit"
  "figures:runtime word errorlog settings session toolkit formula"
  "solvers:runtime word errorlog settings session toolkit formula figures"
  "charts:runtime word errorlog settings session toolkit formula figures"
  "graph:runtime word errorlog settings session toolkit formula figures pictures"
  "inserts:runtime word errorlog settings session toolkit formula"
  "batch:runtime word errorlog settings session toolkit formula"
  "gallery:runtime word errorlog settings session formula pictures"
  "launcher:runtime word errorlog settings session"
  "ui:runtime word errorlog settings session launcher"
  "tools:*"
  "app:*"
)

if(NOT SRC)
  return()  # included for the table only
endif()

set(folders "")
foreach(row ${LP_LAYERS})
  string(REPLACE ":" ";" parts "${row}")
  list(GET parts 0 folder)
  list(APPEND folders ${folder})
  list(LENGTH parts n)
  set(allowed "")
  if(n GREATER 1)
    list(GET parts 1 allowed)
    separate_arguments(allowed)
  endif()
  set(allowed_${folder} ${folder} ${allowed})
endforeach()

# The folder of a path below src/: the longest row that holds it.
function(folder_of rel out)
  set(best "")
  foreach(folder ${folders})
    string(LENGTH "${folder}" len)
    string(SUBSTRING "${rel}" 0 ${len} head)
    string(LENGTH "${best}" bestLen)
    if(head STREQUAL folder AND len GREATER bestLen)
      string(SUBSTRING "${rel}/" ${len} 1 next)
      if(next STREQUAL "/")
        set(best ${folder})
      endif()
    endif()
  endforeach()
  set(${out} "${best}" PARENT_SCOPE)
endfunction()

set(ui_sources "")
if(UI_SOURCES AND EXISTS ${UI_SOURCES})
  file(STRINGS ${UI_SOURCES} ui_sources)
endif()

set(bad "")
file(GLOB_RECURSE files ${SRC}/*.h ${SRC}/*.cpp)
foreach(f ${files})
  file(RELATIVE_PATH rel ${SRC} ${f})
  get_filename_component(dir ${rel} DIRECTORY)
  folder_of("${dir}" from)
  if(from STREQUAL "")
    list(APPEND bad "${rel}: its folder is not in the table")
    continue()
  endif()
  set(allowed ${allowed_${from}})
  set(qt_ok OFF)
  string(REGEX REPLACE "\\.h$" ".cpp" twin "${f}")
  if(from STREQUAL "ui" OR from STREQUAL "app" OR from STREQUAL "tools"
     OR f IN_LIST ui_sources OR twin IN_LIST ui_sources)
    set(qt_ok ON)
    list(APPEND allowed ui launcher)
  endif()
  file(STRINGS ${f} lines REGEX "^[ \t]*#[ \t]*include")
  foreach(line ${lines})
    if(line MATCHES "<Q[A-Za-z]+>|<Qt")
      if(NOT qt_ok)
        list(APPEND bad "${rel}: ${line} (Qt outside the UI library)")
      endif()
    elseif(line MATCHES "\"([a-z_/]+)/[A-Za-z0-9_.]+\"")
      folder_of("${CMAKE_MATCH_1}" to)
      if(to STREQUAL "" OR (NOT "*" IN_LIST allowed AND NOT to IN_LIST allowed))
        list(APPEND bad "${rel}: ${line} (${from} may not use ${to})")
      endif()
    endif()
  endforeach()
endforeach()
if(bad)
  list(JOIN bad "\n" msg)
  message(FATAL_ERROR "Includes that cross the layer table:\n${msg}")
endif()
