// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "iconv_calls.h"

#include <dlfcn.h>
#include <iconv.h>

#include <cerrno>
#include <utility>

namespace {

sivane::testing::IconvCalls calls;
int refusals = 0;

template <class Function>
Function* next(char const* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

sivane::testing::IconvCalls sivane::testing::iconv_calls_since_last_time() {
  return std::exchange(calls, {});
}
void sivane::testing::refuse_to_open(int count) { refusals = count; }

extern "C" iconv_t iconv_open(char const* to, char const* from) {
  static auto* const open = next<iconv_t(char const*, char const*)>("iconv_open");
  ++calls.opened;
  if (refusals == 0) return open(to, from);
  --refusals;
  errno = EINVAL;
  return reinterpret_cast<iconv_t>(-1);  // NOLINT(performance-no-int-to-ptr): as iconv says it
}

extern "C" size_t iconv(iconv_t handle, char** in, size_t* in_left, char** out, size_t* out_left) {
  static auto* const convert = next<size_t(iconv_t, char**, size_t*, char**, size_t*)>("iconv");
  ++calls.converted;
  return convert(handle, in, in_left, out, out_left);
}
