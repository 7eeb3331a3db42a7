"""The page in a real browser. Each test's name is a sentence that is true.

usage: page_test.py PAGE-FOLDER ZKTOOL PROOFS-FOLDER PAGE-TEMPLATE [unittest arguments]
"""

import re
import sys
import tempfile
import unittest
from pathlib import Path

from browser import Browser
from page_case import PAGE, TEMPLATE, PageTest, keys_of_lesson, moves, postcard, proof, trace, zktool

MOST_BYTES = 1_500_000  # of a page of one record


class Playing(PageTest):
    def test_lesson_1_is_won_by_keys_and_its_record_verifies(self):
        self.win_lesson()
        score = int(self.browser.text("#score"))
        self.browser.answer("save")
        record = self.browser.saved(".zkr")
        told = zktool("verify", record)
        self.assertEqual(told.returncode, 0, told.stdout)
        self.assertIn(f"won score={score} stored={score}", told.stdout)
        self.assertIn('player="Bětka"', told.stdout)

    def test_a_won_practice_can_be_turned_back_after_a_pause(self):
        self.open_lessons()
        self.browser.click("#practise")
        self.browser.one("#badge")
        self.walk(keys_of_lesson())
        self.assertTrue(self.state()["won"])
        self.browser.click("#pause")
        self.browser.answer("ok")
        self.browser.key("down", "Backspace")
        self.browser.until(lambda: not self.state()["won"], "Backspace turns back time", 10)
        self.browser.js("dispatchEvent(new Event('blur'))")
        ticks = self.state()["ticks"]
        self.browser.until(lambda: self.state()["ticks"] > ticks, "time goes on while the window is elsewhere", 10)

    def test_a_win_opens_the_next_cave_and_outlives_the_page(self):
        self.open_lessons()
        self.browser.click('#caveList button[data-number="5"]')
        closed = self.browser.all("#caveList .closed")
        self.assertGreater(len(closed), 0)
        self.assertFalse(self.browser.driver.find_element("id", "play").is_displayed())
        self.browser.click("#home")
        self.win_lesson()
        self.browser.answer("next")
        self.browser.one("#caveList .solved")
        self.browser.open(self.server.url)
        self.open_lessons()
        self.assertEqual(len(self.browser.all("#caveList .solved")), 1)

    def test_ctrl_r_begins_the_cave_again_and_p_pauses(self):
        self.play_lesson()
        start = self.state()["units"][1]
        self.walk(keys_of_lesson()[:2])
        self.assertFalse(self.at((start["x"], start["y"])))
        for kind, key in (("down", "Control"), ("down", "r"), ("up", "r"), ("up", "Control")):
            self.browser.key(kind, key, control=key == "r")
        self.browser.until(lambda: self.at((start["x"], start["y"])), "the dog stands where it began")
        self.browser.key("down", "p")
        self.browser.key("up", "p")
        self.browser.one("dialog[open]")
        ticks = self.state()["ticks"]
        self.assertTrue(self.stands())
        self.browser.answer("ok")
        self.browser.until(lambda: self.state()["ticks"] > ticks, "the run goes on")

    def test_a_czech_browser_gets_czech_and_the_button_changes_it(self):
        self.assertEqual(self.browser.text("#language"), "English")
        self.assertEqual(self.browser.js("return document.documentElement.lang"), "cs")
        self.browser.click("#language")
        self.browser.until(lambda: self.browser.text("#shelf h2") == "Collections of caves", "the page speaks English")
        self.assertEqual(self.browser.js("return document.documentElement.lang"), "en")

    def test_both_languages_have_the_same_words(self):
        keys = self.browser.js("""
            return Promise.all(["cs", "en"].map(async language => {
              const words = (await import(`./js/words-${language}.js`)).default;
              return Object.entries(words).map(([key, text]) => key + [...text.matchAll(/\\?\\d\\?/g)].sort().join(""));
            }))""")
        self.assertGreater(len(keys[0]), 50)
        self.assertEqual(keys[0], keys[1])


class English(PageTest):
    language = "en"

    def test_an_english_browser_gets_english(self):
        self.assertEqual(self.browser.js("return document.documentElement.lang"), "en")
        self.assertEqual(self.browser.text("#shelf h2"), "Collections of caves")
        self.assertEqual(self.browser.text("#language"), "Česky")


class Watching(PageTest):
    def test_a_proof_ends_with_the_hash_of_the_native_machine(self):
        record = proof(2)
        last = trace(record)[-1]
        self.browser.drop("proof.zkr", record.read_bytes())
        self.browser.answer("ok")
        self.browser.click("#others button")
        self.browser.one("#bar")
        for _ in range(3):
            self.browser.click("#faster")
        ticks = int(re.search(r"tick=(\d+)", last).group(1))
        self.browser.until(lambda: self.state()["position"] == ticks, "the record has come to its end", 120)
        self.assertEqual(self.browser.js("return zorik.run.hash()"), re.search(r"hash=(\w+)", last).group(1))
        self.assertTrue(self.state()["won"])
        self.browser.until(lambda: "Vyhráno" in self.browser.text("#message"), "the page says so, and goes on saying so")

    def postcard_is_the_record_again(self):
        record = proof(2)
        self.browser.open(f"{self.server.url}#{postcard(record)}")
        self.browser.one("#bar")
        last = trace(record)[-1]
        self.seek(len(trace(record)))
        self.assertEqual(self.browser.js("return zorik.run.hash()"), re.search(r"hash=(\w+)", last).group(1))
        self.browser.click("#saveShown")
        self.assertEqual(moves(self.browser.saved(".zkr").read_bytes()), moves(record.read_bytes()))

    def test_a_postcard_put_behind_the_address_of_the_open_page_is_the_record_again(self):
        self.postcard_is_the_record_again()

    def test_a_postcard_behind_the_address_that_opens_the_page_is_the_record_again(self):
        self.browser.driver.get("about:blank")
        self.postcard_is_the_record_again()

    def test_a_damaged_postcard_is_told_of(self):
        letters = postcard(proof(2))
        for damaged in (letters[:-9], letters[:40] + "*" + letters[40:], "ZORIK1:"):
            self.paste(damaged)
            self.browser.one("dialog[open]")
            self.assertIn("pohlednice", self.browser.text("dialog[open]"))
            self.browser.answer("ok")

    def test_the_timeline_leads_to_any_moment(self):
        record = proof(2)
        lines = trace(record)
        self.browser.drop("proof.zkr", record.read_bytes())
        self.browser.answer("ok")
        self.browser.click("#others button")
        self.browser.click("#playOrStop")
        for tick in (len(lines) // 2, 7, len(lines)):
            self.seek(tick)
            expected = re.search(r"hash=(\w+)", lines[tick - 1]).group(1)
            self.assertEqual(self.browser.js("return zorik.run.hash()"), expected, f"tick {tick}")
        self.browser.key("down", "Home")
        self.assertEqual(self.state()["position"], 0)
        self.browser.key("down", ".")
        self.assertEqual(self.state()["position"], 1)

    def watch(self, number):
        self.browser.drop("proof.zkr", proof(number).read_bytes())
        self.browser.answer("ok")
        self.browser.click("#others button")

    def test_a_step_stops_a_record_that_plays(self):
        self.watch(2)
        self.browser.one("#bar")
        for key in (".", ","):
            self.browser.key("down", key)
            self.assertTrue(self.stands("position"))
            self.browser.click("#playOrStop")

    def test_a_record_that_stood_sounds_when_it_is_taken_over(self):
        self.browser.js("""
            globalThis.loops = 0;
            const start = AudioBufferSourceNode.prototype.start;
            AudioBufferSourceNode.prototype.start = function () {
              loops += this.loop;
              start.call(this);
            };""")
        self.watch(19)
        self.browser.until(lambda: self.browser.js("return loops") > 0, "the amoeba sounds")
        self.browser.click("#playOrStop")
        self.seek(60)
        self.assertTrue(self.state()["amoebaSounds"])
        before = self.browser.js("return loops")
        self.browser.click("#takeOver")
        self.assertGreater(self.browser.js("return loops"), before)

    def test_pictures_that_could_not_be_had_are_asked_for_again(self):
        self.browser.js("""
            globalThis.fetched = fetch;
            globalThis.fetch = (path) =>
              String(path).endsWith(".webp") ? Promise.reject(new Error("away")) : fetched(path);""")
        self.watch(13)
        self.browser.answer("ok")
        self.assertIsNone(self.browser.seen("#bar"))
        self.browser.js("globalThis.fetch = fetched")
        self.browser.click("#others button")
        self.browser.one("#bar")

    def test_a_record_of_another_is_kept_and_can_be_taken_over(self):
        self.browser.drop("proof.zkr", proof(1).read_bytes())
        self.browser.answer("ok")
        self.browser.click("#others button")
        self.browser.click("#takeOver")
        self.browser.one("#badge")
        self.assertEqual(self.state()["kind"], 3)
        self.browser.until(lambda: self.state()["ticks"] > 8, "practice goes on")
        ticks = self.state()["ticks"]
        self.browser.key("down", "Backspace")
        self.browser.until(lambda: self.state()["ticks"] < ticks - 3, "Backspace turns back time")
        self.browser.key("up", "Backspace")


class Interrupting(PageTest):
    """What comes in while a game is played."""

    def plays(self):
        return self.state()["kind"] == 0 and self.browser.seen("#picture") is not None

    def watches(self):
        return self.state()["kind"] == 1 and self.browser.seen("#bar") is not None

    def play_some(self):
        self.play_lesson()
        self.browser.until(lambda: self.state()["ticks"] > 2, "the run goes on")

    def goes_on(self):
        ticks = self.state()["ticks"]
        self.browser.until(lambda: self.state()["ticks"] > ticks, "the run goes on", 10)

    def test_a_pasted_postcard_is_shown_when_the_game_may_end(self):
        self.play_some()
        self.paste(postcard(proof(2)))
        self.browser.answer("yes")
        self.browser.until(self.watches, "the postcard plays", 10)
        self.wait(500)
        self.assertTrue(self.watches())
        self.goes_on()
        self.browser.key("down", "Escape")
        self.browser.until(lambda: self.browser.seen("#caveList button"), "the way out leads to the caves", 10)

    def test_a_postcard_behind_the_address_asks_before_it_ends_the_game(self):
        self.play_some()
        self.browser.js("location.hash = arguments[0]", postcard(proof(2)))
        self.browser.one("dialog[open]")
        self.assertTrue(self.plays())
        self.browser.answer("no")
        self.assertTrue(self.plays())
        self.goes_on()
        self.assertEqual(self.browser.js("return location.hash"), "")
        self.browser.js("history.back()")
        self.browser.until(lambda: self.browser.seen("#caveList button"), "the way back leads to the caves", 10)

    def test_a_postcard_behind_the_address_is_left_for_where_the_game_was_begun(self):
        self.play_some()
        self.browser.js("location.hash = arguments[0]", postcard(proof(2)))
        self.browser.answer("yes")
        self.browser.until(self.watches, "the postcard plays", 10)
        self.browser.key("down", "Escape")
        self.browser.until(lambda: self.browser.seen("#caveList button"), "the way out leads to the caves", 10)
        self.browser.click("#home")
        self.browser.until(lambda: self.browser.seen("#collections button"), "and home to the shelf", 10)

    def test_the_game_stands_still_behind_whatever_asks(self):
        self.play_some()
        letters = postcard(proof(2))
        for what in (lambda: self.paste(letters), lambda: self.browser.drop("x.zkr", proof(1).read_bytes()),
                     lambda: self.browser.key("down", "Escape")):
            what()
            self.browser.one("dialog[open]")
            self.assertTrue(self.stands())
            self.browser.answer("no")
            self.goes_on()
        self.paste(letters[:-9])
        self.browser.one("dialog[open]")
        self.assertTrue(self.stands())
        self.browser.answer("ok")
        self.goes_on()

    def test_two_clicks_on_a_collection_open_it_once(self):
        for _ in range(2):
            self.browser.one("#collections button")
            self.browser.js("""
                const button = document.querySelector("#collections button");
                button.click();
                button.click();""")
            self.browser.one("#caveList button")
            self.wait(300)
            self.browser.js("history.back()")
            self.browser.until(lambda: self.browser.seen("#collections button"), "one way back leads to the shelf", 10)


class Files(PageTest):
    def play_as_in_the_proof(self):
        player = re.search(r'player="([^"]*)"', zktool("verify", proof(1)).stdout).group(1)
        self.browser.js("localStorage.setItem('zorik.player', arguments[0])", player)
        self.browser.open(self.server.url)

    def open_twice(self):
        """The page in a second tab; answers both tabs, the new one being seen."""
        self.browser.driver.switch_to.new_window("tab")
        self.browser.open(self.server.url)
        return self.browser.driver.window_handles

    def test_two_open_pages_keep_files_of_one_name_both(self):
        for number, tab in enumerate(self.open_twice(), 1):
            self.browser.driver.switch_to.window(tab)
            self.browser.drop("same.zkr", proof(number).read_bytes())
            self.browser.answer("ok")
        self.browser.open(self.server.url)
        self.browser.one("#others li")
        self.assertEqual(len(self.browser.all("#others li")), 2)

    def test_a_worse_win_asks_before_it_replaces_what_another_page_has_kept(self):
        self.play_as_in_the_proof()
        first, second = self.open_twice()
        self.browser.driver.switch_to.window(first)
        self.browser.drop("mine.zkr", proof(1).read_bytes())
        self.browser.answer("ok")
        self.browser.driver.switch_to.window(second)
        self.open_lessons()
        self.browser.click("#play")
        self.browser.one("#picture")
        self.wait(4000)
        self.walk(keys_of_lesson())
        self.browser.one('dialog[open] button[value="no"]')
        self.browser.answer("no")
        self.assertLess(int(self.browser.text("#score")), 117)
        self.browser.answer("next")
        self.browser.click('#caveList button[data-number="1"]')
        self.browser.click("#exportRecord")
        self.assertEqual(self.browser.saved(".zkr").read_bytes(), proof(1).read_bytes())

    def test_a_damaged_file_is_told_of_and_nothing_is_lost(self):
        self.browser.drop("proof.zkr", proof(1).read_bytes())
        self.browser.answer("ok")
        for name, data in (("zlý.zkr", b"nothing of the game"), ("half.zk", b"\x00\xff" * 40), ("picture.png", b"PNG"),
                           ("empty.zkr", b""), ("empty.zk", b""), ("short.zkr", proof(1).read_bytes()[:30])):
            self.browser.drop(name, data)
            self.assertIn(name, self.browser.text("dialog[open]"))
            self.assertIn("Nic se nezměnilo", self.browser.text("dialog[open]"))
            self.browser.answer("ok")
            self.assertEqual(len(self.browser.all("#others li")), 1, name)
            self.assertEqual(len(self.browser.all("#collections li")), 3, name)

    def test_a_record_whose_run_does_not_win_does_not_count(self):
        lines = proof(1).read_bytes().split(b"\r\n")
        self.play_as_in_the_proof()
        self.browser.drop("cut.zkr", b"\r\n".join(lines[:-20]))
        self.assertIn("nedojde do cíle", self.browser.text("dialog[open]"))
        self.browser.answer("ok")
        self.open_lessons()
        self.assertEqual(len(self.browser.all("#caveList .solved")), 0)

    def test_a_record_of_the_player_from_the_desktop_counts(self):
        self.play_as_in_the_proof()
        self.browser.drop("mine.zkr", proof(1).read_bytes())
        self.browser.answer("ok")
        self.open_lessons()
        self.browser.one("#caveList .solved")
        self.browser.click('#caveList button[data-number="1"]')
        self.browser.click("#exportRecord")
        self.assertEqual(self.browser.saved(".zkr").read_bytes(), proof(1).read_bytes())

    def test_a_collection_from_outside_joins_the_shelf_and_can_go(self):
        english = PAGE / "assets" / "caves" / "1-zorikova-skola-en.zk"
        self.browser.drop("škola.zk", english.read_bytes())
        self.browser.answer("ok")
        self.browser.until(lambda: len(self.browser.all("#collections li")) == 4, "a fourth collection is there")
        self.browser.open(self.server.url)
        self.browser.until(lambda: len(self.browser.all("#collections li")) == 4, "and is there again")
        self.browser.all("#collections button")[3].click()
        self.browser.click("#removeCollection")
        self.browser.answer("yes")
        self.browser.until(lambda: len(self.browser.all("#collections li")) == 3, "it is gone")


class Phone(PageTest):
    size = (375, 667)
    phone = True

    def no_wider_than_the_screen(self):
        self.assertLessEqual(self.browser.js("return document.documentElement.scrollWidth"), 375)

    def test_nothing_is_wider_than_the_screen(self):
        self.assertEqual(self.browser.js("return innerWidth"), 375)
        self.no_wider_than_the_screen()
        self.open_lessons()
        self.no_wider_than_the_screen()
        self.play_from_list()
        self.no_wider_than_the_screen()
        cell = self.browser.js("const p = zorik.run.look(375, 500, 1); return p.cellWidth")
        self.assertGreaterEqual(cell, 24)

    def play_from_list(self):
        self.browser.click("#play")
        self.browser.answer("ok")
        self.browser.one("#picture")

    def touch(self, kind, *point):
        points = [{"x": point[0], "y": point[1]}] if point else []
        self.browser.driver.execute_cdp_cmd("Input.dispatchTouchEvent", {"type": kind, "touchPoints": points})

    def test_a_swipe_leads_the_dog_and_holding_goes_on(self):
        self.open_lessons()
        self.play_from_list()
        self.browser.until(lambda: self.state()["ticks"] > 2, "the run goes on")
        start = self.state()["units"][1]
        self.touch("touchStart", 150, 350)
        self.touch("touchMove", 190, 352)
        self.browser.until(lambda: self.state()["units"][1]["x"] >= start["x"] + 2, "the dog goes on to the right")
        self.touch("touchMove", 190, 300)
        self.browser.until(lambda: self.state()["units"][1]["y"] < start["y"], "and turns upwards")
        self.touch("touchEnd")
        self.browser.one("#act")


class SingleFile(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.out = Path(self.folder.name) / "out.html"
        self.browser = None

    def tearDown(self):
        if self.browser:
            away = [url for url in self.browser.asked() if not url.startswith((self.out.as_uri(), "data:", "blob:"))]
            complaints = self.browser.complaints()
            self.browser.quit()
            self.assertEqual(away, [], "a request has left the page")
            self.assertEqual(complaints, [], "the browser complains of the page")
        self.folder.cleanup()

    def open(self, what):
        told = zktool("page", what, "-o", self.out, "--template", TEMPLATE)
        self.assertEqual(told.returncode, 0, told.stderr)
        self.browser = Browser(self.folder.name)
        self.browser.open(self.out.as_uri())

    def test_a_record_plays_at_once_and_its_cave_can_be_played(self):
        record = proof(1)
        self.open(record)
        self.assertLessEqual(self.out.stat().st_size, MOST_BYTES)
        self.browser.one("#bar")
        self.browser.until(lambda: self.browser.js("return zorik.run.state().ticks") > 3, "the record plays")
        self.browser.key("down", "End")
        last = re.search(r"hash=(\w+)", trace(record)[-1]).group(1)
        self.assertEqual(self.browser.js("return zorik.run.hash()"), last)
        self.browser.click("#playCave")
        self.browser.until(lambda: self.browser.js("return zorik.run.state().kind") == 0, "the cave is played")

    def test_a_collection_shows_its_caves(self):
        self.open(PAGE / "assets" / "caves" / "1-zorikova-skola-cs.zk")
        self.browser.one("#caveList button")
        self.assertEqual(len(self.browser.all("#caveList button")), 20)
        self.browser.click("#play")
        self.browser.answer("ok")
        self.browser.until(lambda: self.browser.js("return zorik.run.state().ticks") > 3, "the cave is played")


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[5:]])
