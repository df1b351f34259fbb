// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// All that the library asks of a document object model: fourteen operations under the names of the published
// MSXML DOM, as abstract classes. sivane::dom implements them; a host may put any other DOM behind them.
//
// Tables and descriptors take these objects as `void*`, and turn them back into exactly these types, so that
// a host converts before it passes them on:
//
//   Parse(node)                     IXMLDOMNode*
//   SaveSection(document, element)  IXMLDOMDocument*, IXMLDOMElement*
//
// Results: a negative number is a failure, any other a success; nothing else about a result is looked at. An
// operation that gives back an object gives null with a success where there is none, which callers take for a
// failure as well. Exhausted memory is thrown as std::bad_alloc, and passes through the library.
//
// Ownership: objects count their references and go with the last one. An object that is passed in belongs to
// the caller, who keeps a reference for the length of the call; a callee that stores it adds its own. An
// object that is given back through an out-parameter carries a reference for the receiver. The library keeps
// no object beyond the call that it was passed to, and gives every reference back, also where it throws.
//
// Threads: the library calls on the thread that it was called on, and locks nothing.
#pragma once

#include <sivane/foundation/export.h>

#include <cstdint>
#include <string>
#include <utility>

namespace sivane {

// The headers of Windows have macros of these names and values.
#ifndef S_OK
inline constexpr long S_OK = 0;
#endif
#ifndef S_FALSE
inline constexpr long S_FALSE = 1;  ///< a success without an object
#endif
#ifndef E_FAIL
inline constexpr long E_FAIL = -0x7FFF'BFFBL;  ///< 0x80004005 as a signed 32-bit number
#endif

/// What a tagVARIANT holds.
enum VARENUM : unsigned short { VT_EMPTY = 0, VT_I4 = 3, VT_R8 = 5, VT_BSTR = 8 };

/// The value of an attribute: empty, a 32-bit integer, a double or a text. Copies are independent.
struct SIVANE_API tagVARIANT {
  tagVARIANT() = default;
  /// VT_I4.
  explicit tagVARIANT(std::int32_t value) : vt(VT_I4), lVal(value) {}
  /// VT_R8.
  explicit tagVARIANT(double value) : vt(VT_R8), dblVal(value) {}
  /// VT_BSTR.
  explicit tagVARIANT(std::u16string value) : vt(VT_BSTR), bstrVal(std::move(value)) {}

  /// The value as an attribute shows it, in no locale: a decimal number, the shortest that reads back as the
  /// same double, or the text itself.
  std::u16string text() const;

  VARENUM vt = VT_EMPTY;   ///< which of the members below counts
  std::int32_t lVal = 0;   ///< VT_I4
  double dblVal = 0;       ///< VT_R8
  std::u16string bstrVal;  ///< VT_BSTR; UTF-16
};

class IXMLDOMAttribute;
class IXMLDOMElement;
class IXMLDOMNamedNodeMap;
class IXMLDOMNode;
class IXMLDOMNodeList;

/// The one view that is asked for.
enum InterfaceId { IID_IXMLDOMElement };

/// What every object of a DOM does.
class SIVANE_API IUnknown {
 public:
  /// Both give the count that remains. The object is gone after the Release that leaves 0.
  virtual long AddRef() = 0;
  virtual long Release() = 0;  ///< as `AddRef`
  /// The element that the node is; fails for every other object.
  virtual long QueryInterface(InterfaceId iid, IXMLDOMElement** element) = 0;

 protected:
  ~IUnknown() = default;
};

/// A node of the tree. Names and texts are UTF-16; names end at a zero and are compared exactly.
class SIVANE_API IXMLDOMNode : public IUnknown {
 public:
  /// Makes `child` the last child. `added` receives the child again unless it is null.
  virtual long appendChild(IXMLDOMNode* child, IXMLDOMNode** added) = 0;
  /// The attributes of an element; fails for every other node.
  virtual long get_attributes(IXMLDOMNamedNodeMap** attributes) = 0;
  /// All children in document order: elements, texts and comments.
  virtual long get_childNodes(IXMLDOMNodeList** children) = 0;
  /// The name of an element or attribute; "#text" of a text, "#comment" of a comment.
  virtual long get_nodeName(std::u16string* name) = 0;
  /// The text of an attribute, normally as VT_BSTR.
  virtual long get_nodeValue(tagVARIANT* value) = 0;
  /// Makes `tagVARIANT::text` of the value the text of an attribute.
  virtual long put_nodeValue(tagVARIANT value) = 0;
  /// The first child element of this name; it is a name alone, never a path.
  virtual long selectSingleNode(char16_t const* name, IXMLDOMNode** node) = 0;

 protected:
  ~IXMLDOMNode() = default;
};

/// An element. It keeps its attributes in the order in which they were added.
class SIVANE_API IXMLDOMElement : public IXMLDOMNode {
 public:
  /// Attaches an attribute in place of one of the same name, which `old` receives unless it is null; there
  /// need not be one.
  virtual long setAttributeNode(IXMLDOMAttribute* attribute, IXMLDOMAttribute** old) = 0;

 protected:
  ~IXMLDOMElement() = default;
};

/// An attribute, on an element or not yet.
class SIVANE_API IXMLDOMAttribute : public IXMLDOMNode {
 protected:
  ~IXMLDOMAttribute() = default;
};

/// A document, and the maker of its nodes.
class SIVANE_API IXMLDOMDocument : public IXMLDOMNode {
 public:
  /// A new element, not in the tree yet.
  virtual long createElement(char16_t const* name, IXMLDOMElement** element) = 0;
  /// A new attribute of no element yet.
  virtual long createAttribute(char16_t const* name, IXMLDOMAttribute** attribute) = 0;

 protected:
  ~IXMLDOMDocument() = default;
};

/// The attributes of one element.
class SIVANE_API IXMLDOMNamedNodeMap : public IUnknown {
 public:
  /// The attribute of this name; null with a success where there is none.
  virtual long getNamedItem(char16_t const* name, IXMLDOMNode** node) = 0;

 protected:
  ~IXMLDOMNamedNodeMap() = default;
};

/// The children of one node.
class SIVANE_API IXMLDOMNodeList : public IUnknown {
 public:
  /// How many children there are.
  virtual long get_length(long* length) = 0;
  /// The child at `index`, from 0.
  virtual long get_item(long index, IXMLDOMNode** node) = 0;

 protected:
  ~IXMLDOMNodeList() = default;
};

/// Holds one reference, or null, and gives it back on every way out.
template <class Interface>
class CComPtr {
 public:
  CComPtr() = default;
  /// Adds a reference of its own.
  explicit CComPtr(Interface* object) : object_(object) {
    if (object_ != nullptr) object_->AddRef();
  }
  /// Adds a reference.
  CComPtr(CComPtr const& other) : CComPtr(other.object_) {}
  /// The same object in a more general view.
  template <class Derived>
  CComPtr(CComPtr<Derived> const& other) : CComPtr(static_cast<Interface*>(other.get())) {}
  /// Takes the reference over.
  CComPtr(CComPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  /// Gives back the reference held before.
  CComPtr& operator=(CComPtr other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~CComPtr() {
    if (object_ != nullptr) object_->Release();
  }

  /// What is held, or null.
  Interface* get() const { return object_; }
  /// What is held; not to be used on null.
  Interface* operator->() const { return object_; }
  /// Whether anything is held.
  explicit operator bool() const { return object_ != nullptr; }

  /// For an out-parameter: gives back what is held, and takes over the reference that is stored there.
  Interface** receive() {
    *this = CComPtr();
    return &object_;
  }
  /// Gives the reference to the caller.
  Interface* detach() { return std::exchange(object_, nullptr); }

 private:
  Interface* object_ = nullptr;
};

}  // namespace sivane
