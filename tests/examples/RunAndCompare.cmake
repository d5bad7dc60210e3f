# Runs PROGRAM with ARGUMENTS in DIRECTORY and compares what it prints, byte by byte, with EXPECTED.
execute_process(
    COMMAND "${PROGRAM}" ${ARGUMENTS}
    WORKING_DIRECTORY "${DIRECTORY}"
    OUTPUT_VARIABLE printed
    RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} ended with ${status}")
endif()
file(READ "${EXPECTED}" expected)
if(NOT printed STREQUAL expected)
    file(WRITE "${ACTUAL}" "${printed}")
    execute_process(COMMAND diff -u "${EXPECTED}" "${ACTUAL}")
    message(FATAL_ERROR "${PROGRAM} printed ${ACTUAL}, which is not ${EXPECTED}")
endif()
