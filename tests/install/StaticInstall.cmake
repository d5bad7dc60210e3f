# Builds and installs static libraries as the preset "install" says, with every other package hidden. They
# are only linked with, so nothing is optimized.
set(hidden "-DPKG_CONFIG_EXECUTABLE=${BUILD_DIR}/no-pkg-config")
foreach(package IN ITEMS GTest benchmark CURL OpenSSL)
    list(APPEND hidden "-DCMAKE_DISABLE_FIND_PACKAGE_${package}=ON")
endforeach()
execute_process(
    COMMAND "${CMAKE_COMMAND}" --fresh --preset install -B "${BUILD_DIR}" -DBUILD_SHARED_LIBS=OFF
            "-DCMAKE_INSTALL_PREFIX=${PREFIX}" "-DCMAKE_CXX_COMPILER=${COMPILER}"
            "-DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}" -DCMAKE_CXX_FLAGS_RELEASE=-O0 ${hidden}
    WORKING_DIRECTORY "${SOURCE_DIR}" COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_COMMAND}" --build "${BUILD_DIR}" COMMAND_ERROR_IS_FATAL ANY)
file(REMOVE_RECURSE "${PREFIX}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD_DIR}" OUTPUT_QUIET
                        COMMAND_ERROR_IS_FATAL ANY)
file(GLOB_RECURSE shared "${PREFIX}/*.so*")
if(shared)
    message(FATAL_ERROR "Static libraries were asked for, and these came: ${shared}")
endif()
