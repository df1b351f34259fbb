#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""Puts single faults into the library, one at a time, and says which of them no test catches.

Works in a copy of the tree, which it builds once; then for each fault the file is compiled, the library linked and the
test programs run, the quick ones first. A fault is caught by the first program that fails, crashes or does not end. One
that does not compile (warnings are errors) does not count. Sources are .cpp files; headers are taken where they are
named. Each fault is a line of the record: verdict, file and line, the line as it was, the line with its fault.
"""
import argparse
import collections
import filecmp
import itertools
import json
import os
import pathlib
import random
import re
import resource
import shutil
import signal
import subprocess
import sys
import time

FOLDERS = [f"sivane/{name}" for name in ("foundation", "demux", "tables", "descriptors", "xml")]
SWAPS = {"==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">", "&&": "||", "||": "&&", "+": "-", "-": "+",
         "*": "+", "/": "*", "%": "/", "<<": ">>", ">>": "<<", "&": "|", "|": "&", "+=": "-=", "-=": "+=", "|=": "&=",
         "true": "false", "false": "true"}
TOKEN = re.compile(r'"(?:\\.|[^"\\])*"|(?<= )(?:[=!<>]=|&&|\|\||<<|>>|[-+|]=|[-<>+*/%&|])(?= )|(?<=[( ])!(?=[\w(])|'
                   r"\b(?:true|false)\b|\b0[xX][0-9A-Fa-f]+\b|(?<![\w.'])\d+\b(?![.'])")
SKIPPED = re.compile(r"\s*(//|#|namespace|using|template|static_assert|}|$)")
STATEMENT = re.compile(r"\s*(?!return|const|static|auto|class|struct|public|private)[\w:*(+-].*[^:{},];$")


def changed_token(token):
    """The forms that take the place of a token: an operator, a literal, a negation."""
    if token.startswith('"'):
        return [token[:-1] + 'x"']
    if token[0].isdigit():
        hexadecimal = token[1:2] in ("x", "X")
        value = int(token, 16 if hexadecimal else 10)
        return [hex(n) if hexadecimal else str(n) for n in (value + 1, value - 1) if n >= 0]
    return [SWAPS.get(token, "")]


def faults_of(tree, file):
    """All faults of one file as (file, line number, line as it is, line with a fault)."""
    found, in_log = [], False
    for number, line in enumerate((tree / file).read_text().splitlines(), 1):
        in_log = in_log or "log_write(" in line
        code = re.sub(r'("(?:\\.|[^"\\])*")|\s*//.*', r"\1", line)
        if not in_log and not SKIPPED.match(line):
            tokens = [(m.start(), m.end(), form) for m in TOKEN.finditer(code) for form in changed_token(m[0])]
            new = [code[:start] + form + code[end:] for start, end, form in tokens]
            new += [";"] if STATEMENT.match(code) else []
            found += [(file, number, line.strip(), text.strip()) for text in new]
        in_log = in_log and not code.endswith(";")
    return found


def shape(line):
    """What stays of a line when it is laid out anew."""
    return re.sub(r"\bconst\b|\s", "", line)


def recorded(tree, path):
    """The faults of a record that the tree still has room for: lines that are gone are left out and told."""
    for line in pathlib.Path(path).read_text().splitlines():
        _, place, old, new = line.split("\t")
        file, number = place.split(":")
        lines = (tree / file).read_text().splitlines() if (tree / file).exists() else []
        at = [n for n, text in enumerate(lines, 1) if shape(text) == shape(old)]
        if at:
            yield file, min(at, key=lambda n: abs(n - int(number))), old, new
        else:
            print("gone", place, old, new, sep="\t", flush=True)


def limited():
    """What a program may take: one that loops ends by its own time or output, however loaded the machine is."""
    os.setpgrp()
    resource.setrlimit(resource.RLIMIT_CPU, (120, 120))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    resource.setrlimit(resource.RLIMIT_FSIZE, (1 << 28, 1 << 28))


def update(source, target):
    """Copies what differs, as a file of now: what an earlier run left with a fault is compiled anew."""
    if not os.path.exists(target) or not filecmp.cmp(source, target, shallow=False):
        shutil.copy(source, target)


class Copy:
    """The copy of a tree that the faults are put into, its build and its test programs."""

    def __init__(self, tree, folder, preset):
        self.root, self.build = folder, folder / "build" / preset
        without = shutil.ignore_patterns("build", ".git", "__pycache__")
        shutil.copytree(tree, self.root, ignore=without, dirs_exist_ok=True, copy_function=update)
        for entry in self.root.rglob("*"):
            below = entry.relative_to(self.root)
            if below.parts[0] != "build" and entry.is_file() and not (tree / below).exists():
                entry.unlink()
        left_out = [f"-DSIVANE_BUILD_{part}=OFF" for part in ("BENCHMARKS", "EXAMPLES", "FUZZERS", "INSPECT")]
        for command in (["cmake", "--preset", preset, "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON", *left_out],
                        ["cmake", "--build", "--preset", preset]):
            subprocess.run(command, cwd=self.root, check=True, stdout=subprocess.DEVNULL)
        listed = json.loads(subprocess.run(["ctest", "--show-only=json-v1"], cwd=self.build, check=True,
                                           capture_output=True).stdout)["tests"]
        commands = [test["command"] for test in listed if "command" in test]
        own = [c for c in commands if not any(a.startswith("--gtest") for a in c)]
        gtest = {c[0] for c in commands if c not in own}
        self.programs = [[program, "--gtest_fail_fast", "--gtest_brief=1"] for program in sorted(gtest)] + own
        self.programs.sort(key=self.seconds)

    def seconds(self, command):
        start = time.monotonic()
        if not self.passes(command):
            raise SystemExit(f"faults: without a fault, {command[0]} fails")
        return time.monotonic() - start

    def passes(self, command, seconds=900):
        memory = [] if "asan" in self.build.name else ["prlimit", f"--as={4 << 30}"]
        process = subprocess.Popen(memory + command, cwd=self.build, preexec_fn=limited, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL)
        try:
            return process.wait(seconds) == 0
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGKILL)
            return process.wait() == 0

    def first_failure(self):
        return next((os.path.basename(c[0]) for c in self.programs if not self.passes(c)), None)

    def built(self, target):
        return self.passes(["cmake", "--build", str(self.build), "--target", target])

    def verdict(self, fault):
        """The test program that catches the fault, `SURVIVES`, or None where the fault does not compile."""
        file, number, _, new = fault
        path = self.root / file
        before = path.read_text()
        lines = before.splitlines(keepends=True)
        lines[number - 1] = new + "\n"
        path.write_text("".join(lines))
        try:
            if not self.built("sivane"):
                return None
            return (self.first_failure() if self.built("all") else "the tests' compiler") or "SURVIVES"
        finally:
            path.write_text(before)


def chosen(tree, arguments, equivalent):
    """A list of faults for each file or folder that was named, in an order that the seed decides."""
    for name in arguments.paths or FOLDERS:
        sources = [tree / name] if (tree / name).is_file() else sorted((tree / name).glob("*.cpp"))
        files = [str(source.relative_to(tree)) for source in sources]
        faults = [f for file in files for f in faults_of(tree, file) if (f[0], *f[2:]) not in equivalent]
        random.Random(f"{arguments.seed} {name}").shuffle(faults)
        yield faults


def main():
    here = pathlib.Path(__file__).resolve()
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("paths", nargs="*", help="folders or files; the five folders of the library otherwise")
    parser.add_argument("--count", type=int, default=20, help="faults for each of them (20)")
    parser.add_argument("--seed", type=int, default=1, help="which ones (1)")
    parser.add_argument("--from", dest="record", help="the faults of an earlier record instead")
    parser.add_argument("--preset", default="dev", help="the preset to build with; asan sees more and is slower (dev)")
    parser.add_argument("--tree", type=pathlib.Path, default=here.parents[2], help="the tree to test (this one)")
    parser.add_argument("--copy", type=pathlib.Path, help="where the copy is (build/faults in the tree)")
    arguments = parser.parse_args()
    tree = arguments.tree.resolve()
    rows = [line.split("\t") for line in here.with_name("equivalent.tsv").read_text().splitlines()]
    equivalent = {(place.split(":")[0], old, new) for _, place, old, new in rows}
    copy = Copy(tree, (arguments.copy or tree / "build/faults").resolve(), arguments.preset)
    parts = [recorded(tree, arguments.record)] if arguments.record else chosen(tree, arguments, equivalent)
    wanted = None if arguments.record else arguments.count
    caught, put = collections.Counter(), collections.Counter()
    for faults in parts:
        verdicts = ((copy.verdict(fault), fault) for fault in faults)
        counted = (found for found in verdicts if found[0])
        for verdict, (file, number, old, new) in itertools.islice(counted, wanted):
            print(verdict, f"{file}:{number}", old, new, sep="\t", flush=True)
            put[os.path.dirname(file)] += 1
            caught[os.path.dirname(file)] += verdict != "SURVIVES"
    for folder, count in put.items():
        print(f"{folder}: {caught[folder]} of {count} caught", file=sys.stderr)


if __name__ == "__main__":
    main()
