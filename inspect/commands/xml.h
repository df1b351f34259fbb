// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/dom/document.h>

#include <iosfwd>

#include "commands/command.h"

namespace inspect {

/// Shows all sections as one document, written at the end.
class XmlCommand final : public Command {
 public:
  explicit XmlCommand(std::ostream& out) : out_(out), root_(document_.make_root("sections")) {}
  void finish() override;

 private:
  void show(Section const& section) override;
  void show_failure(Failure const& failure) override;
  sivane::CComPtr<sivane::IXMLDOMElement> append(std::string_view name);

  std::ostream& out_;
  sivane::dom::Document document_;
  sivane::CComPtr<sivane::IXMLDOMElement> root_;
};

}  // namespace inspect
