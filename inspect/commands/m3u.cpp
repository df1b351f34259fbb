// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/m3u.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <ostream>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "text/channels.h"

namespace inspect {

namespace {

using namespace sivane::catalogue;

/// A line of the playlist. Those without a number stand at its end.
struct Item {
  ServiceKey key;
  std::optional<int> number;
  std::string name, provider;

  auto place() const { return std::make_tuple(!number, number, key); }
};

/// Players open a file from wherever they were started; what has a scheme or is standard input stays as it
/// is.
std::string playable(std::string const& source) {
  bool const is_file = source != "-" && source.find("://") == std::string::npos;
  return is_file ? std::filesystem::absolute(source).lexically_normal().string() : source;
}

/// Within quotes there can be none.
std::string quoted(std::string text) {
  std::replace(text.begin(), text.end(), '"', '\'');
  return '"' + text + '"';
}

/// Services of the source that viewers are shown.
std::vector<Item> items_of(Catalogue const& catalogue) {
  std::vector<Item> items;
  for (auto const& [key, service] : catalogue.services()) {
    auto const channel = catalogue.channel_number(key);
    if (!service.is_actual || (channel && !channel->is_visible)) continue;
    items.push_back({key, channel ? std::optional<int>(channel->number) : std::nullopt,
                     channel_name(catalogue, key), service.provider});
  }
  return items;
}

/// Where nothing describes the services, their programs are all there is.
void add_programs(Catalogue const& catalogue, std::vector<Item>& items) {
  std::set<int> described;
  for (auto const& [key, service] : catalogue.services()) {
    if (service.is_actual) described.insert(key.service);
  }
  for (auto const& [key, program] : catalogue.programs()) {
    if (described.contains(key.number)) continue;
    items.push_back({{0, 0, key.number}, {}, "program " + std::to_string(key.number), ""});
  }
}

void write(Item const& item, std::string const& address, std::ostream& out) {
  out << "#EXTINF:-1";
  if (item.key.original_network != 0) out << " tvg-id=" << quoted(channel_id(item.key));
  if (item.number) out << " tvg-chno=" << quoted(std::to_string(*item.number));
  if (!item.provider.empty()) out << " group-title=" << quoted(item.provider);
  out << ',' << item.name << "\n#EXTVLCOPT:program=" << item.key.service << '\n' << address << '\n';
}

}  // namespace

void M3uCommand::choose_tags(sivane::ParseOptions& options) const {
  options.build_only({0x48, 0x5F, 0x83, 0x87, 0x88});  // service, private data specifier, logical channel
}

bool M3uCommand::print(Catalogue const& catalogue, std::ostream& out) {
  std::vector<Item> items = items_of(catalogue);
  add_programs(catalogue, items);
  std::sort(items.begin(), items.end(),
            [](Item const& left, Item const& right) { return left.place() < right.place(); });
  out << "#EXTM3U\n";
  std::string const address = playable(source_);
  for (Item const& item : items) write(item, address, out);
  return !items.empty();
}

}  // namespace inspect
