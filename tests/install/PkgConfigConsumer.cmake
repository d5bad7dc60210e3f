# Builds the consumer by what pkg-config says of the installed tree, with STATIC of its static libraries, and
# runs it.
set(ENV{PKG_CONFIG_PATH} "${PREFIX}/${LIBDIR}/pkgconfig")
set(options --cflags --libs)
if(STATIC)
    list(PREPEND options --static)
endif()
execute_process(COMMAND "${PKG_CONFIG}" ${options} KorvaObjModel OUTPUT_VARIABLE flags
                OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
execute_process(COMMAND "${PKG_CONFIG}" --variable=busauthority KorvaObjModel
                OUTPUT_VARIABLE authority OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
execute_process(
    COMMAND "${COMPILER}" -std=c++20 "-DEXPECTED_AUTHORITY=\"${authority}\"" "${SOURCE}" -o "${BINARY}"
            ${flags} "-Wl,-rpath,${PREFIX}/${LIBDIR}" COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${BINARY}" COMMAND_ERROR_IS_FATAL ANY)
