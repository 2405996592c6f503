# Runs the host as its users do and compares what comes back.
#   cmake "-DHOST=program" -DSOURCE=directory-of-this-file -P check_host.cmake
cmake_policy(SET CMP0054 NEW)
file(READ ${SOURCE}/report.txt EXPECTED)
file(READ ${SOURCE}/README.md README)
string(FIND "${README}" "${EXPECTED}" AT)
if(AT EQUAL -1)
  message(SEND_ERROR "README.md does not show what report.txt holds")
endif()

# check(STATUS OUTPUT ERROR-PATTERN arguments...): OUTPUT "*" is any.
function(check status output error)
  execute_process(COMMAND ${HOST} ${ARGN} INPUT_FILE "${INPUT}" WORKING_DIRECTORY /
    RESULT_VARIABLE got_status OUTPUT_VARIABLE got_output ERROR_VARIABLE got_error)
  string(REPLACE "\r\n" "\n" got_output "${got_output}")
  string(REGEX REPLACE "\nPrinted 20[0-9]+/[0-9]+/[0-9]+ [0-9:]+\n$" "\nPrinted NOW\n" got_output
    "${got_output}")
  if(NOT got_status STREQUAL status OR NOT (output STREQUAL "*" OR got_output STREQUAL output)
     OR NOT got_error MATCHES "${error}")
    message(SEND_ERROR "${ARGN} <${INPUT}: status ${got_status}, expected ${status}\n"
      "${got_output}---- expected\n${output}\n---- standard error\n${got_error}")
  endif()
endfunction()

set(INPUT ${SOURCE}/events.log)
check(0 "${EXPECTED}" "^$")
check(0 "${EXPECTED}" "^$" ${SOURCE}/events.log)
check(0 "${EXPECTED}" "^$" -)
check(0 "${EXPECTED}\nPrinted NOW\n" "^$" --stamp -)
check(0 "*" "^$" --help)
check(1 "" "cannot open .*no-such.log" ${SOURCE}/no-such.log)
check(1 "" "cannot (open|read) " ${SOURCE})
check(1 "" "usage: " --no-such-option)
check(1 "" "usage: " one two)

# Any bytes are a log: the program itself has zero bytes, stray ones and endless lines.
list(GET HOST -1 INPUT)
check(0 "*" "^$" -)
