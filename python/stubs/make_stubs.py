# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""Makes the stubs of the classes of tables and descriptors: the files of python/sivane that say so in their head.

    PYTHONPATH=build/dev/python python3 python/stubs/make_stubs.py

Every object of a class has the same fields, and the case files of the tests have objects of every class: the types are those
of the values that the module gives of them. A test holds the files against this.
"""

import collections
import pathlib
import sys
from collections.abc import Iterator
from datetime import datetime, timedelta

import sivane

PYTHON = pathlib.Path(__file__).parents[1]
sys.path.append(str(PYTHON.parent / "tests/python"))

from cases import descriptors_of_cases, sections_of_cases, table_of  # noqa: E402
from plain import names_of  # noqa: E402

_OF_THE_BASE = {"tag", "length", "table_id", "section_length"}
_NONE_WHERE_UNDEFINED = {datetime: "datetime | None", timedelta: "timedelta | None"}

_HEAD = """# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
#
# Made by python/stubs/make_stubs.py. The classes of records are in the stubs alone.
from datetime import datetime, timedelta
from typing import Final

from ._sivane import Descriptor, Record, Table
"""


class _Class:
    """The fields that the objects of a class have, and the classes of the records in them."""

    def __init__(self, name: str, base: str) -> None:
        self.name = name
        self.base = base
        self.fields: dict[str, str] = {}  # empty as long as no object had a value there
        self.records: dict[str, _Class] = {}

    def see(self, node: sivane.Fields) -> None:
        """Learns from an object."""
        for name in names_of(node):
            if self.base == "Record" or name not in _OF_THE_BASE:
                self.fields[name] = self._type_of(name, getattr(node, name)) or self.fields.get(name, "")

    def stub(self) -> str:
        """The class behind those of its records."""
        unknown = [name for name, kind in self.fields.items() if not kind]
        if unknown:
            raise ValueError(f"no case file has a value of {self.name}.{unknown[0]}")
        records = "".join(record.stub() for record in self.records.values())
        fields = "".join(f"\n    {name}: Final[{kind}]" for name, kind in self.fields.items())
        return f"{records}\nclass {self.name}({self.base}):{fields or ' ...'}\n"

    def _type_of(self, name: str, value: object) -> str:
        if value is None:
            return ""
        if isinstance(value, tuple):
            kinds = [self._type_of(name, item) for item in value]
            return f"tuple[{kinds[0]}, ...]" if kinds else ""
        if isinstance(value, sivane.Descriptor):
            return "Descriptor"
        if isinstance(value, sivane.Record):
            record = self.records.setdefault(name, _Class(f"_{self.name.lstrip('_')}_{name}", "Record"))
            record.see(value)
            return record.name
        return _NONE_WHERE_UNDEFINED.get(type(value), type(value).__name__)


def _objects() -> Iterator[tuple[str, str, sivane.Fields]]:
    """Each with the file and the base of its class."""
    for name, sections in sections_of_cases():
        for section in sections:
            yield "_tables.pyi", "Table", sivane.parse(section, class_name=name)
    for folder, is_of_ait in [("cases", False), ("cases", True), ("extended", False)]:
        for descriptor, whose in descriptors_of_cases(folder, is_of_ait):
            for one in table_of(descriptor, is_of_ait, whose).descriptors:
                yield "_ait_descriptors.pyi" if is_of_ait else "_descriptors.pyi", "Descriptor", one
                if one.content:
                    yield "_contents.pyi", "Descriptor", one.content


def stubs() -> dict[str, str]:
    """The text of each file, by its name."""
    classes: dict[str, _Class] = {}
    files: dict[str, list[str]] = collections.defaultdict(list)
    for file, base, node in _objects():
        name = type(node).__name__
        if name not in classes:
            classes[name] = _Class(name, base)
            files[file].append(name)
        classes[name].see(node)
    return {file: _HEAD + "".join(classes[name].stub() for name in sorted(names)) for file, names in files.items()}


if __name__ == "__main__":
    for file, text in stubs().items():
        (PYTHON / "sivane" / file).write_text(text)
