#!/usr/bin/python3
"""Random hands: mouse, keyboard and the window manager's own doings over all windows of the real program.

Usage: hasard.py PROGRAMME EXEMPLES SECONDES GRAINE [SUIVI]

The same seed draws the same gestures; what they meet depends on the machine's pace. The program may end by itself
(a question answered with Yes, a sight that can't be reduced): it is then started again, on the same folders. Fails when
it dies of a signal, ends with a status that it doesn't know, or answers nothing for half a minute.

With SUIVI, a file, the program is not left (no close of its main window, no answer but Escape to the question), and
every half minute a line is written there: seconds, gestures, how often the program was started, KiB of memory of its
own, threads, open files.
"""
import os
import random
import re
import shutil
import subprocess
import sys
import tempfile
import time

from Xlib import X, XK, Xatom, display, error
from Xlib.ext import xtest
from Xlib.protocol import event

KEYS = """Tab Tab Tab Return Return Escape F1 F2 F3 F4 F5 F6 F7 F8 F9 F10 Up Down Left Right space plus minus equal Menu
BackSpace Delete Home End Prior Next comma period a e n o s z 0 1 2 3 4 5 6 7 8 9""".split()
CHORDS = [("Shift_L", "Tab"), ("Control_L", "n"), ("Control_L", "a"), ("Control_L", "z"), ("Control_L", "p"),
          ("Alt_L", "o"), ("Alt_L", "a"), ("Shift_L", "F10"), ("Control_L", "plus"), ("Control_L", "minus")]
SILENCE = 30.0  # seconds without an answer
CLOCK_STOPPED = re.compile("(?i)objets|objects")  # the editor of the user's objects stops the main window's clock
LEAVES = re.compile("- Qui(t|tter)$")  # the question before the program ends
KNOWN_ENDS = (0, 1)


class Hands:
    """What a person, or the window manager, does on one display."""

    def __init__(self, rng):
        self.rng = rng
        self.d = display.Display()
        self.screen = self.d.screen()
        self.root = self.screen.root
        self.elsewhere = self.root.create_window(5, 5, 40, 40, 0, self.screen.root_depth,
                                                 background_pixel=self.screen.white_pixel)
        self.elsewhere.map()
        self.d.set_error_handler(lambda *_: None)  # a window that has just gone

    def atom(self, name):
        return self.d.intern_atom(name)

    def windows(self, pid):
        """The program's managed windows, the oldest first, those that are icons among them."""
        found = []
        listed = self.root.get_full_property(self.atom("_NET_CLIENT_LIST"), Xatom.WINDOW)
        for number in listed.value if listed else []:
            window = self.d.create_resource_object("window", number)
            try:
                owner = window.get_full_property(self.atom("_NET_WM_PID"), Xatom.CARDINAL)
                if owner and owner.value[0] == pid:
                    found.append(window)
            except error.XError:
                pass
        return found

    def titles(self, windows):
        """Their titles: that of the main window tells the time, so that it changes while the program answers."""
        told = []
        for window in windows:
            try:
                told.append(window.get_full_text_property(self.atom("_NET_WM_NAME")) or "")
            except error.XError:  # it has just gone
                pass
        return told

    def tell(self, window, name, data, target=None):
        message = event.ClientMessage(window=window, client_type=self.atom(name),
                                      data=(32, (list(data) + [0] * 5)[:5]))
        (target or self.root).send_event(message, event_mask=X.SubstructureRedirectMask | X.SubstructureNotifyMask)

    def close(self, window):
        """Asks a window to close, as a manager does; by way of the manager, a second wish would kill what is slow."""
        message = event.ClientMessage(window=window, client_type=self.atom("WM_PROTOCOLS"),
                                      data=(32, [self.atom("WM_DELETE_WINDOW"), X.CurrentTime, 0, 0, 0]))
        window.send_event(message)

    def drain(self):
        while self.d.pending_events():
            self.d.next_event()

    def key(self, *names):
        codes = [self.d.keysym_to_keycode(XK.string_to_keysym(name)) for name in names]
        for code in codes:
            xtest.fake_input(self.d, X.KeyPress, code)
        for code in reversed(codes):
            xtest.fake_input(self.d, X.KeyRelease, code)

    def to(self, x, y):
        xtest.fake_input(self.d, X.MotionNotify, x=int(x), y=int(y))

    def button(self, number, down):
        xtest.fake_input(self.d, X.ButtonPress if down else X.ButtonRelease, number)

    def click(self, number=1):
        self.button(number, True)
        self.button(number, False)

    def place_in(self, window):
        """A point of the window on the screen."""
        try:
            size = window.get_geometry()
            corner = window.translate_coords(self.root, 0, 0)
            return (-corner.x + self.rng.randrange(max(1, size.width)),
                    -corner.y + self.rng.randrange(max(1, size.height)), -corner.x, -corner.y)
        except error.XError:
            return (100, 100, 0, 0)

    def drag(self):
        self.button(1, True)
        for _ in range(self.rng.randrange(1, 6)):
            self.to(self.rng.randrange(self.screen.width_in_pixels), self.rng.randrange(self.screen.height_in_pixels))
            self.d.sync()
        self.button(1, False)

    def manage(self, window, main, stays):
        """What the window manager does, by itself or at its user's wish."""
        doing = self.rng.randrange(8)
        if doing == 0:
            if not stays or window.id != main.id:
                self.close(window)
        elif doing == 1:
            self.tell(window, "WM_CHANGE_STATE", [3])  # iconic
        elif doing == 2:
            window.configure(stack_mode=X.Below)
        elif doing == 3:
            self.d.set_input_focus(self.elsewhere, X.RevertToPointerRoot, X.CurrentTime)
        elif doing == 4:
            self.tell(window, "_NET_MOVERESIZE_WINDOW", [0xF << 8, self.rng.randrange(300), self.rng.randrange(200),
                                                         self.rng.randrange(300, 1400), self.rng.randrange(200, 900)])
        elif doing == 5:
            self.tell(window, "_NET_WM_STATE", [2, self.atom("_NET_WM_STATE_MAXIMIZED_VERT"),
                                                self.atom("_NET_WM_STATE_MAXIMIZED_HORZ")])
        else:
            self.tell(main if doing == 6 else window, "_NET_ACTIVE_WINDOW", [2, X.CurrentTime])

    def gesture(self, windows, stays):
        window, main = self.rng.choice(windows), windows[0]
        kind = self.rng.randrange(20)
        x, y, left, top = self.place_in(window)
        if kind < 6:
            self.to(x, y)
            self.click(self.rng.choice((1, 1, 1, 1, 1, 1, 2, 3)))
            if self.rng.randrange(6) == 0:
                self.click()
        elif kind < 8:  # the toolbar: "Imprime" among others
            self.to(left + self.rng.randrange(1060), top + 25 + self.rng.randrange(20))
            self.click()
        elif kind == 8:
            self.to(x, y)
            self.drag()
        elif kind == 9:
            self.to(x, y)
            for _ in range(self.rng.randrange(1, 6)):
                self.click(self.rng.choice((4, 5)))
        elif kind < 14:
            self.key(self.rng.choice(KEYS))
        elif kind == 14:
            self.key(*self.rng.choice(CHORDS))
        elif kind == 15:
            for digit in str(self.rng.randrange(100)):
                self.key(digit)
        elif kind == 16:
            self.key("Escape")
        elif kind < 19:
            self.manage(window, main, stays)
        else:
            self.tell(window, "_NET_ACTIVE_WINDOW", [2, X.CurrentTime])
        self.d.sync()


def prepare(examples):
    base = tempfile.mkdtemp(prefix="velmaris-hasard-")
    env = dict(os.environ, HOME=base + "/home", XDG_DATA_HOME=base + "/data", XDG_CONFIG_HOME=base + "/conf",
               XDG_RUNTIME_DIR=base + "/run", CUPS_SERVER="/nulle/part", LC_ALL="C.UTF-8")
    for name in ("home", "data", "conf", "run"):
        os.mkdir(f"{base}/{name}", 0o700)
    for name in os.listdir(examples):
        if name.endswith(".LoP"):
            shutil.copy(os.path.join(examples, name), base + "/home")
    return base, env


def manage():
    """Starts the window manager."""
    rules = os.path.join(os.path.dirname(os.path.abspath(__file__)), "openbox-hasard.xml")
    manager = subprocess.Popen(["openbox", "--config-file", rules], stderr=subprocess.DEVNULL)
    time.sleep(1)
    return manager


def idles(pid):
    """Whether the program turns its events over and is at rest between them: no window may be on show to tell it."""
    def turns():
        with open(f"/proc/{pid}/schedstat") as told:
            ran, _, slices = map(int, told.read().split())
        return ran, slices
    try:
        before = turns()
        time.sleep(3)
        after = turns()
    except OSError:
        return True  # it has ended: how, is seen next
    return after[1] > before[1] and after[0] - before[0] < 1_500_000_000


def held(pid):
    """What the program holds: KiB of memory of its own, threads, open files."""
    try:
        with open(f"/proc/{pid}/smaps_rollup") as told:
            own = sum(int(line.split()[1]) for line in told if line.startswith(("Private_", "Swap:")))
        return own, len(os.listdir(f"/proc/{pid}/task")), len(os.listdir(f"/proc/{pid}/fd"))
    except OSError:
        return None  # it has just ended


def shows_a_window(hands, program):
    for _ in range(int(SILENCE * 10)):
        if hands.windows(program.pid) or program.poll() is not None:
            return True
        time.sleep(0.1)
    return False


def main():
    path, examples, seconds, seed = sys.argv[1], sys.argv[2], float(sys.argv[3]), int(sys.argv[4])
    watched = open(sys.argv[5], "w", buffering=1) if len(sys.argv) > 5 else None
    base, env = prepare(examples)
    manager = manage()
    hands = Hands(random.Random(seed))
    report = open(base + "/stderr", "w+b")
    start = lambda: subprocess.Popen([path], env=env, cwd=base + "/home", stderr=report)
    program, gestures, ends, verdict, titles = start(), 0, 0, "", []
    began = heard = watch = time.monotonic()
    verdict = "" if shows_a_window(hands, program) else "shows no window"
    try:
        while time.monotonic() - began < seconds and not verdict:
            status = program.poll()
            if status is not None:
                if status not in KNOWN_ENDS:
                    verdict = f"died with status {status}"
                    break
                ends += 1
                program = start()
                verdict = "" if shows_a_window(hands, program) else "shows no window"
                heard = time.monotonic()
                continue
            if manager.poll() is not None:  # its end is none of the program's
                manager = manage()
            windows = hands.windows(program.pid)
            if not windows:
                time.sleep(0.05)
            else:
                try:
                    if watched and any(LEAVES.search(title) for title in hands.titles(windows)):
                        hands.key("Escape")
                        hands.d.sync()
                    else:
                        hands.gesture(windows, watched is not None)
                except error.XError:
                    pass
                gestures += 1
            if gestures % 50 == 0:
                now = hands.titles(windows)
                if now != titles or any(CLOCK_STOPPED.search(title) for title in now):
                    titles, heard = now, time.monotonic()
            if gestures % 9 == 0:
                hands.key("Escape")
            time.sleep(hands.rng.random() * 0.012)
            hands.drain()
            if watched and time.monotonic() - watch > 30:
                watch, holds = time.monotonic(), held(program.pid)
                if holds:
                    print(round(watch - began), gestures, ends + 1, *holds, file=watched)
            if time.monotonic() - heard > SILENCE:
                if idles(program.pid):
                    heard = time.monotonic()
                else:
                    verdict = "answers nothing"
    finally:
        if program.poll() is None:
            if verdict and shutil.which("gdb"):
                subprocess.run(["gdb", "-p", str(program.pid), "-batch", "-ex", "bt"], stderr=subprocess.DEVNULL)
            program.kill()
        program.wait()
        manager.terminate()
        manager.wait()
        report.seek(0)
        said = report.read().decode(errors="replace").strip()
        shutil.rmtree(base, ignore_errors=True)
    print(f"seed {seed}: {gestures} gestures in {time.monotonic() - began:.0f} s, ended by itself {ends} times")
    if verdict:
        print(f"FAILED: {verdict} after {gestures} gestures\n{said[-2000:]}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
