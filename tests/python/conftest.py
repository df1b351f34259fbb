# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""What the tests of the module share: the streams, and what the command-line tool says of them."""

import json
import os
import pathlib
import subprocess

import pytest

ROOT = pathlib.Path(__file__).parents[2]
SAMPLE = ROOT / "examples/sample/sample.ts"
HANGING = 500
"""Seconds after which a process is taken to hang, which a machine that is merely busy does not let pass."""
STREAMS = [SAMPLE, *sorted(pathlib.Path(os.environ["SIVANE_SAMPLES"]).glob("*.ts"))]


def told(*arguments):
    """The lines that the tool prints."""
    environment = {name: value for name, value in os.environ.items() if name != "LD_PRELOAD"}
    run = subprocess.run(
        [os.environ["SIVANE_INSPECT"], *map(str, arguments), "--quiet"],
        stdout=subprocess.PIPE, check=False, env=environment)
    return run.stdout.decode().rstrip("\n").split("\n")


def json_lines(*arguments):
    return [json.loads(line) for line in told("json", *arguments)]


@pytest.fixture(params=STREAMS, ids=lambda path: path.stem)
def stream(request):
    return request.param


@pytest.fixture
def sample():
    return SAMPLE
