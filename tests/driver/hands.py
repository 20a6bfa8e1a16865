"""Hands: three ways to press a control: mouse, accessibility bus, and keyboard alone."""

import subprocess

import pyatspi
from senses import KNOPFROLLEN, ZELLE, alle, ist, mitte, warte


def xdotool(*woerter):
    subprocess.run(["xdotool", *map(str, woerter)], check=True, stdout=subprocess.DEVNULL)


def im_blick(titel):
    """Waits until the window is on the screen, and returns what xdotool calls it."""
    def suche():  # Ends with an error of X when another window goes meanwhile.
        befehl = ["xdotool", "search", "--onlyvisible", "--name", titel]
        return subprocess.run(befehl, capture_output=True, text=True).stdout.strip()
    return warte(suche, f"Fenster {titel}")


class Maushand:
    """One hand on the mouse, the other on the keyboard."""

    def klicke(self, element, knopf=1):
        xdotool("mousemove", *mitte(element), "mousedown", knopf, "mouseup", knopf)

    def taste(self, *namen):
        xdotool("key", "--delay", "40", *namen)

    def tippe(self, text):
        xdotool("type", "--delay", "40", text)


class Bushand:
    """Has neither mouse nor keyboard, and works on every screen."""

    def klicke(self, element, knopf=1):
        aktionen = element.queryAction()  # "Press", or "ShowMenu", or both in this order.
        aktionen.doAction(0 if knopf == 1 else aktionen.nActions - 1)

    def taste(self, *namen):
        pass


class Tastenhand(Maushand):
    """Goes to an element with Tab, in the main window also with the arrow keys, and presses it with
    the space bar."""

    def fokus(self, app):
        return next((e for e in alle(app, feld=True) if ist(e, pyatspi.STATE_FOCUSED)), None)

    def gehe(self, app, name, passt):
        """Presses a key until the focus is where it should be; returns what bears it."""
        def gegangen():
            fokus = self.fokus(app)
            if fokus is not None and passt(fokus):
                return fokus
            return self.taste(name)
        return warte(gegangen, f"{name} führt nicht zum Ziel")

    def klicke(self, element, knopf=1):
        app = element.getApplication()
        if ziel := ZELLE.match(element.name):
            ort = ZELLE.match(self.gehe(app, "Tab", lambda e: ZELLE.match(e.name)).name)
            weg = []
            for teil, zurueck, vor in (1, "Up", "Down"), (2, "Left", "Right"):
                schritte = int(ziel[teil]) - int(ort[teil])
                weg += [vor] * schritte + [zurueck] * -schritte
            self.taste(*weg, "space" if knopf == 1 else "shift+space")
        else:
            if element.parent.getRole() == pyatspi.ROLE_DIALOG:
                self.gehe(app, "Tab", lambda e: e == element)
            else:
                self.gehe(app, "Tab",
                          lambda e: e.getRole() in KNOPFROLLEN and not ZELLE.match(e.name))
                self.taste(*["Up"] * 12)
                self.gehe(app, "Down", lambda e: e == element)
            # Repeats of the key must not press what the focus comes to when the button goes.
            xdotool("keydown", "space", "sleep", 1, "keyup", "space")
