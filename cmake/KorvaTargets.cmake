# What all targets share: warnings, sanitizers, and the settings of our libraries.

include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)

# Shared, unless it is said that libraries are not.
set(KORVA_LIBRARY_TYPE SHARED)
if(DEFINED BUILD_SHARED_LIBS AND NOT BUILD_SHARED_LIBS)
    set(KORVA_LIBRARY_TYPE STATIC)
endif()

# Warnings for every target of ours; link it privately.
add_library(korva_warnings INTERFACE)
target_compile_options(korva_warnings INTERFACE -Wall -Wextra -Wpedantic
                                                $<$<BOOL:${KORVA_WERROR}>:-Werror>)

# The same for what is loaded into other programs: nothing may run before main.
add_library(korva_library_warnings INTERFACE)
target_link_libraries(korva_library_warnings INTERFACE korva_warnings)
target_compile_options(
    korva_library_warnings INTERFACE $<$<CXX_COMPILER_ID:Clang,AppleClang>:-Wglobal-constructors>)

# What makes a flaw harder to use, for what is loaded into other programs. Only optimized code can
# have its calls of the C library checked, and a sanitizer checks more. Of the control flow only returns
# are guarded: marking the targets of calls takes 2 % more instructions of a write.
add_library(korva_hardening INTERFACE)
if(NOT KORVA_SANITIZE)
    set(level 2)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 12)
        set(level 3)
    endif()
    foreach(flag IN ITEMS -fstack-protector-strong -fcf-protection=return)
        string(MAKE_C_IDENTIFIER "KORVA_COMPILER_HAS${flag}" has)
        check_cxx_compiler_flag("${flag}" ${has})
        if(${has})
            target_compile_options(korva_hardening INTERFACE ${flag})
        endif()
    endforeach()
    if(NOT MSVC)
        target_compile_options(
            korva_hardening
            INTERFACE
                "$<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:SHELL:-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=${level}>")
    endif()
endif()

if(KORVA_SANITIZE)
    add_compile_options(-fsanitize=${KORVA_SANITIZE} -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${KORVA_SANITIZE})
endif()

set(KORVA_LIBRARY_LINK_FLAGS "")
foreach(flag IN ITEMS -Bsymbolic-functions -z,now -z,relro --no-undefined)
    # A sanitizer's runtime comes with the program, so a shared library leaves it undefined.
    if(flag STREQUAL "--no-undefined" AND KORVA_SANITIZE)
        continue()
    endif()
    string(MAKE_C_IDENTIFIER "KORVA_LINKER_HAS${flag}" has)
    check_linker_flag(CXX "-Wl,${flag}" ${has})
    if(${has})
        list(APPEND KORVA_LIBRARY_LINK_FLAGS "-Wl,${flag}")
    endif()
endforeach()

# Tables of pointers in a few bytes for each run of them. The loader must know this form (glibc 2.36 does,
# and an older one says that it does not); -DKORVA_LINKER_PACKS_RELOCATIONS=OFF builds for any. A linker
# that does not know it may only warn.
separate_arguments(flags UNIX_COMMAND "${CMAKE_SHARED_LINKER_FLAGS}")
check_linker_flag(CXX "${flags};-Wl,--fatal-warnings,-z,pack-relative-relocs"
                  KORVA_LINKER_PACKS_RELOCATIONS)
if(KORVA_LINKER_PACKS_RELOCATIONS)
    list(APPEND KORVA_LIBRARY_LINK_FLAGS "-Wl,-z,pack-relative-relocs")
endif()

# What the compiler writes of a path into a library, in traces or for a debugger: the path in the tree,
# and not where the tree or the build lay. A compiler cache may hand the compiler paths that start at the
# build. The last one that fits is taken.
file(RELATIVE_PATH from_build "${CMAKE_BINARY_DIR}" "${PROJECT_SOURCE_DIR}/")
set(KORVA_PREFIX_MAP
    "-ffile-prefix-map=${from_build}=" "-ffile-prefix-map=${PROJECT_SOURCE_DIR}/="
    "-ffile-prefix-map=${PROJECT_BINARY_DIR}=." "-ffile-prefix-map=${PROJECT_BINARY_DIR}/=")

# korva_configure_objects(<target>)
#
# Gives what is compiled for a library of ours the strict warnings, the hardening and the private include
# path of the repository's root.
function(korva_configure_objects target)
    target_compile_features(${target} PUBLIC cxx_std_20)
    target_compile_options(${target} PRIVATE ${KORVA_PREFIX_MAP})
    target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}")
    # Of this tree alone: an installed static library does not ask its users for them.
    target_link_libraries(${target} PRIVATE "$<BUILD_INTERFACE:korva_library_warnings>"
                                            "$<BUILD_INTERFACE:korva_hardening>")
endfunction()

# korva_configure_library(<target> NAME <name> [OUTPUT_NAME <name>])
#
# Gives a library of ours the name KorvaObjModel::<name>, here and in the installed package, its version, the
# link flags, and what its objects get.
function(korva_configure_library target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "NAME;OUTPUT_NAME" "")
    if(NOT TARGET KorvaObjModel::${arg_NAME})
        add_library(KorvaObjModel::${arg_NAME} ALIAS ${target})
    endif()
    if(arg_OUTPUT_NAME)
        set_target_properties(${target} PROPERTIES OUTPUT_NAME ${arg_OUTPUT_NAME})
    endif()
    set_target_properties(
        ${target}
        PROPERTIES EXPORT_NAME ${arg_NAME}
                   DEFINE_SYMBOL ${arg_NAME}_EXPORTS
                   LINKER_LANGUAGE CXX
                   VERSION ${PROJECT_VERSION}
                   SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
    korva_configure_objects(${target})
    if(KORVA_LIBRARY_TYPE STREQUAL "STATIC")
        target_compile_definitions(${target} PUBLIC KORVA_STATIC)
    endif()
    target_link_options(${target} PRIVATE ${KORVA_LIBRARY_LINK_FLAGS})
    set_property(GLOBAL APPEND PROPERTY KORVA_LIBRARIES ${target})
endfunction()

# korva_add_platform_library(<name> OUTPUT_NAME <file name> [REPLACEABLE])
#
# Adds the platform library of platform/<name>, whose target is korva_<name>, with those that it may know. When
# it is replaceable and KORVA_<NAME>_TARGET names a target (a deployment's own library), that one is linked
# and ours is not built; docs/platform.md tells what it must have.
function(korva_add_platform_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "REPLACEABLE" "OUTPUT_NAME" "")
    if(arg_REPLACEABLE)
        string(TOUPPER ${name} upper)
        set(KORVA_${upper}_TARGET "" CACHE STRING
            "Existing target to link in place of our platform library ${name}")
        mark_as_advanced(KORVA_${upper}_TARGET)
        if(KORVA_${upper}_TARGET)
            add_library(KorvaObjModel::${name} ALIAS ${KORVA_${upper}_TARGET})
            return()
        endif()
    endif()
    add_subdirectory("${PROJECT_SOURCE_DIR}/platform/${name}" "${PROJECT_BINARY_DIR}/platform/${name}")
    korva_configure_library(korva_${name} NAME ${name} OUTPUT_NAME ${arg_OUTPUT_NAME})
    korva_link_platform(korva_${name} ${name})
endfunction()
