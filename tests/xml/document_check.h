// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What holds for the documents of every table and descriptor, whatever they hold.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "expect_error.h"
#include "memory_dom.h"

namespace sivane::testing {

/// A document with an element to fill.
struct Saved {
  template <class Object>
  bool save(Object const& object) {
    return object.SaveSection(document.get(), element.get());
  }
  template <class Object>
  void load(Object& object) const {
    object.Parse(static_cast<void*>(static_cast<IXMLDOMNode*>(element.get())));
  }
  std::string text() const { return written(element.get()); }

  MemoryDom dom;
  CComPtr<IXMLDOMDocument> document = dom.document();
  CComPtr<IXMLDOMElement> element = dom.element(u"it");
};

template <class Object>
std::string dump_of(Object const& object) {
  std::ostringstream os;
  object.dump_state(os);
  return os.str();
}

/// The names of an element and of those that it stands in, from the outermost's child on.
using Names = std::vector<std::string>;

inline std::string name_at(Names const& place, std::size_t levels_up) {
  return place.size() > levels_up ? place[place.size() - 1 - levels_up] : "";
}

inline bool is_list(IXMLDOMNode* node) { return attribute_count(node) == 0; }

/// What loading throws without an attribute, by where it stood.
inline std::string failure_without_attribute(Names const& place, std::string const& attribute,
                                             bool is_table) {
  std::string const names_itself = "failed to get " + attribute;
  constexpr char const* header[] = {
      "table_id",       "syntax_indicator",    "section_length",         "context_id", "version_number",
      "section_number", "last_section_number", "current_next_indicator", "crc32"};
  bool const is_head = attribute == "descriptor_id" || attribute == "descriptor_length";
  if (is_head) return names_itself;
  if (name_at(place, 1) == "program_infos") {
    return attribute == "sid" ? "failed to get sid attribute" : "failed to get pid node";
  }
  bool const is_of_header = std::find(std::begin(header), std::end(header), attribute) != std::end(header);
  return is_table && place.empty() && is_of_header ? names_itself : "failed";
}

/// What it throws without a child.
inline std::string failure_without_child(Names const& place, std::string const& child, bool is_table) {
  if (child == "descriptors") return "failed to get descriptors node";
  return is_table && place.empty() ? "failed to get program_infos node" : "failed to get " + child;
}

/// Loads what `change` leaves of a saved document; the failure's text, or nothing.
template <class Object, class Change>
std::string failure_of_changed(Object const& object, Change change) {
  Saved saved;
  saved.save(object);
  change(saved);
  Object loaded;
  auto const failure = caught_error([&] { saved.load(loaded); });
  return failure ? failure->what() : "";
}

/// Finds an element in any document of the same object.
using Find = std::function<CComPtr<IXMLDOMNode>(Saved const&)>;

/// Without any one of its attributes or children a document throws the words that are laid down for it; a
/// list may lack any of its items. The same holds for each child.
template <class Object>
void expect_everything_is_needed(Object const& object, bool is_table, Find const& find, Names const& place) {
  Saved whole;
  whole.save(object);
  CComPtr<IXMLDOMNode> const node = find(whole);
  for (std::size_t i = 0; i < attribute_count(node.get()); ++i) {
    std::string name;
    std::string const failure =
        failure_of_changed(object, [&](Saved const& saved) { name = take_attribute(find(saved).get(), i); });
    EXPECT_EQ(failure, failure_without_attribute(place, name, is_table)) << name_at(place, 0) << ' ' << name;
  }
  for (std::size_t i = 0; i < child_count(node.get()); ++i) {
    std::string const name = name_of(child_at(node.get(), i).get());
    std::string const failure =
        failure_of_changed(object, [&](Saved const& saved) { take_child(find(saved).get(), i); });
    EXPECT_EQ(failure, is_list(node.get()) ? "" : failure_without_child(place, name, is_table)) << name;
    Names below = place;
    below.push_back(name);
    expect_everything_is_needed(
        object, is_table, [&](Saved const& saved) { return child_at(find(saved).get(), i); }, below);
  }
  if (!is_list(node.get())) return;
  std::string const failure = failure_of_changed(
      object, [&](Saved& saved) { find(saved)->appendChild(saved.dom.comment().get(), nullptr); });
  bool const skips = name_at(place, 0) == "descriptors";
  bool const has_own_words = name_at(place, 0) == "program_infos";
  EXPECT_EQ(failure, skips ? "" : has_own_words ? "failed to get attribute map" : "failed") << "a comment";
}

/// What of a written tree must be there where saving answers true. Of a table that is all but "descriptors"
/// elements and what is below them; of a descriptor its attributes, and the names of its lists and of the
/// items in them, since the inside of a record may lack what was refused.
inline std::string needed_of(std::string const& tree, bool is_table) {
  std::istringstream lines(tree);
  std::string kept;
  std::size_t deepest = is_table ? std::string::npos : 4;
  for (std::string line; std::getline(lines, line);) {
    std::size_t const indent = line.find_first_not_of(' ');
    if (indent > deepest) continue;
    bool const is_left_out = is_table && line.substr(indent) == "descriptors";
    if (is_table) deepest = is_left_out ? indent : std::string::npos;
    bool const is_whole = is_table || indent == 0;
    if (!is_left_out) kept += (is_whole ? line : line.substr(0, line.find(' ', indent))) + '\n';
  }
  return kept;
}

/// A document that refuses any one operation: saving answers false, but for what stands below "descriptors"
/// and in records, where it leaves a gap; loading throws. Nothing stays behind but the nodes that are in the
/// tree.
template <class Object>
void expect_refusals_are_met(Object const& object, bool is_table, bool save_may_throw = false) {
  Saved whole;
  whole.dom.refuse(0);
  whole.save(object);
  std::string const text = whole.text();
  int const operations = whole.dom.operations();
  for (int nth = 1; nth <= operations; ++nth) {
    Saved saved;
    saved.dom.refuse(nth);
    bool answer = false;
    auto const failure = caught_error([&] { answer = saved.save(object); });
    EXPECT_FALSE(failure && !save_may_throw) << failure->what();
    EXPECT_FALSE(answer && saved.text() == text) << "operation " << nth;
    EXPECT_FALSE(answer && needed_of(saved.text(), is_table) != needed_of(text, is_table))
        << "operation " << nth;
    EXPECT_EQ(saved.dom.objects(), 1 + objects_below(saved.element.get())) << "operation " << nth;
  }
  int const objects = whole.dom.objects();
  whole.dom.refuse(0);
  Object complete;
  whole.load(complete);
  int const steps = whole.dom.operations();
  for (int nth = 1; nth <= steps; ++nth) {
    for (auto const refusal : {MemoryDom::Refusal::result, MemoryDom::Refusal::no_object}) {
      whole.dom.refuse(nth, refusal);
      Object loaded;
      auto const failure = caught_error([&] { whole.load(loaded); });
      EXPECT_TRUE(failure && std::string(failure->what()).rfind("failed", 0) == 0) << "operation " << nth;
      EXPECT_EQ(whole.dom.objects(), objects) << "operation " << nth;
    }
  }
  whole.dom.refuse(0);
}

}  // namespace sivane::testing
