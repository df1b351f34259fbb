# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""How many times as long the Python module takes as a C++ host: ratio.py HOST FILE...

Each file is repeated to a recording of 8 MB, so that it is the reading that counts and not its beginning. Both read that
in turn and parse every section of it: asking each table for one number, and then each event of an EIT for its event_id
too. Prints the median of the ratios and the middle eight of ten. Fails where they count differently.
"""

import gc
import statistics
import subprocess
import sys
import tempfile
import time
from collections.abc import Callable
from pathlib import Path

import sivane
from sivane import Eit

ROUNDS = 30
SIZE = 8 << 20


def ask_tables(path: str) -> int:
    total = 0
    for section in sivane.sections(path):
        try:
            total += section.table.section_length
        except sivane.Error:
            total += 1
    return total


def ask_events(path: str) -> int:
    total = 0
    for section in sivane.sections(path):
        try:
            table = section.table
        except sivane.Error:
            total += 1
            continue
        total += table.section_length
        if isinstance(table, Eit):
            for event in table.event_infos:
                total += event.event_id
    return total


def measure(host: str, shown: str, path: str, name: str, ask: Callable[[str], int]) -> None:
    ratios = []
    with subprocess.Popen([host, path, name], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True) as process:
        assert process.stdin and process.stdout
        for _ in range(ROUNDS):
            gc.collect()
            start = time.process_time()
            total = ask(path)
            taken = time.process_time() - start
            print("go", file=process.stdin, flush=True)
            seconds, counted = process.stdout.readline().split()
            assert int(counted) == total, f"{path}: {counted} and {total}"
            ratios.append(taken / float(seconds))
        process.stdin.close()
    ratios.sort()
    low, high = ratios[ROUNDS // 10], ratios[-ROUNDS // 10 - 1]
    median = statistics.median(ratios)
    print(f"{shown}, {name}: {median:.2f} times a C++ host, {low:.2f} to {high:.2f}")


for file in map(Path, sys.argv[2:]):
    with tempfile.NamedTemporaryFile(suffix=".ts") as recording:
        data = file.read_bytes()
        recording.write(data * -(-SIZE // len(data)))
        recording.flush()
        measure(sys.argv[1], file.name, recording.name, "table", ask_tables)
        measure(sys.argv[1], file.name, recording.name, "events", ask_events)
