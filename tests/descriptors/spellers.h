// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The members of every class and record as the case files write them. They stand in the namespace of their
// arguments, where `spelled` finds them.
#pragma once

#include <sivane/descriptors/descriptor_set.h>

#include "spell.h"

namespace sivane {

// The members are those of `d`, an object of the class.
#define SIVANE_SPELL(Class, ...) \
  inline std::string spell(Class const& d) { return testing::members(__VA_ARGS__); }

SIVANE_SPELL(DescriptorGeneral, d.data)

// tags 0x02 to 0x14

SIVANE_SPELL(DescriptorVideoStream, d.multiple_frame_rate_flag, d.frame_rate_code, d.MPEG_1_only_flag,
             d.constrained_parameter_flag, d.still_picture_flag, d.profile_and_level_indication,
             d.chroma_format, d.frame_rate_extension_flag, d.reserved)
SIVANE_SPELL(DescriptorAudioStream, d.free_format_flag, d.ID, d.layer, d.variable_rate_audio_indicator)
SIVANE_SPELL(DescriptorHierarchy, d.hierarchy_type, d.hierarchy_layer_index, d.hierarchy_embedded_layer_index,
             d.hierarchy_channel)
SIVANE_SPELL(DescriptorRegistration, d.format_identifier, d.additional_identification_info)
SIVANE_SPELL(DescriptorDataStreamAlignment, d.alignment_type)
SIVANE_SPELL(DescriptorTargetBackgroundGrid, d.horizontal_size, d.vertical_size, d.aspect_ratio_information)
SIVANE_SPELL(DescriptorVideoWindow, d.horizonal_offset, d.vertical_offset, d.window_priority)
SIVANE_SPELL(DescriptorCa, d.sys_id, d.pid, d.private_bytes)
SIVANE_SPELL(DescriptorISO639Language::ISO639Lang, d.ISO_639_language_code, d.audio_type)
SIVANE_SPELL(DescriptorISO639Language, d.language_vector)
SIVANE_SPELL(DescriptorSystemClock, d.external_clock_reference_indicator, d.clock_acuracy_integer,
             d.clock_acuracy_exponent)
SIVANE_SPELL(DescriptorMultiplexBufferUtilization, d.bound_valid_flag, d.LTW_offset_lower_bound,
             d.LTW_offset_upper_bound)
SIVANE_SPELL(DescriptorCopyright, d.copyright_identifier, d.additional_copyright_info)
SIVANE_SPELL(DescriptorMaximumBitrate, d.maximum_bitrate)
SIVANE_SPELL(DescriptorPrivateDataIndicator, d.private_data_indicator)
SIVANE_SPELL(DescriptorSmoothingBuffer, d.sb_leak_rate, d.sb_size)
SIVANE_SPELL(DescriptorSTD, d.leak_valid_flag)
SIVANE_SPELL(DescriptorIBP, d.closed_gop_flag, d.identical_gop_flag, d.max_gop_length)
SIVANE_SPELL(DescriptorCarouselId, d.carousel_id, d.formatid, d.private_data_byte, d.moduleversion,
             d.moduleid, d.blocksize, d.modulesize, d.compressionmethod, d.originalsize, d.timeout,
             d.objectkeylength, d.objectkeydata)
SIVANE_SPELL(DescriptorAssociationTag, d.association_tag, d.use, d.selector_length, d.transaction_id,
             d.timeout, d.selector_byte, d.private_data_byte)

// networks

SIVANE_SPELL(DescriptorNetworkName, d.network_name)
SIVANE_SPELL(DescriptorServiceList::ServiceList, d.service_id, d.service_type)
SIVANE_SPELL(DescriptorServiceList, d.servicelist)
SIVANE_SPELL(DescriptorStuffing, d.stuffing_byte)
SIVANE_SPELL(DescriptorSatelliteDeliverySystem, d.frequency, d.orbital_position, d.west_east_flag,
             d.polarization, d.modulation, d.symbol_rate, d.FEC_inner)
SIVANE_SPELL(DescriptorCableDeliverySystem, d.frequency, d.FEC_outer, d.modulation, d.symbol_rate,
             d.FEC_inner)
SIVANE_SPELL(DescriptorTerrestrialDeliverySystem, d.centre_frequency, d.bandwidth, d.constellation,
             d.hierarchy_information, d.code_rate_HP_stream, d.code_rate_LP_stream, d.guard_interval,
             d.transmission_mode, d.other_frequency_flag)
SIVANE_SPELL(DescriptorFrequencyList, d.coding_type, d.centre_frequency)
SIVANE_SPELL(MultilingualNameInfo, d.ISO_639_language_code, d.text_len, d.name)
SIVANE_SPELL(DescriptorMultilingualNetworkName, d.nameinfo)

// services

SIVANE_SPELL(DescriptorBouquetName, d.bouquet_name)
SIVANE_SPELL(DescriptorService, d.service_type, d.provider_name, d.service_name)
SIVANE_SPELL(DescriptorCountryAvailability, d.country_availability_flag, d.country_code)
SIVANE_SPELL(DescriptorLinkage, d.transport_stream_id, d.original_network_id, d.service_id, d.linkage_type,
             d.private_data_byte)
SIVANE_SPELL(DescriptorNVODReference::service, d.transport_stream_id, d.original_network_id, d.service_id)
SIVANE_SPELL(DescriptorNVODReference, d.service_list)
SIVANE_SPELL(DescriptorTimeShiftedService, d.reference_service_id)
SIVANE_SPELL(DescriptorMosiac::BouquetInfo, d.bouquet_id)
SIVANE_SPELL(DescriptorMosiac::ServiceInfo, d.original_network_id, d.transport_stream_id, d.service_id)
SIVANE_SPELL(DescriptorMosiac::EventInfo, d.original_network_id, d.transport_stream_id, d.service_id,
             d.event_id)
SIVANE_SPELL(DescriptorMosiac::CellInfo, d.logical_cell_id, d.logical_call_presentation_info,
             d.elementary_cell_field_length, d.elementary_cell_id, d.cell_linkage_info, d.bouquetinfo,
             d.serviceinfo, d.serviceinfo2, d.eventinfo)
SIVANE_SPELL(DescriptorMosiac, d.mosiac_entry_point, d.number_of_horizontal_elementary_cells,
             d.number_of_vertical_elementary_cells, d.cellinfo)
SIVANE_SPELL(DescriptorCAIdentifier::CAIdentifierID, d.CA_system_id)
SIVANE_SPELL(DescriptorCAIdentifier, d.CA_system_id)
SIVANE_SPELL(DescriptorTelephone, d.foriegn_availability, d.connection_type, d.country_prefix_length,
             d.international_area_code_length, d.operator_code_length, d.national_area_code_length,
             d.core_number_length, d.country_prefix_char, d.international_area_code_char,
             d.operator_code_char, d.national_area_code_char, d.core_number_char)
SIVANE_SPELL(DescriptorMultilingualBouquetName, d.nameinfo)
SIVANE_SPELL(DescriptorMultilingualServiceName::MultilingualServiceNameInfo, d.ISO_639_language_code,
             d.provider_len, d.providername, d.service_len, d.servicename)
SIVANE_SPELL(DescriptorMultilingualServiceName, d.servicenameinfo)
SIVANE_SPELL(DescriptorPrivateDataSpecifier, d.private_data_specifier)
SIVANE_SPELL(DescriptorServiceMove, d.new_original_network_id, d.new_transport_stream_id, d.new_service_id)
inline std::string spell(DescriptorServiceIdentifier const&) { return "-"; }
SIVANE_SPELL(DescriptorServiceAvailability, d.availability_flag, d.cell_id)

// events

SIVANE_SPELL(DescriptorShortEvent, d.language_code, d.event_name, d.text)
SIVANE_SPELL(DescriptorExtendedEvent::Item, d.description, d.item)
SIVANE_SPELL(DescriptorExtendedEvent, d.descriptor_number, d.last_descriptor_number, d.language_code, d.text,
             d.items)
SIVANE_SPELL(DescriptorTimeShiftedEvent, d.reference_service_id, d.reference_event_id)
SIVANE_SPELL(DescriptorComponent, d.stream_content, d.component_type, d.component_tag, d.language_code,
             d.text)
SIVANE_SPELL(DescriptorContent::Content, d.content_nibble_level1, d.content_nibble_level2, d.user_nibble1,
             d.user_nibble2)
SIVANE_SPELL(DescriptorContent, d.contents)
SIVANE_SPELL(DescriptorParentalRating::RatingInfo, d.country_code, d.rating)
SIVANE_SPELL(DescriptorParentalRating, d.ratinginfo)
SIVANE_SPELL(TimeOffset, d.hour, d.minute)
SIVANE_SPELL(DescriptorLocalTimeOffset::LocalTime, d.country_code, d.country_region_id,
             d.local_time_offset_polarity, d.local_time_offset, d.time_of_change.get_date_as_text(),
             d.next_time_offset)
SIVANE_SPELL(DescriptorLocalTimeOffset, d.localtime)
SIVANE_SPELL(DescriptorPDC, d.programme_identification_label)
SIVANE_SPELL(DescriptorMultilingualComponent, d.component_tag, d.nameinfo)

// streams

SIVANE_SPELL(DescriptorStreamIdentifier, d.component_tag)
SIVANE_SPELL(DescriptorTeletext::TeletextItem, d.language_code, d.teletext_type, d.teletext_magazine_number,
             d.teletext_page_number)
SIVANE_SPELL(DescriptorTeletext, d.teletextitems)
SIVANE_SPELL(DescriptorVBITeletext::VBITeleTextData, d.ISO_639_language_code, d.teletext_type,
             d.teletext_magazine_number, d.teletext_page_number)
SIVANE_SPELL(DescriptorVBITeletext, d.vbiteletextdata)
SIVANE_SPELL(DescriptorSubtitling::SubtitlingInfo, d.ISO_639_language_code, d.subtitling_type,
             d.composition_page_id, d.antcillary_page_id)
SIVANE_SPELL(DescriptorSubtitling, d.subtitlinginfo)
SIVANE_SPELL(DescriptorVBIData::VBIServiceData, d.data_service_id, d.data_service_descriptor_length, d.data)
SIVANE_SPELL(DescriptorVBIData, d.vbiservicedata)
SIVANE_SPELL(DescriptorAC3, d.component_type_flag, d.bsid_flag, d.mainid_flag, d.asvc_flag, d.AC_3_type,
             d.bsid, d.mainid, d.asvc, d.additional_info)
SIVANE_SPELL(DescriptorAncillaryData, d.ancillary_data_identifier)
SIVANE_SPELL(DescriptorShortSmoothingBuffer, d.sb_size, d.sb_leak_rate, d.DVB_reserved)
inline std::string spell(DescriptorPartialTransportStream const&) { return "-"; }
SIVANE_SPELL(DescriptorAdaptationFieldData, d.adaptation_field_data_identifier)
SIVANE_SPELL(DescriptorDSNG, d.DSNG_data)
SIVANE_SPELL(DescriptorTransportStream, d.transport_stream_data)

// cells

SIVANE_SPELL(DescriptorCellList::CellListData::SubCellInfo, d.cell_id_extension, d.cell_latitude,
             d.cell_longitude, d.cell_extend_of_latitude, d.cell_extend_of_longitude)
SIVANE_SPELL(DescriptorCellList::CellListData, d.cell_id, d.cell_latitude, d.cell_longitude,
             d.cell_extend_of_latitude, d.cell_extend_of_longitude, d.subcell_info_length, d.sub_cell_info)
SIVANE_SPELL(DescriptorCellList, d.cell_list_data)
SIVANE_SPELL(DescriptorCellFrequncyLink::CellFrequencyLinkData::SubCellInfo, d.cell_id_extension,
             d.transposer_frequency)
SIVANE_SPELL(DescriptorCellFrequncyLink::CellFrequencyLinkData, d.cell_id, d.frequency,
             d.sub_cell_info_length, d.sub_cell_info)
SIVANE_SPELL(DescriptorCellFrequncyLink, d.cell_frequency_link_data)
SIVANE_SPELL(DescriptorAnnouncementSupport::AnnouncementSupportData, d.announcement_type, d.reference_type,
             d.original_network_id, d.transport_stream_id, d.service_id, d.component_tag)
SIVANE_SPELL(DescriptorAnnouncementSupport, d.announcement_support_indicator, d.announcement_support_data)
SIVANE_SPELL(DescriptorApplicationSignalling::ApplicationInfo, d.application_type, d.AIT_version_number)
SIVANE_SPELL(DescriptorApplicationSignalling, d.application_info)
SIVANE_SPELL(DescriptorDataBroadcast, d.data_broadcast_id, d.component_tag, d.selector_length,
             d.language_code, d.textlength, d.text, d.selector_bytes)
SIVANE_SPELL(DescriptorDataBroadcastId, d.data_broadcast_id, d.id_selector_byte)

}  // namespace sivane
