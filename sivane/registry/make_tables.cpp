// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Part of the build, not of the library: `make_tables OUTPUT LIST...` writes the source that defines what
// tables.h declares, for each LIST the function that is called like the file.
#include <sivane/registry/list.h>

#include <exception>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <limits>
#include <sstream>
#include <stdexcept>
#include <unordered_map>
#include <utility>

namespace {

using sivane::registry::List;

/// Where each name begins among all names, one after the other with their zero bytes.
class Names {
 public:
  std::size_t offset(std::string const& name) {
    auto const [entry, is_new] = offsets_.try_emplace(name, size_);
    if (is_new) {
      if (size_ > std::numeric_limits<std::uint16_t>::max()) {
        throw std::runtime_error("the names have outgrown the offsets of 16 bits");
      }
      order_.push_back(name);
      size_ += name.size() + 1;
    }
    return entry->second;
  }
  std::vector<std::string> const& in_order() const { return order_; }

 private:
  std::unordered_map<std::string, std::size_t> offsets_;
  std::vector<std::string> order_;
  std::size_t size_ = 0;
};

List read_file(std::string const& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error(path + ": cannot be opened");
  return sivane::registry::read_list(in, path);
}

template <class Number>
void write_numbers(std::ostream& out, std::string const& type, std::string const& name, List const& list,
                   Number number) {
  out << "constexpr std::" << type << ' ' << name << "[] = {\n";
  for (auto const& row : list.rows) out << number(row) << ",\n";
  out << "};\n";
}

void write_table(std::ostream& out, std::string const& table, List const& list, Names& names) {
  std::string const id = list.digits == 8 ? "uint32_t" : "uint16_t";
  out << "\nnamespace {\n";
  write_numbers(out, id, table + "_ids", list, [](auto const& row) { return row.id; });
  write_numbers(out, "uint16_t", table + "_names", list,
                [&](auto const& row) { return names.offset(row.name); });
  out << "}\nTable<std::" << id << "> " << table << "() {\n  return {" << table << "_ids, " << table
      << "_names, " << list.head << ", texts};\n}\n";
}

void write_character(std::ostream& out, char c) {
  if (c >= ' ' && c <= '~' && c != '"' && c != '\\') {
    out << c;
  } else {
    out << '\\' << std::oct << std::setw(3) << static_cast<int>(static_cast<unsigned char>(c)) << std::dec;
  }
}

void write_texts(std::ostream& out, Names const& names) {
  out << "\nnamespace {\nconstexpr char texts[] =";
  for (std::string const& name : names.in_order()) {
    out << "\n\"";
    for (char const c : name) write_character(out, c);
    out << "\\0\"";
  }
  out << ";\n}\n";
}

std::string source_of(std::vector<std::string> const& lists) {
  Names names;
  std::ostringstream tables;
  for (std::string const& path : lists) {
    write_table(tables, std::filesystem::path(path).stem().string(), read_file(path), names);
  }
  std::ostringstream source;
  source << "// Made by sivane/registry/make_tables.cpp from the lists beside it in data/.\n"
            "#include <sivane/registry/tables.h>\n\nnamespace sivane::registry {\n"
         << std::setfill('0');
  write_texts(source, names);
  source << tables.str() << "\n}  // namespace sivane::registry\n";
  return source.str();
}

}  // namespace

// Nothing is written unless all lists have their form.
int main(int argc, char** argv) {
  try {
    if (argc < 3) throw std::runtime_error("usage: make_tables OUTPUT LIST...");
    std::string const source = source_of({argv + 2, argv + argc});
    std::ofstream out(argv[1], std::ios::binary);
    out << source << std::flush;
    if (!out) throw std::runtime_error(std::string(argv[1]) + ": cannot be written");
    return 0;
  } catch (std::exception const& failure) {
    std::cerr << failure.what() << '\n';
    return 1;
  }
}
