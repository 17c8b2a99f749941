#!/usr/bin/python3
"""Films the guidance: plays the introductory tutorial in the stand-in host editor, on the X server that is there, and
writes a moving picture of its drawing part. Called by "./run film"."""

import re
import subprocess
import sys
import threading
import time

from PIL import Image, ImageGrab

# The question of the second step is answered by No, which leads to the drawing part; so many steps are filmed.
FIRST_STEP = 3
STEPS = 5
# In seconds. The guidance moves by ticks: at twice their pace no place of the arrow is missed. What takes less than
# a pause is one tick, however busy this machine is.
TICK = 0.1
PERIOD = TICK / 2
PAUSE = 0.45
LAST_FRAME = 2.0
# Around the window: its frame, and the arrow over its topmost buttons.
MARGINS = (6, 100, 6, 6)
WIDTH = 720


class Host:
    """The stand-in, playing by itself, and how many steps it has shown."""

    def __init__(self, program):
        command = [program, "--auto", "--answer", "no", "--locale", "en_US", "--delay", "1500", "--exit-after", "300"]
        self.process = subprocess.Popen(command, stdout=subprocess.PIPE, text=True)
        self.shown = []
        threading.Thread(target=self.read, daemon=True).start()

    def read(self):
        for line in self.process.stdout:
            # A step follows its target by "updateXY", which is none.
            if line.startswith("--> indicator | update |") and self.shown[-1:] != [line]:
                self.shown.append(line)

    def is_before(self, count):
        if self.process.poll() is not None:
            sys.exit("film: the stand-in has ended too early")
        return len(self.shown) < count


def filmed_area():
    text = subprocess.check_output(["xwininfo", "-name", "Little drawing editor"], text=True)
    names = ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")
    x, y, width, height = (int(re.search(rf"{name}:\s+(-?\d+)", text)[1]) for name in names)
    left, top, right, bottom = MARGINS
    return x - left, y - top, x + width + right, y + height + bottom


def shoot(host):
    """The frames of the filmed steps that differ from the one before, each with the time of it."""
    while host.is_before(FIRST_STEP):
        time.sleep(PERIOD)
    area = filmed_area()
    frames = []
    while host.is_before(FIRST_STEP + STEPS):
        now = time.monotonic()
        frame = ImageGrab.grab(area, xdisplay="")
        if not frames or frame.tobytes() != frames[-1][1].tobytes():
            frames.append((now, frame))
        time.sleep(max(0.0, PERIOD - (time.monotonic() - now)))
    return frames


def write(frames, file):
    size = (WIDTH, WIDTH * frames[0][1].height // frames[0][1].width)
    pictures = [frame.resize(size, Image.Resampling.LANCZOS) for _, frame in frames]
    # One palette for all, from a few frames above each other. Of Pillow's ways this keeps the small coloured parts.
    samples = pictures[:: max(1, len(pictures) // 8)]
    sheet = Image.new("RGB", (size[0], size[1] * len(samples)))
    for index, sample in enumerate(samples):
        sheet.paste(sample, (0, size[1] * index))
    palette = sheet.quantize(method=Image.Quantize.FASTOCTREE, dither=Image.Dither.NONE)
    pictures = [picture.quantize(palette=palette, dither=Image.Dither.NONE) for picture in pictures]
    times = [moment for moment, _ in frames]
    lengths = [after - before for before, after in zip(times, times[1:])] + [LAST_FRAME]
    durations = [round(length if length > PAUSE else TICK, 2) * 1000 for length in lengths]
    pictures[0].save(file, save_all=True, append_images=pictures[1:], duration=durations, loop=0, optimize=False)


def main():
    program, file = sys.argv[1:]
    host = Host(program)
    try:
        frames = shoot(host)
    finally:
        host.process.terminate()
        host.process.wait()
    write(frames, file)
    print(f"film: {len(frames)} frames")


if __name__ == "__main__":
    main()
