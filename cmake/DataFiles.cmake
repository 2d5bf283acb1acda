# The programs find their data beside them: data/ is mirrored into the folder of the programs at every build.
add_custom_target(data_files ALL
    COMMAND ${CMAKE_COMMAND} -DFROM=${CMAKE_SOURCE_DIR}/data -DTO=${CMAKE_RUNTIME_OUTPUT_DIRECTORY}
            -DRECORD=${CMAKE_BINARY_DIR}/data_files.txt -P ${CMAKE_SOURCE_DIR}/cmake/CopyData.cmake
    COMMENT "Copying data files" VERBATIM)
