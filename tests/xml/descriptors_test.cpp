// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The documents of every descriptor in the case files: what a document must hold, what a refusing one leads
// to, and the way through a string and a file. Which names and values they have stands in the case files.
#include <sivane/descriptors/ait_descriptor_set.h>
#include <sivane/descriptors/descriptor_set.h>
#include <sivane/dom/document.h>

#include <map>
#include <set>

#include "case_file.h"
#include "document_check.h"
#include "section_text.h"

namespace sivane::testing {
namespace {

/// Of what a few classes dump, documents do not carry all.
template <class Descriptor>
constexpr bool is_carried_whole = !std::is_same_v<Descriptor, DescriptorCountryAvailability> &&
                                  !std::is_same_v<Descriptor, DescriptorExtendedEvent> &&
                                  !std::is_same_v<Descriptor, DescriptorComponent> &&
                                  !std::is_same_v<Descriptor, DescriptorMultilingualComponent>;

template <class Descriptor>
void save(Descriptor const& descriptor, dom::Document& document) {
  EXPECT_TRUE(descriptor.SaveSection(document.dom(), document.make_root("it").get()));
}

template <class Descriptor>
void expect_survival(Descriptor const& descriptor) {
  dom::Document document, again;
  save(descriptor, document);
  std::string const text = document.save_string();
  std::string const file = ::testing::TempDir() + "sivane_descriptor.xml";
  document.save_file(file);
  Descriptor from_string, from_file;
  from_string.Parse(static_cast<void*>(dom::Document::load_string(text).root_node().get()));
  from_file.Parse(static_cast<void*>(dom::Document::load_file(file).root_node().get()));
  save(from_string, again);
  EXPECT_EQ(again.save_string(), text);
  EXPECT_EQ(dump_of(from_file), dump_of(from_string));
  EXPECT_TRUE(!is_carried_whole<Descriptor> || dump_of(from_string) == dump_of(descriptor));
}

template <class Descriptor>
void check(Bytes const& bytes) {
  Descriptor const descriptor(bytes.data());
  expect_round_trip(descriptor);
  expect_everything_is_needed(descriptor, false);
  expect_refusals_are_met(descriptor, false, std::is_same_v<Descriptor, DescriptorAitRoutingIPv6>);
  expect_survival(descriptor);
}

using Check = void (*)(Bytes const&);

Check check_of_dvb(int tag) {
  switch (tag) {
#define SIVANE_GENERAL_ROW(kind, getter, element)
#define SIVANE_ROW(tag, Class, getter, element) \
  case tag:                                     \
    return check<Class>;
#include <sivane/descriptors/descriptor_rows.inc>
    default:
      return check<DescriptorGeneral>;
  }
}

Check check_of_ait(int tag) {
  switch (tag) {
#define SIVANE_GENERAL_ROW(kind, getter, element)
#define SIVANE_ROW(tag, Class, getter, element) \
  case tag:                                     \
    return check<Class>;
#include <sivane/descriptors/ait_descriptor_rows.inc>
    default:
      return check<DescriptorGeneral>;
  }
}

int check_all(std::string const& name, Check (*check_of)(int)) {
  int checked = 0;
  for (Case const& one : read_cases("descriptors/cases/" + name + ".txt")) {
    const ::testing::ScopedTrace trace(one.file.c_str(), one.line, one.title);
    Bytes const bytes = assemble(one.bytes);
    check_of(bytes[0])(bytes);
    ++checked;
  }
  return checked;
}

TEST(DescriptorDocuments, HoldTheirPromises) {
  for (char const* const family :
       {"mpeg_systems", "network", "service", "event", "stream", "cell", "general"}) {
    EXPECT_GT(check_all(family, check_of_dvb), 0) << family;
  }
  EXPECT_GT(check_all("ait", check_of_ait), 0);
}

/// Loads the "descriptors" element of an owner out of a document.
DescriptorSet loaded(std::string const& children) {
  auto const document = dom::Document::load_string("<it><descriptors>" + children + "</descriptors></it>");
  DescriptorSet set;
  set._parse_descriptors(static_cast<void*>(document.root_node().get()));
  return set;
}

TEST(DescriptorLists, GoByTheNameOfTheElementAndSkipTheUnknown) {
  std::string const head = " descriptor_id='137' descriptor_length='1' ";
  DescriptorSet const set = loaded(
      "<!-- a comment --><hierachy_descriptor/><general_descriptor" + head + "private_data='0a'/>text" +
      "<User_private_descriptor/><user_private_descriptor" + head + "private_data='0B'/>");
  ASSERT_EQ(set.get_general_descriptors().size(), 1u);
  EXPECT_EQ(set.get_general_descriptors()[0].tag, 137);
  EXPECT_EQ(set.get_general_descriptors()[0].data, Bytes{0x0A});
  ASSERT_EQ(set.get_user_private_descriptors().size(), 1u);
  EXPECT_EQ(set.get_user_private_descriptors()[0].data, Bytes{0x0B});
}

TEST(DescriptorLists, LoadingAddsAndKeepsWhatCameBeforeAFailure) {
  auto const document = dom::Document::load_string(
      "<it><descriptors><PDC_descriptor descriptor_id='105' descriptor_length='3' "
      "programme_identification_label='7'/><PDC_descriptor/></descriptors></it>");
  DescriptorSet set;
  for (std::size_t const held : {1u, 2u}) {
    EXPECT_TRUE(throws([&] { set._parse_descriptors(static_cast<void*>(document.root_node().get())); },
                       "failed to get descriptor_id"));
    EXPECT_EQ(set.get_PDC_descriptors().size(), held);
  }
}

}  // namespace
}  // namespace sivane::testing
