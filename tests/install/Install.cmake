# Installs the build into a fresh prefix: nothing of an earlier run may stand in for what is missing.
file(REMOVE_RECURSE "${PREFIX}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --config "${CONFIG}" --prefix
                        "${PREFIX}" OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
