# Runs PROGRAM --json PROJECT and compares its standard output with the file EXPECTED.
# The examples all calculate, so the exit code must be 0 as well.
execute_process(
    COMMAND "${PROGRAM}" --json "${PROJECT}"
    OUTPUT_VARIABLE actual
    ERROR_VARIABLE errors
    RESULT_VARIABLE exitCode)
if(NOT EXISTS "${EXPECTED}")
    message(FATAL_ERROR "No expected output ${EXPECTED}; run scripts/update-golden.sh")
endif()
file(READ "${EXPECTED}" expected)
if(NOT exitCode EQUAL 0)
    message(FATAL_ERROR "swale-calc exited with ${exitCode} on ${PROJECT}\n${actual}${errors}")
endif()
if(NOT actual STREQUAL expected)
    message(FATAL_ERROR "Output differs for ${PROJECT}\nexpected: ${expected}actual:   ${actual}")
endif()
