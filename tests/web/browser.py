"""A real browser without a window, a server for the page, and a log of what the page asks the network for."""

import functools
import http.server
import json
import os
import threading
import time
from pathlib import Path

from selenium import webdriver
from selenium.common.exceptions import StaleElementReferenceException
from selenium.webdriver import ActionChains, Keys
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By
from selenium.webdriver.support.ui import WebDriverWait

PATIENCE = 60  # seconds

# The place of a key on the keyboard, and its number, by its name.
KEYS = {
    "ArrowLeft": ("ArrowLeft", 37), "ArrowUp": ("ArrowUp", 38), "ArrowRight": ("ArrowRight", 39),
    "ArrowDown": ("ArrowDown", 40), "Shift": ("ShiftLeft", 16), "Control": ("ControlLeft", 17), "Tab": ("Tab", 9),
    "Escape": ("Escape", 27), "Home": ("Home", 36), "End": ("End", 35), ".": ("Period", 190), "p": ("KeyP", 80),
    "r": ("KeyR", 82),
}

# What the driver calls the keys that are tapped.
TAPPED = {
    "ArrowLeft": "ARROW_LEFT", "ArrowUp": "ARROW_UP", "ArrowRight": "ARROW_RIGHT", "ArrowDown": "ARROW_DOWN",
}


class QuietHandler(http.server.SimpleHTTPRequestHandler):
    """Serves files and tells nobody."""

    extensions_map = {
        **http.server.SimpleHTTPRequestHandler.extensions_map,
        ".mjs": "text/javascript",
        ".wasm": "application/wasm",
        ".webp": "image/webp",
    }

    def log_message(self, *_):
        pass

    def copyfile(self, source, outputfile):
        try:
            super().copyfile(source, outputfile)
        except BrokenPipeError:
            pass  # the browser has gone


class Server:
    """Serves a folder on a free port of this machine."""

    def __init__(self, folder):
        handler = functools.partial(QuietHandler, directory=str(folder))
        self._server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), handler)
        threading.Thread(target=self._server.serve_forever, daemon=True).start()
        self.url = f"http://127.0.0.1:{self._server.server_port}/"

    def stop(self):
        self._server.shutdown()
        self._server.server_close()


class Browser:
    """Chromium without a window. Files that it saves go into the folder of downloads."""

    def __init__(self, downloads, size=(1280, 800), language="cs", phone=False):
        self.downloads = Path(downloads)
        options = webdriver.ChromeOptions()
        options.binary_location = "/usr/bin/chromium"
        for argument in ("--headless=new", "--disable-dev-shm-usage", "--mute-audio", "--hide-scrollbars",
                         "--no-first-run", "--disable-background-networking", "--disable-component-update",
                         f"--lang={language}", f"--window-size={size[0]},{size[1]}"):
            options.add_argument(argument)
        if os.geteuid() == 0:
            options.add_argument("--no-sandbox")
        options.add_experimental_option("prefs", {
            "download.default_directory": str(self.downloads), "intl.accept_languages": language})
        if phone:
            options.add_experimental_option("mobileEmulation", {
                "deviceMetrics": {"width": size[0], "height": size[1], "pixelRatio": 2.0, "touch": True}})
        options.set_capability("goog:loggingPrefs", {"performance": "ALL", "browser": "ALL"})
        self.driver = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)
        self._asked = []

    def quit(self):
        self.driver.quit()

    def open(self, url):
        """Opens the page and waits until it stands."""
        self.driver.get(url)
        self.until(lambda: self.js("return document.documentElement.dataset.ready === 'yes'"), "the page is ready")

    def js(self, script, *values):
        return self.driver.execute_script(script, *values)

    def until(self, condition, what, patience=PATIENCE):
        """What the condition answers, once that is true."""
        return WebDriverWait(self.driver, patience, poll_frequency=0.02).until(lambda _: condition(), what)

    def all(self, selector):
        return self.driver.find_elements(By.CSS_SELECTOR, selector)

    def seen(self, selector):
        """The first of the elements that is seen, or None. One may go while it is looked at."""
        try:
            return next((element for element in self.all(selector) if element.is_displayed()), None)
        except StaleElementReferenceException:
            return None

    def one(self, selector):
        """The first element that is seen; waits for it."""
        return self.until(lambda: self.seen(selector), f"{selector} is seen")

    def text(self, selector):
        return self.one(selector).text

    def click(self, selector):
        """Clicks the first element that is seen; a list that is just shown anew is given a moment."""
        def clicked():
            try:
                self.one(selector).click()
            except StaleElementReferenceException:
                return False
            return True
        self.until(clicked, f"{selector} is clicked")

    def answer(self, value):
        """Presses the button of this value in the dialog that is open."""
        self.click(f'dialog[open] button[value="{value}"]')
        self.until(lambda: not self.all(f'dialog[open] button[value="{value}"]'), "the dialog is gone")

    def key(self, kind, name, control=False):
        """A key as the browser gets it from the keyboard: kind is down or up."""
        place, number = KEYS.get(name, (name, 0))
        self.driver.execute_cdp_cmd("Input.dispatchKeyEvent", {
            "type": "keyDown" if kind == "down" else "keyUp", "key": name, "code": place,
            "windowsVirtualKeyCode": number, "modifiers": 2 if control else 0})

    def tap(self, name, action=False):
        """A key that is pressed and let go at once, with the key of action held or without."""
        keys = ActionChains(self.driver, duration=0)
        if action:
            keys.key_down(Keys.SHIFT)
        keys.key_down(getattr(Keys, TAPPED[name])).key_up(getattr(Keys, TAPPED[name]))
        if action:
            keys.key_up(Keys.SHIFT)
        keys.perform()

    def drop(self, name, data):
        """Drops a file on the page."""
        self.js("""
            const transfer = new DataTransfer();
            transfer.items.add(new File([Uint8Array.from(arguments[1])], arguments[0]));
            document.body.dispatchEvent(new DragEvent("drop", {dataTransfer: transfer, bubbles: true, cancelable: true}));
            """, name, list(data))

    def saved(self, ending):
        """The file with this ending that the page has saved; waits for it."""
        found = lambda: [file for file in self.downloads.iterdir() if file.name.endswith(ending)]
        self.until(found, f"a file *{ending} was saved")
        time.sleep(0.1)
        return found()[0]

    def asked(self):
        """All that the page has asked the network for so far."""
        for entry in self.driver.get_log("performance"):
            message = json.loads(entry["message"])["message"]
            if message["method"] == "Network.requestWillBeSent":
                self._asked.append(message["params"]["request"]["url"])
        return self._asked

    def complaints(self):
        """What the browser says is wrong with the page."""
        return [entry["message"] for entry in self.driver.get_log("browser") if entry["level"] == "SEVERE"]

    def shot(self, path):
        self.driver.save_screenshot(str(path))
