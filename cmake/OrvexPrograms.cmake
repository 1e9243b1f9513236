# Programs, and the data files that lie beside them.
#
#   orvex_program(<name> SOURCES <file>... [USES <target>...] [MOC])
#       A program in bin/. USES are rooms, orvex::host, interfaces and packages.
#
#   orvex_resource_library(<file name> QRC <file.qrc>)
#       A binary Qt resource file under that name in bin/, made by Qt's resource compiler; data only.
#
#   orvex_data(<file>... [FOLDER <folder>])
#       Copies files of this folder to bin/<folder>, and installs them likewise.

#   orvex_compressed(<file> <destination> [<name>])
#       Installs a file compressed by gzip, under its name with .gz or the one given. For manual pages and changelogs.

if(orvex_sanitizers)
    add_library(orvex_sanitizer_defaults OBJECT ${PROJECT_SOURCE_DIR}/tests/support/sanitizerDefaults.cpp)
endif()

function(orvex_program name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "MOC" "" "SOURCES;USES")
    orvex_refuse_rest("orvex_program(${name})" "${arg_UNPARSED_ARGUMENTS}" "${arg_KEYWORDS_MISSING_VALUES}")
    orvex_need_targets("orvex_program(${name})" ${arg_USES})
    add_executable(${name} ${arg_SOURCES})
    target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
    set_target_properties(${name} PROPERTIES AUTOMOC ${arg_MOC})
    orvex_link_rooms(${name} ${arg_USES})
    orvex_depend_on_run_time_files(${name})
    install(TARGETS ${name} RUNTIME DESTINATION bin)
endfunction()

function(orvex_resource_library file)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "QRC" "")
    orvex_refuse_rest("orvex_resource_library(${file})" "${arg_UNPARSED_ARGUMENTS}" "${arg_KEYWORDS_MISSING_VALUES}")
    cmake_path(ABSOLUTE_PATH arg_QRC)
    cmake_path(GET file STEM stem)
    set(result ${ORVEX_BIN_DIR}/${file})
    # The pictures and texts are named in the .qrc alone; ask it, so that a change to one of them counts.
    file(STRINGS ${arg_QRC} entries REGEX "<file")
    set(parts "")
    foreach(entry IN LISTS entries)
        if(entry MATCHES "<file[^>]*>([^<]+)</file>")
            cmake_path(GET arg_QRC PARENT_PATH folder)
            list(APPEND parts ${folder}/${CMAKE_MATCH_1})
        endif()
    endforeach()
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${arg_QRC})
    add_custom_command(OUTPUT ${result}
        COMMAND Qt5::rcc -binary ${arg_QRC} -o ${result}
        DEPENDS ${arg_QRC} ${parts}
        COMMENT "Packing ${file}" VERBATIM)
    add_custom_target(${stem} ALL DEPENDS ${result})
    set_property(GLOBAL APPEND PROPERTY ORVEX_RUN_TIME_FILES ${stem})
    install(FILES ${result} DESTINATION ${ORVEX_INSTALL_DATA})
endfunction()

function(orvex_data)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "FOLDER" "")
    foreach(name IN LISTS arg_UNPARSED_ARGUMENTS)
        cmake_path(GET name FILENAME leaf)
        configure_file(${name} ${ORVEX_BIN_DIR}/${arg_FOLDER}/${leaf} COPYONLY)
        install(FILES ${name} DESTINATION ${ORVEX_INSTALL_DATA}/${arg_FOLDER})
    endforeach()
endfunction()

function(orvex_compressed file destination)
    cmake_path(ABSOLUTE_PATH file)
    cmake_path(GET file FILENAME name)
    string(APPEND name .gz)
    if(ARGC GREATER 2)
        set(name ${ARGV2})
    endif()
    set(result ${CMAKE_CURRENT_BINARY_DIR}/${name})
    add_custom_command(OUTPUT ${result}
        COMMAND gzip --best --no-name --stdout ${file} > ${result}
        DEPENDS ${file}
        COMMENT "Compressing ${name}" VERBATIM)
    add_custom_target(compressed_${name} ALL DEPENDS ${result})
    install(FILES ${result} DESTINATION ${destination})
endfunction()

# The module and the resource libraries are opened at run time; whoever builds a program or a test wants them too.
function(orvex_depend_on_run_time_files name)
    get_property(files GLOBAL PROPERTY ORVEX_RUN_TIME_FILES)
    if(files)
        add_dependencies(${name} ${files})
    endif()
endfunction()
