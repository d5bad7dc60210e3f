# The rooms of the library, each an object library, and the proof that none needs what stands above it.

set(KORVA_ROOM_TABLE "${PROJECT_SOURCE_DIR}/cmake/Rooms.txt")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${KORVA_ROOM_TABLE}")

# korva_rooms_below(<variable> <room>)
#
# The rooms that a room may know, as the table tells them.
function(korva_rooms_below variable room)
    file(STRINGS "${KORVA_ROOM_TABLE}" line REGEX "^${room}:")
    if(NOT line)
        message(FATAL_ERROR "${KORVA_ROOM_TABLE} does not tell what ${room} may know")
    endif()
    string(REGEX MATCHALL "[a-z0-9_]+" names "${line}")
    list(POP_FRONT names)
    set(${variable} "${names}" PARENT_SCOPE)
endfunction()

# korva_link_platform(<target> <room>)
#
# Links the platform libraries that a room may know.
function(korva_link_platform target room)
    korva_rooms_below(below ${room})
    foreach(name IN LISTS below)
        if(TARGET KorvaObjModel::${name})
            target_link_libraries(${target} PUBLIC KorvaObjModel::${name})
        endif()
    endforeach()
endfunction()

# korva_add_room(<room> [LIBRARIES <target>...])
#
# Adds the room's objects, the target korva_<room>, to the library: those of the room's folder, and what is
# generated for it. It sees the headers of the rooms below, which are added already, and uses the other
# libraries given.
function(korva_add_room room)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LIBRARIES")
    set(target korva_${room})
    add_library(${target} OBJECT)
    korva_configure_objects(${target})
    target_compile_definitions(${target} PRIVATE KorvaObjModel_EXPORTS)
    korva_use_generated(${target} ${room})
    if(EXISTS "${PROJECT_SOURCE_DIR}/${room}/CMakeLists.txt")
        target_include_directories(${target} PUBLIC "${PROJECT_SOURCE_DIR}/${room}/include")
        add_subdirectory("${PROJECT_SOURCE_DIR}/${room}" "${PROJECT_BINARY_DIR}/${room}")
    endif()
    korva_link_platform(${target} ${room})
    target_link_libraries(${target} PRIVATE ${arg_LIBRARIES})

    get_property(rooms GLOBAL PROPERTY KORVA_ROOMS)
    korva_rooms_below(below ${room})
    foreach(name IN LISTS below)
        if(name IN_LIST rooms)
            target_link_libraries(${target} PRIVATE korva_${name})
        endif()
    endforeach()
    set_property(GLOBAL APPEND PROPERTY KORVA_ROOMS ${room})

    target_sources(KorvaObjModel PRIVATE $<TARGET_OBJECTS:${target}>)
    target_link_libraries(KorvaObjModel PRIVATE ${arg_LIBRARIES})
endfunction()

# korva_link_room_alone(<room> [FROM_ABOVE <file>...])
#
# Links the room with nothing but what the table lets it know, and what these rooms need in their turn, so
# that a name of a room above stays undefined and stops the build. The files define what the room is
# meant to be given from above. Nobody uses what is linked.
function(korva_link_room_alone room)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "FROM_ABOVE")
    get_property(rooms GLOBAL PROPERTY KORVA_ROOMS)
    set(all "")
    set(open ${room})
    while(open)
        list(POP_FRONT open name)
        if(name IN_LIST rooms AND NOT name IN_LIST all)
            list(APPEND all ${name})
            korva_rooms_below(below ${name})
            list(APPEND open ${below})
        endif()
    endwhile()
    list(TRANSFORM all PREPEND korva_)

    set(target korva_${room}_alone)
    add_library(${target} MODULE ${arg_FROM_ABOVE})
    set_target_properties(
        ${target} PROPERTIES LINKER_LANGUAGE CXX LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/rooms")
    target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}")
    target_link_libraries(${target} PRIVATE ${all} korva_warnings)
    target_link_options(${target} PRIVATE -Wl,--no-undefined -s)
endfunction()
