# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""The sections and descriptors of the case files beside this folder: some of every class."""

import pathlib

import sivane
from section_text import assemble, steps

TESTS = pathlib.Path(__file__).parents[1]


def descriptors_of_cases(folder, is_of_ait):
    """The descriptors that are whole and fit into a section, each with the private_data_specifier that it needs."""
    for path in sorted((TESTS / "descriptors" / folder).glob("*.txt")):
        if path.name.startswith("ait") != is_of_ait:
            continue
        for step in steps(path):
            if "throws" not in step and "after" not in step:
                yield assemble(step["hex"]), step.get("whose")


def table_of(descriptor, is_of_ait, whose):
    """A PMT or AIT with the descriptor, where its private_data_specifier is in force."""
    loop = (f"5F[ {int(whose, 16):08X} ]" if whose else "") + descriptor.hex().upper()
    body = f"F( {loop} ) F()" if is_of_ait else f"E100 F( {loop} )"
    return sivane.parse(assemble(f"{'74' if is_of_ait else '02'} B( 0001 C1 00 00 {body} crc )"))


def sections_of_cases():
    """Each table class by its name, with its sections."""
    return [(path.stem, [assemble(step["hex"]) for step in steps(path) if "throws" not in step])
            for path in sorted((TESTS / "tables/cases").glob("*.txt"))]
