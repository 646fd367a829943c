# Compiles a probe that must not compile, and passes when the compiler refuses it with output in
# which every pattern of the probe's "// expect: " lines is found, in any order (compilers differ
# in the order of an assertion and the instantiation that led to it, and in how they name types).
#   cmake -DCOMPILER=... -DSOURCE_DIR=... -DPROBE=... -P RunProbe.cmake
execute_process(COMMAND ${COMPILER} -std=c++20 -fsyntax-only -I${SOURCE_DIR} ${PROBE}
  RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(result EQUAL 0)
  message(FATAL_ERROR "${PROBE} compiled")
endif()
file(STRINGS ${PROBE} expectations REGEX "^// expect: ")
if(NOT expectations)
  message(FATAL_ERROR "${PROBE} has no \"// expect: \" line")
endif()
foreach(expectation IN LISTS expectations)
  string(REPLACE "// expect: " "" pattern "${expectation}")
  if(NOT output MATCHES "${pattern}")
    message(FATAL_ERROR "the compiler's output has no match of ${pattern}:\n${output}")
  endif()
endforeach()
