"""The authoring mode as a screen reader meets it: three steps are written by keys alone, and then edited by the
screen reader's own commands."""

import json
import os
import re
import subprocess
import sys
import tempfile

sys.path.append(os.path.join(os.path.dirname(__file__), "../../docs/host-client"))

import host
import screen_reader

TUTORIAL = "TutorialSideViewStep0"  # what the program opens by itself
SAVED = ["id", "name", "hint", "icon", "x", "condition", "jump", "showArrow", "prohibited"]
TRANSCRIPT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "authoring.txt")


class Writer:
    """The program in a folder of its own, with the hands and ears of someone who does not see it."""

    def __init__(self, program):
        self.lines = []
        self.reader = screen_reader.ScreenReader()
        self.link = host.Link(program)
        self.reader.follow_link(self.link)
        self.reader.expect("tree")
        window = self.reader.wait_for(lambda: self.xdotool("search", "--onlyvisible", "--name", TUTORIAL), "the window")
        self.xdotool("windowactivate", "--sync", window.split()[0])
        self.reader.wait_for(self.reader.focused, "the focus")

    @staticmethod
    def xdotool(*words):
        return subprocess.run(["xdotool", *words], stdout=subprocess.PIPE, text=True).stdout

    def spoken(self, child):
        """What is said of an object when the focus comes to it."""
        line = screen_reader.described(child.getRoleName(), child.name, child.description)
        states = child.getState()
        line += "".join(", " + word for state, word in screen_reader.STATES[1:] if states.contains(state))
        return line + screen_reader.value_of(child)

    def hear(self, said):
        """Waits until the focus is at something of which that is said, and notes all that is."""
        def there():
            child = self.reader.focused()
            return child and said in self.spoken(child) and child
        self.lines.append("    " + self.spoken(self.reader.wait_for(there, said)))

    def press(self, keys, said):
        self.lines.append(keys)
        self.xdotool("key", *keys.split())
        self.hear(said)

    def choose(self, opener, entry):
        """Opens a menu, and goes down to an entry of it; what is met on the way is noted."""
        self.lines.append(opener + " Down ... Return")
        before = len(self.reader.heard)
        self.xdotool("key", opener)
        self.reader.wait_for(lambda: self.entries_since(before), "a menu")
        while self.entries_since(before)[-1] != entry:
            met = len(self.entries_since(before))
            self.xdotool("key", "Down")
            self.reader.wait_for(lambda: len(self.entries_since(before)) > met, "an entry after those")
        self.lines += ['    menu item "%s"' % name for name in self.entries_since(before)]
        self.xdotool("key", "Return")

    def entries_since(self, before):
        """The entries of menus that the keys have come to."""
        return [event.name for event in self.reader.heard[before:]
                if event.role == "menu item" and event.type.endswith("focused") and event.value]

    def type(self, text, said):
        self.lines.append('"%s"' % text)
        self.xdotool("type", "--delay", "30", "--", text)
        self.hear(said)

    def tab_to(self, name, back=False):
        """Goes on by the Tab key, and notes what is met."""
        met = []
        while not met or not self.name_of_focus().startswith(name):
            before = self.reader.focused()
            self.xdotool("key", "shift+Tab" if back else "Tab")
            now = self.reader.wait_for(lambda: self.other_than(before), "the focus after " + str(before))
            met.append(self.spoken(now))
            assert len(met) < 40, "\n".join(met)
        self.lines.append("shift+Tab" if back else "Tab")
        self.lines += ["    " + line for line in met]

    def other_than(self, before):
        now = self.reader.focused()
        return now if now is not None and now != before else None

    def name_of_focus(self):
        return self.reader.focused().name

    def save(self):
        """Saves, and notes what the file says now."""
        self.lines.append("ctrl+s")
        self.xdotool("key", "ctrl+s")
        self.reader.wait_for(lambda: self.reader.find("frame", TUTORIAL), "the saved tutorial")
        with open("tutorial-win/translations/ja_JP.ts", encoding="utf-8") as file:
            hints = dict(re.findall(r"<source>(#\d+)</source>\s*<translation>(.*?)</translation>", file.read()))
        with open("tutorial-win/qml/Tutorial/%s.js" % TUTORIAL, encoding="utf-8") as file:
            steps = json.loads(re.sub(r'qsTr\((".*?")\)', r"\1", file.read().split("=", 1)[1].strip(" \n;")))
        for step in steps:
            step["hint"] = hints.get(step["hint"])
            self.lines.append("    " + json.dumps({key: step[key] for key in SAVED}))

    def end(self):
        self.link.close()


def three_steps_are_written_by_keys(writer):
    writer.lines += writer.reader.tree()
    writer.tab_to("項目を追加")
    for number, (name, hint) in enumerate([("hello", "Welcome!"), ("look", "The canvas."), ("goodbye", "The end.")]):
        if number > 0:
            writer.tab_to("項目を追加", back=True)
        writer.press("space", "項目0")
        writer.press("F2", "名前")
        writer.type(name, name)
        writer.press("Return", 'cell "' + name)
        writer.tab_to("ヒント")
        writer.type(hint, hint)
    # The last one leads back to the first, and the one before it has another icon.
    writer.tab_to("ジャンプ")
    writer.choose("space", "hello")
    writer.hear("ジャンプ\" (hello)")
    writer.tab_to("goodbye", back=True)
    writer.press("Up", "look")
    writer.tab_to("アイコン")
    writer.press("Down", "doubleClick")
    writer.tab_to("look", back=True)
    writer.press("alt+Up", "look")
    # The signs of the check come after a pause.
    writer.press("Down", '"hello, #1')
    writer.press("space", '"hello" (')
    writer.save()


def the_reader_itself_edits(writer):
    """The same through the accessibility interface, which takes the focus from nowhere, and back again."""
    reader = writer.reader
    reader.expect("text", "ヒント").queryEditableText().setTextContents("By voice.")
    reader.expect("text", "条件").queryEditableText().setTextContents("wait,400")
    reader.expect("spin button", "X").queryValue().currentValue = 12
    reader.press(reader.expect("check box", "矢印を表示"), "Toggle")
    writer.save()
    for _ in range(4):
        reader.press(reader.expect("push button", "Undo"))
    writer.save()
    reader.press(reader.find("table cell", "/"), "Toggle")
    reader.wait_for(lambda: reader.find("table cell", "/").getState().contains(
        screen_reader.pyatspi.STATE_COLLAPSED), "the closed list")


if __name__ == "__main__":
    program = os.path.abspath(sys.argv[1])
    with tempfile.TemporaryDirectory() as folder:
        for part in ("qml/Tutorial", "translations"):
            os.makedirs(os.path.join(folder, "tutorial-win", part))
        os.chdir(folder)
        writer = Writer(program)
        three_steps_are_written_by_keys(writer)
        the_reader_itself_edits(writer)
        writer.lines += writer.reader.tree()
        screen_reader.compare(writer.lines, TRANSCRIPT)
        writer.end()
