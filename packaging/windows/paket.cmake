# Icon and version information, and the portable ZIP and the installer that `cpack` makes. The program and
# the files that it reads are in one folder.
enable_language(RC)

set(ico ${CMAKE_CURRENT_BINARY_DIR}/glanzgrube.ico)
get_property(groessen GLOBAL PROPERTY SYMBOLGROESSEN)
list(REMOVE_ITEM groessen 512)  # More than the format can hold.
set(symbole "")
foreach(groesse IN LISTS groessen)
  list(APPEND symbole ${CMAKE_BINARY_DIR}/symbole/glanzgrube-${groesse}.png)
endforeach()
find_program(IMAGEMAGICK_CONVERT convert REQUIRED)
add_custom_command(OUTPUT ${ico} COMMAND ${IMAGEMAGICK_CONVERT} ${symbole} ${ico}
  DEPENDS symbole COMMENT "Icon of the program" VERBATIM)

foreach(name glanzgrube.rc glanzgrube.manifest)
  configure_file(windows/${name}.in ${name} @ONLY)
endforeach()
set(rc ${CMAKE_CURRENT_BINARY_DIR}/glanzgrube.rc)
set_source_files_properties(${rc} PROPERTIES
  OBJECT_DEPENDS "${ico};${CMAKE_CURRENT_BINARY_DIR}/glanzgrube.manifest")
# An object library, because a resource in an archive would be dropped by the linker.
add_library(beschreibung OBJECT ${rc} ${ico})
target_include_directories(beschreibung PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
target_link_libraries(glanzgrube PRIVATE beschreibung)

install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION . RENAME LICENSE.txt)
include(windows/lizenzen.cmake)

set(CPACK_GENERATOR ZIP NSIS)
set(CPACK_PACKAGE_NAME glanzgrube)
set(CPACK_PACKAGE_VENDOR "Spielewerkstatt Silbergrund")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://www.glanzgrube.example/")
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/reihenfolge.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/reihenfolge.cmake)
set(CPACK_PACKAGE_FILE_NAME glanzgrube-${PROJECT_VERSION}-windows)
# CPack's own installer script requires an administrator, so the project has its own.
list(APPEND CMAKE_MODULE_PATH ${CMAKE_CURRENT_LIST_DIR})
set(CPACK_NSIS_MUI_ICON ${ico})
include(CPack)
