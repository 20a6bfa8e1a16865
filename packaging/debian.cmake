# What a Linux desktop wants beside the program, and the Debian package.
set(KENNUNG example.glanzgrube.Glanzgrube)
install(FILES ${KENNUNG}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${KENNUNG}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
set(SYMBOLE ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
get_property(groessen GLOBAL PROPERTY SYMBOLGROESSEN)
foreach(groesse IN LISTS groessen)
  install(FILES ${CMAKE_BINARY_DIR}/symbole/glanzgrube-${groesse}.png
          DESTINATION ${SYMBOLE}/${groesse}x${groesse}/apps RENAME ${KENNUNG}.png)
endforeach()
install(FILES ${PROJECT_SOURCE_DIR}/assets/bilder/glanzgrube.svg
        DESTINATION ${SYMBOLE}/scalable/apps RENAME ${KENNUNG}.svg)

# Compressed without name and date, so that every build gives the same bytes.
find_program(GZIP gzip REQUIRED)
configure_file(glanzgrube.6.in glanzgrube.6 @ONLY)
foreach(datei ${CMAKE_CURRENT_BINARY_DIR}/glanzgrube.6 ${CMAKE_CURRENT_SOURCE_DIR}/changelog)
  get_filename_component(name ${datei} NAME)
  add_custom_command(OUTPUT ${name}.gz COMMAND ${GZIP} -9nc ${datei} > ${name}.gz
    DEPENDS ${datei} COMMENT "Compressing ${name}" VERBATIM)
endforeach()
add_custom_target(beipack ALL DEPENDS glanzgrube.6.gz changelog.gz)
# The page is German, like the game, for players of every locale.
foreach(ordner man6 de/man6)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/glanzgrube.6.gz
          DESTINATION ${CMAKE_INSTALL_MANDIR}/${ordner})
endforeach()
install(FILES copyright ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz
        DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/games.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/groesse.cmake)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Unter den hundert Platten des Spielfeldes liegen Edelsteine verborgen, die
Saranten. Die Zahlen am Rand nennen für jede Zeile und jede Spalte, wie viele
von ihnen ohne Lücke nebeneinander liegen. Aus diesen Angaben schließt man,
was sich unter den Platten befindet.
.
Ein Spiel hat 40 Level in einem von drei Spielmodi. Es lässt sich speichern,
führt eine Liste der besten Spieler und ist mit einem Bildschirmleser ganz
über die Tastatur spielbar.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The window texts are measured in Liberation. libqt6gui6, which shlibdeps finds, brings the platform
# plugin and the JPEG reader.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation")
# The help pages take the desktop's viewer. Without Xwayland, Qt needs its own plugin for Wayland.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils, evince | pdf-viewer, qt6-wayland")
