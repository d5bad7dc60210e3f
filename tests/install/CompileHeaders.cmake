# Compiles each installed header by itself, twice over, with all warnings; of SHARDS equal parts of them
# the one numbered SHARD.
file(GLOB_RECURSE headers RELATIVE "${PREFIX}/include" "${PREFIX}/include/*.h")
list(SORT headers)
list(LENGTH headers count)
if(count EQUAL 0)
    message(FATAL_ERROR "No header is installed in ${PREFIX}/include.")
endif()

set(units "")
math(EXPR first "${SHARD} - 1")
math(EXPR last "${count} - 1")
foreach(index RANGE ${first} ${last} ${SHARDS})
    list(GET headers ${index} header)
    string(MAKE_C_IDENTIFIER "${header}" name)
    set(unit "${WORK}/${name}.cpp")
    file(WRITE "${unit}" "#include <${header}>\n#include <${header}>\n")
    list(APPEND units "${unit}")
endforeach()

execute_process(COMMAND "${COMPILER}" -std=c++20 -Wall -Wextra -Wpedantic -Werror -fsyntax-only
                        "-I${PREFIX}/include" ${units} COMMAND_ERROR_IS_FATAL ANY)
