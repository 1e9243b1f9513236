#!/usr/bin/python3
"""Take the screenshots of the guide anew.

    takeScreenshots.py BIN [NAME...] [--to FOLDER]

BIN is the folder of orvex-desk and orvex-batch. Each picture, or each of the NAMEs, is taken of a new window with
settings of its own on a display of its own, by keys and a mouse, so that it shows what a user has. It takes Xvfb,
openbox, xdotool and ImageMagick. Places of the mouse are given in the drawing: each scene sets the view first.
"""

import argparse
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

HERE = pathlib.Path(__file__).resolve().parent
SAMPLES = HERE.parent / "samples"
GROUND = b"\x1e\x21\x27"  # of the canvas
SETTLED = 8  # seconds at most until nothing moves any more


def output_of(*call, **options):
    return subprocess.run(call, check=True, stdout=subprocess.PIPE, **options).stdout


def canvas_in(picture):
    """Left, top, width and height of the canvas: rows that are dark for the most part, from the first dark pixel on."""
    width, height = map(int, output_of("identify", "-format", "%w %h", "png:-", input=picture).split())
    pixels = output_of("convert", "png:-", "-depth", "8", "rgb:-", input=picture)
    rows = [pixels[3 * width * row:3 * width * (row + 1)] for row in range(height)]
    dark = [row for row in range(height) if rows[row].count(GROUND) > width / 3]
    middle = rows[dark[len(dark) // 2]]
    left = middle.index(GROUND) // 3
    right = middle.rindex(GROUND) // 3
    return left, dark[0], right - left + 1, dark[-1] - dark[0] + 1


class Screen:
    """A display with a window manager."""

    def __init__(self):
        reader, writer = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writer), "-screen", "0", "1300x900x24", "-nolisten", "tcp"],
            pass_fds=[writer], stderr=subprocess.DEVNULL)
        os.close(writer)
        with os.fdopen(reader) as stream:
            self.display = ":" + stream.readline().strip()
        self.manager = subprocess.Popen(["openbox"], env=self.environment(), stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)
        time.sleep(0.5)

    def environment(self, home=None):
        changed = {"DISPLAY": self.display}
        if home is not None:
            changed |= {"HOME": home, "XDG_CONFIG_HOME": home, "XDG_RUNTIME_DIR": home, "LC_ALL": "C.UTF-8"}
        return os.environ | changed

    def __enter__(self):
        return self

    def __exit__(self, *_):
        for each in (self.manager, self.server):
            each.terminate()
            each.wait()


class Desk:
    """A window on a drawing, with a view that `look` has set."""

    def __init__(self, screen, program, drawing, folder, size):
        self.screen = screen
        own = pathlib.Path(folder) / drawing.name  # the history shows how it was called
        if own != drawing:
            shutil.copy(drawing, own)
        self.program = subprocess.Popen([program, own.name], env=screen.environment(folder), cwd=folder,
                                        stderr=subprocess.DEVNULL)
        self.window = output_of("xdotool", "search", "--sync", "--onlyvisible", "--name", "Orvex",
                                env=screen.environment()).split()[0].decode()
        self.xdotool("windowsize", "--sync", self.window, *map(str, size))
        self.xdotool("windowmove", self.window, "0", "0")
        self.settle()
        self.area = None  # of the canvas on the screen: left, top, width, height
        self.view = None  # middle and height in the drawing

    def xdotool(self, *arguments):
        output_of("xdotool", *arguments, env=self.screen.environment())

    def picture(self, *how):
        return output_of("import", "-window", self.window, *how, "png:-", env=self.screen.environment())

    def settle(self):
        """Waits until the window looks the same twice."""
        deadline = time.monotonic() + SETTLED
        before, now = None, self.picture()
        while now != before and time.monotonic() < deadline:
            time.sleep(0.3)
            before, now = now, self.picture()

    def type(self, *lines):
        for line in lines:
            self.xdotool("type", "--delay", "5", "--", line)
            self.xdotool("key", "Return")
            time.sleep(0.15)

    def press(self, *keys):
        self.xdotool("key", "--delay", "60", *keys)
        time.sleep(0.3)

    def look(self, x, y, height):
        """The view, by a command; from then on places of the drawing are known on the screen."""
        self.type("ZOOM", "C", f"{x},{y}", str(height))
        self.settle()
        self.view = (x, y, height)
        self.area = canvas_in(self.picture())

    def pixel(self, x, y):
        left, top, width, tall = self.area
        scale = tall / self.view[2]
        return (round(left + width / 2 + (x - self.view[0]) * scale),
                round(top + tall / 2 - (y - self.view[1]) * scale))

    def hover(self, x, y):
        self.xdotool("mousemove", "--window", self.window, *map(str, self.pixel(x, y)))
        time.sleep(0.3)

    def click(self, x, y):
        self.hover(x, y)
        self.xdotool("click", "1")
        time.sleep(0.3)

    def shoot(self, path, part=None):
        """The window, or a part of the canvas given by two corners in the drawing."""
        self.settle()
        how = []
        if part:
            left, top = self.pixel(part[0][0], part[1][1])
            right, bottom = self.pixel(part[1][0], part[0][1])
            how = ["-crop", f"{right - left}x{bottom - top}+{left}+{top}", "+repage"]
        output_of("convert", "png:-", *how, "-strip", "-dither", "None", "-colors", "255", f"PNG8:{path}",
                  input=self.picture())

    def close(self):
        self.program.terminate()
        self.program.wait()


def walls_drawn(folder, batch):
    """The flat as its script has drawn it, before it is joined, and as it is joined."""
    script = (SAMPLES / "drawn_flat.scr").read_text()
    walls, joins = script.split("MLJOIN\n", 1)
    joins = "MLJOIN\n" + joins.split("U\nREDO", 1)[0]
    drawn, joined = folder / "drawn_flat.dxf", folder / "joined" / "drawn_flat.dxf"
    joined.parent.mkdir()
    for text, source, target in ((walls, SAMPLES / "drawn_flat.dxf", drawn), (joins, drawn, joined)):
        (folder / "part.scr").write_text(text)
        output_of(batch, "run", source, "--script", folder / "part.scr", "--output", target)
    return drawn, joined


# One for each picture: the drawing, the size of the window, what is done there.

def desk(window, path):
    window.look(6800, 4800, 11500)
    window.type("-MLEDIT", "CA", "9200,0", "10710,0")
    window.hover(0, 3190)
    window.xdotool("click", "1")
    window.hover(0, 4700)
    window.shoot(path)


def snap(window, path):
    window.look(3000, 2600, 5600)
    window.type("MLINE", "3300,2400")
    window.hover(1740, 1560)
    window.shoot(path, ((200, 300), (5000, 2700)))


def ghost(window, path):
    window.look(4600, 5200, 5000)
    window.type("-MLEDIT", "OC")
    window.click(5600, 5320)
    window.hover(4657, 4500)
    window.shoot(path, ((2000, 4000), (7200, 6200)))


def draw_start(window, path):
    window.look(6000, 4500, 11500)
    window.type("SETVAR", "CMLSTYLE", "WALL-365", "MLINE", "0,0")
    window.press("F8")
    window.hover(120, 7000)
    window.xdotool("type", "--", "9000")
    window.shoot(path)


def draw_walls(window, path):
    window.look(6000, 4500, 11500)
    window.shoot(path)


def draw_join(window, path):
    window.look(6000, 4500, 11500)
    window.type("MLJOIN", "", "Cross", "Merged", "Tolerance", "150")
    window.shoot(path)


def draw_door(window, path):
    window.look(6000, 4500, 11500)
    window.type("-MLEDIT", "CA", "6125,5903")
    window.hover(6122, 6755)
    window.shoot(path)


def join_desk(window, path):
    window.type("MLJOIN", "")
    window.shoot(path)


def grip(window, path):
    window.look(2000, 1700, 4000)
    window.click(1762, 900)
    window.click(1700, 1600)
    window.hover(2900, 2050)
    window.shoot(path, ((-300, 100), (4300, 2700)))


def properties(window, path):
    window.press("ctrl+1")
    window.look(7000, 5000, 12000)
    window.click(4658, 2000)  # a Standard wall, then two PART125
    window.click(1762, 800)
    window.click(8000, 2660)
    window.shoot(path)


SCENES = {
    "desk": (desk, "floorplan", (1200, 800)),
    "snap": (snap, "floorplan", (1000, 700)),
    "ghost": (ghost, "floorplan", (1100, 800)),
    "draw-start": (draw_start, "new", (1000, 633)),
    "draw-walls": (draw_walls, "walls", (1000, 633)),
    "draw-join": (draw_join, "walls", (1000, 633)),
    "draw-door": (draw_door, "joined", (1000, 633)),
    "join-desk": (join_desk, "floorplan", (1180, 780)),
    "grip": (grip, "floorplan", (1100, 800)),
    "properties": (properties, "floorplan", (1100, 720)),
}


def take(name, programs, target):
    act, drawing, size = SCENES[name]
    with tempfile.TemporaryDirectory() as folder, Screen() as screen:
        folder = pathlib.Path(folder)
        if drawing in ("walls", "joined"):
            drawn, joined = walls_drawn(folder, programs / "orvex-batch")
            source = drawn if drawing == "walls" else joined
        else:
            source = SAMPLES / ("drawn_flat.dxf" if drawing == "new" else "floorplan.dxf")
        window = Desk(screen, programs / "orvex-desk", source, str(folder), size)
        try:
            act(window, target / f"{name}.png")
        finally:
            window.close()


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("bin", type=pathlib.Path)
    parser.add_argument("names", nargs="*", metavar="NAME")
    parser.add_argument("--to", type=pathlib.Path, default=HERE)
    arguments = parser.parse_args()
    unknown = set(arguments.names) - set(SCENES)
    if unknown:
        sys.exit(f"no such picture: {', '.join(sorted(unknown))}; there are {', '.join(SCENES)}")
    arguments.to.mkdir(parents=True, exist_ok=True)
    for name in arguments.names or SCENES:
        print(name)
        take(name, arguments.bin.resolve(), arguments.to.resolve())


if __name__ == "__main__":
    main()
