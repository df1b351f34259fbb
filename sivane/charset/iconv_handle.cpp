// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/charset/iconv_handle.h>

#include <cerrno>
#include <cstdint>
#include <new>

namespace sivane::charset {

IconvHandle::IconvHandle(std::string const& to, std::string const& from) : handle_(open(to, from)) {}

IconvHandle::Handle IconvHandle::try_open(std::string const& to, std::string const& from) {
  iconv_t opened = iconv_open(to.c_str(), from.c_str());
  if (reinterpret_cast<std::intptr_t>(opened) != -1) return Handle(opened);
  if (errno != EINVAL) throw std::bad_alloc();  // or too many open files
  return {};
}

/// iconv also says "unknown" where it had no memory to look. So it is asked again, and then for what every
/// iconv has.
IconvHandle::Handle IconvHandle::open(std::string const& to, std::string const& from) {
  Handle handle = try_open(to, from);
  if (handle == nullptr) handle = try_open(to, from);
  if (handle == nullptr && try_open("UTF-8", "US-ASCII") == nullptr) throw std::bad_alloc();
  return handle;
}

std::string_view IconvHandle::convert(std::string_view text, std::string& converted) {
  constexpr auto failed = static_cast<std::size_t>(-1);
  constexpr std::size_t room_at_once = 1024;
  char* in = const_cast<char*>(text.data());  // which iconv does not change
  std::size_t left = text.size();
  std::size_t result = 0;
  do {
    char buffer[room_at_once];
    char* out = buffer;
    std::size_t room = sizeof buffer;
    result = iconv(handle_.get(), &in, &left, &out, &room);
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
  iconv(handle_.get(), nullptr, nullptr, &out, &room);
  converted.append(buffer, out);
}

}  // namespace sivane::charset
