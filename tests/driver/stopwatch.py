"""A hand with a stop watch: presses cells and takes the time until the pixel under the mouse has
changed, without a program in between."""

import ctypes
import time

from hands import Maushand, xdotool
from senses import ZELLE, mitte

GRENZE = 5.0  # seconds that a change of the screen may take


class Schirm:
    """The pixels and the mouse of the X server."""

    def __init__(self):
        self.x11, self.xtst = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXtst.so.6")
        for funktion in self.x11.XOpenDisplay, self.x11.XGetImage:
            funktion.restype = ctypes.c_void_p
        self.x11.XGetPixel.restype = ctypes.c_ulong
        self.anzeige = ctypes.c_void_p(self.x11.XOpenDisplay(None))
        self.wurzel = ctypes.c_ulong(self.x11.XDefaultRootWindow(self.anzeige))

    def pixel(self, ort):
        bild = ctypes.c_void_p(self.x11.XGetImage(self.anzeige, self.wurzel, *ort, 1, 1,
                                                  ctypes.c_ulong(0xFFFFFF), 2))
        farbe = self.x11.XGetPixel(bild, 0, 0)
        self.x11.XDestroyImage(bild)
        return farbe

    def knopf(self, nummer, gedrueckt):
        self.xtst.XTestFakeButtonEvent(self.anzeige, nummer, gedrueckt, ctypes.c_ulong(0))
        self.x11.XFlush(self.anzeige)


class Stoppuhr(Maushand):
    def __init__(self):
        self.schirm, self.zeiten = Schirm(), []

    def klicke(self, element, knopf=1):
        if not ZELLE.match(element.name):
            return super().klicke(element, knopf)
        ort = mitte(element)
        xdotool("mousemove", *ort)
        vorher = self.schirm.pixel(ort)
        beginn = time.perf_counter()
        self.schirm.knopf(knopf, 1)
        while self.schirm.pixel(ort) == vorher and time.perf_counter() - beginn < GRENZE:
            pass
        self.zeiten.append(1000 * (time.perf_counter() - beginn))  # milliseconds
        return self.schirm.knopf(knopf, 0)
