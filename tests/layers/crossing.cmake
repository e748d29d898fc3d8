# A core file that includes a back end, another that includes Qt, and a clean
# tree beside them: the check must refuse the first two and pass the third.
function(check_tree name file text expect_failure)
  set(src ${WORK}/${name})
  file(REMOVE_RECURSE ${src})
  file(WRITE ${src}/${file} "${text}\n")
  execute_process(COMMAND ${CMAKE_COMMAND} -DSRC=${src} -P ${CHECK}
                  RESULT_VARIABLE rc OUTPUT_QUIET ERROR_VARIABLE err)
  if(expect_failure AND rc EQUAL 0)
    message(FATAL_ERROR "${name}: the check let ${file} through")
  elseif(NOT expect_failure AND NOT rc EQUAL 0)
    message(FATAL_ERROR "${name}: the check refused a clean tree:\n${err}")
  endif()
endfunction()

check_tree(back_end toolkit/bad.cpp "#include \"word/docx/package.h\"" ON)
check_tree(upward session/bad.cpp "#include \"launcher/command_table.h\"" ON)
check_tree(qt graph/bad.cpp "#include <QPainter>" ON)
check_tree(clean graph/good.cpp "#include \"toolkit/expression.h\"" OFF)
