"""The measurements of bench/peers.sh: one-shot programs, the in-process drop, the real window.

    python3 bench/peers.py BUILD_DIR RUNS [one_shots] [in_process] [real_window]

With no part named, all three run.
"""

import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

BUILD, RUNS = sys.argv[1], int(sys.argv[2])
ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
CLI = os.path.join(BUILD, "src", "velmora-cli")
GUI = os.path.join(BUILD, "src", "velmora")


def home_with_data():
    home = tempfile.mkdtemp(prefix="velmora-peers-")
    os.makedirs(os.path.join(home, "data"))
    os.makedirs(os.path.join(home, "prefs"))
    shutil.copytree(os.path.join(ROOT, "data", "VLSupport"), os.path.join(home, "data", "VLSupport"))
    open(os.path.join(home, "prefs", "VL3Instr.txt"), "w").close()
    return home


def run_once(argv, stdin):
    """Wall time in ms of one run, and what it printed."""
    start = time.perf_counter()
    child = subprocess.Popen(argv, stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    out, _ = child.communicate(stdin.encode() if stdin else None)
    elapsed = (time.perf_counter() - start) * 1000
    return elapsed, out.decode(errors="replace").strip()


def peak_mb(argv, stdin):
    """Peak resident memory of one run, as GNU time reports it. A child of this interpreter would
    inherit the interpreter's own high-water mark; time's child starts from time's."""
    out = subprocess.run(["/usr/bin/time", "-f", "%M"] + argv, input=(stdin or "").encode(),
                         stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, check=False).stderr
    return int(out.decode().strip().splitlines()[-1]) / 1024


def measure_all(programs):
    """Median wall time, peak memory and answer of each (name, argv, stdin). The programs take
    turns run by run, so that a slow moment of the machine falls on all of them alike."""
    times = {name: [] for name, _, _ in programs}
    answers = {}
    for _ in range(RUNS):
        for name, argv, stdin in programs:
            elapsed, answer = run_once(argv, stdin)
            times[name].append(elapsed)
            answers[name] = answer.splitlines()[-1] if answer else ""
    return [(name, statistics.median(times[name]), peak_mb(argv, stdin), answers[name])
            for name, argv, stdin in programs]


def table(title, rows, reference):
    print(f"\n{title}\n")
    print("| Program | Median wall time (ms) | Peak memory (MB) | Time vs Velmora | Answer |")
    print("|---|---|---|---|---|")
    base = rows[reference][1]
    for name, median, peak, answer in rows:
        print(f"| {name} | {median:.2f} | {peak:.1f} | {median / base:.1f}x | `{answer}` |")


def one_shots():
    home = home_with_data()
    convert = ("set CheckBox2 true\nchoose Convert\nset PopupMenu2 19\nset popconvert 0\n"
               "drop 2 hp\nget clipboard\n")
    units = shutil.which("units")
    qalc = shutil.which("qalc")
    programs = [("velmora-cli", [CLI, "--home", home], convert)]
    if units:
        programs.append(("units", [units, "-t", "2 hp", "W"], None))
    if qalc:
        programs.append(("qalc", [qalc, "-t", "2 hp to W"], None))
    table(f"One-shot conversion, 2 hp to watts ({RUNS} runs each)", measure_all(programs), 0)
    programs = [("velmora-cli", [CLI, "--home", home, "2*sin(30)"], None)]
    if units:
        programs.append(("units", [units, "-t", "2*sin(30 deg)"], None))
    if qalc:
        programs.append(("qalc", [qalc, "-t", "2*sin(30 deg)"], None))
    table(f"One-shot calculation, 2*sin(30) in degrees ({RUNS} runs each)", measure_all(programs), 0)
    shutil.rmtree(home)


def in_process():
    out = subprocess.run([os.path.join(BUILD, "bench", "velmora_bench"),
                          "--benchmark_filter=DropToClipboard/sine|Muparser",
                          "--benchmark_repetitions=5", "--benchmark_report_aggregates_only=true"],
                         capture_output=True, text=True, check=True).stdout
    print("\nIn process, median of 5 repetitions\n")
    print("| Benchmark | Median time |")
    print("|---|---|")
    for line in out.splitlines():
        if "_median" in line:
            parts = line.split()
            print(f"| {parts[0].replace('_median', '')} | {parts[1]} {parts[2]} |")


def request(home, lines):
    """Command lines run in the window of `home`, through a second start as a user would."""
    return subprocess.run([GUI, "--home", home, "--run", lines, "--wait", "60"],
                          capture_output=True, check=True).stdout


def rss_mb(pid):
    with open(f"/proc/{pid}/status") as status:
        for line in status:
            if line.startswith("VmRSS:"):
                return int(line.split()[1]) / 1024
    return 0.0


def start_window(home, env):
    """Starts the window and returns once it answers, as it does from the moment it takes drops;
    the second start that asks waits for it."""
    child = subprocess.Popen([GUI, "--home", home], env=env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    while True:
        try:
            request(home, "get size")
            return child
        except subprocess.CalledProcessError:
            time.sleep(0.001)  # asked before the window held its home


def real_window():
    env = dict(os.environ, QT_QPA_PLATFORM=os.environ.get("QT_QPA_PLATFORM", "offscreen"))
    starts = []
    for _ in range(max(5, RUNS // 3)):
        home = home_with_data()
        start = time.perf_counter()
        child = start_window(home, env)
        starts.append((time.perf_counter() - start) * 1000)
        request(home, "quit")
        child.wait()
        shutil.rmtree(home)

    home = home_with_data()
    child = start_window(home, env)
    asks = []
    for _ in range(len(starts)):
        start = time.perf_counter()
        request(home, "get size")
        asks.append((time.perf_counter() - start) * 1000)
    # The first drops load the sounds, the lit picture and the fonts; what grows after is the log.
    request(home, "\n".join(["drop 2*sin(30)"] * 1000))
    time.sleep(0.5)
    rss_start = rss_mb(child.pid)
    log_before = len(request(home, "get log"))
    drops = 100000
    started = time.perf_counter()
    for _ in range(drops // 1000):
        request(home, "\n".join(["drop 2*sin(30)"] * 1000))
    seconds = time.perf_counter() - started
    rss_after = rss_mb(child.pid)
    log_after = len(request(home, "get log"))
    request(home, "quit")
    child.wait()
    shutil.rmtree(home)

    print(f"\nThe real window ({env['QT_QPA_PLATFORM']} platform)\n")
    print("| Measure | Figure |")
    print("|---|---|")
    print(f"| Start to accepting drops, median of {len(starts)}, as a second start sees it | "
          f"{statistics.median(starts):.0f} ms |")
    print(f"| of which the second start's own question to a running window | {statistics.median(asks):.0f} ms |")
    print(f"| Resident memory after start and 1000 drops | {rss_start:.1f} MB |")
    print(f"| {drops} drops of 2*sin(30) | {seconds:.1f} s, {seconds / drops * 1e6:.0f} us each |")
    print(f"| Memory growth over those drops | {rss_after - rss_start:.1f} MB |")
    print(f"| Log text added by them | {(log_after - log_before) / 1048576:.1f} MB |")


PARTS = {"one_shots": one_shots, "in_process": in_process, "real_window": real_window}
for part in sys.argv[3:] or PARTS:
    PARTS[part]()
