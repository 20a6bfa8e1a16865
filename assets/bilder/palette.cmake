# Every colour of the pictures, except those of the gem, which stand in glanzgrube.svg and glanzgrube-klein.svg.

# Light and shade laid over everything that has an edge. The light comes from the top left.
set(LICHT            "#ffffff")
set(SCHATTEN         "#0b1420")
set(SCHWARZ          "#000000")

# Stone.
set(STEIN            "#d5dde7")
set(TISCH            "#a9afb7")
set(SCHIEFER_HELL    "#6b7c90")
set(SCHIEFER         "#56677b")
set(SCHIEFER_DUNKEL  "#3a495b")
set(RILLE            "#2a3645")

# Tiles.
set(SILBER_HELL      "#f4f7fa")
set(SILBER           "#c3ccd6")
set(SILBER_DUNKEL    "#8b98a7")
set(ROTPLATTE_HELL   "#f6cfcc")
set(ROTPLATTE        "#d59291")
set(ROTPLATTE_DUNKEL "#a86f72")
set(GRAVUR           "#6e2a31")
set(GRUBE_HELL       "#16234a")
set(GRUBE_DUNKEL     "#060b1c")
set(RISS             "#c3d0f0")
set(FASSUNG_HELL     "#27303d")
set(FASSUNG_DUNKEL   "#0a0e15")

# Faces and labels.
set(TASTE_HELL       "#eef4fa")
set(TASTE            "#c9d8e8")
set(TASTE_DUNKEL     "#9db2c8")
set(LEUCHT_HELL      "#d8ffc2")
set(LEUCHT           "#7eea52")
set(LEUCHT_DUNKEL    "#3fb428")
set(TASTENRAND       "#51647a")
set(SCHRIFT          "#1a2940")
set(TAFEL_HELL       "#5f7188")
set(TAFEL_DUNKEL     "#44566c")
set(TAFELSCHRIFT     "#ffffff")
set(ZAHLSCHRIFT      "#101c30")

# Badges and signs.
set(ROT              "#d3202c")
set(GRUEN            "#1d9a3c")
set(BLAU             "#2163c8")
set(STAHL            "#4d6280")
set(GOLD             "#c98a10")
set(NACHT            "#16202e")
set(PAPIERWEISS      "#ffffff")
set(ORDNER_HELL      "#ffd978")
set(ORDNER           "#e3a52c")

# Arrows.
set(PFEIL_GELB       "#ffd21c")
set(PFEIL_ROT        "#e3212b")
set(PFEILRAND        "#27364a")

# Panel digits: lit and unlit segments.
set(GRUEN_AN         "#37ff5f")
set(GRUEN_AUS        "#0c2913")
set(ROT_AN           "#ff3b30")
set(ROT_AUS          "#32100e")

# Windows.
set(MELDUNG          "#16306a")
set(MELDUNG_HELL     "#2a4c92")
set(MELDUNG_DUNKEL   "#0d2150")
set(PAPIER           "#f3f5f2")
set(PAPIER_SCHATTEN  "#d9dfe3")
set(BAND_HELL        "#9fb3c9")
set(BAND             "#7e96b1")
set(BAND_DUNKEL      "#607a98")

# Pointer.
set(HAND             "#ffffff")
