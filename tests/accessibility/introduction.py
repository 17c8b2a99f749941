"""The introductory tutorial as a blind user hears it, from its first step to its last."""

import os
import subprocess
import sys
import tempfile

import screen_reader


def transcript(events):
    """A line for each announcement, with the buttons that are there at that time."""
    buttons = []
    for event in events:
        if not event.type.endswith("showing"):
            continue
        if event.role == "push button":
            if event.name in buttons:
                buttons.remove(event.name)
            if event.value:
                buttons.append(event.name)
        elif event.role == "notification" and event.value:
            line = str(event).replace("showing 1: notification ", "")
            yield line + "".join(" [%s]" % button for button in buttons)


def main(host, program):
    reader = screen_reader.ScreenReader()
    with tempfile.TemporaryDirectory() as home:
        # The desktop of someone who sees little: all is larger, and types are larger still.
        environment = dict(os.environ, HOME=home, XDG_CONFIG_HOME=home, XDG_DATA_HOME=home,
                           QT_SCALE_FACTOR="1.5", QT_FONT_DPI="144")
        process = subprocess.Popen([host, "--program", program, "--locale", "en_US", "--auto"], env=environment,
                                   stdout=subprocess.DEVNULL)
        try:
            reader.follow_named("Trelvane")
            reader.wait_for(lambda: process.poll() is not None, "the end of the tutorial", 400)
        finally:
            process.terminate()
        assert process.wait() == 0, process.returncode
    screen_reader.compare(transcript(reader.heard), os.path.join(os.path.dirname(__file__), "introduction.txt"))


if __name__ == "__main__":
    main(*sys.argv[1:])
