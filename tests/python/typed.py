# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""What types the module has, to be looked at by mypy alone: an error that is ignored here has to be one."""

from datetime import datetime, timedelta

import sivane


def services(sdt: sivane.Sdt) -> list[tuple[int, str, int]]:
    return [(service.service_id, one.service_name, one.service_type)
            for service in sdt.service_infos
            for one in service.descriptors
            if isinstance(one, sivane.DescriptorService)]


def starts(source: sivane.Sections) -> list[datetime]:
    return [event.start_time
            for table in (section.table for section in source)
            if isinstance(table, sivane.Eit)
            for event in table.event_infos
            if event.start_time is not None]


def misspelt(sdt: sivane.Sdt, eit: sivane.Eit, descriptor: sivane.Descriptor) -> None:
    sdt.services  # type: ignore[attr-defined]
    sdt.service_infos[0].service_ids  # type: ignore[attr-defined]
    sdt.service_infos = ()  # type: ignore[misc]
    descriptor.service_name  # type: ignore[attr-defined]
    begin: datetime = eit.event_infos[0].start_time  # type: ignore[assignment]
    span: timedelta = eit.event_infos[0].duration  # type: ignore[assignment]
    if isinstance(descriptor.content, sivane.DescriptorAC4):
        descriptor.content.ac4_cofig_flag  # type: ignore[attr-defined]
