"""The guidance as a screen reader meets it: the real program, led by the few lines of docs/host-client."""

import os
import sys

sys.path.append(os.path.join(os.path.dirname(__file__), "../../docs/host-client"))

import host
import screen_reader

NEXT, YES_NO, ARROW = 1, 2, 4
CLICK, EYE, KEYBOARD, NO_ICON = 0, 3, 5, 6


class Guidance:
    def __init__(self, program, locale):
        self.reader = screen_reader.ScreenReader()
        self.link = host.Link(program)
        self.reader.follow_link(self.link)
        self.link.send("fromServer", locale)
        self.link.send("start", 0, 0, 1000, 800)
        self.link.send("state", "show")

    def step(self, hint, flags, icon, x=300):
        self.link.send("indicator", "update", x, 200, "MainWindow/canvas", hint, flags, icon)

    def said(self, count):
        """All announcements, once there are so many."""
        spoken = self.reader.announcements
        self.reader.wait_for(lambda: len(spoken()) >= count, "announcement %d" % count)
        return [str(event).replace("showing 1: notification ", "") for event in spoken()]

    def end(self):
        assert self.link.close() == 0


def each_step_is_said_once(program):
    guidance = Guidance(program, "en_US")
    expected = []

    def expect(words):
        expected.append(words)
        assert guidance.said(len(expected)) == expected, guidance.said(len(expected))

    guidance.step("Draw a box.\nThen look.", ARROW, CLICK)
    expect('"Draw a box.\\nThen look." (Click, The arrow points at MainWindow/canvas)')
    # The same again, windows that go and come, a move: nothing of it is news. What comes next would follow it.
    guidance.step("Draw a box.\nThen look.", ARROW, CLICK)
    guidance.link.send("indicator", "updateXy", 500, 300)
    guidance.link.send("state", "show")
    guidance.step("This is <b>it</b>.", NEXT, EYE)
    expect('"This is <b>it</b>." (Look)')
    # The answer to a button may be the same step once more.
    guidance.reader.press(guidance.reader.expect("push button", "次へ"))
    guidance.link.wait_for("next")
    guidance.step("This is <b>it</b>.", NEXT, EYE)
    expect('"This is <b>it</b>." (Look)')
    # Without a hint, what is drawn is all there is to say.
    guidance.step("", NEXT, KEYBOARD)
    expect('"Use the keyboard"')
    guidance.step("", NEXT, NO_ICON)
    # A text beside it is said when it is to be seen, a second later.
    guidance.link.send("showTooltip", "An <i>ellipse</i>", 300, 300)
    expect('"An ellipse"')
    guidance.link.send("hideTooltip")
    # Another place is another step; another language begins with the next one.
    guidance.link.send("fromServer", "ja_JP")
    guidance.step("", NEXT, KEYBOARD, x=400)
    expect('"キーボードを使う"')
    tree = [line for line in guidance.reader.tree() if line.startswith(("alert", "  notification", "push button"))]
    assert tree == ['alert "キーボードを使う"', '  notification "キーボードを使う"', 'push button "次へ"'], tree
    guidance.end()


def buttons_are_pressed_where_they_are(program):
    """Each button by its name, without one of the windows becoming the active one for it."""
    guidance = Guidance(program, "ja_JP")
    reader = guidance.reader
    for label, flags, answer in [("次へ", NEXT, "next"), ("はい", YES_NO, "yes"), ("いいえ", YES_NO, "no")]:
        guidance.step("A hint.", flags, NO_ICON)
        button = reader.expect("push button", label)
        reader.take_events()
        before = len(reader.heard)
        reader.press(button)
        assert guidance.link.wait_for("next", "yes", "no") == [answer]
        reader.take_events()
        stolen = [str(event) for event in reader.heard[before:]
                  if event.type.endswith("focused") or event.type == "window:activate"]
        assert not stolen, stolen
    guidance.end()


if __name__ == "__main__":
    each_step_is_said_once(sys.argv[1])
    buttons_are_pressed_where_they_are(sys.argv[1])
