# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
#
# Made by python/stubs/make_stubs.py. The classes of records are in the stubs alone.
from datetime import datetime, timedelta
from typing import Final

from ._sivane import Descriptor, Record, Table

class DescriptorAAC(Descriptor):
    profile_and_level: Final[int]
    has_flags: Final[bool]
    AAC_type_flag: Final[bool]
    SAOC_DE_flag: Final[bool]
    AAC_type: Final[int]
    additional_info: Final[bytes]

class DescriptorAC4(Descriptor):
    ac4_config_flag: Final[bool]
    ac4_toc_flag: Final[bool]
    ac4_dialog_enhancement_enabled: Final[bool]
    ac4_channel_mode: Final[int]
    ac4_dsi_byte: Final[bytes]
    additional_info: Final[bytes]

class DescriptorAVCTimingAndHRD(Descriptor):
    hrd_management_valid_flag: Final[bool]
    picture_and_timing_info_present: Final[bool]
    is_90kHz: Final[bool]
    N: Final[int]
    K: Final[int]
    num_units_in_tick: Final[int]
    fixed_frame_rate_flag: Final[bool]
    temporal_poc_flag: Final[bool]
    picture_to_display_conversion_flag: Final[bool]

class DescriptorAVCVideo(Descriptor):
    profile_idc: Final[int]
    constraint_set0_flag: Final[bool]
    constraint_set1_flag: Final[bool]
    constraint_set2_flag: Final[bool]
    constraint_set3_flag: Final[bool]
    constraint_set4_flag: Final[bool]
    constraint_set5_flag: Final[bool]
    AVC_compatible_flags: Final[int]
    level_idc: Final[int]
    AVC_still_present: Final[bool]
    AVC_24_hour_picture_flag: Final[bool]
    Frame_Packing_SEI_not_present_flag: Final[bool]

class _DescriptorAudioPreselection_preselections(Record):
    preselection_id: Final[int]
    audio_rendering_indication: Final[int]
    audio_description: Final[bool]
    spoken_subtitles: Final[bool]
    dialogue_enhancement: Final[bool]
    interactivity_enabled: Final[bool]
    language_code_present: Final[bool]
    text_label_present: Final[bool]
    multi_stream_info_present: Final[bool]
    future_extension: Final[bool]
    ISO_639_language_code: Final[str]
    message_id: Final[int]
    component_tag: Final[bytes]
    extension_byte: Final[bytes]

class DescriptorAudioPreselection(Descriptor):
    preselections: Final[tuple[_DescriptorAudioPreselection_preselections, ...]]

class DescriptorC2DeliverySystem(Descriptor):
    plp_id: Final[int]
    data_slice_id: Final[int]
    C2_System_tuning_frequency: Final[int]
    C2_System_tuning_frequency_type: Final[int]
    active_OFDM_symbol_duration: Final[int]
    guard_interval: Final[int]

class _DescriptorContentIdentifier_crids(Record):
    crid_type: Final[int]
    crid_location: Final[int]
    crid: Final[str]
    crid_ref: Final[int]

class DescriptorContentIdentifier(Descriptor):
    crids: Final[tuple[_DescriptorContentIdentifier_crids, ...]]

class DescriptorContentLabeling(Descriptor):
    metadata_application_format: Final[int]
    metadata_application_format_identifier: Final[int]
    content_reference_id_record_flag: Final[bool]
    content_time_base_indicator: Final[int]
    content_reference_id: Final[bytes]
    content_time_base_value: Final[float]
    metadata_time_base_value: Final[float]
    contentId: Final[int]
    time_base_association_data: Final[bytes]
    private_data_byte: Final[bytes]

class DescriptorDTS(Descriptor):
    sample_rate_code: Final[int]
    bit_rate_code: Final[int]
    nblks: Final[int]
    fsize: Final[int]
    surround_mode: Final[int]
    lfe_flag: Final[bool]
    extended_surround_flag: Final[int]
    additional_info: Final[bytes]

class DescriptorDefaultAuthority(Descriptor):
    default_authority: Final[str]

class DescriptorECMRepetitionRate(Descriptor):
    CA_system_ID: Final[int]
    ECM_repetition_rate: Final[int]
    private_data_byte: Final[bytes]

class DescriptorEnhancedAC3(Descriptor):
    component_type_flag: Final[bool]
    bsid_flag: Final[bool]
    mainid_flag: Final[bool]
    asvc_flag: Final[bool]
    mixinfoexists: Final[bool]
    substream1_flag: Final[bool]
    substream2_flag: Final[bool]
    substream3_flag: Final[bool]
    component_type: Final[int]
    bsid: Final[int]
    mainid: Final[int]
    asvc: Final[int]
    substream1: Final[int]
    substream2: Final[int]
    substream3: Final[int]
    additional_info: Final[bytes]

class DescriptorFTAContentManagement(Descriptor):
    user_defined: Final[bool]
    do_not_scramble: Final[bool]
    control_remote_access_over_internet: Final[int]
    do_not_apply_revocation: Final[bool]

class _DescriptorHDSimulcastLogicalChannel_services(Record):
    service_id: Final[int]
    visible_service_flag: Final[bool]
    logical_channel_number: Final[int]

class DescriptorHDSimulcastLogicalChannel(Descriptor):
    services: Final[tuple[_DescriptorHDSimulcastLogicalChannel_services, ...]]

class DescriptorHEVCVideo(Descriptor):
    profile_space: Final[int]
    tier_flag: Final[bool]
    profile_idc: Final[int]
    profile_compatibility_indication: Final[int]
    progressive_source_flag: Final[bool]
    interlaced_source_flag: Final[bool]
    non_packed_constraint_flag: Final[bool]
    frame_only_constraint_flag: Final[bool]
    copied_44bits_high: Final[int]
    copied_44bits_low: Final[int]
    level_idc: Final[int]
    temporal_layer_subset_flag: Final[bool]
    HEVC_still_present_flag: Final[bool]
    HEVC_24hr_picture_present_flag: Final[bool]
    sub_pic_hrd_params_not_present_flag: Final[bool]
    HDR_WCG_idc: Final[int]
    temporal_layers: Final[bytes]

class DescriptorImageIcon(Descriptor):
    descriptor_number: Final[int]
    last_descriptor_number: Final[int]
    icon_id: Final[int]
    icon_transport_mode: Final[int]
    position_flag: Final[bool]
    coordinate_system: Final[int]
    icon_horizontal_origin: Final[int]
    icon_vertical_origin: Final[int]
    icon_type: Final[str]
    url: Final[str]
    icon_data_byte: Final[bytes]

class DescriptorJ2KVideo(Descriptor):
    extended_capability_flag: Final[bool]
    profile_and_level: Final[int]
    horizontal_size: Final[int]
    vertical_size: Final[int]
    max_bit_rate: Final[int]
    max_buffer_size: Final[int]
    DEN_frame_rate: Final[int]
    NUM_frame_rate: Final[int]
    color_specification: Final[int]
    still_mode: Final[bool]
    interlaced_video: Final[bool]
    private_data_byte: Final[bytes]

class _DescriptorLogicalChannel_services(Record):
    service_id: Final[int]
    visible_service_flag: Final[bool]
    logical_channel_number: Final[int]

class DescriptorLogicalChannel(Descriptor):
    services: Final[tuple[_DescriptorLogicalChannel_services, ...]]

class DescriptorMPEG2AACAudio(Descriptor):
    MPEG_2_AAC_profile: Final[int]
    MPEG_2_AAC_channel_configuration: Final[int]
    MPEG_2_AAC_additional_information: Final[int]

class DescriptorMPEG4Audio(Descriptor):
    MPEG_4_audio_profile_and_level: Final[int]

class DescriptorMPEG4Video(Descriptor):
    MPEG_4_visual_profile_and_level: Final[int]

class DescriptorMPEGExtension(Descriptor):
    extension_descriptor_tag: Final[int]
    data: Final[bytes]

class DescriptorMessage(Descriptor):
    message_id: Final[int]
    ISO_639_language_code: Final[str]
    text: Final[str]

class DescriptorMetadata(Descriptor):
    metadata_application_format: Final[int]
    metadata_application_format_identifier: Final[int]
    metadata_format: Final[int]
    metadata_format_identifier: Final[int]
    metadata_service_id: Final[int]
    decoder_config_flags: Final[int]
    DSM_CC_flag: Final[bool]
    service_identification: Final[bytes]
    decoder_config: Final[bytes]
    dec_config_identification: Final[bytes]
    decoder_config_metadata_service_id: Final[int]
    reserved_data: Final[bytes]
    private_data_byte: Final[bytes]

class DescriptorMetadataPointer(Descriptor):
    metadata_application_format: Final[int]
    metadata_application_format_identifier: Final[int]
    metadata_format: Final[int]
    metadata_format_identifier: Final[int]
    metadata_service_id: Final[int]
    metadata_locator_record_flag: Final[bool]
    MPEG_carriage_flags: Final[int]
    metadata_locator_record: Final[bytes]
    program_number: Final[int]
    transport_stream_location: Final[int]
    transport_stream_id: Final[int]
    private_data_byte: Final[bytes]

class _DescriptorNetworkChangeNotify_cells_changes(Record):
    network_change_id: Final[int]
    network_change_version: Final[int]
    start_time_of_change: Final[datetime | None]
    change_duration: Final[timedelta | None]
    receiver_category: Final[int]
    invariant_ts_present: Final[bool]
    change_type: Final[int]
    message_id: Final[int]
    invariant_ts_tsid: Final[int]
    invariant_ts_onid: Final[int]

class _DescriptorNetworkChangeNotify_cells(Record):
    cell_id: Final[int]
    changes: Final[tuple[_DescriptorNetworkChangeNotify_cells_changes, ...]]

class DescriptorNetworkChangeNotify(Descriptor):
    cells: Final[tuple[_DescriptorNetworkChangeNotify_cells, ...]]

class _DescriptorNorDigChannelLists_channel_lists_services(Record):
    service_id: Final[int]
    visible_service_flag: Final[bool]
    logical_channel_number: Final[int]

class _DescriptorNorDigChannelLists_channel_lists(Record):
    channel_list_id: Final[int]
    channel_list_name: Final[str]
    country_code: Final[str]
    services: Final[tuple[_DescriptorNorDigChannelLists_channel_lists_services, ...]]

class DescriptorNorDigChannelLists(Descriptor):
    channel_lists: Final[tuple[_DescriptorNorDigChannelLists_channel_lists, ...]]

class _DescriptorNorDigLogicalChannel_services(Record):
    service_id: Final[int]
    visible_service_flag: Final[bool]
    logical_channel_number: Final[int]

class DescriptorNorDigLogicalChannel(Descriptor):
    services: Final[tuple[_DescriptorNorDigLogicalChannel_services, ...]]

class DescriptorRelatedContent(Descriptor): ...

class DescriptorS2SatelliteDeliverySystem(Descriptor):
    scrambling_sequence_selector: Final[bool]
    multiple_input_stream_flag: Final[bool]
    not_timeslice_flag: Final[bool]
    TS_GS_mode: Final[int]
    scrambling_sequence_index: Final[int]
    input_stream_identifier: Final[int]
    timeslice_number: Final[int]

class DescriptorS2XSatelliteDeliverySystem(Descriptor):
    receiver_profiles: Final[int]
    S2X_mode: Final[int]
    scrambling_sequence_selector: Final[bool]
    TS_GS_S2X_mode: Final[int]
    scrambling_sequence_index: Final[int]
    frequency: Final[float]
    orbital_position: Final[float]
    west_east_flag: Final[int]
    polarization: Final[int]
    multiple_input_stream_flag: Final[bool]
    roll_off: Final[int]
    symbol_rate: Final[float]
    input_stream_identifier: Final[int]
    timeslice_number: Final[int]
    private_data_byte: Final[bytes]

class _DescriptorSHDeliverySystem_modulations(Record):
    modulation_type: Final[bool]
    interleaver_presence: Final[bool]
    interleaver_type: Final[bool]
    polarization: Final[int]
    roll_off: Final[int]
    modulation_mode: Final[int]
    code_rate: Final[int]
    symbol_rate: Final[int]
    bandwidth: Final[int]
    priority: Final[int]
    constellation_and_hierarchy: Final[int]
    guard_interval: Final[int]
    transmission_mode: Final[int]
    common_frequency: Final[bool]
    common_multiplier: Final[int]
    nof_late_taps: Final[int]
    nof_slices: Final[int]
    slice_distance: Final[int]
    non_late_increments: Final[int]

class DescriptorSHDeliverySystem(Descriptor):
    diversity_mode: Final[int]
    modulations: Final[tuple[_DescriptorSHDeliverySystem_modulations, ...]]

class DescriptorScrambling(Descriptor):
    scrambling_mode: Final[int]

class DescriptorServiceRelocated(Descriptor):
    old_original_network_id: Final[int]
    old_transport_stream_id: Final[int]
    old_service_id: Final[int]

class DescriptorSupplementaryAudio(Descriptor):
    mix_type: Final[bool]
    editorial_classification: Final[int]
    language_code_present: Final[bool]
    ISO_639_language_code: Final[str]
    private_data_byte: Final[bytes]

class _DescriptorT2DeliverySystem_cells_subcells(Record):
    cell_id_extension: Final[int]
    transposer_frequency: Final[int]

class _DescriptorT2DeliverySystem_cells(Record):
    cell_id: Final[int]
    centre_frequency: Final[tuple[int, ...]]
    subcells: Final[tuple[_DescriptorT2DeliverySystem_cells_subcells, ...]]

class DescriptorT2DeliverySystem(Descriptor):
    plp_id: Final[int]
    T2_system_id: Final[int]
    has_parameters: Final[bool]
    SISO_MISO: Final[int]
    bandwidth: Final[int]
    guard_interval: Final[int]
    transmission_mode: Final[int]
    other_frequency_flag: Final[bool]
    tfs_flag: Final[bool]
    cells: Final[tuple[_DescriptorT2DeliverySystem_cells, ...]]

class DescriptorT2MI(Descriptor):
    t2mi_stream_id: Final[int]
    num_t2mi_streams_minus_one: Final[int]
    pcr_iscr_common_clock_flag: Final[bool]
    reserved: Final[bytes]

class DescriptorTTMLSubtitling(Descriptor):
    ISO_639_language_code: Final[str]
    subtitle_purpose: Final[int]
    TTS_suitability: Final[int]
    essential_font_usage_flag: Final[bool]
    qualifier_present_flag: Final[bool]
    dvb_ttml_profile: Final[bytes]
    qualifier: Final[int]
    essential_font_id: Final[bytes]
    service_name: Final[str]

class _DescriptorTVAId_ids(Record):
    TVA_id: Final[int]
    running_status: Final[int]

class DescriptorTVAId(Descriptor):
    ids: Final[tuple[_DescriptorTVAId_ids, ...]]

class _DescriptorTargetRegion_regions(Record):
    country_code_flag: Final[bool]
    region_depth: Final[int]
    country_code: Final[str]
    primary_region_code: Final[int]
    secondary_region_code: Final[int]
    tertiary_region_code: Final[int]

class DescriptorTargetRegion(Descriptor):
    country_code: Final[str]
    regions: Final[tuple[_DescriptorTargetRegion_regions, ...]]

class _DescriptorTargetRegionName_regions(Record):
    region_depth: Final[int]
    region_name: Final[str]
    primary_region_code: Final[int]
    secondary_region_code: Final[int]
    tertiary_region_code: Final[int]

class DescriptorTargetRegionName(Descriptor):
    country_code: Final[str]
    ISO_639_language_code: Final[str]
    regions: Final[tuple[_DescriptorTargetRegionName_regions, ...]]

class DescriptorTimeSliceFecIdentifier(Descriptor):
    time_slicing: Final[bool]
    mpe_fec: Final[int]
    frame_size: Final[int]
    max_burst_duration: Final[int]
    max_average_rate: Final[int]
    time_slice_fec_id: Final[int]
    id_selector_byte: Final[bytes]

class DescriptorURILinkage(Descriptor):
    uri_linkage_type: Final[int]
    uri: Final[str]
    min_polling_interval: Final[int]
    private_data_byte: Final[bytes]

class DescriptorXAITLocation(Descriptor):
    xait_original_network_id: Final[int]
    xait_service_id: Final[int]
    xait_version_number: Final[int]
    xait_update_policy: Final[int]
