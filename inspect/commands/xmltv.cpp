// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/xmltv.h"

#include <ostream>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "text/channels.h"
#include "text/times.h"

namespace inspect {

namespace {

using namespace sivane::catalogue;

std::string escaped(std::string_view text) {
  std::string result;
  for (char const c : text) {
    switch (c) {
      case '&':
        result += "&amp;";
        break;
      case '<':
        result += "&lt;";
        break;
      case '>':
        result += "&gt;";
        break;
      case '"':
        result += "&quot;";
        break;
      default:
        result += c;
    }
  }
  return result;
}

/// An element of texts alone, within another; `attribute` is a name and a value, or empty.
void write(std::ostream& out, std::string_view name, std::string_view text, std::string_view attribute = {},
           std::string_view value = {}) {
  out << "    <" << name;
  if (!attribute.empty()) out << ' ' << attribute << "=\"" << escaped(value) << '"';
  out << '>' << escaped(text) << "</" << name << ">\n";
}

void write_channel(Catalogue const& catalogue, ServiceKey const& key, std::ostream& out) {
  out << "  <channel id=\"" << channel_id(key) << "\">\n";
  write(out, "display-name", channel_name(catalogue, key));
  if (auto const number = catalogue.channel_number(key))
    write(out, "display-name", std::to_string(number->number));
  out << "  </channel>\n";
}

/// The longest text that there is, with the items behind it.
std::string description_of(EventText const& text) {
  std::string description = text.extended_text.empty() ? text.short_text : text.extended_text;
  for (EventItem const& item : text.items) {
    if (!description.empty()) description += '\n';
    description += item.description + (item.description.empty() ? "" : ": ") + item.text;
  }
  return description;
}

/// Elements of a kind stand together, whatever their language.
void write_texts(std::vector<EventText> const& texts, std::ostream& out) {
  auto const write_each = [&](char const* name, auto const& text_of) {
    for (EventText const& text : texts) {
      if (std::string const told = text_of(text); !told.empty())
        write(out, name, told, "lang", text.language);
    }
  };
  write_each("title", [](EventText const& text) { return text.title; });
  // A short text beside a longer one is a second title.
  write_each("sub-title", [](EventText const& text) {
    return text.extended_text.empty() ? std::string() : text.short_text;
  });
  write_each("desc", description_of);
}

void write_genres(std::vector<Genre> const& genres, std::ostream& out) {
  std::set<std::string_view> written;
  for (Genre const& genre : genres) {
    char const* const name = genre.name();
    if (name != nullptr && written.insert(name).second) write(out, "category", name, "lang", "en");
  }
}

void write_ratings(std::vector<Rating> const& ratings, std::ostream& out) {
  for (Rating const& rating : ratings) {
    auto const age = rating.minimum_age();
    if (!age) continue;
    out << "    <rating system=\"" << escaped(rating.country) << "\"><value>" << *age
        << "</value></rating>\n";
  }
}

void write_event(ServiceKey const& service, Event const& event, std::ostream& out) {
  out << "  <programme start=\"" << xmltv_text(*event.start) << '"';
  if (auto const end = event.end()) out << " stop=\"" << xmltv_text(*end) << '"';
  out << " channel=\"" << channel_id(service) << "\">\n";
  write_texts(event.texts, out);
  write_genres(event.genres, out);
  write_ratings(event.ratings, out);
  out << "  </programme>\n";
}

/// What a document of this kind has room for: it must have both.
bool is_listed(Event const& event) { return event.start && !event.title().empty(); }

}  // namespace

void XmltvCommand::choose_tags(sivane::ParseOptions& options) const {
  // service, short and extended event, content, parental rating, private data specifier, logical channel
  options.build_only({0x48, 0x4D, 0x4E, 0x54, 0x55, 0x5F, 0x83, 0x87, 0x88});
}

bool XmltvCommand::print(Catalogue const& catalogue, std::ostream& out) {
  std::set<ServiceKey> services;
  for (auto const& [key, event] : catalogue.events()) {
    if (is_listed(event)) services.insert(services.end(), key.service);
  }
  out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE tv SYSTEM \"xmltv.dtd\">\n"
         "<tv generator-info-name=\"sivane-inspect\">\n";
  for (ServiceKey const& service : services) write_channel(catalogue, service, out);
  for (ServiceKey const& service : services) {
    for (auto const* const entry : catalogue.events_of(service)) {
      if (is_listed(entry->second)) write_event(service, entry->second, out);
    }
  }
  out << "</tv>\n";
  return !services.empty();
}

}  // namespace inspect
