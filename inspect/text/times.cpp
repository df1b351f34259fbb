// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "text/times.h"

#include <cstdio>

namespace inspect {

std::string date_text(sivane::catalogue::Time time) {
  auto const day = std::chrono::floor<std::chrono::days>(time);
  std::chrono::year_month_day const date(day);
  char text[32];
  std::snprintf(text, sizeof text, "%d-%02u-%02u ", static_cast<int>(date.year()),
                static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
  return text + clock_text(time - day);
}

std::string xmltv_text(sivane::catalogue::Time time) {
  std::string text;
  for (char const c : date_text(time)) {
    if (c >= '0' && c <= '9') text += c;
  }
  return text + " +0000";
}

std::string clock_text(std::chrono::seconds duration) {
  std::chrono::hh_mm_ss const clock(duration);
  char text[64];
  std::snprintf(text, sizeof text, "%02lld:%02lld:%02lld", static_cast<long long>(clock.hours().count()),
                static_cast<long long>(clock.minutes().count()),
                static_cast<long long>(clock.seconds().count()));
  return text;
}

}  // namespace inspect
