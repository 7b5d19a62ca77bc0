# Writes the manual pages and completion scripts of the program AXM to the folder PAGES.
file(REMOVE_RECURSE ${PAGES})
file(MAKE_DIRECTORY ${PAGES}/man ${PAGES}/bash ${PAGES}/zsh ${PAGES}/fish)

function(write_output file)
  execute_process(COMMAND ${AXM} ${ARGN} OUTPUT_FILE ${PAGES}/${file} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

write_output(bash/axm completion bash)
write_output(zsh/_axm completion zsh)
write_output(fish/axm.fish completion fish)
# The verbs are those of which the page of the program tells.
write_output(man/axm.1 --man axm)
file(STRINGS ${PAGES}/man/axm.1 lines REGEX "^\\\\fBaxm")
foreach(line IN LISTS lines)
  string(REGEX REPLACE "^\\\\fBaxm\\\\-(.*)\\\\fR.*" "\\1" verb "${line}")
  string(REPLACE "\\-" "-" verb "${verb}")
  write_output(man/axm-${verb}.1 --man ${verb})
endforeach()
