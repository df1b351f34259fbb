# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
#
# Made by python/stubs/make_stubs.py. The classes of records are in the stubs alone.
from datetime import datetime, timedelta
from typing import Final

from ._sivane import Descriptor, Record, Table

class DescriptorAC3(Descriptor):
    component_type_flag: Final[int]
    bsid_flag: Final[int]
    mainid_flag: Final[int]
    asvc_flag: Final[int]
    AC_3_type: Final[int]
    bsid: Final[int]
    mainid: Final[int]
    asvc: Final[int]
    additional_info: Final[bytes]

class DescriptorAdaptationFieldData(Descriptor):
    adaptation_field_data_identifier: Final[int]

class DescriptorAncillaryData(Descriptor):
    ancillary_data_identifier: Final[int]

class _DescriptorAnnouncementSupport_announcement_support_data(Record):
    announcement_type: Final[int]
    reference_type: Final[int]
    original_network_id: Final[int]
    transport_stream_id: Final[int]
    service_id: Final[int]
    component_tag: Final[int]

class DescriptorAnnouncementSupport(Descriptor):
    announcement_support_indicator: Final[int]
    announcement_support_data: Final[tuple[_DescriptorAnnouncementSupport_announcement_support_data, ...]]

class _DescriptorApplicationSignalling_application_info(Record):
    application_type: Final[int]
    AIT_version_number: Final[int]

class DescriptorApplicationSignalling(Descriptor):
    application_info: Final[tuple[_DescriptorApplicationSignalling_application_info, ...]]

class DescriptorAssociationTag(Descriptor):
    association_tag: Final[int]
    use: Final[int]
    selector_length: Final[int]
    transaction_id: Final[int]
    timeout: Final[int]
    selector_byte: Final[bytes]
    private_data_byte: Final[bytes]

class DescriptorAudioStream(Descriptor):
    free_format_flag: Final[int]
    ID: Final[int]
    layer: Final[int]
    variable_rate_audio_indicator: Final[int]

class DescriptorBouquetName(Descriptor):
    bouquet_name: Final[str]

class _DescriptorCAIdentifier_CA_system_id(Record):
    CA_system_id: Final[int]

class DescriptorCAIdentifier(Descriptor):
    CA_system_id: Final[tuple[_DescriptorCAIdentifier_CA_system_id, ...]]

class DescriptorCa(Descriptor):
    sys_id: Final[int]
    pid: Final[int]
    private_bytes: Final[bytes]

class DescriptorCableDeliverySystem(Descriptor):
    frequency: Final[float]
    FEC_outer: Final[int]
    modulation: Final[int]
    symbol_rate: Final[float]
    FEC_inner: Final[int]

class DescriptorCarouselId(Descriptor):
    carousel_id: Final[int]
    formatid: Final[int]
    moduleversion: Final[int]
    moduleid: Final[int]
    blocksize: Final[int]
    modulesize: Final[int]
    compressionmethod: Final[int]
    originalsize: Final[int]
    timeout: Final[int]
    objectkeylength: Final[int]
    private_data_byte: Final[bytes]
    objectkeydata: Final[str]

class _DescriptorCellFrequncyLink_cell_frequency_link_data_sub_cell_info(Record):
    cell_id_extension: Final[int]
    transposer_frequency: Final[int]

class _DescriptorCellFrequncyLink_cell_frequency_link_data(Record):
    cell_id: Final[int]
    frequency: Final[int]
    sub_cell_info_length: Final[int]
    sub_cell_info: Final[tuple[_DescriptorCellFrequncyLink_cell_frequency_link_data_sub_cell_info, ...]]

class DescriptorCellFrequncyLink(Descriptor):
    cell_frequency_link_data: Final[tuple[_DescriptorCellFrequncyLink_cell_frequency_link_data, ...]]

class _DescriptorCellList_cell_list_data_sub_cell_info(Record):
    cell_id_extension: Final[int]
    cell_latitude: Final[int]
    cell_longitude: Final[int]
    cell_extend_of_latitude: Final[int]
    cell_extend_of_longitude: Final[int]

class _DescriptorCellList_cell_list_data(Record):
    cell_id: Final[int]
    cell_latitude: Final[int]
    cell_longitude: Final[int]
    cell_extend_of_latitude: Final[int]
    cell_extend_of_longitude: Final[int]
    subcell_info_length: Final[int]
    sub_cell_info: Final[tuple[_DescriptorCellList_cell_list_data_sub_cell_info, ...]]

class DescriptorCellList(Descriptor):
    cell_list_data: Final[tuple[_DescriptorCellList_cell_list_data, ...]]

class DescriptorComponent(Descriptor):
    stream_content_ext: Final[int]
    stream_content: Final[int]
    component_type: Final[int]
    component_tag: Final[int]
    language_code: Final[str]
    text: Final[str]

class _DescriptorContent_contents(Record):
    content_nibble_level1: Final[int]
    content_nibble_level2: Final[int]
    user_nibble1: Final[int]
    user_nibble2: Final[int]

class DescriptorContent(Descriptor):
    contents: Final[tuple[_DescriptorContent_contents, ...]]

class DescriptorCopyright(Descriptor):
    copyright_identifier: Final[int]
    additional_copyright_info: Final[bytes]

class DescriptorCountryAvailability(Descriptor):
    country_availability_flag: Final[int]
    country_code: Final[tuple[str, ...]]

class DescriptorDSNG(Descriptor):
    DSNG_data: Final[bytes]

class DescriptorDataBroadcast(Descriptor):
    data_broadcast_id: Final[int]
    component_tag: Final[int]
    selector_length: Final[int]
    language_code: Final[str]
    textlength: Final[int]
    text: Final[str]
    selector_bytes: Final[bytes]

class DescriptorDataBroadcastId(Descriptor):
    data_broadcast_id: Final[int]
    id_selector_byte: Final[bytes]

class DescriptorDataStreamAlignment(Descriptor):
    alignment_type: Final[int]

class _DescriptorExtendedEvent_items(Record):
    description: Final[str]
    item: Final[str]

class DescriptorExtendedEvent(Descriptor):
    descriptor_number: Final[int]
    last_descriptor_number: Final[int]
    language_code: Final[str]
    items: Final[tuple[_DescriptorExtendedEvent_items, ...]]
    text: Final[str]

class DescriptorFrequencyList(Descriptor):
    coding_type: Final[int]
    centre_frequency: Final[tuple[int, ...]]

class DescriptorGeneral(Descriptor):
    data: Final[bytes]

class DescriptorHierarchy(Descriptor):
    hierarchy_type: Final[int]
    hierarchy_layer_index: Final[int]
    hierarchy_embedded_layer_index: Final[int]
    hierarchy_channel: Final[int]

class DescriptorIBP(Descriptor):
    closed_gop_flag: Final[int]
    identical_gop_flag: Final[int]
    max_gop_length: Final[int]

class _DescriptorISO639Language_language_vector(Record):
    audio_type: Final[int]
    ISO_639_language_code: Final[str]

class DescriptorISO639Language(Descriptor):
    language_vector: Final[tuple[_DescriptorISO639Language_language_vector, ...]]

class DescriptorLinkage(Descriptor):
    transport_stream_id: Final[int]
    original_network_id: Final[int]
    service_id: Final[int]
    linkage_type: Final[int]
    private_data_byte: Final[bytes]

class _DescriptorLocalTimeOffset_localtime_local_time_offset(Record):
    hour: Final[int]
    minute: Final[int]

class _DescriptorLocalTimeOffset_localtime_next_time_offset(Record):
    hour: Final[int]
    minute: Final[int]

class _DescriptorLocalTimeOffset_localtime(Record):
    country_region_id: Final[int]
    local_time_offset_polarity: Final[int]
    country_code: Final[str]
    local_time_offset: Final[_DescriptorLocalTimeOffset_localtime_local_time_offset]
    time_of_change: Final[datetime | None]
    next_time_offset: Final[_DescriptorLocalTimeOffset_localtime_next_time_offset]

class DescriptorLocalTimeOffset(Descriptor):
    localtime: Final[tuple[_DescriptorLocalTimeOffset_localtime, ...]]

class DescriptorMaximumBitrate(Descriptor):
    maximum_bitrate: Final[int]

class _DescriptorMosiac_cellinfo_bouquetinfo(Record):
    bouquet_id: Final[int]

class _DescriptorMosiac_cellinfo_serviceinfo(Record):
    original_network_id: Final[int]
    transport_stream_id: Final[int]
    service_id: Final[int]

class _DescriptorMosiac_cellinfo_serviceinfo2(Record):
    original_network_id: Final[int]
    transport_stream_id: Final[int]
    service_id: Final[int]

class _DescriptorMosiac_cellinfo_eventinfo(Record):
    original_network_id: Final[int]
    transport_stream_id: Final[int]
    service_id: Final[int]
    event_id: Final[int]

class _DescriptorMosiac_cellinfo(Record):
    logical_cell_id: Final[int]
    logical_call_presentation_info: Final[int]
    elementary_cell_field_length: Final[int]
    cell_linkage_info: Final[int]
    elementary_cell_id: Final[bytes]
    bouquetinfo: Final[_DescriptorMosiac_cellinfo_bouquetinfo]
    serviceinfo: Final[_DescriptorMosiac_cellinfo_serviceinfo]
    serviceinfo2: Final[_DescriptorMosiac_cellinfo_serviceinfo2]
    eventinfo: Final[_DescriptorMosiac_cellinfo_eventinfo]

class DescriptorMosiac(Descriptor):
    mosiac_entry_point: Final[int]
    number_of_horizontal_elementary_cells: Final[int]
    number_of_vertical_elementary_cells: Final[int]
    cellinfo: Final[tuple[_DescriptorMosiac_cellinfo, ...]]

class _DescriptorMultilingualBouquetName_nameinfo(Record):
    name: Final[str]
    text_len: Final[int]
    ISO_639_language_code: Final[str]

class DescriptorMultilingualBouquetName(Descriptor):
    nameinfo: Final[tuple[_DescriptorMultilingualBouquetName_nameinfo, ...]]

class _DescriptorMultilingualComponent_nameinfo(Record):
    name: Final[str]
    text_len: Final[int]
    ISO_639_language_code: Final[str]

class DescriptorMultilingualComponent(Descriptor):
    nameinfo: Final[tuple[_DescriptorMultilingualComponent_nameinfo, ...]]
    component_tag: Final[int]

class _DescriptorMultilingualNetworkName_nameinfo(Record):
    name: Final[str]
    text_len: Final[int]
    ISO_639_language_code: Final[str]

class DescriptorMultilingualNetworkName(Descriptor):
    nameinfo: Final[tuple[_DescriptorMultilingualNetworkName_nameinfo, ...]]

class _DescriptorMultilingualServiceName_servicenameinfo(Record):
    provider_len: Final[int]
    providername: Final[str]
    service_len: Final[int]
    servicename: Final[str]
    ISO_639_language_code: Final[str]

class DescriptorMultilingualServiceName(Descriptor):
    servicenameinfo: Final[tuple[_DescriptorMultilingualServiceName_servicenameinfo, ...]]

class DescriptorMultiplexBufferUtilization(Descriptor):
    bound_valid_flag: Final[int]
    LTW_offset_lower_bound: Final[int]
    LTW_offset_upper_bound: Final[int]

class _DescriptorNVODReference_service_list(Record):
    transport_stream_id: Final[int]
    original_network_id: Final[int]
    service_id: Final[int]

class DescriptorNVODReference(Descriptor):
    service_list: Final[tuple[_DescriptorNVODReference_service_list, ...]]

class DescriptorNetworkName(Descriptor):
    network_name: Final[str]

class DescriptorPDC(Descriptor):
    programme_identification_label: Final[int]

class _DescriptorParentalRating_ratinginfo(Record):
    rating: Final[int]
    country_code: Final[str]

class DescriptorParentalRating(Descriptor):
    ratinginfo: Final[tuple[_DescriptorParentalRating_ratinginfo, ...]]

class DescriptorPartialTransportStream(Descriptor): ...

class DescriptorPrivateDataIndicator(Descriptor):
    private_data_indicator: Final[int]

class DescriptorPrivateDataSpecifier(Descriptor):
    private_data_specifier: Final[int]

class DescriptorRegistration(Descriptor):
    format_identifier: Final[int]
    additional_identification_info: Final[bytes]

class DescriptorSTD(Descriptor):
    leak_valid_flag: Final[int]

class DescriptorSatelliteDeliverySystem(Descriptor):
    frequency: Final[float]
    orbital_position: Final[float]
    west_east_flag: Final[int]
    polarization: Final[int]
    modulation: Final[int]
    symbol_rate: Final[float]
    FEC_inner: Final[int]

class DescriptorService(Descriptor):
    service_type: Final[int]
    provider_name: Final[str]
    service_name: Final[str]

class DescriptorServiceAvailability(Descriptor):
    availability_flag: Final[int]
    cell_id: Final[tuple[int, ...]]

class DescriptorServiceIdentifier(Descriptor): ...

class _DescriptorServiceList_servicelist(Record):
    service_id: Final[int]
    service_type: Final[int]

class DescriptorServiceList(Descriptor):
    servicelist: Final[tuple[_DescriptorServiceList_servicelist, ...]]

class DescriptorServiceMove(Descriptor):
    new_original_network_id: Final[int]
    new_transport_stream_id: Final[int]
    new_service_id: Final[int]

class DescriptorShortEvent(Descriptor):
    language_code: Final[str]
    event_name: Final[str]
    text: Final[str]

class DescriptorShortSmoothingBuffer(Descriptor):
    sb_size: Final[int]
    sb_leak_rate: Final[int]
    DVB_reserved: Final[bytes]

class DescriptorSmoothingBuffer(Descriptor):
    sb_leak_rate: Final[int]
    sb_size: Final[int]

class DescriptorStreamIdentifier(Descriptor):
    component_tag: Final[int]

class DescriptorStuffing(Descriptor):
    stuffing_byte: Final[bytes]

class _DescriptorSubtitling_subtitlinginfo(Record):
    subtitling_type: Final[int]
    composition_page_id: Final[int]
    antcillary_page_id: Final[int]
    ISO_639_language_code: Final[str]

class DescriptorSubtitling(Descriptor):
    subtitlinginfo: Final[tuple[_DescriptorSubtitling_subtitlinginfo, ...]]

class DescriptorSystemClock(Descriptor):
    external_clock_reference_indicator: Final[int]
    clock_acuracy_integer: Final[int]
    clock_acuracy_exponent: Final[int]

class DescriptorTargetBackgroundGrid(Descriptor):
    horizontal_size: Final[int]
    vertical_size: Final[int]
    aspect_ratio_information: Final[int]

class DescriptorTelephone(Descriptor):
    foriegn_availability: Final[int]
    connection_type: Final[int]
    country_prefix_length: Final[int]
    international_area_code_length: Final[int]
    operator_code_length: Final[int]
    national_area_code_length: Final[int]
    core_number_length: Final[int]
    country_prefix_char: Final[str]
    international_area_code_char: Final[str]
    operator_code_char: Final[str]
    national_area_code_char: Final[str]
    core_number_char: Final[str]

class _DescriptorTeletext_teletextitems(Record):
    teletext_type: Final[int]
    language_code: Final[str]
    teletext_magazine_number: Final[int]
    teletext_page_number: Final[int]

class DescriptorTeletext(Descriptor):
    teletextitems: Final[tuple[_DescriptorTeletext_teletextitems, ...]]

class DescriptorTerrestrialDeliverySystem(Descriptor):
    centre_frequency: Final[int]
    bandwidth: Final[int]
    constellation: Final[int]
    hierarchy_information: Final[int]
    code_rate_HP_stream: Final[int]
    code_rate_LP_stream: Final[int]
    guard_interval: Final[int]
    transmission_mode: Final[int]
    other_frequency_flag: Final[int]

class DescriptorTimeShiftedEvent(Descriptor):
    reference_service_id: Final[int]
    reference_event_id: Final[int]

class DescriptorTimeShiftedService(Descriptor):
    reference_service_id: Final[int]

class DescriptorTransportStream(Descriptor):
    transport_stream_data: Final[bytes]

class _DescriptorVBIData_vbiservicedata(Record):
    data_service_id: Final[int]
    data_service_descriptor_length: Final[int]
    data: Final[bytes]

class DescriptorVBIData(Descriptor):
    vbiservicedata: Final[tuple[_DescriptorVBIData_vbiservicedata, ...]]

class _DescriptorVBITeletext_vbiteletextdata(Record):
    teletext_type: Final[int]
    teletext_magazine_number: Final[int]
    teletext_page_number: Final[int]
    ISO_639_language_code: Final[str]

class DescriptorVBITeletext(Descriptor):
    vbiteletextdata: Final[tuple[_DescriptorVBITeletext_vbiteletextdata, ...]]

class DescriptorVideoStream(Descriptor):
    multiple_frame_rate_flag: Final[bool]
    frame_rate_code: Final[int]
    MPEG_1_only_flag: Final[bool]
    constrained_parameter_flag: Final[bool]
    still_picture_flag: Final[bool]
    profile_and_level_indication: Final[int]
    chroma_format: Final[int]
    frame_rate_extension_flag: Final[bool]
    reserved: Final[int]

class DescriptorVideoWindow(Descriptor):
    horizonal_offset: Final[int]
    vertical_offset: Final[int]
    window_priority: Final[int]
