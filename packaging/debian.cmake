# What a Linux desktop wants beside the program, and the Debian package.
set(KENNUNG example.glanzgrube.Glanzgrube)
install(FILES ${KENNUNG}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${KENNUNG}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
set(SYMBOLE ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
foreach(groesse 16 32 48 64 128 256 512)
  install(FILES ${CMAKE_BINARY_DIR}/symbole/glanzgrube-${groesse}.png
          DESTINATION ${SYMBOLE}/${groesse}x${groesse}/apps RENAME ${KENNUNG}.png)
endforeach()
install(FILES ${PROJECT_SOURCE_DIR}/assets/bilder/glanzgrube.svg
        DESTINATION ${SYMBOLE}/scalable/apps RENAME ${KENNUNG}.svg)

# Compressed without name and date, so that every build gives the same bytes.
find_program(GZIP gzip REQUIRED)
foreach(name glanzgrube.6 changelog)
  add_custom_command(OUTPUT ${name}.gz
    COMMAND ${GZIP} -9nc ${CMAKE_CURRENT_SOURCE_DIR}/${name} > ${name}.gz
    DEPENDS ${name} COMMENT "Compressing ${name}" VERBATIM)
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
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Unter den hundert Platten des Spielfeldes liegen Edelsteine verborgen, die
Saranten. Die Zahlen am Rand nennen für jede Zeile und jede Spalte, wie viele
von ihnen ohne Lücke nebeneinander liegen. Aus diesen Angaben schließt man,
was sich unter den Platten befindet.
.
Ein Spiel hat 40 Level in einem von drei Spielmodi. Es lässt sich speichern,
führt eine Liste der besten Spieler und ist ganz mit Tastatur und
Bildschirmleser spielbar.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The window texts are measured in Liberation. libqt6gui6 and libqt6multimedia6, which shlibdeps
# finds, bring the platform plugin, the JPEG reader and all that a sound effect needs.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation")
# The menu takes the font of the desktop, and the help pages its viewer.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, xdg-utils, evince | pdf-viewer")
