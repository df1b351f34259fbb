// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Descriptors that are younger than the two sets, or private: a set files them as bytes, and these functions
// make typed objects of those bytes where somebody asks.
//
//     for (sivane::DescriptorGeneral const& bytes : stream.get_general_descriptors()) {
//       if (auto const t2 = sivane::extended::as<sivane::DescriptorT2DeliverySystem>(bytes)) use(*t2);
//     }
//
// The tags are those of all tables but the AIT, which has a tag space of its own: ask nothing of its bytes.
#pragma once

#include <sivane/descriptors/extended/audio.h>
#include <sivane/descriptors/extended/channels.h>
#include <sivane/descriptors/extended/delivery.h>
#include <sivane/descriptors/extended/mpeg.h>
#include <sivane/descriptors/extended/programme.h>
#include <sivane/descriptors/extended/region.h>

#include <memory>
#include <optional>

namespace sivane::extended {

/// What becomes of a descriptor that is shorter than its fields: an `error`, or no object.
enum class Malformed { throws, is_nothing };

/// Stands in a key for what does not matter.
inline constexpr int any = -1;

/// What makes a descriptor one of its class.
struct Key {
  int tag;                           ///< 8 bits
  int extension;                     ///< 8 bits that the body begins with; or any
  long long private_data_specifier;  ///< 32 bits that must be in force; or any
};

/// The key of a class.
template <class Descriptor>
constexpr Key key() = delete;
#define SIVANE_EXTENDED_ROW(tag, extension, specifier, Class, name) \
  template <>                                                       \
  constexpr Key key<Class>() {                                      \
    return {tag, extension, specifier};                             \
  }
#include <sivane/descriptors/extended/extended_descriptor_rows.inc>

/// Whether the bytes, where `private_data_specifier` is in force, are of the class with this key.
SIVANE_API bool matches(Key const& key, DescriptorBytes bytes, unsigned int private_data_specifier = 0);

/// The object; empty where the bytes are of another class. Throws `error` as the class says, or is empty then
/// too.
template <class Descriptor>
std::optional<Descriptor> as(DescriptorBytes bytes, unsigned int private_data_specifier = 0,
                             Malformed malformed = Malformed::throws) {
  if (!matches(key<Descriptor>(), bytes, private_data_specifier)) return std::nullopt;
  try {
    return Descriptor(bytes);
  } catch (error const&) {
    if (malformed == Malformed::throws) throw;
    return std::nullopt;
  }
}

/// The object, whatever its class; null where there is no class for the bytes. Throws `error` as the class
/// says, or is null then too.
SIVANE_API std::unique_ptr<ExtendedDescriptor> build(DescriptorBytes bytes,
                                                     unsigned int private_data_specifier = 0,
                                                     Malformed malformed = Malformed::throws);

/// A descriptor of which a set has filed the bytes, as bytes one after the other.
class SIVANE_API WireForm {
 public:
  /// Throws "descriptor too long" where `general` has more than 255 bytes, which a host may have put there.
  explicit WireForm(DescriptorGeneral const& general);
  /// Good as long as this object.
  DescriptorBytes bytes() const { return bytes_; }

 private:
  unsigned char bytes_[257];
};

/// The same for a descriptor of a set, which knows the specifier that was in force.
template <class Descriptor>
std::optional<Descriptor> as(DescriptorGeneral const& general, Malformed malformed = Malformed::throws) {
  if (general.tag != key<Descriptor>().tag) return std::nullopt;
  return as<Descriptor>(WireForm(general).bytes(), general.private_data_specifier, malformed);
}

/// The same for a descriptor of a set, which knows the specifier that was in force.
SIVANE_API std::unique_ptr<ExtendedDescriptor> build(DescriptorGeneral const& general,
                                                     Malformed malformed = Malformed::throws);

}  // namespace sivane::extended
