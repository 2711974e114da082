"""What the emulator saw: its trace of the port's registers, taken apart into the steps of a script,
and read by rules of its own."""

import pathlib
import re
import subprocess
import tempfile
from typing import NamedTuple

DATA, STATUS, CONTROL = 0, 1, 2
LINE = re.compile(r"\d+@(\d+)\.(\d+):parallel_ioport_(read|write) .*addr (0x\w+) val (0x\w+)")
STEP_AHEAD = 0x4D


class Access(NamedTuple):
    time: int  # in microseconds
    kind: str  # "r" or "w"
    register: int
    value: int


class Step(NamedTuple):
    output: str
    exit_code: int
    accesses: list

    def of(self, register, kinds="rw"):
        return [a for a in self.accesses if a.register == register and a.kind in kinds]

    def data(self):
        """Accesses to the data register without the reads that only look for a port."""
        accesses = self.of(DATA)
        while len(accesses) > 1 and accesses[0].kind == accesses[1].kind == "r":
            accesses.pop(0)
        return [(a.kind, a.value) for a in accesses]

    def control_writes(self):
        return [a.value & 0x0F for a in self.of(CONTROL, "w")]


def steps(text, trace):
    """The script's steps by name, in order. The trace of a PC without a port is empty."""
    accesses = {}
    number, ahead = 0, False
    for line in trace.splitlines():
        match = LINE.match(line)
        if match is None:
            raise ValueError(f"not a line of the trace: {line}")
        seconds, microseconds, kind, register, value = match.groups()
        access = Access(int(seconds) * 1000000 + int(microseconds), kind[0], int(register, 16),
                        int(value, 16))
        if access[1:3] == ("w", STATUS) and (ahead or access.value == STEP_AHEAD):
            number = access.value if ahead else number
            ahead = not ahead
        else:
            accesses.setdefault(number, []).append(access)
    found = {}
    pattern = r"^== (\S+)\n(.*?)^-- (\d+)$"
    for number, match in enumerate(re.finditer(pattern, text, re.DOTALL | re.MULTILINE), start=1):
        found[match[1]] = Step(match[2], int(match[3]), accesses.get(number, []))
    return found


def on_the_line(state, pins, values):
    """The accesses to the data register that put the line to idle and send these bytes, from a state
    of the register; and the state afterwards. The pins are the bits of data and clock."""
    data, clock = (1 << pin for pin in pins)
    expected = [("r", state), ("w", state & ~data & ~clock)]
    state = state & ~data & ~clock
    for value in values:
        for bit in range(8):
            high = data if value >> bit & 1 else 0
            before = state
            state = state & ~data & ~clock | high
            expected += [("r", before), ("w", state), ("w", state | clock), ("w", state)]
    return expected, state


def phases(step):
    """How long each level of the line lasted, in milliseconds, from the first bit's data on."""
    times = [a.time for a in step.of(DATA, "w")][1:]
    return [(later - earlier) / 1000 for earlier, later in zip(times, times[1:])]


def decoded(step, pins):
    """The bytes that a logic analyser's decoder finds in the pins' levels."""
    data, clock = pins
    dump = "$timescale 1 us $end\n$var wire 1 d data $end\n$var wire 1 c clock $end\n"
    dump += "$enddefinitions $end\n"
    writes = step.of(DATA, "w")
    for access in writes:
        dump += f"#{access.time - writes[0].time}\n"
        dump += f"{access.value >> data & 1}d\n{access.value >> clock & 1}c\n"
    dump += f"#{writes[-1].time - writes[0].time + 1000}\n"
    with tempfile.TemporaryDirectory() as folder:
        file = pathlib.Path(folder) / "pins.vcd"
        file.write_text(dump)
        found = subprocess.run(
            ["sigrok-cli", "-i", file, "-P",
             "spi:clk=clock:mosi=data:bitorder=lsb-first:cpol=0:cpha=0:wordsize=8",
             "-A", "spi=mosi-data"], check=True, stdout=subprocess.PIPE, text=True).stdout
    return [int(word, 16) for word in found.split() if not word.endswith(":")]
