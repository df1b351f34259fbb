// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/error.h>

namespace sivane {

namespace {
char const* or_empty(char const* message) { return message != nullptr ? message : ""; }
}  // namespace

error::error(errorcode_enum failure_code, char const* message)
    : code(failure_code), text(or_empty(message)) {}

error::error(char const* message) : value(0xFFFFFFFF), text(or_empty(message)) {}

error::error(errorcode_enum failure_code, unsigned int number) : code(failure_code), value(number) {}

error::error(error const&) = default;

error& error::operator=(error const&) = default;

error::~error() = default;

char const* error::what() const noexcept { return text.c_str(); }

}  // namespace sivane
