# The table of all pictures: name, size, words and signs. All measures are pixels at 1x.

# The gem is taken out of the application icon.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/glanzgrube.svg)
file(READ glanzgrube.svg EDELSTEIN)
string(REGEX MATCH "<g id=\"edelstein\">.*</g>" EDELSTEIN "${EDELSTEIN}")

# ---- Backgrounds ---------------------------------------------------------------------------------------

# Grain of stone and paper: fineness of the noise, depth of the relief, strength of the large clouds and half of
# it (CMake has no fractions to halve).
function(koernung fein tiefe wolken wolken_mitte)
  set(KORN_FEIN "${fein}")
  set(KORN_TIEFE "${tiefe}")
  set(WOLKEN "${wolken}")
  set(WOLKEN_MITTE "${wolken_mitte}")
  stueck(KOERNUNG koernung.svg.in)
  set(KOERNUNG "${KOERNUNG}" PARENT_SCOPE)
endfunction()

# Window and board are one picture: decoding a second one would make the start a tenth longer.
koernung(.5 .11 .14 .07)
stueck(RITZUNG ritzung.svg.in)
set(LICHT_X -172)
set(LICHT_Y -54)
stueck(LICHTQUELLE licht.svg.in)
bild(feld feld 643 647 ENDUNG einlage RAND 16)
koernung(.5 .11 .12 .06)
set(LICHT_X 50)
set(LICHT_Y -40)
stueck(LICHTQUELLE licht.svg.in)
bild(spielfeld spielfeld 1000 800 ENDUNG jpg SICHTBREITE 878 SICHTHOEHE 729 RAND 16
     EINLAGE feld EINLAGE_LINKS 222 EINLAGE_OBEN 14)

koernung(".72 .4" .1 .08 .04)
bild(schreibtisch schreibtisch 643 647 ENDUNG jpg FAKTOREN 1,2 RAND 16)

# The scalloped band: its width, the width without the scallops, and the scallops' diameter. The first scallop
# is placed so that both ends of the sheet cut the band alike.
function(papierbogen name breite hoehe sichtbreite sichthoehe bandbreite bogen)
  math(EXPR halb "${bogen} / 2")
  math(EXPR kern "${bandbreite} - ${halb}")
  math(EXPR perle "${bogen} / 5")
  math(EXPR rille "${kern} - ${halb}")
  math(EXPR lage "(${sichthoehe} % ${bogen}) / 2")
  bild(${name} papier ${breite} ${hoehe} ENDUNG jpg SICHTBREITE ${sichtbreite} SICHTHOEHE ${sichthoehe} RAND 16
       BANDBREITE ${bandbreite} BANDKERN ${kern} BOGEN ${bogen} BOGENHALB ${halb} PERLE ${perle}
       RILLENLAGE ${rille} BOGENLAGE ${lage})
endfunction()

koernung(.45 .03 .03 .015)
stueck(EINLAGEN karten.svg.in)
papierbogen(optionen 1000 800 484 448 72 32)
stueck(EINLAGEN fassung.svg.in)
papierbogen(beste     650 450 342 323 46 24)

# ---- Faces ---------------------------------------------------------------------------------------------

stueck(GLAS glas.svg.in)

# The two looks of a button face: light and raised at rest, bright green and sunken when chosen or pressed.
macro(aussehen_ruhe)
  set(OBEN "${TASTE_HELL}")
  set(MITTE "${TASTE}")
  set(UNTEN "${TASTE_DUNKEL}")
  set(KANTE_LINKS_OBEN "${LICHT}")
  set(KANTE_RECHTS_UNTEN "${SCHATTEN}")
  stueck(TASTENVORRAT tastenvorrat.svg.in)
endmacro()
macro(aussehen_leuchtend)
  set(OBEN "${LEUCHT}")
  set(MITTE "${LEUCHT}")
  set(UNTEN "${LEUCHT_HELL}")
  set(KANTE_LINKS_OBEN "${LEUCHT_DUNKEL}")
  set(KANTE_RECHTS_UNTEN "${LEUCHT_DUNKEL}")
  stueck(TASTENVORRAT tastenvorrat.svg.in)
endmacro()

# The badges: colour of the disc, and a white sign within a radius of 9 on it.
set(kreuz_SCHEIBE ${ROT})
set(kreuz_GLYPHE "<path d='M-5,-5 L5,5 M5,-5 L-5,5'/>")
set(haken_SCHEIBE ${GRUEN})
set(haken_GLYPHE "<path d='M-6,.5 L-2,5 L6.5,-5'/>")
set(frage_SCHEIBE ${GRUEN})
set(frage_GLYPHE "<path d='M-4,-4 C-4,-9.5 5,-9.5 4.5,-4 C4.2,-1.2 0,-1 0,2.6'/><circle cy='7.3' r='2' stroke='none' fill='${PAPIERWEISS}'/>")
set(info_SCHEIBE ${BLAU})
set(info_GLYPHE "<path d='M-2.2,-2 H.5 V6.5 M-2.8,6.8 H3.6' stroke-width='2.8'/><circle cx='-.4' cy='-6.8' r='2' stroke='none' fill='${PAPIERWEISS}'/>")
set(zahnrad_SCHEIBE ${STAHL})
set(zahnrad_GLYPHE "<circle r='4.6' stroke-width='3'/><path stroke-linecap='butt' stroke-width='3.4' d='M0,-9.2 V-5.5 M0,9.2 V5.5 M-9.2,0 H-5.5 M9.2,0 H5.5 M-6.5,-6.5 L-4,-4 M6.5,-6.5 L4,-4 M-6.5,6.5 L-4,4 M6.5,6.5 L4,4'/>")
set(edelstein_SCHEIBE ${NACHT})
string(CONCAT edelstein_GLYPHE "<g stroke='none' transform='scale(.108)'>" "${EDELSTEIN}" "</g>")
set(weiter_SCHEIBE ${GRUEN})
set(weiter_GLYPHE "<path d='M-6.5,0 H6 M1,-5.5 L6.5,0 L1,5.5'/>")
set(nochmal_SCHEIBE ${BLAU})
set(nochmal_GLYPHE "<path d='M5.4,-4.2 A6.9,6.9 0 1 0 6.9,1'/><path stroke='none' fill='${PAPIERWEISS}' d='M9.2,-8.6 V-.6 L1.6,-2.6 Z'/>")
set(stern_SCHEIBE ${GOLD})
set(stern_GLYPHE "<path stroke-width='1' fill='${PAPIERWEISS}' d='M0,-9 L2.2,-3 L8.6,-2.8 L3.5,1.1 L5.3,7.3 L0,3.7 L-5.3,7.3 L-3.5,1.1 L-8.6,-2.8 L-2.2,-3 Z'/>")
set(aus_SCHEIBE ${ROT})
set(aus_GLYPHE "<path d='M0,-8.2 V-.5 M-4.6,-5 A6.8,6.8 0 1 0 4.6,-5' stroke-width='2.8'/>")
set(lautsprecher "<path stroke-width='1' fill='${PAPIERWEISS}' d='M-9,-2.8 H-5.5 L-.5,-7.3 V7.3 L-5.5,2.8 H-9 Z'/>")
set(stumm_SCHEIBE ${STAHL})
set(stumm_GLYPHE "${lautsprecher}<path stroke-width='2.4' d='M3.2,-3 L9,3 M9,-3 L3.2,3'/>")
set(klang_SCHEIBE ${GRUEN})
set(klang_GLYPHE "${lautsprecher}<path stroke-width='2.2' d='M3,-3.6 A5.2,5.2 0 0 1 3,3.6 M5.8,-6.8 A9.6,9.6 0 0 1 5.8,6.8'/>")
set(raute "<path id='raute' stroke='none' fill='${PAPIERWEISS}' d='M0,-5.6 L4.2,0 L0,5.6 L-4.2,0 Z'/>")
set(modus1_SCHEIBE ${STAHL})
set(modus1_GLYPHE "${raute}")
set(modus2_SCHEIBE ${STAHL})
set(modus2_GLYPHE "<g transform='translate(-4.6)'>${raute}</g><g transform='translate(4.6)'>${raute}</g>")
set(modus3_SCHEIBE ${STAHL})
set(modus3_GLYPHE "<g transform='translate(-4.8,4)'>${raute}</g><g transform='translate(4.8,4)'>${raute}</g><g transform='translate(0,-4.6)'>${raute}</g>")
set(fahne_SCHEIBE ${STAHL})
set(fahne_GLYPHE "<path stroke-width='2.4' d='M-4.5,9 V-8.5'/><path stroke-width='1.5' fill='${PAPIERWEISS}' d='M-4.5,-8 L6.5,-4 L-4.5,.5 Z'/>")

# The plate alone, of the size B by H.
function(tastenplatte variable B H)
  math(EXPR B_PLATTE "${B} - 2")
  math(EXPR H_PLATTE "${H} - 2")
  math(EXPR B_KANTE "${B} - 5")
  math(EXPR H_KANTE "${H} - 5")
  math(EXPR RUNDUNG "${H} / 3")
  stueck(ergebnis tastenplatte.svg.in)
  set(${variable} "${ergebnis}" PARENT_SCOPE)
endfunction()

# One face as a piece of SVG: place, size, size of the letters, word, badge.
function(taste variable X Y B H SCHRIFTGROESSE WORT zeichen)
  math(EXPR X_ABZEICHEN "${B} - ${H}")
  math(EXPR B_WORT "${B} - ${H} + 4")
  set(SCHEIBE "${${zeichen}_SCHEIBE}")
  set(GLYPHE "${${zeichen}_GLYPHE}")
  stueck(ABZEICHEN abzeichen.svg.in)
  tastenplatte(PLATTE ${B} ${H})
  stueck(ergebnis taste.svg.in)
  set(${variable} "${ergebnis}" PARENT_SCOPE)
endfunction()

# A picture with one face. The face fills the picture, or begins at LINKS and is BREITE wide, so that faces are
# aligned although their pictures are not.
function(tastenbild name breite hoehe schrift wort zeichen)
  set(lage 0 ${breite})
  if(ARGC GREATER 6)
    set(lage ${ARGN})
  endif()
  list(GET lage 0 links)
  list(GET lage 1 flaeche)
  taste(INHALT ${links} 0 ${flaeche} ${hoehe} ${schrift} "${wort}" ${zeichen})
  bild(${name} bild ${breite} ${hoehe})
endfunction()

aussehen_ruhe()
tastenbild(knopfEinstellungen       191 42 17 "Einstellungen"  zahnrad 6 167)
tastenbild(knopfNeuesSpiel          191 42 17 "Neues Spiel"    edelstein 4 167)
tastenbild(knopfNextLevel           191 42 17 "Nächster Level" weiter)
tastenbild(knopfWiederholen         191 42 17 "Wiederholen"    nochmal)
tastenbild(knopfBester              191 42 17 "Bester Spieler" stern)
tastenbild(sound0                   191 42 17 "Sound aus"      stumm)
tastenbild(sound1                   191 42 17 "Sound an"       klang)
tastenbild(knopfSchliessen          191 42 17 "Schließen"      kreuz 12 176)
tastenbild(knopfUebernehmen         191 42 17 "Übernehmen"     haken 2 176)
tastenbild(knopfBeenden             136 42 17 "Beenden"        aus)
tastenbild(knopfZuruecksetzen       147 35 14 "Zurücksetzen"   kreuz 6 141)
tastenbild(knopfOk                  143 33 15 "OK"             haken 0 141)

# Faces with two looks: name at rest, name when lit, size, word, badge at rest and badge when lit. A choice
# shows a tick when it is taken, so that it is told apart without colour.
set(zwei_aussehen
  "cmdHilfeAuswahl|cmdHilfeGruen|96|42|16|Hilfe|frage|frage|12|84"
  "cmdBeschreibungenAuswahl|cmdBeschreibungenFruen|96|42|16|Info|info|info|12|84"
  "modus1|modusWahl1|145|32|15|Einfach|modus1|haken"
  "modus2|modusWahl2|145|32|15|Normal|modus2|haken"
  "modus3|modusWahl3|145|32|15|Experte|modus3|haken"
  "level0|levelWahl0|145|32|15|Level 1|fahne|haken"
  "level1|levelWahl1|145|32|15|Level 6|fahne|haken"
  "level2|levelWahl2|145|32|15|Level 11|fahne|haken"
  "level3|levelWahl3|145|32|15|Level 16|fahne|haken"
  "level4|levelWahl4|145|32|15|Level 21|fahne|haken"
  "level5|levelWahl5|145|32|15|Level 26|fahne|haken")
foreach(zeile IN LISTS zwei_aussehen)
  string(REPLACE "|" ";" zeile "${zeile}")
  list(POP_FRONT zeile ruhe leuchtend breite hoehe schrift wort zeichen zeichen_leuchtend)  # What is left tells the place of the face.
  aussehen_leuchtend()
  tastenbild(${leuchtend} ${breite} ${hoehe} ${schrift} "${wort}" ${zeichen_leuchtend} ${zeile})
  aussehen_ruhe()
  tastenbild(${ruhe} ${breite} ${hoehe} ${schrift} "${wort}" ${zeichen} ${zeile})
endforeach()

# Message windows: the faces lie within the labels that take the click. The white panel of the text is 135
# high and begins at TAFELOBEN.
function(meldung name sichtbreite sichthoehe tafeloben tasten)
  math(EXPR tafelbreite "${sichtbreite} - 8")
  math(EXPR rahmenbreite "${sichtbreite} - 6")
  math(EXPR rahmenoben "${tafeloben} - 1")
  bild(${name} meldung 392 237 ENDUNG jpg SICHTBREITE ${sichtbreite} SICHTHOEHE ${sichthoehe} TASTEN "${tasten}"
       TAFELOBEN ${tafeloben} TAFELBREITE ${tafelbreite} RAHMENOBEN ${rahmenoben} RAHMENBREITE ${rahmenbreite})
endfunction()
taste(nein  33 194 145 25 14 "Nein" kreuz)
taste(ja   222 194 145 25 14 "Ja"   haken)
taste(ok   120 195 145 25 14 "OK"   haken)
meldung(meldungJa 392 236 50 "${nein}${ja}")
meldung(meldungOk 387 228 52 "${ok}")

# ---- Panel ---------------------------------------------------------------------------------------------

function(spiegelung oben mitte)
  set(GLASOBEN ${oben})
  set(GLASMITTE ${mitte})
  stueck(SPIEGELUNG spiegelung.svg.in)
  set(SPIEGELUNG "${SPIEGELUNG}" PARENT_SCOPE)
endfunction()

# A label: word, left edge of the digits' window within the plate, and of the picture within the plate.
function(tafel name WORT FENSTER LINKS)
  math(EXPR GLAS "${FENSTER} + 1")
  math(EXPR B_FENSTER "180 - ${FENSTER}")
  math(EXPR B_GLAS "${B_FENSTER} - 2")
  math(EXPR B_SPIEGEL "${B_FENSTER} - 8")
  bild(${name} tafel 191 42)
endfunction()
spiegelung(6 22)
tafel(tafelPunkte       "Punkte"       102 -2)
tafel(tafelLevelpunkte  "Levelpunkte"  130 -2)
tafel(tafelFehlversuche "Fehlversuche" 140 -2)
tafel(tafelOffen        "noch offen"   136 -4)
tafel(tafelLevel        "Level"        140  0)

spiegelung(-2 14)
# The lit segments of the digits 0 to 9 (a at the top, clockwise to f, g in the middle) and of the blank place.
set(segmente abcdef bc abged abgcd fgbc afgcd afgedc abc abcdefg abcdfg keine)
function(ziffernreihe name an aus)
  foreach(ziffer RANGE 10)
    list(GET segmente ${ziffer} lit)
    foreach(segment a b c d e f g)
      set(SEGMENT_${segment} ${aus})
      if(NOT ziffer EQUAL 10 AND lit MATCHES ${segment})
        set(SEGMENT_${segment} ${an})
      endif()
    endforeach()
    set(STRICH none)
    if(ziffer EQUAL 0)
      set(STRICH ${an})
    endif()
    bild(${name}${ziffer} ziffer 14 28)
  endforeach()
endfunction()
ziffernreihe(gruen ${GRUEN_AN} ${GRUEN_AUS})
ziffernreihe(rot   ${ROT_AN}   ${ROT_AUS})

# ---- Playfield -----------------------------------------------------------------------------------------

stueck(delle delle.svg.in)
stueck(riss riss.svg.in)
bild(platte1 platte 47 47 HELL ${SILBER_HELL} MITTEL ${SILBER} DUNKEL ${SILBER_DUNKEL} ZEICHEN "")
bild(platte2 platte 47 47 HELL ${ROTPLATTE_HELL} MITTEL ${ROTPLATTE} DUNKEL ${ROTPLATTE_DUNKEL} ZEICHEN "${delle}")
bild(platte0 grube 47 47)
bild(sarant  sarant 47 47)

# The clue numbers: 0 is the empty place. The two figures of 10 are narrowed to the width of the plate. They start
# at half their width: librsvg shifts a text that is both anchored in its middle and narrowed.
foreach(zahl RANGE 1 9)
  bild(zahl${zahl} zahl 29 31 FIGUREN "<text>${zahl}</text>")
endforeach()
bild(zahl0  bett 29 31)
bild(zahl10 zahl 29 31 FIGUREN "<text transform='scale(.74,1)' text-anchor='start' x='-12'>10</text>")

# The phases of the blinking arrows.
set(phase 0)
foreach(farbe ${PFEIL_GELB} ${PFEIL_ROT})
  bild(pfeil${phase}     pfeil 33 24 FARBE ${farbe} LAGE "translate(0,0)")
  bild(pfeilhoch${phase} pfeil 24 33 FARBE ${farbe} LAGE "translate(24,0) rotate(90)")
  math(EXPR phase "${phase} + 1")
endforeach()

# ---- Icons and pointer ---------------------------------------------------------------------------------

tastenplatte(platte 32 32)
stueck(laden laden.svg.in)
stueck(speichern speichern.svg.in)
bild(spielLaden     bild 32 32 INHALT "${platte}${laden}")
bild(spielSpeichern bild 32 32 INHALT "${platte}${speichern}")

bild(fenstersymbol bild 32 32 INHALT "<g transform='translate(16,16) scale(.155)'>${EDELSTEIN}</g>")
set(SCHEIBE ${ROT})
set(GLYPHE "${kreuz_GLYPHE}")
stueck(rote_scheibe abzeichen.svg.in)
bild(schliessen bild 21 21 INHALT "<g transform='translate(10.3,10.3) scale(.69)'>${rote_scheibe}</g>")
bild(handzeiger handzeiger 32 32)
