# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""Reads MPEG-2 transport streams of DVB: sections, tables, descriptors, and what a stream has."""

from ._sivane import Catalogue, Error, __version__
from ._streams import catalogue

__all__ = ["Catalogue", "Error", "__version__", "catalogue"]
