// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/dom/element_writer.h>
#include <sivane/dom/nodes.h>
#include <sivane/dom/refusal.h>
#include <sivane/dom/writer.h>

#include <ostream>
#include <utility>

namespace sivane::dom {

namespace {
constexpr char task[] = "write the document";
}

ElementWriter::ElementWriter(std::ostream& out, std::string root) : out_(out), root_(std::move(root)) {
  check_name(root_);
}

void ElementWriter::write(std::string const& name, Fill const& fill) {
  check_name(name);
  auto const document = new_tree();
  fill(document.get(), &append_element(document->tree(), *document.get(), name));
  explained(task, [&] {
    std::string text = is_empty_ ? std::string(declaration) + '<' + root_ + ">\n" : std::string();
    append_root(text, *document.get(), 1);
    if (text.size() > max_size) throw error(too_large().c_str());
    put(text);
    is_empty_ = false;
  });
}

void ElementWriter::finish() {
  explained(task, [&] {
    put(is_empty_ ? std::string(declaration) + '<' + root_ + " />\n" : "</" + root_ + ">\n");
  });
}

void ElementWriter::put(std::string const& text) {
  errno = 0;
  out_.write(text.data(), static_cast<std::streamsize>(text.size())).flush();
  if (!out_) throw error(system_reason().c_str());
}

}  // namespace sivane::dom
