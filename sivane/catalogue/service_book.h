// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: the services.
#pragma once

#include <sivane/catalogue/book.h>
#include <sivane/catalogue/service.h>
#include <sivane/tables/sdt.h>

namespace sivane::catalogue {

class ServiceBook {
 public:
  Taken take(Sdt const& sdt, Desk& desk);
  /// Takes those away that neither SDT of the stream names any more.
  void drop(SubTableKey table, Names const& gone, Desk& desk);

  Book<ServiceKey, Service> const& services() const { return services_; }

 private:
  Book<ServiceKey, Service> services_;
};

}  // namespace sivane::catalogue
