// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/catalogue/event.h>

#include <algorithm>

namespace sivane::catalogue {

std::string const& Event::title() const {
  static std::string const none;
  auto const named =
      std::find_if(texts.begin(), texts.end(), [](EventText const& text) { return !text.title.empty(); });
  return named == texts.end() ? none : named->title;
}

std::string ContentId::uri(std::string const& default_authority) const {
  bool const has_authority = !crid.starts_with('/');
  if (!has_authority && default_authority.empty()) return crid;
  return "crid://" + (has_authority ? crid : default_authority + crid);
}

}  // namespace sivane::catalogue
