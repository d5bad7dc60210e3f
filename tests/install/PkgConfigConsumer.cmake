# Builds the consumer by what pkg-config says of the installed tree, and runs it; with STATIC once more by
# what it says when everything is asked for.
set(ENV{PKG_CONFIG_PATH} "${PREFIX}/${LIBDIR}/pkgconfig")
execute_process(COMMAND "${PKG_CONFIG}" --variable=busauthority KorvaObjModel
                OUTPUT_VARIABLE authority OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)

function(build_and_run)
    execute_process(COMMAND "${PKG_CONFIG}" ${ARGN} --cflags --libs KorvaObjModel OUTPUT_VARIABLE flags
                    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    separate_arguments(flags UNIX_COMMAND "${flags}")
    execute_process(
        COMMAND "${COMPILER}" -std=c++20 "-DEXPECTED_AUTHORITY=\"${authority}\"" "${SOURCE}" -o
                "${BINARY}" ${flags} "-Wl,-rpath,${PREFIX}/${LIBDIR}" COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND "${BINARY}" COMMAND_ERROR_IS_FATAL ANY)
endfunction()

build_and_run()
if(STATIC)
    build_and_run(--static)
endif()
