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

from ._sivane import *  # noqa: F403  all that is compiled, a class for each of the library's lists included
from ._sivane import __version__ as __version__
from ._streams import Sections as Sections
from ._streams import catalogue as catalogue
from ._streams import sections as sections
