# Debian keeps games in /usr/games; everywhere else the program stands in bin.
set(wurzel ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr)
file(RENAME ${wurzel}/bin ${wurzel}/games)
