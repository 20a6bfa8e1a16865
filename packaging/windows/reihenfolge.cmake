# CPack takes files in the order of the file system, which differs between folders. Before a package is
# made, this script sorts the list of files that the uninstaller deletes. Afterwards it packs the ZIP again.
cmake_path(GET CPACK_TEMPORARY_DIRECTORY PARENT_PATH oben)
file(GLOB_RECURSE dateien RELATIVE ${oben} LIST_DIRECTORIES false ${CPACK_TEMPORARY_DIRECTORY}/*)

if(NOT CPACK_PACKAGE_FILES)
  set(zeilen "")
  foreach(datei IN LISTS dateien)
    cmake_path(RELATIVE_PATH datei BASE_DIRECTORY ${CPACK_PACKAGE_FILE_NAME})
    string(REPLACE "/" "\\" datei ${datei})
    string(APPEND zeilen "Delete \"$INSTDIR\\${datei}\"\n")
  endforeach()
  file(WRITE ${oben}/entfernen.nsh "${zeilen}")
elseif(CPACK_PACKAGE_FILES MATCHES "zip$")
  file(REMOVE ${CPACK_PACKAGE_FILES})
  execute_process(COMMAND ${CMAKE_COMMAND} -E tar cf ${CPACK_PACKAGE_FILES} --format=zip ${dateien}
    WORKING_DIRECTORY ${oben} COMMAND_ERROR_IS_FATAL ANY)
endif()
