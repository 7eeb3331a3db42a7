"""What the tests of the page share: the page opened in a browser, and the records that the native game tells of."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from browser import Browser, Server

PAGE, ZKTOOL, PROOFS, TEMPLATE = (Path(argument) for argument in sys.argv[1:5])
LESSONS = "1-zorikova-skola-cs"
ARROWS = {37: "ArrowLeft", 38: "ArrowUp", 39: "ArrowRight", 40: "ArrowDown"}


def proof(number):
    return PROOFS / LESSONS / f"{number:02}.zkr"


def zktool(*arguments):
    return subprocess.run([ZKTOOL, *arguments], capture_output=True, text=True, check=False)


def trace(record):
    """The lines of the ticks of a record, as the native machine tells them."""
    return [line for line in zktool("replay", record).stdout.splitlines() if line.startswith("tick=")]


def postcard(record):
    return zktool("postcard", record).stdout.strip()


def moves(record):
    """The bytes of a record's moves, which stand behind the three lines of its head."""
    return record.split(b"\r\n", 3)[3]


def keys_of_lesson():
    """The arrows of the proof of lesson 1, each with whether the key of action is held. Nothing in that cave moves by
    itself, so each line holds one draw, the arrow's number plus 65, the action's plus 65, and what comes behind."""
    lines = proof(1).read_bytes().split(b"\r\n")[3:]
    keys = [(line[1] - 65, line[2] - 65 == 1) for line in lines]
    return [key for key in keys if key[0] in ARROWS]


class PageTest(unittest.TestCase):
    """A page that has just been opened, in Czech, with nothing kept."""

    size = (1280, 800)
    phone = False
    language = "cs"

    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.downloads = Path(self.folder.name) / "downloads"
        self.downloads.mkdir()
        self.server = Server(PAGE)
        self.browser = Browser(self.downloads, self.size, self.language, self.phone)
        self.browser.open(self.server.url)

    def tearDown(self):
        asked = self.browser.asked()
        complaints = self.browser.complaints()
        self.browser.quit()
        self.server.stop()
        self.folder.cleanup()
        away = [url for url in asked if not url.startswith((self.server.url, "data:", "blob:", "file:"))]
        self.assertEqual(away, [], "a request has left the page's folder")
        self.assertGreater(len(asked), 0, "nothing was heard of the network at all")
        self.assertEqual(complaints, [], "the browser complains of the page")

    def temporary(self, name):
        return Path(self.folder.name) / name

    def state(self):
        return self.browser.js("return zorik.run.state()")

    def paste(self, letters):
        self.browser.js("""
            const text = new DataTransfer();
            text.setData("text", arguments[0]);
            dispatchEvent(new ClipboardEvent("paste", { clipboardData: text }));""", letters)

    def wait(self, milliseconds):
        self.browser.js("return new Promise(done => setTimeout(done, arguments[0]))", milliseconds)

    def seek(self, tick):
        self.browser.js("""
            const line = document.getElementById("seek");
            line.value = arguments[0];
            line.dispatchEvent(new Event("input"));""", tick)

    def stands(self, number="ticks"):
        """Whether the run's number stays what it is, for longer than a few ticks take."""
        before = self.state()[number]
        self.wait(700)
        return self.state()[number] == before

    def open_lessons(self):
        self.browser.click("#collections button")
        self.browser.one("#caveList button")

    def play_lesson(self):
        """Plays lesson 1 as a new player."""
        self.open_lessons()
        self.browser.click("#play")
        self.browser.one("dialog[open] input").clear()
        self.browser.one("dialog[open] input").send_keys("Bětka")
        self.browser.answer("ok")
        self.browser.one("#picture")

    def walk(self, keys):
        """Taps arrow after arrow, as a patient player would."""
        for arrow, action in keys:
            self.browser.tap(ARROWS[arrow], action)
            ticks = self.state()["ticks"]
            self.browser.until(lambda: self.state()["ticks"] > ticks or self.state()["won"], "a tick has passed")

    def at(self, goal):
        unit = self.state()["units"][1]
        return (unit["x"], unit["y"]) == goal

    def win_lesson(self):
        self.play_lesson()
        self.walk(keys_of_lesson())
        self.assertTrue(self.state()["won"])
        self.browser.one("#score")
