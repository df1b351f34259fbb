// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "text/usual_pids.h"

namespace inspect {

std::string usual_content(int pid) {
  switch (pid) {
    case 0x0000:
      return "PAT";
    case 0x0001:
      return "CAT";
    case 0x0002:
      return "TSDT";
    case 0x0010:
      return "NIT";
    case 0x0011:
      return "SDT, BAT";
    case 0x0012:
      return "EIT";
    case 0x0013:
      return "RST";
    case 0x0014:
      return "TDT, TOT";
    case 0x0015:
      return "network synchronisation";
    case 0x001E:
      return "DIT";
    case 0x001F:
      return "SIT";
    case 0x1FFF:
      return "null packets";
    default:
      return "unreferenced";
  }
}

}  // namespace inspect
