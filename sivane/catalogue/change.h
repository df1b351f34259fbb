// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/catalogue/keys.h>

#include <variant>
#include <vector>

namespace sivane::catalogue {

/// Something that the catalogue says since now, says otherwise, or says no more.
struct Change {
  /// What happened to it.
  enum class Action {
    added,    ///< it was not known
    changed,  ///< a member has another value; of a service also its present or following event
    removed,  ///< a newer version of its table has left it out
  };
  /// Of what: its kind is the alternative.
  using Key = std::variant<NetworkKey, NetworkStreamKey, BouquetKey, BouquetStreamKey, ServiceKey, ProgramKey,
                           EventKey, AccessKey>;

  Action action = Action::added;  ///< what happened
  Key key;                        ///< to what
};

/// In the order in which they came about.
using Changes = std::vector<Change>;

}  // namespace sivane::catalogue
