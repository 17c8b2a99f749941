#!/usr/bin/env python3
"""The smallest other end of the link, after docs/protocol.md.

It makes the local server, starts the program, and walks a tutorial of three steps by the buttons
that the program shows. With --auto the buttons are pressed by xdotool instead of a person.
"""

import argparse
import os
import shutil
import socket
import subprocess
import sys
import tempfile
import threading
import time

NEXT, YES_NO, ARROW = 1, 2, 4  # the bits of a step's flags
CLICK, EYE, KEYBOARD = 0, 3, 5  # some of the icons
NOWHERE = -9999

# Place on the screen, hint, flags, icon.
STEPS = [
    (300, 200, "Welcome!\nThis tutorial comes from a few lines of Python.", NEXT | ARROW, EYE),
    (600, 400, "Did you see the arrow move?\nNo shows it once more.", YES_NO | ARROW, CLICK),
    (NOWHERE, NOWHERE, "That is all.", NEXT, KEYBOARD),
]


class Link:
    """The server with its one client, the program."""

    def __init__(self, program):
        self.pending = b""
        self.alive_due = 0
        suffix = "-python-%d" % os.getpid()
        with tempfile.TemporaryDirectory() as folder:
            server = socket.socket(socket.AF_UNIX)
            server.bind(os.path.join(folder, "qelm" + suffix))
            server.listen(1)
            server.settimeout(30)
            # The program looks for the server in the folder for temporary files.
            environment = dict(os.environ, TMPDIR=folder)
            self.process = subprocess.Popen([program, suffix], env=environment, stderr=subprocess.DEVNULL)
            try:
                self.socket = server.accept()[0]
            except OSError:
                self.process.kill()
                raise
            server.close()

    def send(self, *fields):
        message = "\x01".join(str(field) for field in fields)
        if message != "alive":
            print("-->", " | ".join(message.split("\x01")).replace("\n", "\\n"))
        self.socket.sendall(b"0\x02" + message.encode() + b"\x00")

    def wait_for(self, *names):
        """The fields of the next message of one of these names; all others are passed over."""
        while True:
            while b"\x00" in self.pending:
                record, self.pending = self.pending.split(b"\x00", 1)
                # The direction, the first mark, and the one message that the program puts in a record.
                assert record[:2] == b"1\x02", record
                fields = record[2:].decode().split("\x01")
                if fields[0] != "alive":
                    print("<--", " | ".join(fields)[:100].replace("\n", "\\n"))
                if fields[0] in names:
                    return fields
            self.read()

    def read(self):
        """Takes what has come by the time at which the next sign of life is due."""
        if time.monotonic() >= self.alive_due:
            self.alive_due = time.monotonic() + 1
            self.send("alive")
        self.socket.settimeout(max(0.01, self.alive_due - time.monotonic()))
        try:
            received = self.socket.recv(65536)
        except socket.timeout:
            return
        if not received:
            sys.exit("the program has closed the link")
        self.pending += received

    def close(self):
        """Ends the link, and with it the program. Its exit code."""
        self.socket.close()
        return self.process.wait(10)


class Presser(threading.Thread):
    """Presses the first or the last button in a row until it is told that the press has come."""

    def __init__(self, process_id, index):
        super().__init__(daemon=True)
        self.process_id = process_id
        self.index = index
        self.pressed = threading.Event()
        self.start()

    def run(self):
        seen = None
        while not self.pressed.wait(0.3):
            buttons = self.buttons()
            # The windows move to their place; at rest, two looks see the same.
            if buttons and buttons == seen:
                x, y = buttons[self.index]
                xdotool("mousemove", x + 32, y + 16, "click", 1)
                buttons = None
            seen = buttons

    def buttons(self):
        """The buttons to be seen: windows of 64 by 32 pixels."""
        places = []
        for window in xdotool("search", "--onlyvisible", "--pid", self.process_id, "--name", "").split():
            geometry = dict(line.split("=") for line in xdotool("getwindowgeometry", "--shell", window).split())
            if (geometry.get("WIDTH"), geometry.get("HEIGHT")) == ("64", "32"):
                places.append((int(geometry["X"]), int(geometry["Y"])))
        return sorted(places)


def xdotool(*words):
    command = ["xdotool"] + [str(word) for word in words]
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False).stdout.decode()


def walk(link, automatic):
    """Shows the steps; No leads back to the first one."""
    answers = ["next", "no", "next", "yes", "next"]
    current = 0
    while current < len(STEPS):
        x, y, hint, flags, icon = STEPS[current]
        link.send("indicator", "update", x, y, "", hint, flags, icon)
        presser = Presser(link.process.pid, -1 if answers.pop(0) == "no" else 0) if automatic else None
        # What this step does not ask for does not end it.
        answer = link.wait_for(*(["yes", "no"] if flags & YES_NO else ["next"]))[0]
        if presser:
            presser.pressed.set()
        current = 0 if answer == "no" else current + 1


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", 1)[0])
    parser.add_argument("program", help="the program to start")
    parser.add_argument("--auto", action="store_true", help="press the buttons with xdotool")
    arguments = parser.parse_args()
    if arguments.auto and not shutil.which("xdotool"):
        parser.error("--auto needs xdotool")

    link = Link(arguments.program)
    link.send("fromServer", "en_US")
    link.send("tutorialList")
    link.wait_for("tutorialList")
    link.send("start", 0, 0, 1280, 1024)
    link.send("state", "show")
    walk(link, arguments.auto)
    link.send("stop")
    link.send("bye")
    return link.close()


if __name__ == "__main__":
    sys.exit(main())
