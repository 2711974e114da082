#!/usr/bin/python3
"""Drives the simulator in a real X server as a user would, from its start to its shutdown, and
checks what the virtual controller saw: whole_session.py SIMULATOR EXAMPLES

The widgets are found through AT-SPI by the names that a screen reader gets; the mouse and the
keyboard are real ones of the server. Display, buses and the user's folders are its own."""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time

PATIENCE = 20  # seconds until something that must come counts as missing


def wait_for(what, condition):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        try:
            found = condition()
        except Exception as error:  # a widget may go while it is looked at
            if "gi.repository" not in type(error).__module__ and "GLib" not in repr(error):
                raise
            found = None
        if found:
            return found
        time.sleep(0.05)
    raise AssertionError(f"missing: {what}")


class Desktop:
    """An X server of its own with a window manager."""

    def __enter__(self):
        ours, theirs = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(theirs), "-screen", "0", "1280x1024x24"],
            pass_fds=[theirs], stderr=subprocess.DEVNULL)
        os.close(theirs)
        os.environ["DISPLAY"] = ":" + os.read(ours, 16).decode().strip()
        self.manager = subprocess.Popen(["openbox"], stderr=subprocess.DEVNULL)
        # A window that came before the manager would never get the focus.
        wait_for("the window manager", lambda: subprocess.run(
            ["xdotool", "get_desktop"], capture_output=True, check=False).returncode == 0)
        return self

    def __exit__(self, *_):
        self.manager.kill()
        self.server.kill()


def xdotool(*arguments):
    subprocess.run(["xdotool", *map(str, arguments)], check=True)


class Program:
    def __init__(self, path, home, *arguments, closed=""):
        import pyatspi  # asks for the display at once
        self.atspi = pyatspi
        environment = dict(os.environ, HOME=str(home), XDG_CONFIG_HOME=str(home),
                           XDG_DATA_HOME=str(home / "data"),
                           QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb")
        self.process = subprocess.Popen(["sh", "-c", 'exec "$0" "$@" ' + closed, path, *arguments],
                                        cwd=home, env=environment, text=True,
                                        stdout=open(home / "heard", "w"))
        self.heard_file = home / "heard"
        self.root = wait_for("the program on the accessibility bus", self.application)
        # A window says that it shows before the window manager has placed it.
        self.wait_until_active("frame")

    def application(self):
        for application in self.atspi.Registry.getDesktop(0):
            if application and application.get_process_id() == self.process.pid:
                return application

    def wait_until_active(self, *roles, name=""):
        wait_for(f"an active {roles[0]} {name}", lambda: any(
            window.getRoleName() in roles and window.getState().contains(self.atspi.STATE_ACTIVE)
            and window.name.startswith(name) for window in self.all()))

    def all(self, start=None):
        for child in start or self.root:
            if child is not None:
                yield child
                yield from self.all(child)

    def find(self, name, *roles):
        def look():
            for widget in self.all():
                if widget.name == name and (not roles or widget.getRoleName() in roles):
                    states = widget.getState()
                    if states.contains(self.atspi.STATE_SHOWING):
                        return widget
        return wait_for(name, look)

    def value(self, name):
        """What a label shows that is called by its name and its value."""
        return next(w.name for w in self.all() if w.name.startswith(name + ": "))[len(name) + 2:]

    def place(self, name, *roles, down=0.5):
        """Of its middle, once it stands still."""
        seen = []

        def still():
            box = self.find(name, *roles).queryComponent().getExtents(self.atspi.DESKTOP_COORDS)
            seen.append((box.x, box.y, box.width, box.height))
            return len(seen) > 1 and seen[-1] == seen[-2]

        wait_for(f"{name} to stand still", still)
        x, y, width, height = seen[-1]
        return x + width // 2, y + int(height * down)

    def click(self, name, *roles, down=0.5):
        xdotool("mousemove", *self.place(name, *roles, down=down), "click", 1)

    def press(self, name):
        """By the way of a screen reader, not by the mouse."""
        self.find(name).queryAction().doAction(0)

    def heard(self):
        return self.heard_file.read_text().splitlines()

    def expect_heard(self, line):
        wait_for(f"{line} among {self.heard()}", lambda: any(line in h for h in self.heard()))


def choose(program, *entries):
    for entry in entries:
        program.click(entry, "menu item")


def answer_file_dialog(program, path):
    program.wait_until_active("file chooser", "dialog")
    xdotool("key", "ctrl+a")
    xdotool("type", "--delay", 1, path)
    xdotool("key", "Return")
    program.wait_until_active("frame")


def answer_box(program, beginning, button):
    wait_for(beginning, lambda: any(w.name.startswith(beginning) for w in program.all()))
    program.wait_until_active("alert", "dialog")
    program.click(button, "push button", "button")  # the role's name in older and newer libraries


def read_and_edit(program, folder):
    assert program.value("A port állapota").startswith("Szimulált port")
    choose(program, "Fájl", "Setup Megnyitás")
    answer_file_dialog(program, folder / "gep.pwm")
    program.find("Túlhajtás jelzés X: 673.400 S/s")
    program.click("T3 Z nyilai", down=0.25)  # the partner of constant frequency goes down
    program.find("Tartóág Z: 631.313 Hz (60.4%)")
    xdotool("key", "alt+l", "ctrl+a")
    xdotool("type", "1500")
    program.find("Út hossz, mm: 18.75")
    assert program.value("Mentés") == "Mentés óta módosult"


def upload(program):
    program.press("Feltöltés (PC-Link)")
    answer_box(program, "Setup adatatok feltöltése", "Igen")
    answer_box(program, "A feltöltés kész!", "OK")
    program.wait_until_active("frame")
    program.expect_heard(
        "&H378 PCB V4.x: 85 0 180 45 14 18 180 45 14 18 244 91 19 29 0 5 220 2 4 255")
    report = program.value("Esemény").removeprefix("Kész: ")
    assert re.fullmatch(r"Kiküldve [0-9.]+ ms alatt, két él közt legfeljebb [0-9.]+ ms"
                        r" szünettel. A vonal egyirányú, nyugta nem jön.", report), report
    wait_for("the mark to go", lambda: not any(
        w.name.startswith("Feltöltés: ") and w.getState().contains(program.atspi.STATE_SHOWING)
        for w in program.all()))


def look_at_changes(program, folder):
    """What differs from the saved Setup, what went out, and back to it by keys."""
    program.press("Mentés: Mentés óta módosult")
    program.wait_until_active("frame", name="Összevetés")
    program.find("20, eltér", "table cell")
    program.find("29", "table cell")
    xdotool("key", "alt+e")
    program.find("Az első.", "table cell")
    [kept] = (folder / "data" / "monitra" / "monitra-szimulator" / "feltoltesek").glob("*.pwm")
    assert b"\r\n1500\r\n" in kept.read_bytes()
    xdotool("key", "ctrl+z")
    program.find("Út hossz, mm: 25")
    xdotool("key", "ctrl+shift+z")
    program.find("Út hossz, mm: 18.75")
    xdotool("key", "alt+F4")
    program.wait_until_active("frame", name="Vilor CNC")


def test_phases(program):
    xdotool("key", "alt+p")
    program.click("Y motor, L2 (CON25)")
    program.expect_heard("&H378 PCB V4.x: 110 0 16 (X 0, Y 0, Z 0, terhelés 0%)")
    program.expect_heard("&H378 PCB V4.x: 110 0 2 (X 0, Y 0 L2, Z 0, terhelés 16%)")
    assert program.value("A port állapota").startswith("Szimulált port: terhelés 16%, X 0, Y 0 L2")
    program.click("Y motor, Ki")


def jog(program):
    def positions():
        """Of X, Y and Z, each time that the machine came to rest."""
        number = r" ([+-]?\d+)[^,]*, "
        found = [re.search("X" + number + "Y" + number + "Z" + number, line)
                 for line in program.heard()]
        return [tuple(map(int, position.groups())) for position in found if position]

    xdotool("key", "alt+t", "alt+s", "ctrl+a")
    xdotool("type", "500")
    program.click("Impulzus engedély")
    xdotool("mousemove", *program.place("X tengely, fel nyíl"), "mousedown", 1)
    wait_for("X to move", lambda: re.search(", X [+-]?[1-9]", program.value("A port állapota")))
    xdotool("mouseup", 1)
    wait_for("steps of X", lambda: any(x for x, _, _ in positions()))
    xdotool("key", "Tab", "Tab", "Tab")
    xdotool("keydown", "space")
    time.sleep(1.2)  # the keyboard's repetition takes over
    xdotool("keyup", "space")
    wait_for("steps of Y", lambda: any(y for _, y, _ in positions()))
    program.click("Impulzus engedély")
    assert len({(x, z) for x, y, z in positions() if y}) == 1, "X or Z moved on with Y"
    assert positions()[-1][0] > 0 and positions()[-1][2] == 0, positions()[-1]


def look_at_signals(program):
    program.press("Jelek ablaka")
    program.wait_until_active("frame", name="Jelek")
    program.find("Y motor: L2 be", "table cell")
    xdotool("key", "alt+F4")
    program.wait_until_active("frame", name="Vilor CNC")


def read_the_information(program):
    """From the file that lies beside the program."""
    xdotool("key", "alt+i")
    wait_for("the text of Info.txt", lambda: any(
        w.getRoleName() == "text" and "Info.txt" in w.description
        and w.queryText().getText(0, 8) == "MONITRA:" for w in program.all()))
    xdotool("key", "alt+m")


def save_and_quit(program, folder):
    xdotool("key", "alt", "Down", "Down", "Return")  # "Setup Mentés" by keys alone
    answer_file_dialog(program, folder / "uj.pwm")
    program.find("Mentés: Összevetés…")
    assert (folder / "uj.pwm").read_bytes() == (folder / "gep.pwm").read_bytes().replace(
        b"\r\n20\r\n", b"\r\n19\r\n").replace(b"\r\n28\r\n", b"\r\n29\r\n").replace(
        b"\r\n2000\r\n", b"\r\n1500\r\n")
    before = len(program.heard())
    choose(program, "Fájl", "Kilépés")
    assert program.process.wait(PATIENCE) == 0
    off = [re.search(r"V4.x: ([\d ]+) \(", line).group(1) for line in program.heard()[before:]]
    assert off == ["99 0 16", "110 0 16", "120 0 16"], off
    assert '"Seb": "500"' in (folder / "monitra" / "monitra-szimulator.json").read_text()


def end_without_descriptors(simulator, folder):
    """The display's connection must not get the number of one that is closed."""
    for closed in ("<&- 2>&-", ">&-", "<&- >&- 2>&-"):
        preferences = folder / "monitra" / "monitra-szimulator.json"
        preferences.unlink()
        program = Program(simulator, folder, closed=closed)
        try:
            program.find("Fájl", "menu item")
            program.process.terminate()
            assert program.process.wait(PATIENCE) == 0, closed
        finally:
            program.process.kill()
        assert preferences.exists()
        assert len(program.heard()) == (4 if closed == "<&- 2>&-" else 0), program.heard()


def open_named(simulator, folder):
    """A file on the command line is opened; of anything else the event line tells."""
    for arguments, told in (
            (["gep.pwm"], ""),
            (["nincs.pwm"], "A(z) 'nincs.pwm' nem található, ezért nem nyílt meg."),
            (["a.txt"], "A(z) 'a.txt' nem Setup (.pwm) és nem firmware (.hex), ezért nem nyílt meg."),
            (["gep.pwm"] * 2, "Induláskor csak egy fájl adható meg, ezért egyik sem nyílt meg.")):
        (folder / "monitra" / "monitra-szimulator.json").unlink(missing_ok=True)
        program = Program(simulator, folder, *arguments)
        try:
            if told:
                program.find("Esemény: Figyelem: " + told)
            program.find("Túlhajtás jelzés X: " + ("333.000 S/s" if told else "673.400 S/s"))
        finally:
            program.process.kill()
            program.process.wait()


def drive(simulator, examples, folder):
    shutil.copy(examples / "gyors-xy.pwm", folder / "gep.pwm")
    with Desktop():
        program = Program(simulator, folder)
        try:
            read_and_edit(program, folder)
            upload(program)
            look_at_changes(program, folder)
            test_phases(program)
            jog(program)
            look_at_signals(program)
            read_the_information(program)
            save_and_quit(program, folder)
        except BaseException:
            print("heard:", *program.heard(), sep="\n  ")
            raise
        finally:
            program.process.kill()
        end_without_descriptors(simulator, folder)
        open_named(simulator, folder)


def main():
    arguments = [pathlib.Path(argument).resolve() for argument in sys.argv[1:]]
    if len(arguments) == 3:
        drive(*arguments)
        return
    # The accessibility bus lies in the runtime folder, for all of a user's programs.
    with tempfile.TemporaryDirectory() as home, tempfile.TemporaryDirectory() as runtime:
        session = ["dbus-run-session", "--", sys.executable, __file__, *arguments, home]
        sys.exit(subprocess.run(session, env=dict(os.environ, XDG_RUNTIME_DIR=runtime)).returncode)


main()
