# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""Descriptors of every class, from the case files, read through attributes."""

import pytest
import sivane
from cases import descriptors_of_cases, sections_of_cases, table_of
from plain import fields_of, plain
from section_text import assemble


@pytest.mark.parametrize("folder, is_of_ait", [("cases", False), ("cases", True), ("extended", False)])
def test_every_class_reads_as_attributes(folder, is_of_ait):
    seen = set()
    for descriptor, whose in descriptors_of_cases(folder, is_of_ait):
        table = table_of(descriptor, is_of_ait, whose)
        one = next(one for one in table.descriptors if one.tag == descriptor[0])
        assert (one.tag, one.length) == (descriptor[0], len(descriptor) - 2)
        assert fields_of(table) == table.to_dict()
        assert plain(one) == one.to_dict()
        assert f"{one.tag:02x}" in one.dump() and one.element in repr(one)
        own = one if one.content is None else one.content
        assert repr(own).startswith(f"<sivane.{type(own).__name__} ")
        seen.add(type(own))
    SEEN.update(seen)
    assert len(seen) > 10


SEEN = set()


def test_no_class_was_left_out():
    classes = {value for value in vars(sivane).values() if isinstance(value, type)}
    descriptors = {one for one in classes if issubclass(one, sivane.Descriptor)} - {sivane.Descriptor}
    assert len(descriptors) > 83
    assert descriptors - SEEN == set()


@pytest.mark.parametrize("name, sections", sections_of_cases(), ids=lambda value: value if isinstance(value, str) else "")
def test_every_table_reads_as_attributes(name, sections):
    assert sections
    for section in sections:
        table = sivane.parse(section, class_name=name)
        assert type(table) is getattr(sivane, name)
        assert fields_of(table) == table.to_dict()
        assert table.table_id == section[0] and f"0x{section[0]:02x}" in repr(table)
        assert set(table.to_dict()) and table.dump().startswith("table_id")


def test_values_are_true_where_documents_have_signs():
    table = sivane.parse(assemble("00 B( 1234 C1 00 00 0001 E100 crc )"))
    assert isinstance(table, sivane.Pat)
    assert 0 <= table.crc32 <= 0xFFFFFFFF
    assert table.program_infos[0].program_map_pid == 0x100
    assert table.to_dict()["program_infos"] == [{"sid": 1, "pmtpid": 0x100}]
    assert table.program_infos is table.program_infos
    with pytest.raises(AttributeError, match="no_such_field"):
        table.no_such_field
    with pytest.raises(AttributeError):
        table.crc32 = 0
    with pytest.raises(TypeError):
        table.__getattribute__(5)
    assert not hasattr(table, "\ud800") and not hasattr(table, "")
    for made in [sivane.Pat, sivane.Descriptor, sivane.Section]:
        with pytest.raises(TypeError):
            made()


def test_children_keep_their_table():
    def service():
        return sivane.parse(assemble('42 B( 0001 C1 00 00 0002 FF 0003 FC 8( 48[ 01 [ "A" ] [ "B" ] ] ) crc )'))

    descriptor = service().service_infos[0].descriptors[0]
    assert isinstance(descriptor, sivane.DescriptorService)
    assert (descriptor.provider_name, descriptor.service_name) == ("A", "B")


def test_numbers_have_names():
    assert sivane.component_coding_name(4, 0, 0x80) != sivane.component_coding_name(4, 0, 0) is not None
    assert sivane.genre_name(1, 15) is None and sivane.service_type_name(-1) is None
    assert sivane.network_name(1) == "Astra Satellite Network 19,2°E"
    assert sivane.private_data_name(9) == "Nagravision SA - Kudelski 1"
    assert sivane.private_data_name(0xBBBBBBBB) == sivane.private_data_name(0xBBBBBBBB - 2**32) == "Bertelsmann Broadband Group"
    for number in [0x10001, 2**32 + 1, -(2**40)]:
        assert sivane.network_name(number) is None
    for lookup in [sivane.original_network_name, sivane.bouquet_name, sivane.ca_system_name, sivane.data_broadcast_name,
                   sivane.organisation_name]:
        assert len({lookup(number) for number in range(0x4000)} - {None}) > 1
