# CPack counts what the folders take on this file system into the size that the package tells. Here a
# folder counts a kibibyte, as Debian has it, so that the package is the same wherever it is made.
set(inhalt ${CPACK_TOPLEVEL_DIRECTORY}/groesse)
file(REMOVE_RECURSE ${inhalt})
execute_process(COMMAND dpkg-deb -R ${CPACK_PACKAGE_FILES} ${inhalt} COMMAND_ERROR_IS_FATAL ANY)

set(summe 0)
file(GLOB_RECURSE dateien LIST_DIRECTORIES true ${inhalt}/usr/*)
foreach(datei IN LISTS dateien)
  set(kib 1)
  if(NOT IS_DIRECTORY ${datei})
    file(SIZE ${datei} bytes)
    math(EXPR kib "(${bytes} + 1023) / 1024")
  endif()
  math(EXPR summe "${summe} + ${kib}")
endforeach()
file(READ ${inhalt}/DEBIAN/control angaben)
string(REGEX REPLACE "Installed-Size: [0-9]+" "Installed-Size: ${summe}" angaben "${angaben}")
file(WRITE ${inhalt}/DEBIAN/control "${angaben}")
execute_process(COMMAND dpkg-deb --root-owner-group -Zgzip -b ${inhalt} ${CPACK_PACKAGE_FILES}
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
