# One run of the schema compiler: sets the authority in copies of the schema files, compiles these,
# removes what an earlier run wrote and this one did not, and checks the units against CMake's list.
cmake_minimum_required(VERSION 3.25)

include("${CMAKE_CURRENT_LIST_DIR}/KorvaSchemaFiles.cmake")
include("${CMAKE_CURRENT_LIST_DIR}/KorvaGeneratedUnits.cmake")

# Leaves a file alone that has the content already.
function(write_if_different path content)
    if(EXISTS "${path}")
        file(READ "${path}" before)
        if(before STREQUAL content)
            return()
        endif()
    endif()
    file(WRITE "${path}" "${content}")
endfunction()

# The area files include each other in a ring, so that each can be loaded alone. Some toolkits run
# round in it for ever: services refer to the same types in one file.
file(READ "${SOURCES}/bus.xsd" joined)
string(REGEX REPLACE "[ \n]*<xs:include.*" "\n" joined "${joined}")
string(REPLACE "xmlns:bus=" "xmlns:SOAP-ENC=\"http://schemas.xmlsoap.org/soap/encoding/\"
           xmlns:wsdl=\"http://schemas.xmlsoap.org/wsdl/\"
           xmlns:bus=" joined "${joined}")
string(REPLACE "schemaLocation=\"" "schemaLocation=\"../" joined "${joined}")
string(REPLACE "${KORVA_DEFAULT_AUTHORITY}" "${AUTHORITY}" joined "${joined}")

foreach(name IN LISTS KORVA_SCHEMA_FILES KORVA_WSDL_FILES)
    file(READ "${SOURCES}/${name}" text)
    string(REPLACE "${KORVA_DEFAULT_AUTHORITY}" "${AUTHORITY}" text "${text}")
    if(name MATCHES "\\.wsdl$")
        string(REPLACE "schemaLocation=\"bus.xsd\"" "schemaLocation=\"joined/bus.xsd\"" text "${text}")
    elseif(NOT name MATCHES "^(bus|soap-encoding)\\.xsd$")
        string(REGEX REPLACE "^.*<xs:schema[^>]*>" "" types "${text}")
        string(REGEX REPLACE "[ ]*<xs:(include|import)[^>]*>\n*" "" types "${types}")
        string(REPLACE "</xs:schema>\n" "" types "${types}")
        string(APPEND joined "${types}")
    endif()
    write_if_different("${COPIES}/${name}" "${text}")
endforeach()
write_if_different("${COPIES}/joined/bus.xsd" "${joined}</xs:schema>\n")

set(arguments --schema "${COPIES}/bus.xsd")
foreach(name IN LISTS KORVA_WSDL_FILES)
    list(APPEND arguments --wsdl "${COPIES}/${name}")
endforeach()
list(APPEND arguments --hand-written "${HAND_WRITTEN}" --out "${OUT}")

execute_process(COMMAND "${COMPILER}" ${arguments} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "The schema does not compile (${COMPILER}: ${result}).")
endif()

execute_process(
    COMMAND "${COMPILER}" ${arguments} --list-outputs
    OUTPUT_VARIABLE listed
    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE "\n" ";" outputs "${listed}")

set(units ${outputs})
list(FILTER units INCLUDE REGEX "\\.cpp$")
set(missing ${KORVA_GENERATED_UNITS})
list(REMOVE_ITEM missing ${units})
set(unknown ${units})
list(REMOVE_ITEM unknown ${KORVA_GENERATED_UNITS})
if(missing OR unknown)
    message(FATAL_ERROR "cmake/KorvaGeneratedUnits.cmake does not list what korva-schemac writes.\n"
                        "Listed, not written: ${missing}\nWritten, not listed: ${unknown}")
endif()

file(GLOB_RECURSE present RELATIVE "${OUT}" "${OUT}/*.h" "${OUT}/*.inc" "${OUT}/*.cpp")
list(REMOVE_ITEM present ${outputs})
foreach(stale IN LISTS present)
    file(REMOVE "${OUT}/${stale}")
endforeach()

write_if_different("${OUT}/outputs.txt" "${listed}\n")
file(TOUCH "${STAMP}")
