// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/dump_lines.h>
#include <sivane/foundation/multilingual_name_info.h>

namespace sivane {

MultilingualNameInfo::MultilingualNameInfo(unsigned char const* data, int size, int& used)
    : MultilingualNameInfo(read_record<MultilingualNameInfo>(Reader::within(data, size), used)) {}

MultilingualNameInfo::MultilingualNameInfo(Reader& reader) {
  reader.need(4, {error::length_error, "multilingual_name_info_descriptor"});
  reader.code(ISO_639_language_code);
  text_len = reader.u8();
  reader.need(text_len, {error::length_error, "multilingual_name_info_descriptor:2"});
  name = reader.string(text_len);
}

void MultilingualNameInfo::_dump_state(std::ostream& os) const {
  dump::line(os, "MultilingualNameInfo::ISO_639_language_code: ", ISO_639_language_code);
  dump::line(os, "MultilingualNameInfo::text_len: ", text_len);
  dump::line(os, "MultilingualNameInfo::name: ", name);
}

}  // namespace sivane
