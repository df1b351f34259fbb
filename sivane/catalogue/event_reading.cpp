// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/catalogue/event_reading.h>
#include <sivane/catalogue/extended_reading.h>
#include <sivane/catalogue/values.h>

#include <algorithm>
#include <string_view>

namespace sivane::catalogue {

namespace {

EventText* find_text(std::vector<EventText>& texts, std::string_view language) {
  auto const found = std::find_if(texts.begin(), texts.end(),
                                  [&](EventText const& text) { return text.language == language; });
  return found == texts.end() ? nullptr : &*found;
}

EventText& text_in(std::vector<EventText>& texts, std::string const& language) {
  if (EventText* const known = find_text(texts, language)) return *known;
  EventText text;
  text.language = language;
  return texts.emplace_back(std::move(text));
}

void read_short_texts(Eit::EventInfo const& info, charset::Converter& converter,
                      std::vector<EventText>& texts) {
  for (auto const& descriptor : info.get_short_event_descriptors()) {
    EventText& text = text_in(texts, code_text(descriptor.language_code));
    if (text.title.empty()) text.title = converter.utf8(descriptor.event_name);
    if (text.short_text.empty()) text.short_text = converter.utf8(descriptor.text);
  }
}

/// By language and number: a number that is there twice counts once.
std::vector<DescriptorExtendedEvent const*> extended_parts(Eit::EventInfo const& info) {
  std::vector<DescriptorExtendedEvent const*> parts;
  for (auto const& descriptor : info.get_extended_event_descriptors()) parts.push_back(&descriptor);
  auto const place = [](DescriptorExtendedEvent const* part) {
    return std::make_pair(std::string_view(part->language_code), part->descriptor_number);
  };
  std::stable_sort(parts.begin(), parts.end(),
                   [&](auto const* left, auto const* right) { return place(left) < place(right); });
  auto const is_same = [&](auto const* left, auto const* right) { return place(left) == place(right); };
  parts.erase(std::unique(parts.begin(), parts.end(), is_same), parts.end());
  return parts;
}

void read_extended_texts(Eit::EventInfo const& info, charset::Converter& converter,
                         std::vector<EventText>& texts) {
  for (DescriptorExtendedEvent const* const part : extended_parts(info)) {
    EventText& text = text_in(texts, code_text(part->language_code));
    text.extended_text += converter.utf8(part->text);
    for (auto const& item : part->items) {
      text.items.push_back({converter.utf8(item.description), converter.utf8(item.item)});
    }
  }
}

std::vector<Genre> genres_of(Eit::EventInfo const& info) {
  std::vector<Genre> genres;
  for (auto const& descriptor : info.get_content_descriptors()) {
    for (auto const& content : descriptor.contents) {
      genres.push_back({content.content_nibble_level1, content.content_nibble_level2,
                        content.user_nibble1 << 4 | content.user_nibble2});
    }
  }
  return genres;
}

std::vector<Rating> ratings_of(Eit::EventInfo const& info) {
  std::vector<Rating> ratings;
  for (auto const& descriptor : info.get_parental_rating_descriptors()) {
    for (auto const& rating : descriptor.ratinginfo) {
      ratings.push_back({code_text(rating.country_code), rating.rating});
    }
  }
  return ratings;
}

std::vector<Component> components_of(Eit::EventInfo const& info, charset::Converter& converter) {
  std::vector<Component> components;
  for (auto const& descriptor : info.get_component_descriptors()) {
    components.push_back({descriptor.stream_content, descriptor.stream_content_ext, descriptor.component_type,
                          descriptor.component_tag, code_text(descriptor.language_code),
                          converter.utf8(descriptor.text)});
  }
  return components;
}

std::vector<ContentId> content_ids_of(Eit::EventInfo const& info) {
  std::vector<ContentId> ids;
  for (DescriptorGeneral const& bytes : info.get_general_descriptors()) {
    auto const descriptor = read_extended<DescriptorContentIdentifier>(bytes);
    if (!descriptor) continue;
    for (auto const& one : descriptor->crids) {
      if (!one.crid.empty()) ids.push_back({one.crid_type, uri_text(one.crid)});
    }
  }
  return ids;
}

void shrink(Event& event) {
  for (EventText& text : event.texts) {
    for (std::string* const part : {&text.title, &text.short_text, &text.extended_text})
      part->shrink_to_fit();
    text.items.shrink_to_fit();
  }
  event.texts.shrink_to_fit();
  event.genres.shrink_to_fit();
  event.ratings.shrink_to_fit();
  event.components.shrink_to_fit();
  event.content_ids.shrink_to_fit();
}

void keep_text(EventText const& known, EventText& text) {
  if (text.title != known.title) return;
  if (text.short_text.empty()) text.short_text = known.short_text;
  if (!text.extended_text.empty() || !text.items.empty()) return;
  text.extended_text = known.extended_text;
  text.items = known.items;
}

}  // namespace

Event event_of(Eit::EventInfo const& info, charset::Converter& text) {
  Event event;
  event.start = time_of(info.start_time);
  event.duration = duration_of(info.duration);
  event.running_status = info.running_status;
  event.is_scrambled = info.free_CA_mode != 0;
  read_short_texts(info, text, event.texts);
  read_extended_texts(info, text, event.texts);
  event.genres = genres_of(info);
  event.ratings = ratings_of(info);
  event.components = components_of(info, text);
  event.content_ids = content_ids_of(info);
  shrink(event);
  return event;
}

void keep_texts(Event const& known, Event& event) {
  for (EventText const& text : known.texts) {
    if (EventText* const same = find_text(event.texts, text.language)) keep_text(text, *same);
  }
}

}  // namespace sivane::catalogue
