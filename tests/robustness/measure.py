#!/usr/bin/env python3
"""Runs a command, then writes its wall time and peak resident memory to FIGURES and exits as
the command did (128 + the signal if one ended it).
  measure.py FIGURES COMMAND [ARGS...]"""
import os
import subprocess
import sys
import time

start = time.monotonic()
child = subprocess.Popen(sys.argv[2:])
_, status, usage = os.wait4(child.pid, 0)
elapsed = time.monotonic() - start
with open(sys.argv[1], "w") as figures:
    figures.write(f"{elapsed * 1000:.0f} ms, peak resident memory {usage.ru_maxrss / 1024:.1f} MB\n")
code = os.waitstatus_to_exitcode(status)
sys.exit(128 - code if code < 0 else code)
