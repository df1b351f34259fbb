// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Visits of every table and descriptor of the case files, held against the documents that the objects are
// saved into; and which objects are equal.
#include <sivane/sivane.h>

#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "descriptor_cases.h"
#include "memory_dom.h"
#include "visited_tree.h"

namespace sivane::testing {
namespace {

using Names = std::set<std::string>;

/// The document of an object, as a text.
template <class Object>
std::string saved(Object const& object) {
  MemoryDom dom;
  auto const element = dom.element(u"it");
  object.SaveSection(dom.document().get(), element.get());
  return written(element.get());
}

template <class Object>
std::string dumped(Object const& object) {
  std::ostringstream os;
  object.dump_state(os);
  return os.str();
}

/// Expects a visit to tell what the document holds; gives what only the visit tells.
template <class Object>
Names check_visit(Object const& object) {
  MemoryDom dom;
  auto const element = dom.element(u"it");
  object.SaveSection(dom.document().get(), element.get());
  VisitedTree tree;
  object.visit(tree);
  expect_same(tree.root, element.get());
  return tree.unsaved;
}

/// An object equals its copy, and none of which a dump or a document differs.
template <class Object>
void check_equality(Object const& object, Object const& other) {
  Object const copy = object;
  EXPECT_TRUE(copy == object);
  if (dumped(object) != dumped(other) || saved(object) != saved(other)) {
    EXPECT_TRUE(object != other);
  }
}

TEST(Visits, OfDescriptorsTellWhatDocumentsHoldAndTheRest) {
  Names unsaved;
  each_descriptor_of_cases(
      [&](auto const&, auto const& descriptor) { unsaved.merge(check_visit(descriptor)); });
  EXPECT_EQ(unsaved, (Names{"component_tag", "country_availability_flag", "country_code", "id_selector_byte",
                            "stream_content_ext", "text"}));
}

template <class Visit>
void each_table_of_cases(Visit visit) {
  for (auto const& entry : std::filesystem::directory_iterator(SIVANE_TESTS "/tables/cases")) {
    std::string const name = entry.path().stem().string();
    for (Step const& step : read_steps("tables/cases/" + name + ".txt")) {
      if (!step.lines.contains("xml") || step.lines.contains("throws")) continue;
      ::testing::ScopedTrace const trace(step.file.c_str(), step.line, step.title);
      visit(name, assemble(step.argument));
    }
  }
}

TEST(Visits, OfTablesTellWhatDocumentsHoldAndTheRest) {
  Names unsaved, classes;
  each_table_of_cases([&](std::string const& name, Bytes const& section) {
    AnyTable const table = parse_table(section.data(), section.size());
    EXPECT_EQ(class_name(table), name);
    classes.insert(name);
    std::visit(
        [&](auto const& any) {
          if constexpr (requires { any.table_id; }) unsaved.merge(check_visit(any));
        },
        table);
    VisitedTree tree;
    visit_table(table, tree);
    EXPECT_EQ(tree.root.attributes.at(0).first, "table_id");
  });
  EXPECT_EQ(unsaved, (Names{"ca_descriptors", "data"}));
  EXPECT_EQ(classes.size() + 1, std::variant_size_v<AnyTable>);
}

/// Wants no list, and counts what is beside them.
struct ListLess final : FieldVisitor {
  bool wants_list(Field const& field) override {
    lists.insert(std::string(field.member));
    return false;
  }
  void number(Field const&, std::int64_t) override { ++numbers; }
  void descriptor(std::string_view, DescriptorBase const&) override { ADD_FAILURE(); }
  void record(Field const&, FieldHolder const&) override { ADD_FAILURE(); }

  Names lists;
  int numbers = 0;
};

TEST(Visits, PassOverListsThatAreNotWanted) {
  Sdt sdt;
  sdt.service_infos.resize(3);
  ListLess visitor;
  sdt.visit(visitor);
  EXPECT_EQ(visitor.lists, Names{"service_infos"});
  int const numbers_of_table = visitor.numbers;
  sdt.service_infos[0].visit(visitor);
  EXPECT_EQ(visitor.lists, (Names{"descriptors", "service_infos"}));
  EXPECT_GT(numbers_of_table, 0);
  EXPECT_GT(visitor.numbers, numbers_of_table);
}

/// Is told one field, and notes what it was.
struct OneField final : FieldVisitor {
  explicit OneField(std::string_view member) : FieldVisitor(member) {}
  void number(Field const&, std::int64_t value) override { told.push_back(std::to_string(value)); }
  void date(Field const&, DateTime const& value) override { told.push_back(std::to_string(value.year)); }
  void begin_list(Field const&, std::size_t size) override {
    told.push_back(std::to_string(size) + " items");
  }
  void record(Field const&, FieldHolder const&) override { told.push_back("record"); }
  void descriptor(std::string_view, DescriptorBase const&) override { told.push_back("descriptor"); }

  std::vector<std::string> told;
};

template <class Object>
std::vector<std::string> told_of(Object const& object, std::string_view member) {
  OneField visitor(member);
  object.visit(visitor);
  return visitor.told;
}

TEST(Visits, TellTheFieldAloneThatIsAskedFor) {
  using Told = std::vector<std::string>;
  Sdt sdt;
  sdt.original_network_id = 7;
  sdt.service_infos.resize(2);
  EXPECT_EQ(told_of(sdt, "original_network_id"), Told{"7"});
  EXPECT_EQ(told_of(sdt, "service_infos"), (Told{"2 items", "record", "record"}));
  EXPECT_EQ(told_of(sdt.service_infos[0], "descriptors"), Told{"0 items"});
  EXPECT_EQ(told_of(sdt, "descriptors"), Told());
  DescriptorLocalTimeOffset::LocalTime local;
  local.time_of_change.year = 2031;
  EXPECT_EQ(told_of(local, "time_of_change"), Told{"2031"});
  EXPECT_EQ(told_of(local, "next_time_offset"), Told{"record"});
}

TEST(Equality, IsThatOfEveryMember) {
  each_descriptor_of_cases([](auto const& row, auto const& descriptor) {
    using Class = std::remove_cvref_t<decltype(descriptor)>;
    static std::map<std::string, Class> earlier;
    auto const [other, is_first] = earlier.emplace(row.name, descriptor);
    check_equality<Class>(descriptor, other->second);
    check_equality<Class>(descriptor, Class());
  });
  each_table_of_cases([](std::string const& name, Bytes const& section) {
    AnyTable const table = make_table(name);
    std::visit(
        [&](auto fresh) {
          if constexpr (requires { fresh.table_id; }) {
            auto parsed = fresh;
            parsed.Parse(section.data(), section.size());
            check_equality(parsed, fresh);
          }
        },
        table);
  });
}

TEST(AnyTable, IsOfTheClassThatAnIdOrANameHas) {
  EXPECT_EQ(class_name(make_table(0x4E)), "Eit");
  EXPECT_EQ(class_name(make_table(0x6F)), "Eit");
  EXPECT_EQ(class_name(make_table(0x72)), "");
  EXPECT_EQ(class_name(make_table("eit")), "");
  EXPECT_EQ(class_name(parse_table(nullptr, 0)), "");
  unsigned char const cut[] = {0x42, 0xF0};
  EXPECT_THROW(parse_table(cut, sizeof cut), error);
}

}  // namespace
}  // namespace sivane::testing
