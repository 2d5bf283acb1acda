# Resource-only modules: Name.rc -> a PE library that holds strings, menus and dialogs and no code.
#   rlx_language(French)   resources/French.rc -> <programs>/LangsRes/RoamlyFrench.dll
# The bytes depend on the sources alone: no time stamp, no entry point, no symbols.
find_program(RLX_WINDRES x86_64-w64-mingw32-windres REQUIRED)
find_program(RLX_PE_LD x86_64-w64-mingw32-ld REQUIRED)

file(GLOB_RECURSE text_ids CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/text_ids.h)
set(RLX_RESOURCE_HEADERS ${text_ids}
    ${CMAKE_SOURCE_DIR}/src/shell/command_ids.h
    ${CMAKE_SOURCE_DIR}/src/shell/control_ids.h)
set(RLX_RESOURCE_IDS ${CMAKE_BINARY_DIR}/generated/resources/ids.h)

# The one header that every .rc includes. Call once, in the folder of the modules.
function(rlx_resource_ids)
    list(JOIN RLX_RESOURCE_HEADERS " " headers)
    add_custom_command(
        OUTPUT ${RLX_RESOURCE_IDS}
        COMMAND ${CMAKE_COMMAND} "-DHEADERS=${headers}" -DOUTPUT=${RLX_RESOURCE_IDS}
                -P ${CMAKE_SOURCE_DIR}/cmake/WriteResourceIds.cmake
        DEPENDS ${RLX_RESOURCE_HEADERS} ${CMAKE_SOURCE_DIR}/cmake/WriteResourceIds.cmake
        COMMENT "Numbering the resources" VERBATIM)
    add_custom_target(resource_ids DEPENDS ${RLX_RESOURCE_IDS})
endfunction()

# rlx_resource_image(French out.dll [file.rc]): the rule that compiles French.rc of the current folder, or the file that is
# named, into out.dll.
function(rlx_resource_image name output)
    set(source ${CMAKE_CURRENT_SOURCE_DIR}/${name}.rc)
    if(ARGC GREATER 2)
        set(source ${ARGV2})
    endif()
    cmake_path(GET RLX_RESOURCE_IDS PARENT_PATH ids)
    set(object ${CMAKE_CURRENT_BINARY_DIR}/${name}.o)
    cmake_path(GET output PARENT_PATH folder)
    add_custom_command(
        OUTPUT ${output}
        COMMAND ${RLX_WINDRES} -c 65001 --preprocessor=${CMAKE_C_COMPILER} --preprocessor-arg=-E
                --preprocessor-arg=-xc --preprocessor-arg=-DRC_INVOKED -I ${ids} -I ${CMAKE_SOURCE_DIR}/resources
                ${source} ${object}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
        COMMAND ${RLX_PE_LD} --dll --no-insert-timestamp -s -e 0 -o ${output} ${object}
        BYPRODUCTS ${object}
        DEPENDS ${source} ${CMAKE_SOURCE_DIR}/resources/styles.h
                ${RLX_RESOURCE_IDS} resource_ids
        COMMENT "Compiling the resources of ${name}" VERBATIM)
endfunction()

function(rlx_language name)
    set(module ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/LangsRes/Roamly${name}.dll)
    rlx_resource_image(${name} ${module})
    add_custom_target(language_${name} ALL DEPENDS ${module})
endfunction()

# What a translator starts from, beside the programs (docs/guide/translating.md).
function(rlx_translators_kit)
    set(kit ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/translate)
    set(files ${CMAKE_SOURCE_DIR}/resources/English.rc ${CMAKE_SOURCE_DIR}/resources/styles.h ${RLX_RESOURCE_IDS})
    add_custom_command(
        OUTPUT ${kit}/ids.h ${kit}/English.rc ${kit}/styles.h
        COMMAND ${CMAKE_COMMAND} -E make_directory ${kit}
        COMMAND ${CMAKE_COMMAND} -E copy ${files} ${kit}
        DEPENDS ${files} VERBATIM)
    add_custom_target(translators_kit ALL DEPENDS ${kit}/ids.h)
endfunction()
