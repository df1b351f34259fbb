// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What README.md says of tables and descriptors is what the rows have; the fuzz corpora have something of
// each table.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <string>

#include "file_contents.h"

namespace {

using sivane::testing::contents;

/// The bullet of the page that begins so, up to the next one.
std::string bullet(std::string const& title) {
  std::string const page = contents(SIVANE_SOURCES "/README.md");
  std::size_t const at = page.find("- **" + title + "**");
  return at == std::string::npos ? "no such bullet" : page.substr(at, page.find("\n- ", at) - at);
}

/// Capital letters, as abbreviations are written on the page, without hyphens.
std::string abbreviated(std::string text) {
  std::erase(text, '-');
  for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return text;
}

TEST(Readme, NamesEveryTable) {
  std::string const tables = abbreviated(bullet("Tables"));
#define SIVANE_TABLE_ROW(Class, Frame, other_text, ...) \
  EXPECT_NE(tables.find(abbreviated(#Class)), std::string::npos) << #Class " in: " << tables;
#include <sivane/tables/table_rows.inc>
}

TEST(Readme, CountsTheDescriptorClasses) {
  int classes = 0, ait_classes = 0;
#define SIVANE_GENERAL_ROW(kind, getter, element)
#define SIVANE_ROW(tag, Class, getter, element) ++classes;
#include <sivane/descriptors/descriptor_rows.inc>
#define SIVANE_GENERAL_ROW(kind, getter, element)
#define SIVANE_ROW(tag, Class, getter, element) ++ait_classes;
#include <sivane/descriptors/ait_descriptor_rows.inc>
  std::string const descriptors = bullet("Descriptors");
  EXPECT_NE(descriptors.find(" " + std::to_string(classes) + " classes of "), std::string::npos) << classes;
  EXPECT_NE(descriptors.find(" the " + std::to_string(ait_classes) + " of an AIT"), std::string::npos)
      << ait_classes;
}

TEST(FuzzCorpora, HaveEveryTable) {
  std::filesystem::path const corpus = SIVANE_SOURCES "/fuzz/corpus";
  std::string documents;
  for (auto const& entry : std::filesystem::directory_iterator(corpus / "xml")) {
    documents += contents(entry.path());
  }
#define SIVANE_TABLE_ROW(Class, Frame, other_text, ...)                                               \
  EXPECT_TRUE(exists(corpus / "sections" / "rich-" #Class)) << #Class " lacks sections/rich-" #Class; \
  EXPECT_NE(documents.find("<" #Class " "), std::string::npos) << #Class " stands in no document";
#include <sivane/tables/table_rows.inc>
}

}  // namespace
