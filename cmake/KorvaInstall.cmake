# What is installed, and how other projects find it: a CMake package and a pkg-config file.

include(CMakePackageConfigHelpers)

get_property(libraries GLOBAL PROPERTY KORVA_LIBRARIES)
set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/KorvaObjModel")
set(data_dir "${CMAKE_INSTALL_DATADIR}/KorvaObjModel")

foreach(library IN LISTS libraries)
    # The libraries stand side by side and find each other there, wherever the prefix is.
    set_target_properties(${library} PROPERTIES INSTALL_RPATH "$ORIGIN")
    get_target_property(sets ${library} INTERFACE_HEADER_SETS)
    set(headers "")
    foreach(set IN LISTS sets)
        list(APPEND headers FILE_SET ${set} DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
    endforeach()
    install(
        TARGETS ${library}
        EXPORT KorvaObjModelTargets
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
        INCLUDES
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
        ${headers})
endforeach()

# The generated headers, and the schema in the words of this build: with its authority.
install(DIRECTORY "${KORVA_GENERATED_DIR}/include/" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
set(schema_files ${KORVA_SCHEMA_FILES} ${KORVA_WSDL_FILES})
list(TRANSFORM schema_files PREPEND "${KORVA_SCHEMA_DIR}/")
install(FILES ${schema_files} DESTINATION "${data_dir}/schema")
install(FILES "${KORVA_SCHEMA_DIR}/joined/bus.xsd" DESTINATION "${data_dir}/schema/joined")
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION "${CMAKE_INSTALL_DOCDIR}")

install(
    EXPORT KorvaObjModelTargets
    NAMESPACE KorvaObjModel::
    DESTINATION "${package_dir}")
configure_package_config_file(
    "${PROJECT_SOURCE_DIR}/cmake/KorvaObjModelConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/KorvaObjModelConfig.cmake"
    INSTALL_DESTINATION "${package_dir}"
    PATH_VARS data_dir)
write_basic_package_version_file(
    "${PROJECT_BINARY_DIR}/KorvaObjModelConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/KorvaObjModelConfig.cmake"
              "${PROJECT_BINARY_DIR}/KorvaObjModelConfigVersion.cmake" DESTINATION "${package_dir}")

# pkg-config: the prefix is told relative to the file, so that the tree can be moved.
set(pc_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
file(RELATIVE_PATH pc_prefix "/${pc_dir}" "/")
string(REGEX REPLACE "/$" "" pc_prefix "${pc_prefix}")
# A library stands before those that it needs. What static ones need themselves every user links, not only
# who asks for static libraries throughout.
set(pc_libs "")
foreach(library IN LISTS libraries)
    get_target_property(name ${library} OUTPUT_NAME)
    if(NOT name)
        set(name ${library})
    endif()
    string(PREPEND pc_libs "-l${name} ")
endforeach()
string(STRIP "${pc_libs}" pc_libs)
set(pc_requires "xerces-c >= 3.2")
set(pc_cflags "")
if(KORVA_LIBRARY_TYPE STREQUAL "STATIC")
    string(APPEND pc_requires " libxml-2.0 >= 2.9.14 zlib")
    string(APPEND pc_libs " -pthread")
    set(pc_cflags " -DKORVA_STATIC")
endif()
configure_file("${PROJECT_SOURCE_DIR}/cmake/KorvaObjModel.pc.in"
               "${PROJECT_BINARY_DIR}/KorvaObjModel.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/KorvaObjModel.pc" DESTINATION "${pc_dir}")
