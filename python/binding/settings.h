// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/charset/charset.h>

#include <memory>
#include <string>
#include <utility>

namespace sivane::python {

/// How sections become tables, and texts strings. The interpreter's lock guards the converter.
struct Settings {
  Settings(bool is_tolerant, std::string default_table, std::string overrule)
      : tolerant(is_tolerant), texts(options_of(std::move(default_table), std::move(overrule))) {}

  static charset::Options options_of(std::string default_table, std::string overrule) {
    charset::Options options;
    options.default_table = std::move(default_table);
    options.overrule = std::move(overrule);
    return options;
  }

  bool tolerant;
  charset::Converter texts;
};

using SharedSettings = std::shared_ptr<Settings>;

}  // namespace sivane::python
