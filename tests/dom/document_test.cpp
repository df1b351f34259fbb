// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Documents as texts and files: what comes back, what other readers make of it, and what is refused.
#include <gtest/gtest.h>
#include <sivane/dom/document.h>
#include <sivane/xml/attributes.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "expect_error.h"
#include "temporary_folder.h"

namespace sivane::testing {
namespace {

using dom::Document;

std::string repeated(std::string const& text, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

std::string all_bytes() {
  std::string bytes;
  for (int b = 1; b <= 0xFF; ++b) bytes += static_cast<char>(b);
  return bytes;
}

std::string attribute_of_root(Document const& document, char16_t const* name) {
  CComPtr<IXMLDOMNamedNodeMap> map;
  EXPECT_EQ(document.root_node()->get_attributes(map.receive()), S_OK);
  std::string value = "none";
  GetAttributeValue(map.get(), name, value);
  return value;
}

TEST(Document, WritesWhatItsNodesHold) {
  Document document;
  auto const root = document.make_root("root");
  AddAttribute(document.dom(), root.get(), u"text", " a\t\n\r\"'&<>\x01\x1F\xE4");
  AddAttribute(document.dom(), root.get(), u"number", 1.5);
  CComPtr<IXMLDOMElement> child;
  ASSERT_EQ(document.dom()->createElement(u"child", child.receive()), S_OK);
  ASSERT_EQ(root->appendChild(child.get(), nullptr), S_OK);
  std::string const text =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<root text=\" a&#09;&#10;&#13;&quot;'&amp;&lt;>\u2401\u241F\u00E4\" number=\"1.5\">\n"
      "  <child />\n"
      "</root>\n";
  EXPECT_EQ(document.save_string(), text);
  EXPECT_EQ(Document::load_string(text).save_string(), text);
}

TEST(Document, KeepsWhatItLoadsButBlanks) {
  std::string const text =
      "<?xml version='1.0' encoding='ISO-8859-1' standalone='yes'?>\n<!--first--><?target data?>\n"
      "<r a = '1'\n b='&#x20AC;&lt;&apos;\n\xE4'> <!-- c --><d>t&amp;<![CDATA[<x>]]>u</d>\n\t<e/> </r> "
      "<!--last-->";
  EXPECT_EQ(Document::load_string(text).save_string(),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!--first-->\n<?target data?>\n"
            "<r a=\"1\" b=\"\u20AC&lt;' \u00E4\">\n  <!-- c -->\n  <d>t&amp;&lt;x&gt;u</d>\n  <e />\n</r>\n"
            "<!--last-->\n");
}

TEST(Document, TakesTheOtherEncodings) {
  std::string const utf16("\xFF\xFE<\0r\0 \0a\0=\0'\0\xE4\0'\0/\0>\0", 22);
  EXPECT_EQ(attribute_of_root(Document::load_string(utf16), u"a"), "\xE4");
  EXPECT_EQ(attribute_of_root(Document::load_string("\xEF\xBB\xBF<r a='\xC3\xA4'/>"), u"a"), "\xE4");
}

TEST(Document, EveryByteSurvivesAFile) {
  TemporaryFolder const folder;
  std::string const path = folder.file("bytes.xml");
  {
    Document document;
    AddAttribute(document.dom(), document.make_root("root").get(), u"all", all_bytes());
    document.save_file(path);
  }
  EXPECT_EQ(attribute_of_root(Document::load_file(path), u"all"), all_bytes());
}

/// Another reader of XML looks at a file with every byte, and with what no XML may hold.
class OtherReaders : public ::testing::Test {
 protected:
  OtherReaders() {
    Document document;
    auto const root = document.make_root("root");
    AddAttribute(document.dom(), root.get(), u"all", all_bytes());
    char16_t const forbidden[] = {u'a', 0xD800, 0xFFFE, 0xFFFF, 0xDC00, 0xD83D, 0xDE00, 0};
    AddAttribute(document.dom(), root.get(), u"forbidden", tagVARIANT(std::u16string(forbidden)));
    document.save_file(path());
  }
  std::string path() const { return folder_.file("bytes.xml"); }
  static bool runs(std::string const& command) {
    return std::system((command + " > /dev/null 2>&1").c_str()) == 0;
  }

 private:
  TemporaryFolder folder_;
};

TEST_F(OtherReaders, Libxml2) {
  if (!runs("xmllint --version")) GTEST_SKIP() << "there is no xmllint";
  EXPECT_TRUE(runs("xmllint --noout " + path()));
  EXPECT_FALSE(runs("xmllint --noout " + path() + ".missing"));
}

TEST_F(OtherReaders, Python) {
  if (!runs("python3 -c 'import xml.dom.minidom'")) GTEST_SKIP() << "there is no python3";
  std::string const check =
      "python3 -c '\n"
      "import sys, xml.dom.minidom\n"
      "root = xml.dom.minidom.parse(sys.argv[1]).documentElement\n"
      "text = \"\".join(chr(c if c in (9, 10, 13) or c > 31 else 0x2400 + c) for c in range(1, 256))\n"
      "assert root.getAttribute(\"all\") == text\n"
      "assert root.getAttribute(\"forbidden\") == \"a\" + 4 * chr(0xFFFD) + chr(0x1F600)\n' ";
  EXPECT_TRUE(runs(check + path()));
  EXPECT_FALSE(runs(check + path() + ".missing"));
}

TEST(Document, RefusesWhatIsNoDocument) {
  std::string const invalid = "not well-formed (invalid token)";
  std::string const bomb =
      "<!DOCTYPE a [<!ENTITY b 'bbbbbbbbbb'><!ENTITY c '&b;&b;&b;&b;&b;&b;&b;&b;'>]>\n<a>&c;&c;&c;</a>";
  std::pair<std::string, std::string> const rows[] = {
      {"", "line 1: no element found"},
      {" \n<!-- -->\n", "line 3: no element found"},
      {"text", "line 1: syntax error"},
      {"<a>\n<b>\n", "line 3: unclosed element"},
      {"<a>\n<b></a>", "line 2: mismatched tag"},
      {"<a>", "line 1: unclosed element"},
      {"<a", "line 1: unclosed token"},
      {"<a/>\n<b/>", "line 2: junk after document element"},
      {"<a b='1' b='2'/>", "line 1: duplicate attribute"},
      {"<a b='x & y'/>", "line 1: " + invalid},
      {"<a b='&#1;'/>", "line 1: reference to invalid character number"},
      {"<a b='\x01'/>", "line 1: " + invalid},
      {"<a b='\xE4'/>", "line 1: " + invalid},
      {std::string("<a b='\0'/>", 10), "line 1: " + invalid},
      {"<?xml version='1.0' encoding='EBCDIC'?><a/>", "line 1: unknown encoding"},
      {"<a>&b;</a>", "line 1: undefined entity"},
      {"<!DOCTYPE a><a/>", "line 1: a DOCTYPE is not accepted"},
      {"\n<!DOCTYPE a SYSTEM 'file:///etc/passwd'><a/>", "line 2: a DOCTYPE is not accepted"},
      {bomb, "line 1: a DOCTYPE is not accepted"},
      {repeated("<a>", 65) + repeated("</a>", 65), "line 1: more than 64 levels"},
      {repeated("<a>", 1000000), "line 1: more than 64 levels"},
      {std::string((64 << 20) + 1, ' '), "more than 64 MiB"},
  };
  for (auto const& [text, reason] : rows) {
    EXPECT_TRUE(
        throws([&, &text = text] { Document::load_string(text); }, "cannot load the document: " + reason))
        << text.substr(0, 60);
  }
}

TEST(Document, TakesWhatIsJustAllowed) {
  Document const deep = Document::load_string(repeated("<a>", 64) + "text<!---->" + repeated("</a>", 64));
  EXPECT_EQ(Document::load_string(deep.save_string()).save_string(), deep.save_string());
  std::string large = "<a/>";
  large.resize(64 << 20, ' ');
  EXPECT_EQ(attribute_of_root(Document::load_string(large), u"b"), "none");
}

TEST(Document, NamesTheFileThatFails) {
  TemporaryFolder const folder;
  std::string const missing = folder.file("missing.xml"), broken = folder.file("broken.xml");
  EXPECT_TRUE(throws([&] { Document::load_file(missing); },
                     "cannot load " + missing + ": No such file or directory"));
  EXPECT_TRUE(throws([&] { Document::load_file(folder.file("")); },
                     "cannot load " + folder.file("") + ": Is a directory"));
  std::ofstream(broken) << "<a>\n</b>";
  EXPECT_TRUE(
      throws([&] { Document::load_file(broken); }, "cannot load " + broken + ": line 2: mismatched tag"));
  EXPECT_TRUE(throws([] { Document::load_file("/dev/zero"); }, "cannot load /dev/zero: more than 64 MiB"));

  Document const document = Document::load_string("<a/>");
  std::string const nowhere = folder.file("no/folder.xml");
  EXPECT_TRUE(
      throws([&] { document.save_file(nowhere); }, "cannot save " + nowhere + ": No such file or directory"));
  EXPECT_TRUE(
      throws([&] { document.save_file("/dev/full"); }, "cannot save /dev/full: No space left on device"));
  EXPECT_TRUE(
      throws([&] { Document().save_file(broken); }, "cannot save " + broken + ": there is no root element"));
  EXPECT_EQ(std::filesystem::file_size(broken), 8u);
}

TEST(Document, HasOneRoot) {
  Document document;
  EXPECT_TRUE(throws([&] { document.root_element(); }, "the document has no root element"));
  EXPECT_TRUE(throws([&] { document.root_node(); }, "the document has no root element"));
  EXPECT_TRUE(throws([&] { document.save_string(); }, "cannot save the document: there is no root element"));
  for (char const* const name : {"", "1a", "a b", "a<", "-", "\xC3\xA4"}) {
    EXPECT_TRUE(
        throws([&] { document.make_root(name); }, std::string("no name for an element: \"") + name + '"'));
  }
  document.make_root("A-1._:z");
  EXPECT_TRUE(throws([&] { document.make_root("b"); }, "the document has a root element already"));
  Document moved = std::move(document);
  std::u16string name;
  EXPECT_EQ(moved.root_element()->get_nodeName(&name), S_OK);
  EXPECT_EQ(name, u"A-1._:z");
}

}  // namespace
}  // namespace sivane::testing
