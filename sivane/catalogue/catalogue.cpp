// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/catalogue/catalogue.h>
#include <sivane/catalogue/state.h>

#include <type_traits>
#include <variant>

namespace sivane::catalogue {

Catalogue::Catalogue(Options const& options) : state_(std::make_unique<State>(options)) {}
Catalogue::Catalogue(Catalogue&&) noexcept = default;
Catalogue& Catalogue::operator=(Catalogue&&) noexcept = default;
Catalogue::~Catalogue() = default;

Changes Catalogue::add(int pid, unsigned char const* section, std::size_t size) {
  return state_->add_section(pid, section, size);
}
Changes Catalogue::add(Pat const& pat) { return state_->add(pat); }
Changes Catalogue::add(Cat const& cat) { return state_->add(cat); }
Changes Catalogue::add(Pmt const& pmt) { return state_->add(pmt); }
Changes Catalogue::add(Nit const& nit) { return state_->add(nit); }
Changes Catalogue::add(Bat const& bat) { return state_->add(bat); }
Changes Catalogue::add(Sdt const& sdt) { return state_->add(sdt); }
Changes Catalogue::add(Eit const& eit) { return state_->add(eit); }
Changes Catalogue::add(Rst const& rst) { return state_->add(rst); }
Changes Catalogue::add(Tdt const& tdt) { return state_->set_time(tdt.UTC_time); }
Changes Catalogue::add(Tot const& tot) { return state_->add(tot); }
Changes Catalogue::add(AnyTable const& table) {
  return std::visit(
      [this](auto const& one) -> Changes {
        using Table = std::decay_t<decltype(one)>;
        constexpr bool is_passed_over = std::is_same_v<Table, std::monostate> || std::is_same_v<Table, Ait> ||
                                        std::is_same_v<Table, DsmCC>;
        if constexpr (is_passed_over) {
          return {};
        } else {
          return add(one);
        }
      },
      table);
}

Changes Catalogue::forget_events_before(Time time) {
  state_->events.forget_before(time, state_->desk);
  return state_->told();
}

void Catalogue::clear() { state_ = std::make_unique<State>(Options(state_->options)); }

std::size_t Catalogue::memory() const { return state_->desk.budget.used(); }
std::size_t Catalogue::left_out() const { return state_->desk.budget.left_out(); }
std::size_t Catalogue::problems() const { return state_->problems; }

}  // namespace sivane::catalogue
