# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""What `pip install ./python` calls (PEP 517): CMake builds the module with the library inside, and that becomes a wheel."""

import os
import pathlib
import re
import subprocess
import sys
import tempfile
from typing import NoReturn

import wheel_file

ROOT = pathlib.Path(__file__).resolve().parents[2]

Settings = dict[str, str] | None  # what `--config-settings` said

_NAMES_OFF = ("INSPECT", "EXAMPLES", "TESTS", "BENCHMARKS", "FUZZERS")


class UnsupportedOperation(Exception):
    """The sources of the module are the whole tree, not what is in this folder."""


def build_wheel(wheel_directory: str, config_settings: Settings = None, metadata_directory: str | None = None) -> str:
    """Leaves a wheel in the directory; its name. `--config-settings build-dir=FOLDER` keeps what the build makes."""
    folder = (config_settings or {}).get("build-dir")
    if folder:
        return wheel_file.write(wheel_directory, _version(), _build(pathlib.Path(folder).absolute()))
    with tempfile.TemporaryDirectory(prefix="sivane-wheel-") as folder:
        return wheel_file.write(wheel_directory, _version(), _build(pathlib.Path(folder)))


def prepare_metadata_for_build_wheel(metadata_directory: str, config_settings: Settings = None) -> str:
    """The metadata alone, before anything is built."""
    return wheel_file.write_metadata(metadata_directory, _version())


def build_sdist(sdist_directory: str, config_settings: Settings = None) -> NoReturn:
    """There is none."""
    raise UnsupportedOperation("there is no archive of sources: install from a checkout")


def _version() -> str:
    found = re.search(r"project\(sivane VERSION ([0-9.]+)", (ROOT / "CMakeLists.txt").read_text())
    assert found, "CMakeLists.txt says no version"
    return found[1]


def _build(folder: pathlib.Path) -> pathlib.Path:
    """Builds the package for the interpreter that runs this; the folder of it."""
    options = {"CMAKE_BUILD_TYPE": "Release", "Python3_EXECUTABLE": sys.executable, "SIVANE_BUILD_PYTHON": "ON",
               "BUILD_SHARED_LIBS": "OFF", "CMAKE_POSITION_INDEPENDENT_CODE": "ON", "SIVANE_INSTALL": "OFF"}
    options |= {f"SIVANE_BUILD_{name}": "OFF" for name in _NAMES_OFF}
    definitions = [f"-D{name}={value}" for name, value in options.items()]
    subprocess.run(["cmake", "-S", ROOT, "-B", folder, *definitions], check=True)
    jobs = str(len(os.sched_getaffinity(0)))
    subprocess.run(["cmake", "--build", folder, "--parallel", jobs, "--target", "sivane_python"], check=True)
    return folder / "python" / "sivane"
