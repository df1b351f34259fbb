// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "catalogue_rows.h"

#include <pybind11/stl.h>

#include "values.h"

namespace sivane::python {

namespace py = pybind11;
using namespace py::literals;
using namespace catalogue;

namespace {

/// A list with what `row_of` makes of each item.
template <class Items, class RowOf>
py::list rows(Items const& items, RowOf row_of) {
  py::list made;
  for (auto const& item : items) made.append(row_of(item));
  return made;
}

template <class Time>
py::object date_or_none(std::optional<Time> const& time) {
  return time ? date(*time) : py::none();
}

// A row of each kind.
py::dict row(LocalName const&);
py::dict row(ConditionalAccess const&);
py::dict row(Delivery const&);
py::dict row(ListedService const&);
py::dict row(ChannelNumber const&);
py::dict row(EventItem const&);
py::dict row(EventText const&);
py::dict row(Genre const&);
py::dict row(Rating const&);
py::dict row(Component const&);
py::dict row(SupplementaryAudio const&);
py::dict row(LocalTimeOffset const&);
py::dict row(ElementaryStream const&);
constexpr auto row_of = [](auto const& item) { return row(item); };

py::dict row(LocalName const& name) {
  return py::dict("language"_a = utf8(name.language), "name"_a = utf8(name.name),
                  "provider"_a = utf8(name.provider));
}

py::dict row(ConditionalAccess const& access) {
  return py::dict("system"_a = access.system, "pid"_a = access.pid);
}

constexpr char const* system_names[] = {"satellite",     "cable",          "terrestrial", "satellite_s2",
                                        "satellite_s2x", "terrestrial_t2", "cable_c2"};

py::dict row(Delivery const& delivery) {
  return py::dict("system"_a = system_names[static_cast<std::size_t>(delivery.system)],
                  "frequency"_a = delivery.frequency, "symbol_rate"_a = delivery.symbol_rate,
                  "bandwidth"_a = delivery.bandwidth, "orbital_position"_a = delivery.orbital_position,
                  "is_east"_a = delivery.is_east, "polarization"_a = delivery.polarization,
                  "modulation"_a = delivery.modulation, "inner_code"_a = delivery.inner_code,
                  "guard_interval"_a = delivery.guard_interval,
                  "transmission_mode"_a = delivery.transmission_mode, "roll_off"_a = delivery.roll_off,
                  "plp"_a = delivery.plp, "t2_system"_a = delivery.t2_system,
                  "data_slice"_a = delivery.data_slice, "input_stream"_a = delivery.input_stream,
                  "scrambling_sequence"_a = delivery.scrambling_sequence);
}

py::dict row(ListedService const& listed) {
  return py::dict("service"_a = listed.service, "type"_a = listed.type);
}

py::dict row(ChannelNumber const& channel) {
  return py::dict("service"_a = channel.service, "number"_a = channel.number,
                  "is_visible"_a = channel.is_visible, "is_hd_simulcast"_a = channel.is_hd_simulcast);
}

py::dict stream_row(StreamKey const& key, TransportStream const& stream) {
  return py::dict("original_network"_a = key.original_network, "transport_stream"_a = key.transport_stream,
                  "deliveries"_a = rows(stream.deliveries, row_of),
                  "services"_a = rows(stream.services, row_of),
                  "channel_numbers"_a = rows(stream.channel_numbers, row_of),
                  "default_authority"_a = utf8(stream.default_authority), "ca_systems"_a = stream.ca_systems);
}

/// The networks or bouquets, which `number_of` tells apart in the keys of both maps.
template <class Networks, class Streams, class NumberOf>
py::list network_rows(char const* name, Networks const& networks, Streams const& streams,
                      NumberOf number_of) {
  return rows(networks, [&](auto const& entry) {
    auto const& [key, network] = entry;
    py::list carried;
    for (auto const& [stream_key, stream] : streams) {
      if (number_of(stream_key) == number_of(key)) carried.append(stream_row(stream_key.stream, stream));
    }
    py::dict made;
    made[name] = number_of(key);
    made["name"] = utf8(network.name);
    made["names"] = rows(network.names, row_of);
    made["is_actual"] = network.is_actual;
    made["default_authority"] = utf8(network.default_authority);
    made["ca_systems"] = network.ca_systems;
    made["streams"] = carried;
    return made;
  });
}

py::dict row(EventItem const& item) {
  return py::dict("description"_a = utf8(item.description), "text"_a = utf8(item.text));
}

py::dict row(EventText const& text) {
  return py::dict("language"_a = utf8(text.language), "title"_a = utf8(text.title),
                  "short_text"_a = utf8(text.short_text), "extended_text"_a = utf8(text.extended_text),
                  "items"_a = rows(text.items, row_of));
}

py::dict row(Genre const& genre) {
  return py::dict("level_1"_a = genre.level_1, "level_2"_a = genre.level_2, "user"_a = genre.user,
                  "name"_a = genre.name());
}

py::dict row(Rating const& rating) {
  return py::dict("country"_a = utf8(rating.country), "rating"_a = rating.rating,
                  "minimum_age"_a = rating.minimum_age());
}

py::dict row(Component const& component) {
  return py::dict("stream_content"_a = component.stream_content,
                  "stream_content_ext"_a = component.stream_content_ext, "type"_a = component.type,
                  "tag"_a = component.tag, "language"_a = utf8(component.language),
                  "text"_a = utf8(component.text), "coding"_a = component.coding_name());
}

std::string short_text(Event const& event) {
  return event.texts.empty() ? "" : event.texts.front().short_text;
}

py::list content_id_rows(Event const& event, std::string const& default_authority) {
  return rows(event.content_ids, [&](ContentId const& id) {
    return py::dict("type"_a = id.type, "crid"_a = utf8(id.crid), "uri"_a = utf8(id.uri(default_authority)));
  });
}

py::dict event_row(Catalogue const& of, EventKey const& key, Event const& event) {
  Service const* const service = of.find(key.service);
  return py::dict("original_network"_a = key.service.original_network,
                  "transport_stream"_a = key.service.transport_stream, "service"_a = key.service.service,
                  "service_name"_a = utf8(service == nullptr ? "" : service->name), "event"_a = key.event,
                  "start"_a = date_or_none(event.start), "end"_a = date_or_none(event.end()),
                  "duration"_a = event.duration ? duration(*event.duration) : py::none(),
                  "title"_a = utf8(event.title()), "short_text"_a = utf8(short_text(event)),
                  "running_status"_a = event.running_status, "is_scrambled"_a = event.is_scrambled,
                  "texts"_a = rows(event.texts, row_of), "genres"_a = rows(event.genres, row_of),
                  "ratings"_a = rows(event.ratings, row_of), "components"_a = rows(event.components, row_of),
                  "content_ids"_a = content_id_rows(event, of.default_authority(key.service)));
}

constexpr char const* kind_names[] = {"video", "audio", "subtitles", "teletext", "data"};
constexpr char const* coding_names[] = {"",    "ac3",       "enhanced_ac3", "dts",      "aac",
                                        "ac4", "subtitles", "ttml",         "teletext", "vbi"};

py::dict row(SupplementaryAudio const& audio) {
  return py::dict("is_complete"_a = audio.is_complete, "classification"_a = audio.classification,
                  "purpose"_a = audio.purpose(), "language"_a = utf8(audio.language));
}

py::dict row(ElementaryStream const& stream) {
  return py::dict(
      "pid"_a = stream.pid, "stream_type"_a = stream.stream_type,
      "kind"_a = kind_names[static_cast<std::size_t>(stream.kind())],
      "coding"_a = coding_names[static_cast<std::size_t>(stream.coding)],
      "component_tag"_a = stream.component_tag,
      "languages"_a = rows(stream.languages, [](auto const& code) { return utf8(code); }),
      "supplementary"_a = stream.supplementary ? py::object(row(*stream.supplementary)) : py::none(),
      "access"_a = rows(stream.access, row_of));
}

py::dict row(LocalTimeOffset const& local) {
  return py::dict("country"_a = utf8(local.country), "region"_a = local.region,
                  "offset"_a = duration(local.offset), "change"_a = date_or_none(local.change),
                  "next_offset"_a = duration(local.next_offset));
}

}  // namespace

py::list services(Catalogue const& of) {
  return rows(of.services(), [&of](auto const& entry) {
    auto const& [key, service] = entry;
    auto const channel = of.channel_number(key);
    return py::dict(
        "original_network"_a = key.original_network, "transport_stream"_a = key.transport_stream,
        "service"_a = key.service, "name"_a = utf8(service.name), "provider"_a = utf8(service.provider),
        "names"_a = rows(service.names, row_of), "type"_a = service.type, "type_name"_a = service.type_name(),
        "default_authority"_a = utf8(of.default_authority(key)), "running_status"_a = service.running_status,
        "is_scrambled"_a = service.is_scrambled, "has_schedule"_a = service.has_schedule,
        "has_present_following"_a = service.has_present_following, "is_actual"_a = service.is_actual,
        "ca_systems"_a = of.ca_systems(key),
        "channel"_a = channel ? py::object(py::int_(channel->number)) : py::none());
  });
}

py::list events(Catalogue const& of) {
  py::list made;
  ServiceKey const* service = nullptr;
  for (auto const& [key, first] : of.events()) {
    if (service != nullptr && *service == key.service) continue;
    service = &key.service;
    for (auto const* entry : of.events_of(*service)) made.append(event_row(of, entry->first, entry->second));
  }
  return made;
}

py::list networks(Catalogue const& of) {
  return network_rows("network", of.networks(), of.network_streams(),
                      [](auto const& key) { return key.network; });
}

py::list bouquets(Catalogue const& of) {
  return network_rows("bouquet", of.bouquets(), of.bouquet_streams(),
                      [](auto const& key) { return key.bouquet; });
}

py::list programs(Catalogue const& of) {
  return rows(of.programs(), [](auto const& entry) {
    auto const& [key, program] = entry;
    return py::dict("program"_a = key.number, "map_pid"_a = program.map_pid,
                    "is_mapped"_a = program.is_mapped, "pcr_pid"_a = program.pcr_pid,
                    "access"_a = rows(program.access, row_of), "streams"_a = rows(program.streams, row_of));
  });
}

py::list access(Catalogue const& of) { return rows(of.access(), row_of); }

py::list local_time_offsets(Catalogue const& of) { return rows(of.local_time_offsets(), row_of); }

}  // namespace sivane::python
