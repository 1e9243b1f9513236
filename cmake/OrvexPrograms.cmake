# Programs, and the data files that lie beside them.
#
#   orvex_program(<name> SOURCES <file>... [USES <target>...] [MOC])
#       A program in bin/. USES are rooms, orvex::host, interfaces and packages.
#
#   orvex_resource_library(<file name> QRC <file.qrc>)
#       A binary Qt resource file under that name in bin/, made by Qt's resource compiler; data only.
#
#   orvex_translated_library(<file name> LANGUAGE <language> QRC <file.qrc>)
#       The same for a language, in bin/<language>/: an entry that has a file of its name in the folder <language> beside
#       it is that file. Captions are compiled from <language>/captions.ts beside the .qrc, where there is one.
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
    orvex_read_entries(${arg_QRC} names parts)
    orvex_pack_library(${file} "" ${arg_QRC} "${parts}")
endfunction()

function(orvex_translated_library file)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "QRC;LANGUAGE" "")
    orvex_refuse_rest("orvex_translated_library(${file})" "${arg_UNPARSED_ARGUMENTS}" "${arg_KEYWORDS_MISSING_VALUES}")
    cmake_path(ABSOLUTE_PATH arg_QRC)
    cmake_path(GET arg_QRC PARENT_PATH folder)
    cmake_path(GET file STEM stem)
    orvex_read_entries(${arg_QRC} names parts)
    file(READ ${arg_QRC} list)
    set(translated "")
    foreach(name part IN ZIP_LISTS names parts)
        cmake_path(GET part PARENT_PATH beside)
        cmake_path(GET part FILENAME leaf)
        # The glob makes the build look again, so that a new translation needs no fresh configuration.
        file(GLOB own CONFIGURE_DEPENDS ${beside}/${arg_LANGUAGE}/${leaf})
        if(own)
            set(part ${own})
        endif()
        list(APPEND translated ${part})
        # Without an alias the name is the entry's.
        string(REPLACE "<file>${name}</file>" "<file alias=\"${name}\">${part}</file>" list "${list}")
        string(REPLACE "\">${name}</file>" "\">${part}</file>" list "${list}")
    endforeach()
    set(captions ${folder}/${arg_LANGUAGE}/captions.ts)
    if(EXISTS ${captions})
        set(compiled ${CMAKE_CURRENT_BINARY_DIR}/${stem}_${arg_LANGUAGE}.qm)
        add_custom_command(OUTPUT ${compiled}
            COMMAND Qt5::lrelease -silent ${captions} -qm ${compiled}
            DEPENDS ${captions}
            COMMENT "Compiling the captions of ${arg_LANGUAGE}/${file}" VERBATIM)
        list(APPEND translated ${compiled})
        string(REPLACE "</RCC>"
            "<qresource><file alias=\"captions.qm\">${compiled}</file></qresource></RCC>" list "${list}")
    endif()
    set(qrc ${CMAKE_CURRENT_BINARY_DIR}/${stem}_${arg_LANGUAGE}.qrc)
    file(CONFIGURE OUTPUT ${qrc} CONTENT "${list}" @ONLY)
    orvex_pack_library(${file} ${arg_LANGUAGE} ${qrc} "${translated}")
endfunction()

# The files that a .qrc names, as it names them and as they are called, so that a change to one of them counts.
function(orvex_read_entries qrc names_out parts_out)
    cmake_path(GET qrc PARENT_PATH folder)
    file(STRINGS ${qrc} entries REGEX "<file")
    set(names "")
    set(parts "")
    foreach(entry IN LISTS entries)
        if(entry MATCHES "<file[^>]*>([^<]+)</file>")
            list(APPEND names ${CMAKE_MATCH_1})
            list(APPEND parts ${folder}/${CMAKE_MATCH_1})
        endif()
    endforeach()
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${qrc})
    set(${names_out} ${names} PARENT_SCOPE)
    set(${parts_out} ${parts} PARENT_SCOPE)
endfunction()

function(orvex_pack_library file language qrc parts)
    cmake_path(GET file STEM stem)
    cmake_path(APPEND ORVEX_BIN_DIR "${language}" ${file} OUTPUT_VARIABLE result)
    cmake_path(APPEND ORVEX_INSTALL_DATA "${language}" OUTPUT_VARIABLE destination)
    cmake_path(GET result PARENT_PATH folder)
    file(MAKE_DIRECTORY ${folder})
    add_custom_command(OUTPUT ${result}
        COMMAND Qt5::rcc -binary ${qrc} -o ${result}
        DEPENDS ${qrc} ${parts}
        COMMENT "Packing ${language} ${file}" VERBATIM)
    set(target ${stem})
    if(language)
        string(APPEND target _${language})
    endif()
    add_custom_target(${target} ALL DEPENDS ${result})
    set_property(GLOBAL APPEND PROPERTY ORVEX_RUN_TIME_FILES ${target})
    install(FILES ${result} DESTINATION ${destination})
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
