"""What a screen reader meets of a program: the tree of its accessible objects, and the events that tell of changes.

It is a client of the accessibility bus as the real ones are, with nothing of the program's. To be run under
scripts/with-x --accessibility, by the system's own Python, which has the bindings.
"""

import difflib
import os
import sys
import time

try:
    import pyatspi
    from gi.repository import GLib
except ImportError as error:
    sys.exit("%s; install it with: apt-get install python3-pyatspi" % error)

LIMIT = 60  # seconds for what comes at once on a machine that is not busy

# Those that a screen reader turns into speech.
EVENTS = [
    "object:state-changed:showing",
    "object:state-changed:focused",
    "object:state-changed:checked",
    "object:state-changed:selected",
    "object:state-changed:expanded",
    "object:property-change:accessible-name",
    "object:property-change:accessible-description",
    "object:property-change:accessible-value",
    "object:selection-changed",
    "window:activate",
]

# States that tell one control from another; the rest is noise.
STATES = [
    (pyatspi.STATE_FOCUSED, "focused"),
    (pyatspi.STATE_CHECKED, "checked"),
    (pyatspi.STATE_SELECTED, "selected"),
    (pyatspi.STATE_EXPANDED, "expanded"),
    (pyatspi.STATE_COLLAPSED, "collapsed"),
    (pyatspi.STATE_READ_ONLY, "read only"),
]


class Event:
    """One that was heard, with what its object said of itself at that time."""

    def __init__(self, event):
        self.type = event.type
        self.source = event.source
        self.value = event.detail1
        self.role = event.source.getRoleName()
        self.process_id = event.source.get_process_id()
        self.name = event.source.name
        self.description = event.source.description

    def __str__(self):
        kind = self.type.split(":")[-1].replace("accessible-", "")
        value = "" if self.type.startswith(("object:property-change", "window:")) else " %d" % self.value
        return "%s%s: %s" % (kind, value, described(self.role, self.name, self.description))


class ScreenReader:
    """Follows one program, which is started after it: a toolkit may miss who begins to listen while it starts.

    Every event of the program is in `heard`, in order.
    """

    def __init__(self):
        self.process_id = None
        self.meanwhile = lambda: None  # called often while something is waited for
        self.all_heard = []
        for kind in EVENTS:
            pyatspi.Registry.registerEventListener(self.on_event, kind)

    def follow(self, process_id):
        self.process_id = process_id

    def follow_link(self, link):
        """The same for a program at a host's link, which is kept alive while something is waited for."""
        def keep_alive():
            if time.monotonic() >= link.alive_due:
                link.alive_due = time.monotonic() + 1
                link.send("alive")
        self.follow(link.process.pid)
        self.meanwhile = keep_alive

    def follow_named(self, name):
        """The same for a program that another one starts."""
        def find():
            found = [application for application in pyatspi.Registry.getDesktop(0) if application.name == name]
            return found and found[0].get_process_id()
        self.follow(self.wait_for(find, name))

    @property
    def heard(self):
        return [event for event in self.all_heard if event.process_id == self.process_id]

    def on_event(self, event):
        try:
            self.all_heard.append(Event(event))
        except GLib.Error:
            pass  # gone before it could be asked

    def wait_for(self, condition, what, limit=LIMIT):
        """The first true value of the condition; the events that come meanwhile are taken."""
        end = time.monotonic() + limit
        while True:
            self.take_events()
            self.meanwhile()
            try:
                result = condition()
            except GLib.Error:
                result = None  # an object went while it was asked
            if result:
                return result
            if time.monotonic() > end:
                sys.exit("%s did not come in %d seconds; heard:\n  %s\nto be seen:\n%s" % (
                    what, limit, "\n  ".join(map(str, self.heard)), "\n".join(self.tree())))
            time.sleep(0.02)

    def announcements(self):
        """What was spoken without the user's doing: the notifications that were shown."""
        return [event for event in self.heard
                if event.role == "notification" and event.type.endswith("showing") and event.value]

    def take_events(self):
        context = GLib.MainContext.default()
        while context.iteration(False):
            pass

    def application(self):
        """The program's root object; None as long as it has not come to the bus."""
        for application in pyatspi.Registry.getDesktop(0):
            if application is not None and application.get_process_id() == self.process_id:
                return application
        return None

    def objects(self, root=None, level=0):
        """All objects below one that are showing, in the order of the tree, each with its level."""
        root = root or self.application()
        if root is None:
            return
        for index in range(root.childCount):
            child = root.getChildAtIndex(index)
            if child is None:
                continue
            child.clearCache()
            if child.getState().contains(pyatspi.STATE_SHOWING):
                yield child, level
                yield from self.objects(child, level + 1)

    def find(self, role, name=None):
        """The first showing object of a role, and of a name if one is given."""
        for child, _ in self.objects():
            if child.getRoleName() == role and name in (None, child.name):
                return child
        return None

    def expect(self, role, name=None):
        return self.wait_for(lambda: self.find(role, name), "%s %s" % (role, name))

    def tree(self, root=None):
        """The transcript of what is showing: a line for each object."""
        lines = []
        for child, level in self.objects(root):
            states = child.getState()
            line = described(child.getRoleName(), child.name, child.description)
            line += "".join(", " + word for state, word in STATES if states.contains(state))
            lines.append("  " * level + line + value_of(child))
        return lines

    def focused(self):
        for child, _ in self.objects():
            if child.getState().contains(pyatspi.STATE_FOCUSED):
                return child
        return None

    def actions(self, child):
        try:
            action = child.queryAction()
        except NotImplementedError:
            return []
        return [action.getName(index) for index in range(action.nActions)]

    def press(self, child, name="Press"):
        """Carries out an action of an object through the bus, as the key of a screen reader does."""
        actions = self.actions(child)
        assert name in actions, "%s has no %s, only %s" % (child, name, actions)
        child.queryAction().doAction(actions.index(name))


def described(role, name, description):
    line = '%s "%s"' % (role, name)
    if description:
        line += " (%s)" % description
    return line.replace("\n", "\\n")


def value_of(child):
    """The number of a control that has one, and the text of a field that is written in."""
    try:
        return ", value %g" % child.queryValue().currentValue
    except NotImplementedError:
        pass
    try:
        child.queryEditableText()
        text = child.queryText()
        return ', text "%s"' % text.getText(0, text.characterCount).replace("\n", "\\n")
    except NotImplementedError:
        return ""


def compare(lines, path):
    """Compares a transcript with the one of a file. With WRITE_TRANSCRIPTS=1 the file is written anew instead."""
    text = "".join(line + "\n" for line in lines)
    if os.environ.get("WRITE_TRANSCRIPTS") == "1":
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        return
    with open(path, encoding="utf-8") as file:
        expected = file.read()
    if text != expected:
        difference = difflib.unified_diff(expected.splitlines(), text.splitlines(), path, "what was heard", lineterm="")
        sys.exit("\n".join(difference))
