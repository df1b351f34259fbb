// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "text/json.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>
#include <sivane/charset/utf8.h>

#include <cmath>
#include <ostream>
#include <string>

namespace inspect {

namespace {

constexpr std::size_t often_enough = 4096;  // bytes that wait here for the stream

using Size = rapidjson::SizeType;

std::string with_replacements(std::string_view text) {
  std::string valid;
  while (!text.empty()) {
    sivane::charset::Utf8 const first = sivane::charset::first_of_utf8(text);
    sivane::charset::append_utf8(valid, first.is_valid ? first.character : U'�');
    text.remove_prefix(first.size);
  }
  return valid;
}

bool is_ascii(std::string_view text) {
  for (char const c : text) {
    if (static_cast<unsigned char>(c) >= 0x80) return false;
  }
  return true;
}

}  // namespace

struct JsonWriter::Parts {
  rapidjson::StringBuffer bytes;
  rapidjson::Writer<rapidjson::StringBuffer> writer{bytes};
};

JsonWriter::JsonWriter(std::ostream& out) : out_(out), parts_(std::make_unique<Parts>()) {}

JsonWriter::~JsonWriter() try {
  pass_on(0);
} catch (...) {  // a stream that throws has lost the output before
}

void JsonWriter::pass_on(std::size_t threshold) {
  if (parts_->bytes.GetSize() <= threshold) return;
  out_.write(parts_->bytes.GetString(), static_cast<std::streamsize>(parts_->bytes.GetSize()));
  parts_->bytes.Clear();
}

void JsonWriter::begin_object() { parts_->writer.StartObject(); }

void JsonWriter::end_object() {
  parts_->writer.EndObject();
  pass_on(often_enough);
}

void JsonWriter::begin_array() { parts_->writer.StartArray(); }

void JsonWriter::end_array() {
  parts_->writer.EndArray();
  pass_on(often_enough);
}

void JsonWriter::key(std::string_view name) {
  parts_->writer.Key(name.data(), static_cast<Size>(name.size()));
}

void JsonWriter::text(std::string_view utf8) {
  if (is_ascii(utf8)) {
    parts_->writer.String(utf8.data(), static_cast<Size>(utf8.size()));
    return;
  }
  std::string const valid = with_replacements(utf8);
  parts_->writer.String(valid.data(), static_cast<Size>(valid.size()));
}

void JsonWriter::number(long long value) { parts_->writer.Int64(value); }

void JsonWriter::real(double value) {
  if (std::isfinite(value)) {
    parts_->writer.Double(value);
  } else {
    parts_->writer.Null();
  }
}

void JsonWriter::flag(bool value) { parts_->writer.Bool(value); }

void JsonWriter::null() { parts_->writer.Null(); }

void JsonWriter::raw(std::string_view value) {
  parts_->writer.RawValue(value.data(), value.size(), rapidjson::kNullType);
}

void JsonWriter::end_line() {
  pass_on(0);
  parts_->writer.Reset(parts_->bytes);
  out_ << '\n';
}

}  // namespace inspect
