// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The members of every class and record as the case files write them. They stand in the namespace of their
// arguments, where `spelled` finds them.
#pragma once

#include <sivane/descriptors/descriptor_set.h>

#include "spell.h"

namespace sivane {

// SIVANE_SPELL(class, member...)
#define SIVANE_AGAIN ()
#define SIVANE_MANY(...) SIVANE_FEW(SIVANE_FEW(SIVANE_FEW(SIVANE_FEW(__VA_ARGS__))))
#define SIVANE_FEW(...) SIVANE_TWICE(SIVANE_TWICE(SIVANE_TWICE(__VA_ARGS__)))
#define SIVANE_TWICE(...) __VA_ARGS__
#define SIVANE_OF_D(member, ...) d.member __VA_OPT__(, SIVANE_NEXT SIVANE_AGAIN(__VA_ARGS__))
#define SIVANE_NEXT() SIVANE_OF_D
#define SIVANE_SPELL(Class, ...) \
  inline std::string spell(Class const& d) { return testing::members(SIVANE_MANY(SIVANE_OF_D(__VA_ARGS__))); }

SIVANE_SPELL(DescriptorGeneral, data)

// tags 0x02 to 0x14

SIVANE_SPELL(DescriptorVideoStream, multiple_frame_rate_flag, frame_rate_code, MPEG_1_only_flag,
             constrained_parameter_flag, still_picture_flag, profile_and_level_indication, chroma_format,
             frame_rate_extension_flag, reserved)
SIVANE_SPELL(DescriptorAudioStream, free_format_flag, ID, layer, variable_rate_audio_indicator)
SIVANE_SPELL(DescriptorHierarchy, hierarchy_type, hierarchy_layer_index, hierarchy_embedded_layer_index,
             hierarchy_channel)
SIVANE_SPELL(DescriptorRegistration, format_identifier, additional_identification_info)
SIVANE_SPELL(DescriptorDataStreamAlignment, alignment_type)
SIVANE_SPELL(DescriptorTargetBackgroundGrid, horizontal_size, vertical_size, aspect_ratio_information)
SIVANE_SPELL(DescriptorVideoWindow, horizonal_offset, vertical_offset, window_priority)
SIVANE_SPELL(DescriptorCa, sys_id, pid, private_bytes)
SIVANE_SPELL(DescriptorISO639Language::ISO639Lang, ISO_639_language_code, audio_type)
SIVANE_SPELL(DescriptorISO639Language, language_vector)
SIVANE_SPELL(DescriptorSystemClock, external_clock_reference_indicator, clock_acuracy_integer,
             clock_acuracy_exponent)
SIVANE_SPELL(DescriptorMultiplexBufferUtilization, bound_valid_flag, LTW_offset_lower_bound,
             LTW_offset_upper_bound)
SIVANE_SPELL(DescriptorCopyright, copyright_identifier, additional_copyright_info)
SIVANE_SPELL(DescriptorMaximumBitrate, maximum_bitrate)
SIVANE_SPELL(DescriptorPrivateDataIndicator, private_data_indicator)
SIVANE_SPELL(DescriptorSmoothingBuffer, sb_leak_rate, sb_size)
SIVANE_SPELL(DescriptorSTD, leak_valid_flag)
SIVANE_SPELL(DescriptorIBP, closed_gop_flag, identical_gop_flag, max_gop_length)
SIVANE_SPELL(DescriptorCarouselId, carousel_id, formatid, private_data_byte, moduleversion, moduleid,
             blocksize, modulesize, compressionmethod, originalsize, timeout, objectkeylength, objectkeydata)
SIVANE_SPELL(DescriptorAssociationTag, association_tag, use, selector_length, transaction_id, timeout,
             selector_byte, private_data_byte)

// networks

SIVANE_SPELL(DescriptorNetworkName, network_name)
SIVANE_SPELL(DescriptorServiceList::ServiceList, service_id, service_type)
SIVANE_SPELL(DescriptorServiceList, servicelist)
SIVANE_SPELL(DescriptorStuffing, stuffing_byte)
SIVANE_SPELL(DescriptorSatelliteDeliverySystem, frequency, orbital_position, west_east_flag, polarization,
             modulation, symbol_rate, FEC_inner)
SIVANE_SPELL(DescriptorCableDeliverySystem, frequency, FEC_outer, modulation, symbol_rate, FEC_inner)
SIVANE_SPELL(DescriptorTerrestrialDeliverySystem, centre_frequency, bandwidth, constellation,
             hierarchy_information, code_rate_HP_stream, code_rate_LP_stream, guard_interval,
             transmission_mode, other_frequency_flag)
SIVANE_SPELL(DescriptorFrequencyList, coding_type, centre_frequency)
SIVANE_SPELL(MultilingualNameInfo, ISO_639_language_code, text_len, name)
SIVANE_SPELL(DescriptorMultilingualNetworkName, nameinfo)

// services

SIVANE_SPELL(DescriptorBouquetName, bouquet_name)
SIVANE_SPELL(DescriptorService, service_type, provider_name, service_name)
SIVANE_SPELL(DescriptorCountryAvailability, country_availability_flag, country_code)
SIVANE_SPELL(DescriptorLinkage, transport_stream_id, original_network_id, service_id, linkage_type,
             private_data_byte)
SIVANE_SPELL(DescriptorNVODReference::service, transport_stream_id, original_network_id, service_id)
SIVANE_SPELL(DescriptorNVODReference, service_list)
SIVANE_SPELL(DescriptorTimeShiftedService, reference_service_id)
SIVANE_SPELL(DescriptorMosiac::BouquetInfo, bouquet_id)
SIVANE_SPELL(DescriptorMosiac::ServiceInfo, original_network_id, transport_stream_id, service_id)
SIVANE_SPELL(DescriptorMosiac::EventInfo, original_network_id, transport_stream_id, service_id, event_id)
SIVANE_SPELL(DescriptorMosiac::CellInfo, logical_cell_id, logical_call_presentation_info,
             elementary_cell_field_length, elementary_cell_id, cell_linkage_info, bouquetinfo, serviceinfo,
             serviceinfo2, eventinfo)
SIVANE_SPELL(DescriptorMosiac, mosiac_entry_point, number_of_horizontal_elementary_cells,
             number_of_vertical_elementary_cells, cellinfo)
SIVANE_SPELL(DescriptorCAIdentifier::CAIdentifierID, CA_system_id)
SIVANE_SPELL(DescriptorCAIdentifier, CA_system_id)
SIVANE_SPELL(DescriptorTelephone, foriegn_availability, connection_type, country_prefix_length,
             international_area_code_length, operator_code_length, national_area_code_length,
             core_number_length, country_prefix_char, international_area_code_char, operator_code_char,
             national_area_code_char, core_number_char)
SIVANE_SPELL(DescriptorMultilingualBouquetName, nameinfo)
SIVANE_SPELL(DescriptorMultilingualServiceName::MultilingualServiceNameInfo, ISO_639_language_code,
             provider_len, providername, service_len, servicename)
SIVANE_SPELL(DescriptorMultilingualServiceName, servicenameinfo)
SIVANE_SPELL(DescriptorPrivateDataSpecifier, private_data_specifier)
SIVANE_SPELL(DescriptorServiceMove, new_original_network_id, new_transport_stream_id, new_service_id)
inline std::string spell(DescriptorServiceIdentifier const&) { return "-"; }
SIVANE_SPELL(DescriptorServiceAvailability, availability_flag, cell_id)

// events

SIVANE_SPELL(DescriptorShortEvent, language_code, event_name, text)
SIVANE_SPELL(DescriptorExtendedEvent::Item, description, item)
SIVANE_SPELL(DescriptorExtendedEvent, descriptor_number, last_descriptor_number, language_code, text, items)
SIVANE_SPELL(DescriptorTimeShiftedEvent, reference_service_id, reference_event_id)
SIVANE_SPELL(DescriptorComponent, stream_content, component_type, component_tag, language_code, text)
SIVANE_SPELL(DescriptorContent::Content, content_nibble_level1, content_nibble_level2, user_nibble1,
             user_nibble2)
SIVANE_SPELL(DescriptorContent, contents)
SIVANE_SPELL(DescriptorParentalRating::RatingInfo, country_code, rating)
SIVANE_SPELL(DescriptorParentalRating, ratinginfo)
SIVANE_SPELL(TimeOffset, hour, minute)
SIVANE_SPELL(DescriptorLocalTimeOffset::LocalTime, country_code, country_region_id,
             local_time_offset_polarity, local_time_offset, time_of_change.get_date_as_text(),
             next_time_offset)
SIVANE_SPELL(DescriptorLocalTimeOffset, localtime)
SIVANE_SPELL(DescriptorPDC, programme_identification_label)
SIVANE_SPELL(DescriptorMultilingualComponent, component_tag, nameinfo)

// streams

SIVANE_SPELL(DescriptorStreamIdentifier, component_tag)
SIVANE_SPELL(DescriptorTeletext::TeletextItem, language_code, teletext_type, teletext_magazine_number,
             teletext_page_number)
SIVANE_SPELL(DescriptorTeletext, teletextitems)
SIVANE_SPELL(DescriptorVBITeletext::VBITeleTextData, ISO_639_language_code, teletext_type,
             teletext_magazine_number, teletext_page_number)
SIVANE_SPELL(DescriptorVBITeletext, vbiteletextdata)
SIVANE_SPELL(DescriptorSubtitling::SubtitlingInfo, ISO_639_language_code, subtitling_type,
             composition_page_id, antcillary_page_id)
SIVANE_SPELL(DescriptorSubtitling, subtitlinginfo)
SIVANE_SPELL(DescriptorVBIData::VBIServiceData, data_service_id, data_service_descriptor_length, data)
SIVANE_SPELL(DescriptorVBIData, vbiservicedata)
SIVANE_SPELL(DescriptorAC3, component_type_flag, bsid_flag, mainid_flag, asvc_flag, AC_3_type, bsid, mainid,
             asvc, additional_info)
SIVANE_SPELL(DescriptorAncillaryData, ancillary_data_identifier)
SIVANE_SPELL(DescriptorShortSmoothingBuffer, sb_size, sb_leak_rate, DVB_reserved)
inline std::string spell(DescriptorPartialTransportStream const&) { return "-"; }
SIVANE_SPELL(DescriptorAdaptationFieldData, adaptation_field_data_identifier)
SIVANE_SPELL(DescriptorDSNG, DSNG_data)
SIVANE_SPELL(DescriptorTransportStream, transport_stream_data)

// cells

SIVANE_SPELL(DescriptorCellList::CellListData::SubCellInfo, cell_id_extension, cell_latitude, cell_longitude,
             cell_extend_of_latitude, cell_extend_of_longitude)
SIVANE_SPELL(DescriptorCellList::CellListData, cell_id, cell_latitude, cell_longitude,
             cell_extend_of_latitude, cell_extend_of_longitude, subcell_info_length, sub_cell_info)
SIVANE_SPELL(DescriptorCellList, cell_list_data)
SIVANE_SPELL(DescriptorCellFrequncyLink::CellFrequencyLinkData::SubCellInfo, cell_id_extension,
             transposer_frequency)
SIVANE_SPELL(DescriptorCellFrequncyLink::CellFrequencyLinkData, cell_id, frequency, sub_cell_info_length,
             sub_cell_info)
SIVANE_SPELL(DescriptorCellFrequncyLink, cell_frequency_link_data)
SIVANE_SPELL(DescriptorAnnouncementSupport::AnnouncementSupportData, announcement_type, reference_type,
             original_network_id, transport_stream_id, service_id, component_tag)
SIVANE_SPELL(DescriptorAnnouncementSupport, announcement_support_indicator, announcement_support_data)
SIVANE_SPELL(DescriptorApplicationSignalling::ApplicationInfo, application_type, AIT_version_number)
SIVANE_SPELL(DescriptorApplicationSignalling, application_info)
SIVANE_SPELL(DescriptorDataBroadcast, data_broadcast_id, component_tag, selector_length, language_code,
             textlength, text, selector_bytes)
SIVANE_SPELL(DescriptorDataBroadcastId, data_broadcast_id, id_selector_byte)

}  // namespace sivane
