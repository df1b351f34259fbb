#!/usr/bin/python3
# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""Many copies of some recordings, a few of them damaged, through `python -m sivane.archive`: every one that can be read is in
the output once, also where a worker is killed in the middle, and a second run does nothing. Prints what it took."""

import argparse
import collections
import json
import os
import pathlib
import re
import signal
import subprocess
import sys
import tempfile
import time

# Random bytes would not do: now and then a byte of theirs stands 188 behind another that looks like a sync byte too, and the
# file is a stream in which nothing is found.
NO_PACKET = b"no packet in here\n" * 20
assert b"\x47" not in NO_PACKET


def make_archive(folder, recordings, copies, length):
    """Copies of the recordings, each so many times as long; every tenth holds no packet, every tenth other one is cut and overwritten in the middle."""
    hopeless = set()
    for number in range(copies):
        path = folder / f"{number:04}.ts"
        path.write_bytes(recordings[number % len(recordings)].read_bytes() * length)
        if number % 10 == 3:
            path.write_bytes(NO_PACKET)
            hopeless.add(str(path))
        elif number % 10 == 7:
            with path.open("r+b") as file:
                file.truncate(path.stat().st_size * 3 // 4)
                file.seek(path.stat().st_size // 3)
                file.write(bytes(1000))
    return hopeless


def start(folder, out, workers):
    return subprocess.Popen([sys.executable, "-m", "sivane.archive", folder, "--out", out, "--workers", str(workers)],
                            stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)


def finish(run, status):
    printed, errors = run.communicate(timeout=300)
    print("  " + printed.splitlines()[-1])
    assert run.returncode == status, f"status {run.returncode} instead of {status}:\n{printed}{errors}"
    return printed


def check_output(out, folder, hopeless):
    """Every recording is there once, with rows or an error as it has to be."""
    found = collections.Counter()
    for line in out.with_suffix(".recordings.jsonl").open():
        row = json.loads(line)
        found[row["recording"]] += 1
        assert ("error" in row) == (row["recording"] in hopeless), row
        assert "error" in row or row["services"] + row["events"] + row["programs"] > 0, row
    assert found == collections.Counter(map(str, folder.iterdir())), "not every recording once"
    in_output = re.findall(rb'^\{"kind": "recordings", "recording": "([^"]*)"', out.read_bytes(), re.MULTILINE)
    assert sorted(map(os.fsdecode, in_output)) == sorted(found), "the output and its table differ"


def timed_run(folder, out, workers, hopeless):
    begin = time.monotonic()
    finish(start(folder, out, workers), 1)
    check_output(out, folder, hopeless)
    return time.monotonic() - begin


def run_that_loses_a_worker(folder, out, copies):
    run = start(folder, out, 2)
    processes = re.findall(r"\d+", run.stderr.readline())
    assert len(processes) == 2, processes
    while not out.exists() or out.read_bytes().count(b'"kind": "recordings"') < copies // 4:
        assert run.poll() is None, "over before a worker could be killed"
        time.sleep(0.01)
    os.kill(int(processes[0]), signal.SIGKILL)
    finish(run, 1)


def states(folder):
    return {path: (path.stat().st_ino, path.stat().st_mtime_ns) for path in pathlib.Path(folder).glob("killed*")}


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("recordings", nargs="+", type=pathlib.Path)
    parser.add_argument("--copies", type=int, default=200)
    parser.add_argument("--length", type=int, default=1, help="how often a copy has its recording one after another")
    options = parser.parse_args()
    with tempfile.TemporaryDirectory(prefix="archive-trial-") as scratch:
        folder = pathlib.Path(scratch, "recordings")
        folder.mkdir()
        hopeless = make_archive(folder, options.recordings, options.copies, options.length)
        one, two = (timed_run(folder, pathlib.Path(scratch, f"{n}.jsonl"), n, hopeless) for n in (1, 2))
        print(f"{options.copies} recordings: {one:.1f} s by one worker, {two:.1f} s by two, ratio {one / two:.2f}")

        out = pathlib.Path(scratch, "killed.jsonl")
        run_that_loses_a_worker(folder, out, options.copies)
        check_output(out, folder, hopeless)
        print("a worker killed in the middle: every recording once")

        before = states(scratch)
        assert f" 0 read, {options.copies} unchanged" in finish(start(folder, out, 2), 0)
        assert states(scratch) == before, "the second run wrote"


if __name__ == "__main__":
    main()
