"""The guidance as a screen reader meets it: the real program, led by the few lines of docs/host-client."""

import os
import sys

sys.path.append(os.path.join(os.path.dirname(__file__), "../../docs/host-client"))

import host
import screen_reader

NEXT, YES_NO, ARROW = 1, 2, 4


def start(program):
    link = host.Link(program)
    link.send("start", 0, 0, 1000, 800)
    link.send("state", "show")
    return link, screen_reader.ScreenReader(link.process.pid)


def buttons_are_pressed_where_they_are(program):
    """Each button by its name, without one of the windows becoming the active one for it."""
    link, reader = start(program)
    for label, flags, answer in [("次へ", NEXT, "next"), ("はい", YES_NO, "yes"), ("いいえ", YES_NO, "no")]:
        link.send("indicator", "update", 300, 200, "MainWindow", "A hint.", flags, 6)
        button = reader.expect("push button", label)
        reader.take_events()
        before = len(reader.heard)
        reader.press(button)
        assert link.wait_for("next", "yes", "no") == [answer]
        reader.take_events()
        stolen = [str(event) for event in reader.heard[before:]
                  if event.type.endswith("focused") or event.type == "window:activate"]
        assert not stolen, stolen
    assert link.close() == 0


if __name__ == "__main__":
    buttons_are_pressed_where_they_are(sys.argv[1])
