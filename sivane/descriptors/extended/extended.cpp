// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/extended/extended.h>

#include <algorithm>
#include <cstddef>

namespace sivane {

#define SIVANE_EXTENDED_ROW(tag, extension, specifier, Class, name) \
  char const* Class::get_tag_text() const { return name; }
#include <sivane/descriptors/extended/extended_descriptor_rows.inc>

namespace extended {

namespace {

template <class Descriptor>
std::unique_ptr<ExtendedDescriptor> make(DescriptorBytes bytes) {
  return std::make_unique<Descriptor>(bytes);
}

struct Row {
  Key key;
  std::unique_ptr<ExtendedDescriptor> (*make)(DescriptorBytes bytes);
};

constexpr Row rows[] = {
#define SIVANE_EXTENDED_ROW(tag, extension, specifier, Class, name) {key<Class>(), make<Class>},
#include <sivane/descriptors/extended/extended_descriptor_rows.inc>
};

bool has_extension(DescriptorBytes bytes, int extension) {
  return bytes.length() > 0 && bytes.available > 2 && bytes.body().u8() == extension;
}

}  // namespace

bool matches(Key const& key, DescriptorBytes bytes, unsigned int private_data_specifier) {
  if (key.tag != bytes.tag()) return false;
  if (key.extension != any && !has_extension(bytes, key.extension)) return false;
  return key.private_data_specifier == any || key.private_data_specifier == private_data_specifier;
}

std::unique_ptr<ExtendedDescriptor> build(DescriptorBytes bytes, unsigned int private_data_specifier,
                                          Malformed malformed) {
  auto const* const row = std::find_if(std::begin(rows), std::end(rows), [&](Row const& one) {
    return matches(one.key, bytes, private_data_specifier);
  });
  if (row == std::end(rows)) return nullptr;
  try {
    return row->make(bytes);
  } catch (error const&) {
    if (malformed == Malformed::throws) throw;
    return nullptr;
  }
}

std::unique_ptr<ExtendedDescriptor> build(DescriptorGeneral const& general, Malformed malformed) {
  return build(WireForm(general).bytes(), general.private_data_specifier, malformed);
}

WireForm::WireForm(DescriptorGeneral const& general) {
  constexpr std::size_t head = 2, most = 255;
  if (general.data.size() > most) raise({error::no_errorcode, "descriptor too long"});
  bytes_[0] = static_cast<unsigned char>(general.tag);
  bytes_[1] = static_cast<unsigned char>(general.data.size());
  std::copy(general.data.begin(), general.data.end(), bytes_ + head);
}

}  // namespace extended
}  // namespace sivane
