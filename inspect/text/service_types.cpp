// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "text/service_types.h"

#include "text/hexadecimal.h"

namespace inspect {

std::string service_type_text(sivane::catalogue::Service const& service) {
  if (service.type < 0) return "";
  char const* const text = service.type_name();
  return text == nullptr ? c_hexadecimal(service.type, 1) : text;
}

}  // namespace inspect
