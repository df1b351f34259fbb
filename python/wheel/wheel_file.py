# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""The file format of a wheel (PEP 427): a zip archive of the package, with its metadata and a list of digests."""

import base64
import hashlib
import pathlib
import sys
import sysconfig
import zipfile


def write(directory: str, version: str, package: pathlib.Path) -> str:
    """Writes the wheel of a package that was built for this interpreter; the name of the file."""
    name = f"sivane-{version}-{_tag()}.whl"
    files = {f"sivane/{path.relative_to(package).as_posix()}": path.read_bytes() for path in _sources(package)}
    files |= {f"{_info(version)}/{member}": text.encode() for member, text in _metadata(version).items()}
    record = f"{_info(version)}/RECORD"
    files[record] = ("".join(map(_record_row, files.items())) + f"{record},,\n").encode()
    with zipfile.ZipFile(pathlib.Path(directory) / name, "w", zipfile.ZIP_DEFLATED) as archive:
        for member, data in files.items():
            archive.writestr(member, data)
    return name


def write_metadata(directory: str, version: str) -> str:
    """Writes the metadata alone; the name of its folder."""
    folder = pathlib.Path(directory) / _info(version)
    folder.mkdir()
    for member, text in _metadata(version).items():
        (folder / member).write_text(text)
    return folder.name


def _tag() -> str:
    python = f"cp{sys.version_info.major}{sys.version_info.minor}"
    return f"{python}-{python}-{sysconfig.get_platform().replace('-', '_').replace('.', '_')}"


def _info(version: str) -> str:
    return f"sivane-{version}.dist-info"


def _sources(package: pathlib.Path) -> list[pathlib.Path]:
    kept = (".py", ".pyi", ".so", ".typed")
    return sorted(path for path in package.rglob("*") if path.is_file() and path.suffix in kept)


def _metadata(version: str) -> dict[str, str]:
    return {
        "METADATA": "Metadata-Version: 2.1\n"
                    "Name: sivane\n"
                    f"Version: {version}\n"
                    "Summary: Reads MPEG-2 transport streams of DVB: sections, tables, descriptors\n"
                    "License: MIT\n"
                    "Requires-Python: >=3.11\n"
                    "Provides-Extra: archive\n"
                    "Requires-Dist: distributed; extra == 'archive'\n",
        "WHEEL": f"Wheel-Version: 1.0\nGenerator: sivane\nRoot-Is-Purelib: false\nTag: {_tag()}\n",
    }


def _record_row(member: tuple[str, bytes]) -> str:
    name, data = member
    digest = base64.urlsafe_b64encode(hashlib.sha256(data).digest()).rstrip(b"=").decode()
    return f"{name},sha256={digest},{len(data)}\n"
