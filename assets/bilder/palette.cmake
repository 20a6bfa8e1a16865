# The colours of the pictures, except those of the gem, which are in glanzgrube.svg and glanzgrube-klein.svg.

# Light and shade of all edges. The light comes from the top left.
set(LICHT            "#ffffff")
set(SCHATTEN         "#0b1420")
set(SCHWARZ          "#000000")

# The letters of the pictures.
set(SCHRIFTART       "Lato")

# Stone.
set(STEIN            "#d5dde7")
set(TISCH            "#666f7b")
set(SCHIEFER_HELL    "#6b7c90")
set(SCHIEFER         "#56677b")
set(SCHIEFER_DUNKEL  "#3a495b")
set(RILLE            "#2a3645")

# Tiles.
set(SILBER_HELL      "#e4e9ef")
set(SILBER           "#bac4cf")
set(SILBER_DUNKEL    "#808d9c")
set(ROTPLATTE_HELL   "#ebdada")
set(ROTPLATTE        "#c9b4b7")
set(ROTPLATTE_DUNKEL "#8c7c82")
set(GRAVUR           "#5e3a44")
set(GRUBE_HELL       "#16234a")
set(GRUBE_DUNKEL     "#060b1c")
set(RISS             "#c3d0f0")
set(NACHT_HELL       "#173f9c")
set(NACHT_DUNKEL     "#071231")
set(PERLE_DUNKEL     "#4a586a")

# Faces and labels.
set(TASTE_HELL       "#eef4fa")
set(TASTE            "#c9d8e8")
set(TASTE_DUNKEL     "#9db2c8")
set(LEUCHT_HELL      "#c6efaf")
set(LEUCHT           "#5fd03a")
set(LEUCHT_DUNKEL    "#3a9a2a")
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
set(ROT_AN           "#ff463a")
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
