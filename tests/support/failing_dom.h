// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/xml/dom.h>

#include <memory>
#include <string>

namespace sivane::testing {

/// A DOM in memory that refuses the operation it is told to, and knows how many references are out.
///
///     for (long n = 1; dom.refuse(n), !table.SaveSection(dom.document(), root.get()); ++n) { ... }
class FailingDom {
 public:
  enum class Refusal {
    negative,   ///< a negative result that is not E_FAIL, and nothing is done
    no_object,  ///< a success without the object; a negative result of an operation that gives none
  };
  struct Account;

  FailingDom();
  ~FailingDom();

  IXMLDOMDocument* document() const { return document_.get(); }

  /// Nodes outside the tree. Making them is no operation.
  CComPtr<IXMLDOMElement> element(std::u16string name) const;
  CComPtr<IXMLDOMNode> comment(std::u16string text) const;

  /// The `nth` operation from now on is refused; 0 refuses none. AddRef and Release are no operations.
  void refuse(long nth, Refusal refusal = Refusal::negative);
  /// Operations since the last `refuse`.
  long operations() const;
  /// Nodes, maps and lists that are alive, and references to them, the document and the one to it aside. Both
  /// are 0 once a test has let go of every node.
  long live_objects() const;
  long references() const;

 private:
  std::shared_ptr<Account> account_;
  CComPtr<IXMLDOMDocument> document_;
};

}  // namespace sivane::testing
