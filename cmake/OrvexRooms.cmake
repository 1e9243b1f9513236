# Rooms: the folders of the source tree, one subject each, and the libraries that are made of them.
#
#   orvex_add_folders(<folder>...)
#       Adds each folder that has a CMakeLists.txt, in the order given; the others may come later.
#
#   orvex_interface(<subject> [USES <subject>...])
#       The target orvex_if_<subject>: the headers in host/include/<subject> and those of the subjects it uses. There is
#       no include folder above them, so a source sees the subjects that its room names and no others.
#
#   orvex_room(<name> SOURCES <file>... [USES <target>...] [PRIVATE_USES <target>...] [VISIBILITY default|hidden] [MOC] [UIC])
#       An OBJECT library of the sources in this folder, with the folder itself as its include folder. USES are the
#       targets its headers need (interfaces, rooms, packages such as Qt5::Core), PRIVATE_USES those that only its
#       sources need. They must exist: a room is built on what lies below it. Symbols are visible by default in the
#       host's rooms, for modules call them, and hidden elsewhere. MOC runs Qt's meta-object compiler, UIC its compiler
#       of layouts: "ui_X.h" is made of X.ui in this folder.
#       Rooms are named after their folder: host_database, engine.
#
#   orvex_library(<target> SHARED|MODULE FILE <file name> ROOMS <room>... [LINKS <target>...])
#       A library in bin/ made of those rooms that exist, linked to those LINKS that exist; nothing when its first room
#       doesn't exist yet. Users of the library get no include folders from it; they name interfaces or rooms.
#
#   orvex_link_rooms(<target> <name>...)
#       For programs and tests: links targets, of rooms all that they rest on as well. A room that is part of a shared
#       library comes through this library, so that nothing is there twice; the objects of any other are linked in.

function(orvex_add_folders)
    foreach(folder IN LISTS ARGN)
        # The glob makes the build look again, so that a new folder needs no fresh configuration.
        file(GLOB lists CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/CMakeLists.txt)
        if(lists)
            add_subdirectory(${folder})
        endif()
    endforeach()
endfunction()

function(orvex_interface subject)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "USES")
    orvex_refuse_rest("orvex_interface(${subject})" "${arg_UNPARSED_ARGUMENTS}" "${arg_KEYWORDS_MISSING_VALUES}")
    add_library(orvex_if_${subject} INTERFACE)
    target_include_directories(orvex_if_${subject} INTERFACE ${PROJECT_SOURCE_DIR}/host/include/${subject})
    list(TRANSFORM arg_USES PREPEND orvex_if_)
    target_link_libraries(orvex_if_${subject} INTERFACE ${arg_USES})
endfunction()

function(orvex_room name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "MOC;UIC" "VISIBILITY" "SOURCES;USES;PRIVATE_USES")
    orvex_refuse_rest("orvex_room(${name})" "${arg_UNPARSED_ARGUMENTS}" "${arg_KEYWORDS_MISSING_VALUES}")
    orvex_need_targets("orvex_room(${name})" ${arg_USES} ${arg_PRIVATE_USES})

    add_library(${name} OBJECT ${arg_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${arg_USES} PRIVATE ${arg_PRIVATE_USES})

    if(NOT arg_VISIBILITY)
        if(name MATCHES "^host_")
            set(arg_VISIBILITY default)
        else()
            set(arg_VISIBILITY hidden)
        endif()
    endif()
    if(arg_VISIBILITY STREQUAL "hidden")
        set_target_properties(${name} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
        # A library with a unique symbol in it stays in memory after it was closed.
        target_compile_options(${name} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)
    endif()
    set_target_properties(${name} PROPERTIES
        AUTOMOC ${arg_MOC}
        ORVEX_ROOM_USES "${arg_USES};${arg_PRIVATE_USES}")
    if(arg_UIC)
        orvex_compile_layouts(${name})
    endif()
    set_property(GLOBAL APPEND PROPERTY ORVEX_ROOMS ${name})

    # What the room asks of its users, without its objects.
    add_library(${name}_usage INTERFACE)
    target_link_libraries(${name}_usage INTERFACE ${name})
endfunction()

function(orvex_library target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "SHARED;MODULE" "FILE" "ROOMS;LINKS")
    orvex_refuse_rest("orvex_library(${target})" "${arg_UNPARSED_ARGUMENTS}" "${arg_KEYWORDS_MISSING_VALUES}")
    list(GET arg_ROOMS 0 first)
    if(NOT TARGET ${first})
        return()
    endif()
    foreach(list IN ITEMS arg_ROOMS arg_LINKS)
        set(present_${list} "")
        foreach(item IN LISTS ${list})
            if(TARGET ${item})
                list(APPEND present_${list} ${item})
            endif()
        endforeach()
    endforeach()

    if(arg_MODULE)
        add_library(${target} MODULE)
        set_property(GLOBAL APPEND PROPERTY ORVEX_RUN_TIME_FILES ${target})
    else()
        add_library(${target} SHARED)
        set_property(TARGET ${present_arg_ROOMS} PROPERTY ORVEX_LIBRARY ${target})
        # Calls within the library go straight there: nobody is meant to replace its functions.
        target_link_options(${target} PRIVATE -Wl,-Bsymbolic-functions)
    endif()
    target_link_libraries(${target} PRIVATE ${present_arg_ROOMS} ${present_arg_LINKS})
    cmake_path(GET arg_FILE STEM stem)
    cmake_path(GET arg_FILE EXTENSION extension)
    set_target_properties(${target} PROPERTIES
        PREFIX "" OUTPUT_NAME ${stem} SUFFIX ${extension}
        # The sources are all in the rooms, so the language has to be named.
        LINKER_LANGUAGE CXX
        INSTALL_RPATH "$ORIGIN")
    install(TARGETS ${target} LIBRARY DESTINATION ${ORVEX_INSTALL_LIB})
endfunction()

function(orvex_link_rooms target)
    set(objects "")
    set(libraries "")
    set(waiting ${ARGN})
    set(seen "")
    while(waiting)
        list(POP_FRONT waiting name)
        if(name IN_LIST seen OR NOT TARGET ${name})
            continue()
        endif()
        list(APPEND seen ${name})
        get_property(rooms GLOBAL PROPERTY ORVEX_ROOMS)
        if(name IN_LIST rooms)
            get_target_property(library ${name} ORVEX_LIBRARY)
            if(library)
                list(APPEND libraries ${library})
            else()
                list(APPEND objects $<TARGET_OBJECTS:${name}>)
            endif()
            get_target_property(below ${name} ORVEX_ROOM_USES)
            list(APPEND waiting ${below})
        elseif(name MATCHES "^orvex_if_(.*)$")
            # Behind an interface stands the host's library.
            get_target_property(library ${name} ORVEX_LIBRARY)
            if(library AND TARGET ${library})
                list(APPEND libraries ${library})
            endif()
            get_target_property(below ${name} INTERFACE_LINK_LIBRARIES)
            if(below)
                list(APPEND waiting ${below})
            endif()
        endif()
    endwhile()

    foreach(name IN LISTS ARGN)
        if(TARGET ${name}_usage)
            target_link_libraries(${target} PRIVATE ${name}_usage)
        else()
            target_link_libraries(${target} PRIVATE ${name})
        endif()
    endforeach()
    list(REMOVE_DUPLICATES libraries)
    if(TARGET orvex_sanitizer_defaults)
        list(APPEND objects $<TARGET_OBJECTS:orvex_sanitizer_defaults>)
    endif()
    target_sources(${target} PRIVATE ${objects})
    target_link_libraries(${target} PRIVATE ${libraries})
endfunction()

# Helpers of the functions here and in the other files.

# Not by AUTOUIC: Ninja doesn't know what that makes, and would compile a changed layout at the next build only.
function(orvex_compile_layouts name)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/include) # where moc's results are as well
    file(GLOB layouts CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.ui)
    foreach(layout IN LISTS layouts)
        cmake_path(GET layout STEM stem)
        set(header ${folder}/ui_${stem}.h)
        add_custom_command(OUTPUT ${header}
            COMMAND Qt5::uic -o ${header} ${layout}
            DEPENDS ${layout}
            COMMENT "Compiling the layout ${stem}" VERBATIM)
        set_source_files_properties(${header} PROPERTIES SKIP_AUTOGEN ON)
        target_sources(${name} PRIVATE ${header})
    endforeach()
    # Nobody's style rules are for generated code.
    set_target_properties(${name} PROPERTIES AUTOGEN_USE_SYSTEM_INCLUDE ON)
    target_include_directories(${name} SYSTEM PRIVATE ${folder})
endfunction()

function(orvex_need_targets where)
    foreach(name IN LISTS ARGN)
        if(NOT TARGET ${name} AND NOT name MATCHES "^\\$<")
            message(FATAL_ERROR "${where}: there is no target '${name}' (yet)")
        endif()
    endforeach()
endfunction()

function(orvex_refuse_rest where rest empty)
    if(rest)
        message(FATAL_ERROR "${where}: what is '${rest}'?")
    endif()
    list(REMOVE_ITEM empty USES PRIVATE_USES LINKS)
    if(empty)
        message(FATAL_ERROR "${where}: nothing behind ${empty}")
    endif()
endfunction()
