#!/usr/bin/env python3
"""Tells which planted faults the tests find.

run.py reach TREE [WORD]              runs every test (or those with the word in their names) once and keeps which
                                      faults it comes by, in TREE/reach
run.py sample TREE FOLDER COUNT SEED  tries so many faults of src/FOLDER (or src/FILES...), chosen by the seed, each against the tests
                                      that come by it; TREE/results.json keeps the answers
run.py try TREE NUMBER...             tries these
run.py table TREE                     how many were found, by folder, and which were not
run.py line TREE NUMBER...            the lines that harmless.txt wants of these
Those that harmless.txt names, with the reason why nobody can notice them, are passed over.
TREE is what plant.py has filled, built in TREE/build/release.
"""
import hashlib
import json
import os
import random
import re
import resource
import signal
import subprocess
import sys
import tempfile
import time
from collections import defaultdict
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

TREE = Path(sys.argv[2]).resolve() if len(sys.argv) > 2 else None
JOBS = int(os.environ.get("JOBS", (os.cpu_count() or 1) + 1))
# Dropped calls that change nothing but looks, or nothing at all: an eye finds those, or nobody.
LOOKS = re.compile(r"(\w|->|\.|\(\))*\b(setContentsMargins|set(Horizontal|Vertical)?Spacing|setRenderHints?|reserve|"
                   r"setToolButtonStyle|setAlternatingRowColors|setDevicePixelRatio|setAutoRaise|setFlat)\(")
LONGEST = 150  # seconds of tests for one fault; what lives so long counts as not found


def tests():
    """What ctest would run of the test programs: name, program, environment."""
    shown = subprocess.run(["ctest", "--test-dir", TREE / "build/release", "--show-only=json-v1"], check=True,
                           capture_output=True, text=True).stdout
    for test in json.loads(shown)["tests"]:
        command = test.get("command", [])
        # Those of the house look at the sources.
        if test["name"].startswith("House.") or len(command) < 2:
            continue
        about = {p["name"]: p["value"] for p in test["properties"]}
        picked = next((w[len("--gtest_filter="):] for w in command if w.startswith("--gtest_filter=")), None)
        yield {"name": test["name"], "command": command, "filter": picked, "folder": about.get("WORKING_DIRECTORY", "."),
               "env": dict(line.split("=", 1) for line in about.get("ENVIRONMENT", []))}


def limit():
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    resource.setrlimit(resource.RLIMIT_AS, (6 << 30, 6 << 30))
    resource.setrlimit(resource.RLIMIT_FSIZE, (1 << 28, 1 << 28))


def run(command, test, seconds, words=subprocess.DEVNULL, **variables):
    """Whether the command succeeds within its time, in a home of its own."""
    with tempfile.TemporaryDirectory(prefix="fault-") as home:
        env = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "SDL_AUDIODRIVER": "dummy", "HOME": home, "TMPDIR": home,
               "XDG_DATA_HOME": home + "/data", "XDG_CONFIG_HOME": home + "/config", **test["env"], **variables}
        process = subprocess.Popen(command, env=env, cwd=test["folder"], stdin=subprocess.DEVNULL,
                                   stdout=words, stderr=subprocess.DEVNULL, start_new_session=True,
                                   preexec_fn=limit)
        try:
            return process.wait(seconds) == 0
        except subprocess.TimeoutExpired:
            return False
        finally:
            try:
                os.killpg(process.pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
            process.wait()


def place_of(name):
    return TREE / "reach" / hashlib.sha256(name.encode()).hexdigest()


def reach(word=""):
    faults = json.loads((TREE / "faults.json").read_text())
    (TREE / "reach").mkdir(exist_ok=True)
    kept = TREE / "tests.json"
    known = json.loads(kept.read_text()) if kept.exists() else {}
    wanted = [test for test in tests() if word in test["name"]]

    def one(test):
        place_of(test["name"]).write_bytes(bytes(len(faults) + 1))
        start = time.time()
        passed = run(test["command"], test, 120, FAULT_HITS=str(place_of(test["name"])))
        known[test["name"]] = dict(test, seconds=time.time() - start, passed=passed)

    with ThreadPoolExecutor(JOBS) as pool:
        list(pool.map(one, wanted))
    kept.write_text(json.dumps(known))
    failed = [t["name"] for t in wanted if not known[t["name"]]["passed"]]
    print(len(wanted), "tests; without a fault these fail:", failed)


class Trial:
    def __init__(self):
        self.faults = {f["number"]: f for f in json.loads((TREE / "faults.json").read_text())}
        self.known = json.loads((TREE / "tests.json").read_text())
        self.hits = {at: place_of(at).read_bytes() for at, t in self.known.items() if t["passed"]}
        self.wide = {at: bytes_.count(1) for at, bytes_ in self.hits.items()}
        kept = TREE / "results.json"
        self.results = json.loads(kept.read_text()) if kept.exists() else {}

    def near(self, number):
        """The tests that come by a fault: those that come by little else first."""
        return sorted((at for at, b in self.hits.items() if b[number]), key=lambda at: self.wide[at])

    def batches(self, number):
        """These in groups that are quick to run, program by program; a test before may hide what one finds alone."""
        near = self.near(number)
        for part in (near[:15], near[15:75], near[75:]):
            programs = defaultdict(list)
            for at in part:
                programs[self.known[at]["command"][0] if self.known[at]["filter"] else at].append(at)
            for group in sorted(programs.values(), key=lambda g: sum(self.known[a]["seconds"] for a in g)):
                yield from (group[i:i + 60] for i in range(0, len(group), 60))

    def fails(self, group, number):
        """Whether a test of the group stops at the fault. What fails beside others only says nothing: it is left out,
        and after a third such test so is the group."""
        group = list(group)
        for _ in range(3):
            if not group:
                return False
            test = self.known[group[0]]
            seconds = sum(self.known[at]["seconds"] for at in group) * 3 + 20
            if len(group) == 1:
                return not run(test["command"], test, seconds, FAULT=str(number))
            names = ":".join(self.known[at]["filter"] for at in group)
            with tempfile.TemporaryFile("w+", errors="replace") as words:
                command = [test["command"][0], "--gtest_fail_fast", "--gtest_filter=" + names]
                if run(command, test, seconds, words, FAULT=str(number)):
                    return False
                words.seek(0)
                said = words.read()
            # Behind the first that fails the others are begun and passed over; a crash says nothing of itself.
            failed = re.findall(r"^\[  FAILED  \] ([^\s,]+)", said, re.MULTILINE)[:1]
            stopped = failed or re.findall(r"^\[ RUN      \] (\S+)", said, re.MULTILINE)[-1:]
            alone = [at for at in group if [self.known[at]["filter"]] == stopped] or group[:1]
            if self.fails(alone, number):
                return True
            group.remove(alone[0])
        return False

    def trial(self, number):
        spent, ran = 0.0, 0
        for group in self.batches(number):
            start = time.time()
            ran += len(group)
            if self.fails(group, number):
                return "found"
            spent += time.time() - start
            if spent > LONGEST:
                break
        if any(self.fails([at], number) for at in self.near(number)[:40]):
            return "found"
        return f"lives; {ran} tests tried" if ran else "never runs"

    def tries(self, numbers):
        def one(number):
            self.results[str(number)] = answer = self.trial(number)
            if answer != "found":
                print(describe(self.faults[number]), answer, flush=True)

        with ThreadPoolExecutor(JOBS) as pool:
            list(pool.map(one, numbers))
        kept = TREE / "results.json"
        old = json.loads(kept.read_text()) if kept.exists() else {}
        kept.write_text(json.dumps({**old, **{str(n): self.results[str(n)] for n in numbers}}, indent=0))
        found = sum(self.results[str(n)] == "found" for n in numbers)
        print(f"{found} of {len(numbers)} found")


def keyed(faults):
    """Each fault's number by what stays the same when others come and go: its text, and the how manieth it is."""
    seen = defaultdict(int)
    keys = {}
    for fault in faults:
        text = (fault["file"], fault["kind"], fault["was"])
        seen[text] += 1
        keys["\t".join((*text, str(seen[text])))] = fault["number"]
    return keys


def harmless(faults):
    lines = (Path(__file__).parent / "harmless.txt").read_text().splitlines()
    keys = keyed(faults)
    return {keys[key] for key in (line.rpartition("\t")[0] for line in lines) if key in keys}


def describe(fault):
    return f"{fault['number']} {fault['file']}:{fault['line']} {fault['kind']}: {fault['was']}"


def sample(folder, count, seed):
    trial = Trial()
    passed_over = harmless(trial.faults.values())
    there = [n for n, f in sorted(trial.faults.items())
             if f["file"].startswith(f"src/{folder}") and not LOOKS.match(f["was"]) and n not in passed_over]
    random.Random(seed).shuffle(there)
    trial.tries([n for n in there if str(n) not in trial.results][:int(count)])


def table():
    faults = json.loads((TREE / "faults.json").read_text())
    results = json.loads((TREE / "results.json").read_text())
    rows = defaultdict(list)
    for fault in faults:
        if str(fault["number"]) in results:
            rows[fault["file"].split("/")[1]].append(fault)
    for folder, tried in sorted(rows.items()):
        found = sum(results[str(f["number"])] == "found" for f in tried)
        print(f"{folder:10} {len(tried):4} tried {found:4} found {100 * found / len(tried):5.1f} %")
    for folder, tried in sorted(rows.items()):
        for fault in tried:
            if results[str(fault["number"])] != "found":
                print(describe(fault), results[str(fault["number"])])


if __name__ == "__main__":
    if TREE is None or sys.argv[1] not in ("reach", "sample", "try", "table", "line"):
        sys.exit(__doc__)
    if sys.argv[1] == "reach":
        reach(*sys.argv[3:4])
    elif sys.argv[1] == "sample":
        sample(*sys.argv[3:6])
    elif sys.argv[1] == "try":
        Trial().tries([int(n) for n in sys.argv[3:]])
    elif sys.argv[1] == "line":
        numbers = {number: key for key, number in keyed(json.loads((TREE / "faults.json").read_text())).items()}
        print("\n".join(numbers[int(number)] + "\t" for number in sys.argv[3:]))
    else:
        table()
