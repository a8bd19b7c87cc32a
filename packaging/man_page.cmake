# Writes a man page from a program's own --help texts, so that the page
# never drifts from the program. Run with
#   cmake -DPROGRAM=path -DNAME=zel-cli -DSUMMARY="..." -DVERSION=x.y.z
#         -DOUT=zel-cli.1 -P man_page.cmake
# Every subcommand listed under "Subcommands:" gets a section with its own
# help, one level down as well (the design codes of zel-cli design).

function(help_text out)
  execute_process(COMMAND ${PROGRAM} ${ARGN} --help
                  OUTPUT_VARIABLE text ERROR_VARIABLE error
                  RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} ${ARGN} --help failed: ${error}")
  endif()
  set(${out} "${text}" PARENT_SCOPE)
endfunction()

# Preformatted help text, escaped for troff.
function(verbatim out text)
  string(REPLACE "\\" "\\e" text "${text}")
  string(REGEX REPLACE "(^|\n)([.'])" "\\1\\\\&\\2" text "${text}")
  set(${out} ".nf\n${text}\n.fi\n" PARENT_SCOPE)
endfunction()

function(subcommands out text)
  set(names "")
  if(text MATCHES "Subcommands:\n(.*)")
    string(REGEX MATCHALL "\n  [a-z0-9][a-z0-9.-]*" lines "\n${CMAKE_MATCH_1}")
    foreach(line IN LISTS lines)
      string(STRIP "${line}" name)
      list(APPEND names "${name}")
    endforeach()
  endif()
  set(${out} "${names}" PARENT_SCOPE)
endfunction()

string(TOUPPER "${NAME}" title)
help_text(top)
verbatim(top_text "${top}")
set(page ".TH ${title} 1 \"\" \"${NAME} ${VERSION}\" \"User Commands\"\n")
string(APPEND page ".SH NAME\n${NAME} \\- ${SUMMARY}\n")
string(APPEND page ".SH DESCRIPTION\n${top_text}")

subcommands(commands "${top}")
if(commands)
  string(APPEND page ".SH COMMANDS\n")
endif()
foreach(command IN LISTS commands)
  help_text(text ${command})
  verbatim(body "${text}")
  string(APPEND page ".SS ${command}\n${body}")
  subcommands(inner "${text}")
  foreach(sub IN LISTS inner)
    help_text(sub_text ${command} ${sub})
    verbatim(sub_body "${sub_text}")
    string(APPEND page ".SS ${command} ${sub}\n${sub_body}")
  endforeach()
endforeach()

string(APPEND page ".SH SEE ALSO\nzel(1), zel-cli(1)\n")
file(WRITE "${OUT}" "${page}")
