# Runs the schema compiler over schema/ and gives its output to the targets that compile it.
#
# Headers go to generated/include/korva, units to generated/<room>. Units are few and fixed, and
# KorvaGeneratedUnits.cmake lists them. Headers are many, and follow from the schema: the compiler's own
# list of them is kept in generated/outputs.txt and read back at the next configure, so that a changed
# header rebuilds what includes it and nothing else.

include("${CMAKE_CURRENT_LIST_DIR}/KorvaGeneratedUnits.cmake")

set(KORVA_GENERATED_DIR "${PROJECT_BINARY_DIR}/generated")
set(KORVA_SCHEMA_DIR "${PROJECT_BINARY_DIR}/schema")
# The headers that are written by hand; korva_list_hand_written() writes it.
set(KORVA_HAND_WRITTEN_FILE "${PROJECT_BINARY_DIR}/hand-written.txt")

# korva_generate()
#
# Declares the run that writes everything generated, and the target korva_generated for what must wait
# for it.
function(korva_generate)
    if(KORVA_SCHEMA_COMPILER)
        set(compiler "${KORVA_SCHEMA_COMPILER}")
    else()
        set(compiler "$<TARGET_FILE:korva_schemac>")
    endif()

    set(outputs_file "${KORVA_GENERATED_DIR}/outputs.txt")
    if(NOT EXISTS "${outputs_file}")
        file(WRITE "${outputs_file}" "")
    endif()
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${outputs_file}")
    file(STRINGS "${outputs_file}" outputs)
    list(APPEND outputs ${KORVA_GENERATED_UNITS})
    list(REMOVE_DUPLICATES outputs)
    list(TRANSFORM outputs PREPEND "${KORVA_GENERATED_DIR}/")

    set(sources ${KORVA_SCHEMA_FILES} ${KORVA_WSDL_FILES})
    set(copies ${sources} joined/bus.xsd)
    list(TRANSFORM sources PREPEND "${PROJECT_SOURCE_DIR}/schema/")
    list(TRANSFORM copies PREPEND "${KORVA_SCHEMA_DIR}/")

    set(script "${PROJECT_SOURCE_DIR}/cmake/KorvaRunSchemaCompiler.cmake")
    set(stamp "${KORVA_GENERATED_DIR}/stamp")
    add_custom_command(
        OUTPUT "${stamp}"
        COMMAND
            ${CMAKE_COMMAND} "-DCOMPILER=${compiler}" "-DAUTHORITY=${KORVA_BUS_AUTHORITY}"
            "-DSOURCES=${PROJECT_SOURCE_DIR}/schema" "-DCOPIES=${KORVA_SCHEMA_DIR}"
            "-DHAND_WRITTEN=${KORVA_HAND_WRITTEN_FILE}" "-DOUT=${KORVA_GENERATED_DIR}"
            "-DSTAMP=${stamp}" -P "${script}"
        DEPENDS ${sources} "${compiler}" "${script}" "${KORVA_HAND_WRITTEN_FILE}"
                "${PROJECT_SOURCE_DIR}/cmake/KorvaSchemaFiles.cmake"
                "${PROJECT_SOURCE_DIR}/cmake/KorvaGeneratedUnits.cmake"
        COMMENT "Compiling the schema"
        VERBATIM)
    # The files are declared apart from the command that writes them, so that a fault in the schema is
    # not told below a list of them all.
    add_custom_command(
        OUTPUT ${outputs} ${copies}
        COMMAND ${CMAKE_COMMAND} -E true
        DEPENDS "${stamp}"
        COMMENT "Taking up the generated files"
        VERBATIM)
    add_custom_target(korva_generated DEPENDS ${outputs} ${copies})
    korva_add_vocabulary("${compiler}")
endfunction()

# korva_add_vocabulary(<compiler>)
#
# The target that renews docs/vocabulary.md, which is kept in the tree to be read there.
function(korva_add_vocabulary compiler)
    set(schema "${PROJECT_SOURCE_DIR}/schema")
    set(arguments --schema "${schema}/bus.xsd")
    foreach(name IN LISTS KORVA_WSDL_FILES)
        list(APPEND arguments --wsdl "${schema}/${name}")
    endforeach()
    add_custom_target(
        korva_vocabulary
        COMMAND "${compiler}" ${arguments} --hand-written "${KORVA_HAND_WRITTEN_FILE}" --docs "${PROJECT_SOURCE_DIR}/docs/vocabulary.md"
        COMMENT "Writing docs/vocabulary.md"
        VERBATIM)
endfunction()

# korva_list_hand_written()
#
# Tells the schema compiler which names are taken: those of the public headers of all libraries added
# so far.
function(korva_list_hand_written)
    get_property(libraries GLOBAL PROPERTY KORVA_LIBRARIES)
    set(headers "")
    foreach(library IN LISTS libraries)
        get_target_property(sets ${library} INTERFACE_HEADER_SETS)
        foreach(set IN LISTS sets)
            get_target_property(files ${library} HEADER_SET_${set})
            list(APPEND headers ${files})
        endforeach()
    endforeach()
    list(TRANSFORM headers REPLACE ".*/include/" "")
    list(SORT headers)
    list(JOIN headers "\n" text)
    file(CONFIGURE OUTPUT "${KORVA_HAND_WRITTEN_FILE}" CONTENT "${text}\n" @ONLY)
endfunction()

# korva_use_generated(<target> <room>...)
#
# Compiles the generated units of the rooms into the target, and makes it, and what links it, wait for
# the generated headers. Beside these stand those of the schema's types that are written by hand.
function(korva_use_generated target)
    foreach(room IN LISTS ARGN)
        set(units ${KORVA_GENERATED_UNITS})
        list(FILTER units INCLUDE REGEX "^${room}/")
        list(TRANSFORM units PREPEND "${KORVA_GENERATED_DIR}/")
        set_source_files_properties(${units} PROPERTIES GENERATED TRUE)
        target_sources(${target} PRIVATE ${units})
    endforeach()
    target_include_directories(
        ${target}
        PUBLIC "$<BUILD_INTERFACE:${KORVA_GENERATED_DIR}/include>"
               "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/schema/include>"
        PRIVATE "${KORVA_GENERATED_DIR}")
    add_dependencies(${target} korva_generated)
endfunction()
