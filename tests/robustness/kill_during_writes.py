#!/usr/bin/env python3
"""Kills velmora-cli with SIGKILL at random instants while it writes one kind of file, and checks
after every kill that the file holds its old content or its new content, whole.

  kill_during_writes.py memory|log|prefs VELMORA_CLI HOME KILLS

memory: the m key appends a formula of 1 MB to VLmemory.txt.
log:    Save Log appends a log of 3 MB to the day's VLLog file.
prefs:  a run of preference saves, each replacing VL3Preferences.

The instant of each kill is drawn within the time the write takes, measured first without kills,
so that most kills land in the midst of it. The temporary files of the last ten killed writers
are left for the caller, who checks that a start of the desktop program removes them. VELMORA_SEED replays a
failed run.
"""

import glob
import os
import random
import re
import signal
import subprocess
import sys
import time

SYNC = b"get wincon\n"


class Writer:
    """velmora-cli on the home, fed commands through a pipe."""

    def __init__(self, program, home):
        self.process = subprocess.Popen([program, "--home", home], stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE, stderr=subprocess.PIPE)

    def send(self, commands):
        self.process.stdin.write(commands)
        self.process.stdin.flush()

    def answer(self):
        line = self.process.stdout.readline()
        if not line:
            sys.exit("FAILED: velmora-cli ended early: "
                     + self.process.stderr.read().decode(errors="replace")[-2000:])
        return line[:-1]

    def sync(self):
        self.send(SYNC)
        self.answer()

    def kill(self):
        self.process.kill()
        self.process.wait()
        for stream in (self.process.stdin, self.process.stdout, self.process.stderr):
            try:
                stream.close()
            except OSError:
                pass

    def finish(self):
        self.send(b"quit\n")
        self.process.stdin.close()
        errors = self.process.stderr.read()
        self.process.wait()
        if self.process.returncode != 0 or b"message:" in errors or b"error:" in errors:
            sys.exit("FAILED: velmora-cli without a kill: " + errors.decode(errors="replace")[-2000:])


def unescape(text):
    """The inverse of the console's escaping of line ends and backslashes."""
    return re.sub(rb"\\(.)", lambda m: b"\n" if m.group(1) == b"n" else m.group(1), text)


def read(path):
    with open(path, "rb") as f:
        return f.read()


def write(path, content):
    with open(path, "wb") as f:
        f.write(content)


class Memory:
    """The m key after mr has put a formula of 1 MB into the field."""

    def __init__(self, home, rng):
        self.file = os.path.join(home, "app", "VLmemory.txt")
        self.folders = [os.path.dirname(self.file)]
        digits = "0123456789"
        self.formula = ("1" + "".join(rng.choice(digits) + rng.choice("+-*") for _ in range(1 << 19))
                        + "1").encode()
        self.old = self.formula + b"\n2+2\nsqrt(x^2+y^2):\n"

    def reset(self):
        write(self.file, self.old)

    def prepare(self, writer):
        writer.send(b"choose Calculate\npush PushButton34\n")

    def commands(self):
        return b"push PushButton33\n"

    def outcome(self):
        content = read(self.file)
        if content == self.old:
            return "old"
        if content == self.old + self.formula + b"\n":
            return "new"
        raise AssertionError("VLmemory.txt is neither its old content nor that and the formula: "
                             f"{len(content)} bytes, ends {content[-60:]!r}")


class Log:
    """Save Log of a long log; the day's file holds one earlier save."""

    def __init__(self, home, rng):
        self.app = os.path.join(home, "app")
        self.folders = [self.app]
        self.drops = b"".join(b"drop " + b"+".join(str(rng.randrange(10, 99)).encode() for _ in range(100000))
                              + b"\n" for _ in range(10))
        self.log = b""
        self.old = {}

    def files(self):
        return {os.path.basename(p): read(p) for p in glob.glob(os.path.join(self.app, "VLLog*.txt"))}

    def reset(self):
        for name in self.files():
            if name not in self.old:
                os.remove(os.path.join(self.app, name))
        for name, content in self.old.items():
            write(os.path.join(self.app, name), content)

    def prepare(self, writer):
        writer.send(self.drops + b"get log\n")
        self.log = unescape(writer.answer())

    def commands(self):
        return b"push PushButton3\n"

    def saved(self, text):
        # The log as the save wrote it: its last line is the save's own, with the time of the save.
        return text.startswith(self.log + b"--Log Saved at ") and text.endswith(b"\n") \
            and text.count(b"\n", len(self.log)) == 1

    def outcome(self):
        new = 0
        for name, content in self.files().items():
            old = self.old.get(name, b"")
            if content == old:
                continue
            if not (content.startswith(old) and self.saved(content[len(old):])):
                raise AssertionError(f"{name} is neither its old content nor that and one whole save: "
                                     f"{len(old)} bytes before, {len(content)} now, ends {content[-60:]!r}")
            new += 1
        if new > 1:
            raise AssertionError("one save changed two files")
        return "new" if new else "old"


class Preferences:
    """Twenty saves in a row, each of other settings, over a file saved with radians on; every
    one of them replaces the file."""

    SAVES = 20

    def __init__(self, home, rng):
        self.file = os.path.join(home, "prefs", "VL3Preferences")
        self.folders = [os.path.dirname(self.file)]
        self.old = None
        self.valid = set()

    def reset(self):
        if self.old is not None:
            write(self.file, self.old)

    def prepare(self, writer):
        writer.send(b"choose Calculate\n")
        if self.old is None:
            self.learn(writer)

    def commands(self):
        word = {0: b"false", 1: b"true"}
        return b"set RadioButton2 true\n" + b"".join(
            b"set CheckBox1 %s\nset CheckBox2 %s\npush PushButton42\n" % (word[i % 2], word[i // 2 % 2])
            for i in range(self.SAVES))

    def learn(self, writer):
        """The old line, and the lines these saves write, from a run without kills."""
        writer.send(b"set RadioButton1 true\npush PushButton42\n")
        writer.sync()
        self.old = read(self.file)
        for command in self.commands().splitlines(keepends=True):
            writer.send(command)
            writer.sync()
            if command.startswith(b"push"):
                self.valid.add(read(self.file))
        writer.send(b"set RadioButton1 true\n")
        if self.old in self.valid:
            raise AssertionError("the saves write the old line again")

    def outcome(self):
        content = read(self.file) if os.path.exists(self.file) else None
        if content == self.old:
            return "old"
        if content in self.valid:
            return "new"
        raise AssertionError(f"VL3Preferences holds {content!r}, neither the old line nor one saved")


KINDS = {"memory": Memory, "log": Log, "prefs": Preferences}


def temporaries(folders, pid):
    return [p for folder in folders for p in glob.glob(os.path.join(folder, f"VL*.tmp-{pid}"))]


def main():
    kind, program, home, kills = sys.argv[1], sys.argv[2], sys.argv[3], int(sys.argv[4])
    seed = int(os.environ.get("VELMORA_SEED", random.SystemRandom().randrange(1 << 30)))
    print(f"{kind}: seed {seed} (VELMORA_SEED={seed} replays it)")
    rng = random.Random(seed)
    target = KINDS[kind](home, rng)

    # Without kills: the write takes this long, and leaves the file it should.
    durations = []
    target.reset()
    for _ in range(7):
        writer = Writer(program, home)
        target.prepare(writer)
        writer.sync()
        start = time.monotonic()
        writer.send(target.commands())
        writer.sync()
        durations.append(time.monotonic() - start)
        writer.finish()
        try:
            if target.outcome() != "new":
                raise AssertionError("the file is unchanged")
        except AssertionError as fault:
            sys.exit(f"FAILED: a write without a kill: {fault}")
        if isinstance(target, Log) and not target.old:
            target.old = target.files()  # one whole save stands in the file from now on
        target.reset()
    window = sorted(durations)[len(durations) // 2] * 1.5
    print(f"{kind}: the write takes {window / 1.5 * 1000:.1f} ms; kills fall within {window * 1000:.1f} ms")

    # One kill in each of KILLS equal slices of the window, in random order.
    slices = list(range(kills))
    rng.shuffle(slices)
    counts = {"old": 0, "new": 0}
    midwrite = 0
    started = time.monotonic()
    for number, slice_ in enumerate(slices, 1):
        target.reset()
        writer = Writer(program, home)
        target.prepare(writer)
        writer.sync()
        delay = window * (slice_ + rng.random()) / kills
        writer.send(target.commands())
        time.sleep(delay)
        writer.kill()
        try:
            counts[target.outcome()] += 1
        except AssertionError as fault:
            sys.exit(f"FAILED: after kill {number}, {delay * 1000:.2f} ms into the write: {fault}")
        left = temporaries(target.folders, writer.process.pid)
        midwrite += bool(left)
        if number <= kills - 10:  # the last ones are kept for the start-up clean-up to remove
            for path in left:
                os.remove(path)
    print(f"{kind}: {kills} kills survived in {time.monotonic() - started:.0f} s: "
          f"{counts['old']} left the old file, {counts['new']} the new one; "
          f"{midwrite} struck in the midst of a write (a temporary file was left)")


if __name__ == "__main__":
    main()
