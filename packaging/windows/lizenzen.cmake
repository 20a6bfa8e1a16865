# The licences of the libraries in the program for Windows, each text in full. The notices come with
# Debian's packages and refer to licence texts in a folder of Debian's.
set(LIZENZEN ${CMAKE_CURRENT_BINARY_DIR}/Lizenzen)
file(REMOVE_RECURSE ${LIZENZEN})
execute_process(COMMAND dpkg-query -W -f \${source:Version} qt6-base-dev
  OUTPUT_VARIABLE QT_QUELLE COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND dpkg-query -W -f \${source:Version} qt6-translations-l10n
  OUTPUT_VARIABLE UEBERSETZUNG_QUELLE COMMAND_ERROR_IS_FATAL ANY)
configure_file(windows/Lizenzen.txt.in ${LIZENZEN}/LIESMICH.txt @ONLY)

set(texte "")
foreach(paket qt6-base-dev qt6-translations-l10n mingw-w64-x86-64-dev
        gcc-mingw-w64-x86-64-posix-runtime)
  file(READ /usr/share/doc/${paket}/copyright hinweise)
  set(ordner "/usr/share/common-licenses/")
  string(REGEX MATCHALL "${ordner}[A-Za-z]+(-[0-9.]*[0-9])?" gefunden "${hinweise}")
  list(APPEND texte ${gefunden})
  string(REGEX REPLACE "${ordner}([A-Za-z]+(-[0-9.]*[0-9])?)" "\\1.txt" hinweise "${hinweise}")
  string(REGEX REPLACE "[Oo]n Debian (GNU/Linux )?systems" "beside this file" hinweise "${hinweise}")
  file(WRITE ${LIZENZEN}/${paket}.txt "${hinweise}")
endforeach()
list(REMOVE_DUPLICATES texte)
foreach(text IN LISTS texte)
  get_filename_component(name ${text} NAME)
  file(READ ${text} wortlaut)
  file(WRITE ${LIZENZEN}/${name}.txt "${wortlaut}")
endforeach()
install(DIRECTORY ${LIZENZEN} DESTINATION .)
