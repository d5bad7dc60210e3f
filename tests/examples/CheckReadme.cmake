# Checks that the README shows examples/hello as it is, and what it prints.
file(READ "${README}" readme)
file(READ "${SOURCE}" source)
file(READ "${ENVELOPE}" envelope)

# The first line of the source says what it is, as the README's text does.
string(REGEX REPLACE "^//[^\n]*\n" "" source "${source}")

string(FIND "${readme}" "```cpp\n${source}```" at)
if(at EQUAL -1)
    message(FATAL_ERROR "The README's program is not ${SOURCE}.")
endif()
string(FIND "${readme}" "```xml\n${envelope}```" at)
if(at EQUAL -1)
    message(FATAL_ERROR "The README's envelope is not ${ENVELOPE}.")
endif()
