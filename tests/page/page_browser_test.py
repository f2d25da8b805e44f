"""Opens pages that `kavela page` wrote in a real browser, as telephones and desks show them."""

import base64
import json
import os
import subprocess
import tempfile
import unittest

from browser import Browser

KAVELA = os.environ.get("KAVELA_PROGRAM", "kavela")
PICTURES = os.environ.get("KAVELA_PAGE_PICTURES")  # a folder to look at them

MARKUP = "<script>window.taken=1</script><img src=//example.org/x onerror=window.taken=1>"

WIDE = """[...document.querySelectorAll('body *')].filter(e => !e.closest('div.o,.v,svg') &&
  e.getBoundingClientRect().right > innerWidth + 1).map(e => e.outerHTML.slice(0, 120))"""

LOST_NAMES = """[...document.querySelectorAll('div.o')].filter(box => {
  box.scrollLeft = 5000;
  const name = box.querySelector('tbody th');
  return Math.abs(name.getBoundingClientRect().left - box.getBoundingClientRect().left) > 2;
}).length"""

UNTOLD = """[...document.querySelectorAll('th:not([scope]),svg:not([aria-label]),' +
  'video:not([aria-label]),img:not([alt]),[role=region]:not([aria-label])')]
  .map(e => e.outerHTML.slice(0, 120))"""

PALE = """(() => {
  const numbers = text => text.match(/[\\d.]+/g).map(Number);
  const light = c => c.slice(0, 3).map(v => v / 255)
    .map(v => v <= .04045 ? v / 12.92 : ((v + .055) / 1.055) ** 2.4)
    .reduce((sum, v, i) => sum + v * [.2126, .7152, .0722][i], 0);
  const behind = e => { for (; e; e = e.parentElement) {
    const style = getComputedStyle(e);
    if (style.backgroundImage != 'none') return null;
    const c = numbers(style.backgroundColor);
    if (c.length < 4 || c[3] > 0) return c;
  } return [255, 255, 255]; };
  const found = new Set();
  for (const e of document.querySelectorAll('body *')) {
    if (e.closest('svg,.v') || ![...e.childNodes].some(n => n.nodeType == 3 && n.data.trim()))
      continue;
    const back = behind(e);
    if (!back) continue;
    const [a, b] = [light(numbers(getComputedStyle(e).color)), light(back)].sort((x, y) => y - x);
    const contrast = (a + .05) / (b + .05);
    if (contrast < 4.5) found.add(e.outerHTML.slice(0, 60) + ' ' + contrast.toFixed(2));
  }
  return [...found].slice(0, 5);
})()"""


def kavela(*arguments):
    subprocess.run([KAVELA, *map(str, arguments)], check=True, stdout=subprocess.DEVNULL)


class PageInABrowser(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        os.environ["HOME"] = os.environ["XDG_CACHE_HOME"] = cls.folder.name
        os.environ["XDG_CONFIG_HOME"] = cls.folder.name
        season = os.path.join(cls.folder.name, "season")
        kavela("demo", season)
        cls.race = os.path.join(season, "races", "riverside_cup.kvx")
        cls.pages = {}
        for mode in ("race", "training"):
            cls.write(mode, "Joren Valkenhof", cls.race, "--mode", mode)
        cls.write("season", "Joren Valkenhof", os.path.join(season, "races"),
                  os.path.join(season, "league"), "--mode", "training")
        cls.write("markup", MARKUP, cls.hostile_race(), "--mode", "training")
        cls.browser = Browser().__enter__()

    @classmethod
    def tearDownClass(cls):
        cls.browser.__exit__()
        cls.folder.cleanup()

    @classmethod
    def write(cls, name, athlete, *arguments):
        cls.pages[name] = os.path.join(cls.folder.name, name + ".html")
        kavela("page", *arguments, "--athlete", athlete, "-o", cls.pages[name])

    @classmethod
    def hostile_race(cls):
        """The race with markup, marks of direction and endless words for texts."""
        with open(cls.race, encoding="utf-8") as file:
            race = json.load(file)
        race["info"]["title"] = "\u202e" + MARKUP
        race["info"]["place"] = "W" * 300
        race["info"]["splitTitles"] = ["&amp;" + MARKUP] * 3 + race["info"]["splitTitles"][3:]
        for run in race["athletes"]:
            if run["names"] == ["Joren Valkenhof"]:
                run["names"] = [MARKUP]
                run["sectioninfo"]["comments"] = ["V" * 400, MARKUP, "\u202eabc"]
        path = os.path.join(cls.folder.name, "hostile.kvx")
        with open(path, "w", encoding="utf-8") as file:
            json.dump(race, file)
        return path

    def views(self):
        """Every page at three widths, light and dark."""
        return [{"page": page, "width": width, "dark": is_dark} for page in self.pages
                for width in (360, 768, 1280) for is_dark in (False, True)]

    def show(self, page, width, dark):
        self.browser.visit(self.pages[page], width, dark)
        self.keep_picture(f"{page}-{width}{'-dark' if dark else ''}")

    def keep_picture(self, name):
        if not PICTURES:
            return
        shot = self.browser.call("Page.captureScreenshot", captureBeyondViewport=True)
        with open(os.path.join(PICTURES, name + ".png"), "wb") as file:
            file.write(base64.b64decode(shot["data"]))

    def told(self, *methods):
        return [event["params"] for event in self.browser.events if event["method"] in methods]

    def test_nothing_is_wider_than_the_screen_and_names_stay_in_view(self):
        for view in self.views():
            with self.subTest(**view):
                self.show(**view)
                self.assertEqual(self.browser.ask(WIDE), [])
                self.assertLessEqual(self.browser.ask("document.documentElement.scrollWidth"),
                                     self.browser.ask("innerWidth"))
                self.assertEqual(self.browser.ask("innerWidth"), view["width"])
                self.assertEqual(self.browser.ask(LOST_NAMES), 0)

    def test_all_texts_can_be_read_and_all_parts_are_told(self):
        for view in self.views():
            with self.subTest(**view):
                self.show(**view)
                self.assertEqual(self.browser.ask(PALE), [])
                self.assertEqual(self.browser.ask(UNTOLD), [])
                self.assertEqual(self.browser.ask("document.querySelectorAll('h1').length"), 1)

    def test_nothing_is_asked_of_anybody_and_nothing_is_run(self):
        for page, path in self.pages.items():
            with self.subTest(page=page):
                self.browser.visit(path, 360, False)
                asked = [event["request"]["url"]
                         for event in self.told("Network.requestWillBeSent")]
                self.assertEqual([url for url in asked if not url.startswith("data:")],
                                 ["file://" + path])
                self.assertEqual(self.told("Log.entryAdded", "Runtime.consoleAPICalled",
                                           "Runtime.exceptionThrown"), [])
                self.assertIsNone(self.browser.ask("window.taken"))
                self.assertEqual(
                    self.browser.ask("document.querySelectorAll('script,img').length"), 0)

    def test_markup_in_names_is_shown_as_it_is_written(self):
        self.browser.visit(self.pages["markup"], 360, False)
        self.assertEqual(self.browser.ask("document.querySelector('h1').textContent"), MARKUP)
        self.assertIn(MARKUP, self.browser.ask("document.querySelector('article').textContent"))


if __name__ == "__main__":
    unittest.main()
