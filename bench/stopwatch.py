"""A mouse with a stop watch: presses cells and takes the time until the pixel under the mouse has
changed, without a program in between."""

import ctypes
import time

from program import Mouse, centre, xdotool

LIMIT = 5.0  # seconds that a change of the screen may take


class Screen:
    """The pixels and the mouse of the X server."""

    def __init__(self):
        self.x11, self.xtst = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXtst.so.6")
        for function in self.x11.XOpenDisplay, self.x11.XGetImage:
            function.restype = ctypes.c_void_p
        self.x11.XGetPixel.restype = ctypes.c_ulong
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(None))
        self.root = ctypes.c_ulong(self.x11.XDefaultRootWindow(self.display))

    def pixel(self, place):
        image = ctypes.c_void_p(self.x11.XGetImage(self.display, self.root, *place, 1, 1,
                                                   ctypes.c_ulong(0xFFFFFF), 2))
        colour = self.x11.XGetPixel(image, 0, 0)
        self.x11.XDestroyImage(image)
        return colour

    def button(self, number, pressed):
        self.xtst.XTestFakeButtonEvent(self.display, number, pressed, ctypes.c_ulong(0))
        self.x11.XFlush(self.display)


class Stopwatch(Mouse):
    def __init__(self):
        self.screen, self.times = Screen(), []

    def click(self, element, button=1):
        if not element.name.startswith("Zeile"):
            return super().click(element, button)
        place = centre(element)
        xdotool("mousemove", *place)
        before = self.screen.pixel(place)
        start = time.perf_counter()
        self.screen.button(button, 1)
        while self.screen.pixel(place) == before and time.perf_counter() - start < LIMIT:
            pass
        self.times.append(1000 * (time.perf_counter() - start))  # milliseconds
        return self.screen.button(button, 0)
