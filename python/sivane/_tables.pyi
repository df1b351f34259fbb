# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
#
# Made by python/stubs/make_stubs.py. The classes of records are in the stubs alone.
from datetime import datetime, timedelta
from typing import Final

from ._sivane import Descriptor, Record, Table

class _Ait_application_infos_application_identifer(Record):
    organisation_id: Final[int]
    application_id: Final[int]

class _Ait_application_infos(Record):
    application_control_code: Final[int]
    application_descriptors_loop_length: Final[int]
    application_identifer: Final[_Ait_application_infos_application_identifer]
    descriptors: Final[tuple[Descriptor, ...]]

class Ait(Table):
    syntax_indicator: Final[int]
    context_id: Final[int]
    version_number: Final[int]
    section_number: Final[int]
    last_section_number: Final[int]
    current_next_indicator: Final[int]
    crc32: Final[int]
    common_descriptors_length: Final[int]
    application_loop_length: Final[int]
    application_infos: Final[tuple[_Ait_application_infos, ...]]
    descriptors: Final[tuple[Descriptor, ...]]

class _Bat_stream_infos(Record):
    stream_id: Final[int]
    network_id: Final[int]
    descriptors: Final[tuple[Descriptor, ...]]

class _Bat_ca_descriptors(Record):
    sys_id: Final[int]
    pid: Final[int]
    private_bytes: Final[bytes]

class Bat(Table):
    syntax_indicator: Final[int]
    context_id: Final[int]
    version_number: Final[int]
    section_number: Final[int]
    last_section_number: Final[int]
    current_next_indicator: Final[int]
    crc32: Final[int]
    stream_infos: Final[tuple[_Bat_stream_infos, ...]]
    descriptors: Final[tuple[Descriptor, ...]]
    ca_descriptors: Final[tuple[_Bat_ca_descriptors, ...]]

class Cat(Table):
    syntax_indicator: Final[int]
    context_id: Final[int]
    version_number: Final[int]
    section_number: Final[int]
    last_section_number: Final[int]
    current_next_indicator: Final[int]
    crc32: Final[int]
    descriptors: Final[tuple[Descriptor, ...]]

class DsmCC(Table):
    syntax_indicator: Final[int]
    context_id: Final[int]
    version_number: Final[int]
    section_number: Final[int]
    last_section_number: Final[int]
    current_next_indicator: Final[int]
    crc32: Final[int]
    data: Final[bytes]

class _Eit_event_infos(Record):
    event_id: Final[int]
    running_status: Final[int]
    free_CA_mode: Final[int]
    descriptors_length: Final[int]
    start_time: Final[datetime | None]
    duration: Final[timedelta | None]
    descriptors: Final[tuple[Descriptor, ...]]

class Eit(Table):
    syntax_indicator: Final[int]
    context_id: Final[int]
    version_number: Final[int]
    section_number: Final[int]
    last_section_number: Final[int]
    current_next_indicator: Final[int]
    crc32: Final[int]
    transport_stream_id: Final[int]
    original_network_id: Final[int]
    segment_last_section_number: Final[int]
    last_table_id: Final[int]
    event_infos: Final[tuple[_Eit_event_infos, ...]]

class _Nit_stream_infos(Record):
    stream_id: Final[int]
    network_id: Final[int]
    descriptors: Final[tuple[Descriptor, ...]]

class _Nit_ca_descriptors(Record):
    sys_id: Final[int]
    pid: Final[int]
    private_bytes: Final[bytes]

class Nit(Table):
    syntax_indicator: Final[int]
    context_id: Final[int]
    version_number: Final[int]
    section_number: Final[int]
    last_section_number: Final[int]
    current_next_indicator: Final[int]
    crc32: Final[int]
    stream_infos: Final[tuple[_Nit_stream_infos, ...]]
    descriptors: Final[tuple[Descriptor, ...]]
    ca_descriptors: Final[tuple[_Nit_ca_descriptors, ...]]

class _Pat_program_infos(Record):
    program_number: Final[int]
    program_map_pid: Final[int]

class Pat(Table):
    syntax_indicator: Final[int]
    context_id: Final[int]
    version_number: Final[int]
    section_number: Final[int]
    last_section_number: Final[int]
    current_next_indicator: Final[int]
    crc32: Final[int]
    program_infos: Final[tuple[_Pat_program_infos, ...]]

class _Pmt_stream_infos(Record):
    stream_type: Final[int]
    elementary_pid: Final[int]
    es_info_length: Final[int]
    descriptors: Final[tuple[Descriptor, ...]]

class Pmt(Table):
    syntax_indicator: Final[int]
    context_id: Final[int]
    version_number: Final[int]
    section_number: Final[int]
    last_section_number: Final[int]
    current_next_indicator: Final[int]
    crc32: Final[int]
    pcr_pid: Final[int]
    stream_infos: Final[tuple[_Pmt_stream_infos, ...]]
    descriptors: Final[tuple[Descriptor, ...]]

class _Rst_status_infos(Record):
    transport_stream_id: Final[int]
    original_network_id: Final[int]
    service_id: Final[int]
    event_id: Final[int]
    running_status: Final[int]

class Rst(Table):
    status_infos: Final[tuple[_Rst_status_infos, ...]]

class _Sdt_service_infos(Record):
    service_id: Final[int]
    EIT_schedule_flag: Final[int]
    EIT_present_following_flag: Final[int]
    running_status: Final[int]
    free_CA_mode: Final[int]
    descriptors: Final[tuple[Descriptor, ...]]

class Sdt(Table):
    syntax_indicator: Final[int]
    context_id: Final[int]
    version_number: Final[int]
    section_number: Final[int]
    last_section_number: Final[int]
    current_next_indicator: Final[int]
    crc32: Final[int]
    original_network_id: Final[int]
    service_infos: Final[tuple[_Sdt_service_infos, ...]]

class Tdt(Table):
    UTC_time: Final[datetime | None]

class Tot(Table):
    UTC_time: Final[datetime | None]
    crc32: Final[int]
    descriptors: Final[tuple[Descriptor, ...]]
