# Plays the live call with RUNNER and the programs in PROGRAMS, compares what it prints with EXPECTED,
# but for figures that the machine has a say in, and looks whether it leaves anything in the folder for
# temporary files, for which it gets SCRATCH.
file(REMOVE_RECURSE "${SCRATCH}")
file(MAKE_DIRECTORY "${SCRATCH}")
set(ENV{TMPDIR} "${SCRATCH}")
execute_process(
    COMMAND "${RUNNER}" "${PROGRAMS}"
    OUTPUT_VARIABLE printed
    RESULT_VARIABLE status)
file(GLOB left "${SCRATCH}/*" "${SCRATCH}/.*")
file(REMOVE_RECURSE "${SCRATCH}")
if(NOT status EQUAL 0)
    message(FATAL_ERROR "The live call ended with ${status}:\n${printed}")
endif()
if(left)
    message(FATAL_ERROR "The live call left ${left}")
endif()

string(REGEX REPLACE "[0-9]+ KB" "# KB" printed "${printed}")
# How small zlib makes the table.
string(REGEX REPLACE "from [0-9][0-9][0-9][0-9][0-9][0-9][0-9] bytes" "from ####### bytes" printed
                     "${printed}")
file(READ "${EXPECTED}" expected)
if(NOT printed STREQUAL expected)
    file(WRITE "${ACTUAL}" "${printed}")
    execute_process(COMMAND diff -u "${EXPECTED}" "${ACTUAL}")
    message(FATAL_ERROR "The live call printed ${ACTUAL}, which is not ${EXPECTED}")
endif()
