# Packs the installed tree as a zip. cpack's own would have its files in the order in which the file system lists them.
cmake_path(GET CPACK_TEMPORARY_DIRECTORY FILENAME folder)
cmake_path(GET CPACK_TEMPORARY_DIRECTORY PARENT_PATH parent)
file(GLOB_RECURSE files LIST_DIRECTORIES FALSE RELATIVE "${parent}" "${CPACK_TEMPORARY_DIRECTORY}/*")
list(SORT files)
list(JOIN files "\n" files)
file(WRITE "${CPACK_TOPLEVEL_DIRECTORY}/files" "${files}\n")
set(zip "${CPACK_TOPLEVEL_DIRECTORY}/${CPACK_PACKAGE_FILE_NAME}.zip")
execute_process(
    COMMAND ${CMAKE_COMMAND} -E tar cf "${zip}" --format=zip "--files-from=${CPACK_TOPLEVEL_DIRECTORY}/files"
    WORKING_DIRECTORY "${parent}" COMMAND_ERROR_IS_FATAL ANY)
set(CPACK_EXTERNAL_BUILT_PACKAGES "${zip}")
