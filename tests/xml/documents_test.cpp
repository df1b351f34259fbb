// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The documents of every table and descriptor in the case files: what a document must hold, what a refusing
// one leads to, and the way through a text. Which names and values they have stands in the case
// files.
#include <sivane/dom/document.h>
#include <sivane/sivane.h>

#include "descriptor_cases.h"
#include "document_check.h"

namespace sivane::testing {
namespace {

/// Of what a few classes dump, documents do not carry all.
template <class Object>
constexpr bool is_carried_whole =
    !std::is_same_v<Object, DescriptorCountryAvailability> &&
    !std::is_same_v<Object, DescriptorExtendedEvent> && !std::is_same_v<Object, DescriptorComponent> &&
    !std::is_same_v<Object, DescriptorMultilingualComponent>;

template <class Object>
std::string document_of(Object const& object) {
  dom::Document document;
  EXPECT_TRUE(object.SaveSection(document.dom(), document.make_root("it").get()));
  return document.save_string();
}

/// Loaded and saved again an object gives the same document.
template <class Object>
void expect_survival(Object const& object) {
  std::string const text = document_of(object);
  Object loaded;
  loaded.Parse(static_cast<void*>(dom::Document::load_string(text).root_node().get()));
  EXPECT_EQ(document_of(loaded), text);
  EXPECT_TRUE(!is_carried_whole<Object> || dump_of(loaded) == dump_of(object));
}

template <class Object>
void check(Object const& object) {
  constexpr bool is_table = !std::is_base_of_v<DescriptorBase, Object>;
  constexpr bool save_may_throw =
      std::is_same_v<Object, DescriptorAitRoutingIPv6> || std::is_same_v<Object, Ait>;
  expect_everything_is_needed(
      object, is_table, [](Saved const& saved) { return CComPtr<IXMLDOMNode>(saved.element.get()); }, {});
  expect_refusals_are_met(object, is_table, save_may_throw);
  expect_survival(object);
}

// Its answer is false, and its document has the header alone.
void check(DsmCC const& table) {
  Saved saved;
  EXPECT_FALSE(saved.save(table));
  DsmCC loaded;
  loaded.data = {7};
  saved.load(loaded);
  EXPECT_EQ(dump_of(loaded), dump_of(table));
  EXPECT_EQ(loaded.get_data(), Bytes{7});
}

template <class Table>
void check_table(std::string const& name) {
  int checked = 0;
  for (Step const& step : read_steps("tables/cases/" + name + ".txt")) {
    if (!step.lines.contains("xml")) continue;
    const ::testing::ScopedTrace trace(step.file.c_str(), step.line, step.title);
    Table table;
    table.Parse(HeapBlock(assemble(step.argument)).data());
    check(table);
    ++checked;
  }
  EXPECT_GT(checked, 0) << name << " has no case with a document";
}

TEST(Documents, OfTablesHoldTheirPromises) {
#define SIVANE_TABLE_ROW(Class, Frame, other_text, ...) check_table<Class>(#Class);
#include <sivane/tables/table_rows.inc>
}

TEST(Documents, OfDescriptorsHoldTheirPromises) {
  each_descriptor_of_cases([](auto const&, auto const& descriptor) { check(descriptor); });
}

TEST(DescriptorLists, GoByTheNameOfTheElementAndSkipTheUnknown) {
  std::string const head = " descriptor_id='137' descriptor_length='1' ";
  DescriptorSet set;
  auto const document = dom::Document::load_string(
      "<it><descriptors><!-- a comment --><hierachy_descriptor/><general_descriptor" + head +
      "private_data='0a'/>text<User_private_descriptor/><user_private_descriptor" + head +
      "private_data='0B'/></descriptors></it>");
  set._parse_descriptors(static_cast<void*>(document.root_node().get()));
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
    EXPECT_EQ(thrown([&] { set._parse_descriptors(static_cast<void*>(document.root_node().get())); }),
              "no_errorcode failed to get descriptor_id");
    EXPECT_EQ(set.get_PDC_descriptors().size(), held);
  }
}

}  // namespace
}  // namespace sivane::testing
