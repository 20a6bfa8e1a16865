"""A real sound server that stands still, dies and comes back, or gets its device late. The game must
neither wait for it nor lose it.

usage: tests/driver/stage sound_scenarios.py PROGRAM
"""

import signal
import sys
import time

import pyatspi
from audio import Audio
from driver import OPTIONS, Driver
from model import BLIP
from program import has, wait_for


def click_on(driver, clicks):
    for cell in driver.covered()[:clicks]:
        driver.click(cell)
        driver.model.click(cell)
        driver.compare()


def sounds_again(driver):
    """The second click is heard, at the latest."""
    for _ in range(2):
        time.sleep(1)
        driver.audio.listen()
        click_on(driver, 1)
    driver.audio.expect(BLIP)


def trouble(driver, path):
    driver.step("Neues Spiel", driver.model.new_game())
    driver.audio.processes[0].send_signal(signal.SIGSTOP)
    click_on(driver, 5)
    driver.audio.processes[0].send_signal(signal.SIGCONT)
    sounds_again(driver)
    driver.audio.close()
    click_on(driver, 5)
    time.sleep(10)
    driver.audio = Audio(path)
    sounds_again(driver)
    driver.quit()
    driver.audio.close()


def late_device(driver):
    """Without a device the menu offers no sound; with one it does, in the same run."""
    driver.do("Einstellungen")
    driver.press("Soundeffekt", title=OPTIONS)
    driver.confirm("keine Soundkarte", "OK")
    driver.close("Schließen", OPTIONS)
    driver.audio.plug_in()
    driver.press("Optionen             ")
    wait_for(lambda: has(driver.program.button("Sound"), pyatspi.STATE_ENABLED), "sound in the menu")
    driver.hand.key("Escape", "Escape")
    driver.do("alt+o Return Return")  # Sound, an
    driver.sound = True
    driver.step("Neues Spiel", driver.model.new_game())
    driver.quit()


if __name__ == "__main__":
    with Driver(sys.argv[1], Audio(sys.argv[1])) as DRIVER:
        trouble(DRIVER, sys.argv[1])
    with Driver(sys.argv[1], Audio(sys.argv[1], device=False), sound=False) as DRIVER:
        late_device(DRIVER)
