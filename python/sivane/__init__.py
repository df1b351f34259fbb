# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""Reads MPEG-2 transport streams of DVB: sections, tables, descriptors, and what a stream has.

    import sivane

    for section in sivane.sections("recording.ts"):
        print(section.pid, section.table)

`sections` gives the sections of a stream, `catalogue` what they say of its services and events, `parse` and
`load_xml` a table of bytes or a document; `Demux` is for hosts that get packets themselves. What the library refuses
is an `Error`. There is a class for each class of table and descriptor, `Sdt` and `DescriptorService` say.
"""

from . import _sivane
from ._sivane import *  # noqa: F403  the classes of tables and descriptors, made from the library's lists
from ._sivane import Catalogue, Counters, Demux, Descriptor, Error, Fields, Record, Section, Table, __version__
from ._sivane import load_xml, parse
from ._streams import Sections, catalogue, sections

__all__ = [
    "Catalogue",
    "Counters",
    "Demux",
    "Error",
    "Fields",
    "Record",
    "Section",
    "Sections",
    "__version__",
    "catalogue",
    "load_xml",
    "parse",
    "sections",
    *(name for name, value in vars(_sivane).items() if isinstance(value, type) and issubclass(value, Fields)),
]
