// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/charset/iconv_handle.h>

#include <cerrno>
#include <cstdint>
#include <new>
#include <utility>

namespace sivane::charset {

namespace {

constexpr auto failed = static_cast<std::size_t>(-1);

iconv_t closed() { return reinterpret_cast<iconv_t>(std::intptr_t{-1}); }

iconv_t try_open(std::string const& to, std::string const& from) {
  iconv_t const handle = iconv_open(to.c_str(), from.c_str());
  if (handle == closed() && errno != EINVAL) throw std::bad_alloc();  // or too many open files
  return handle;
}

/// iconv also says "unknown" where it had no memory to look. So it is asked again, and then for what every
/// iconv has.
iconv_t open(std::string const& to, std::string const& from) {
  for (int attempt = 0; attempt < 2; ++attempt) {
    if (iconv_t const handle = try_open(to, from); handle != closed()) return handle;
  }
  iconv_t const probe = try_open("UTF-8", "US-ASCII");
  if (probe == closed()) throw std::bad_alloc();
  iconv_close(probe);
  return closed();
}

}  // namespace

IconvHandle::IconvHandle(std::string const& to, std::string const& from) : handle_(open(to, from)) {}

IconvHandle::IconvHandle(IconvHandle&& other) noexcept : handle_(std::exchange(other.handle_, closed())) {}

IconvHandle& IconvHandle::operator=(IconvHandle&& other) noexcept {
  std::swap(handle_, other.handle_);
  return *this;
}

IconvHandle::~IconvHandle() {
  if (is_open()) iconv_close(handle_);
}

bool IconvHandle::is_open() const { return handle_ != closed(); }

std::string_view IconvHandle::convert(std::string_view text, std::string& converted) {
  constexpr std::size_t room_at_once = 1024;
  char* in = const_cast<char*>(text.data());  // which iconv does not change
  std::size_t left = text.size();
  std::size_t result = 0;
  do {
    char buffer[room_at_once];
    char* out = buffer;
    std::size_t room = sizeof buffer;
    result = iconv(handle_, &in, &left, &out, &room);
    converted.append(buffer, out);
  } while (result == failed && errno == E2BIG);
  flush(converted);
  return text.substr(text.size() - left);
}

/// What the converter still holds, a letter that might have gone with a following mark; and back to its
/// start.
void IconvHandle::flush(std::string& converted) {
  char buffer[64];
  char* out = buffer;
  std::size_t room = sizeof buffer;
  iconv(handle_, nullptr, nullptr, &out, &room);
  converted.append(buffer, out);
}

}  // namespace sivane::charset
