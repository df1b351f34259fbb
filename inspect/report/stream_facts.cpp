// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "report/stream_facts.h"

#include <sivane/registry/registry.h>

#include <string>

#include "text/names.h"
#include "text/service_types.h"
#include "text/stream_types.h"
#include "text/usual_pids.h"

namespace inspect {

namespace {

using namespace sivane::catalogue;

constexpr std::size_t most_events = 20000;
constexpr double ticks_of_second = 27e6;

std::string joined(std::vector<std::string> const& words, char const* between = ", ") {
  std::string text;
  for (std::string const& word : words) text += (text.empty() ? "" : between) + word;
  return text;
}

std::string longer_text(EventText const& text) {
  std::string all = text.short_text;
  if (!text.extended_text.empty()) all += (all.empty() ? "" : "\n") + text.extended_text;
  for (EventItem const& item : text.items) all += "\n" + item.description + ": " + item.text;
  return all;
}

/// Each as "H.264/AVC video (deu): 16:9, 25 Hz"; what it leaves open is left out.
std::string components_of(Event const& event) {
  std::vector<std::string> components;
  for (Component const& component : event.components) {
    char const* const coding = component.coding_name();
    std::string text = coding == nullptr ? "component" : coding;
    if (!component.language.empty()) text += " (" + component.language + ")";
    if (!component.text.empty()) text += ": " + component.text;
    components.push_back(std::move(text));
  }
  return joined(components, "; ");
}

std::string genres_of(Event const& event) {
  std::vector<std::string> names;
  for (Genre const& genre : event.genres) {
    if (genre.name() != nullptr) names.emplace_back(genre.name());
  }
  return joined(names);
}

std::string content_ids_of(Event const& event, std::string const& default_authority) {
  std::vector<std::string> uris;
  for (ContentId const& id : event.content_ids) uris.push_back(id.uri(default_authority));
  return joined(uris);
}

void write_event(JsonWriter& json, Catalogue const& catalogue, ServiceKey const& service, int id,
                 Event const& event) {
  json.begin_object();
  json.member("network", service.original_network);
  json.member("stream", service.transport_stream);
  json.member("service", service.service);
  json.member("id", id);
  json.member("start", event.start->time_since_epoch().count());
  json.member("duration", event.duration ? event.duration->count() : 0);
  json.member("title", event.title());
  json.member("genres", genres_of(event));
  json.member("components", components_of(event));
  json.member("content_ids", content_ids_of(event, catalogue.default_authority(service)));
  json.key("texts");
  json.begin_array();
  for (EventText const& text : event.texts) {
    json.begin_object();
    json.member("language", text.language);
    json.member("title", text.title);
    json.member("text", longer_text(text));
    json.end_object();
  }
  json.end_array();
  json.end_object();
}

/// What tables say about each PID.
std::map<int, std::string> contents_of(Catalogue const& catalogue) {
  std::map<int, std::string> contents;
  auto const add = [&contents](int pid, std::string const& text) {
    std::string& all = contents[pid];
    all += (all.empty() ? "" : "; ") + text;
  };
  for (auto const& entry : catalogue.access()) add(entry.pid, "EMM");
  for (auto const& [key, program] : catalogue.programs()) {
    std::string const number = " of program " + std::to_string(key.number);
    if (program.map_pid) add(*program.map_pid, "PMT" + number);
    for (auto const& access : program.access) add(access.pid, "ECM" + number);
    for (auto const& stream : program.streams) add(stream.pid, stream_type_text(stream) + number);
  }
  return contents;
}

void write_course(JsonWriter& json, RateCourse const& course, int pid) {
  json.key("course");
  json.begin_array();
  for (RateCourse::Part const& part : course.parts()) {
    auto const found = part.packets.find(pid);
    json.number(found != part.packets.end() ? found->second : 0);
  }
  json.end_array();
}

}  // namespace

void write_networks(JsonWriter& json, Catalogue const& catalogue) {
  json.key("networks");
  json.begin_array();
  for (auto const& [key, network] : catalogue.networks()) {
    json.begin_object();
    json.member("id", key.network);
    json.member("name", network.name);
    json.member("registered", registered_name(sivane::get_network_id, key.network));
    json.end_object();
  }
  json.end_array();
}

void write_services(JsonWriter& json, Catalogue const& catalogue) {
  json.key("services");
  json.begin_array();
  for (auto const& [key, service] : catalogue.services()) {
    json.begin_object();
    json.member("network", key.original_network);
    json.member("stream", key.transport_stream);
    json.member("service", key.service);
    json.member("name", service.name);
    json.member("provider", service.provider);
    json.member("type", service_type_text(service));
    json.key("scrambled");
    json.flag(service.is_scrambled);
    json.key("actual");
    json.flag(service.is_actual);
    json.end_object();
  }
  json.end_array();
}

void write_programs(JsonWriter& json, Catalogue const& catalogue) {
  json.key("programs");
  json.begin_array();
  for (auto const& [key, program] : catalogue.programs()) {
    json.begin_object();
    json.member("number", key.number);
    json.member("map", program.map_pid.value_or(-1));
    json.member("pcr", program.pcr_pid);
    json.key("streams");
    json.begin_array();
    for (ElementaryStream const& stream : program.streams) {
      json.begin_object();
      json.member("pid", stream.pid);
      json.member("type", stream_type_text(stream));
      json.member("languages", joined(stream.languages));
      json.member("supplementary", stream.supplementary ? purpose_text(*stream.supplementary) : "");
      json.end_object();
    }
    json.end_array();
    json.end_object();
  }
  json.end_array();
}

void write_events(JsonWriter& json, Catalogue const& catalogue) {
  std::size_t written = 0;
  json.key("events");
  json.begin_array();
  for (auto const& [key, event] : catalogue.events()) {
    if (!event.start || written == most_events) continue;
    write_event(json, catalogue, key.service, key.event, event);
    ++written;
  }
  json.end_array();
  json.member("events_left_out", static_cast<long long>(catalogue.events().size() - written));
}

void write_pids(JsonWriter& json, Catalogue const& catalogue, RateCourse const& course) {
  std::map<int, std::string> const contents = contents_of(catalogue);
  json.key("part_ends");
  json.begin_array();
  for (RateCourse::Part const& part : course.parts()) {
    part.end_ticks < 0 ? json.null() : json.real(static_cast<double>(part.end_ticks) / ticks_of_second);
  }
  json.end_array();
  json.key("pids");
  json.begin_array();
  for (auto const& [pid, packets] : course.totals()) {
    auto const content = contents.find(pid);
    json.begin_object();
    json.member("pid", pid);
    json.member("packets", static_cast<long long>(packets));
    json.member("content", content != contents.end() ? content->second : usual_content(pid));
    write_course(json, course, pid);
    json.end_object();
  }
  json.end_array();
}

}  // namespace inspect
