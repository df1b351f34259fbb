// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/demux/assembly.h>
#include <sivane/foundation/dump_lines.h>
#include <sivane/foundation/trace_log.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <ostream>
#include <utility>

namespace sivane {

namespace {

/// An address as the trace log prints it: its low 32 bits.
unsigned int low_bits(void const* address) {
  return static_cast<unsigned int>(reinterpret_cast<std::uintptr_t>(address));
}

/// An elementary stream's packet begins so, and never a section's.
bool is_pes_start(unsigned char const* data, int size) {
  constexpr unsigned char start_code[] = {0x00, 0x00, 0x00, 0x01};
  return size >= 4 && std::memcmp(data, start_code, sizeof start_code) == 0;
}

}  // namespace

/// Keeps the handlers that a hook removes alive while they are on the call stack.
class Demux::Delivery {
 public:
  explicit Delivery(Demux& demux) : demux_(demux) {
    ++demux_.deliveries_;
    ++demux_.parsed_;
  }
  Delivery(Delivery const&) = delete;
  Delivery& operator=(Delivery const&) = delete;
  ~Delivery() {
    if (--demux_.deliveries_ > 0) return;
    free_all(demux_.retired_handlers_);
    free_all(demux_.retired_pids_);
  }

 private:
  template <class Handler>
  static void free_all(Handler*& first) {
    while (first != nullptr) {
      Handler* const next = first->next_retired_;
      delete std::exchange(first, next);
    }
  }

  Demux& demux_;
};

/// A loop over filters: what their hooks add to it waits for the next packet, or it might never end.
class Demux::FilterPass {
 public:
  explicit FilterPass(Demux& demux) : demux_(demux) { ++demux_.filter_passes_; }
  FilterPass(FilterPass const&) = delete;
  FilterPass& operator=(FilterPass const&) = delete;
  ~FilterPass() { --demux_.filter_passes_; }

 private:
  Demux& demux_;
};

void Demux::BaseHandler::dump_state(std::ostream&) const {}

bool Demux::SectionBuffer::take(bool start, unsigned char const* data, int size) {
  if (start) {
    in_section = true;
    section_size = 0;
  } else if (!in_section || section_size < 1) {
    return false;
  }
  if (size > capacity - section_size) {
    close();
    return false;
  }
  if (size > 0) {
    std::copy_n(data, size, section + section_size);  // g++ makes a slow string instruction of a memcpy here
    section_size += size;
  }
  return section_size >= need();
}

void Demux::SectionBuffer::close() {
  section_size = 0;
  in_section = false;
}

Demux::PSIHandler::PSIHandler(Demux& owner, int id)
    : BaseHandler(owner), table_id(id), added_in_(owner.parsed_) {}

void Demux::PSIHandler::parse(TSHeader const& header, bool start, unsigned char const* data, int size) {
  if (start) began_at = demux.packet_offset_;
  if (!take(start, data, size)) return;
  demux.section_offset_ = began_at;
  demux.on_psi_section(header.pid, table_id, section[6], section);
  close();
}

void Demux::PSIHandler::dump_state(std::ostream& os) const { dump::line(os, "table_id: ", table_id); }

void Demux::PSIHandler::invalidate() { section_size = 0; }

Demux::PSIFilterHandler::PSIFilterHandler(Demux& owner, unsigned char const* filter_value,
                                          unsigned char const* filter_mask, int filter_size,
                                          unsigned long filter_id)
    : BaseHandler(owner),
      mask(filter_mask),
      value(filter_value),
      size(filter_size),
      id(filter_id),
      added_in_(owner.parsed_),
      by_a_filter_(owner.filter_passes_ > 0) {}

void Demux::PSIFilterHandler::parse(TSHeader const& /*header*/, bool start, unsigned char const* data,
                                    int payload_size) {
  log_write(3, "Demux::PSIFilterHandler::parse(TSHeader,%d,%#x,%d)", start ? 1 : 0, low_bits(data),
            payload_size);
  if (start) began_at = demux.packet_offset_;
  if (!take(start, data, payload_size)) return;
  demux.section_offset_ = began_at;
  if (filter_match()) demux.on_psi_section(id, need(), section);
  close();
}

bool Demux::PSIFilterHandler::filter_match() const { return matches(section, section_size); }

/// What is behind the `count` bytes are bytes of earlier sections, or of others.
bool Demux::PSIFilterHandler::matches(unsigned char const* bytes, int count) const {
  if (size > capacity) return false;
  for (int i = 0; i < size; ++i) {
    if (i < count ? (bytes[i] & mask[i]) != value[i] : (mask[i] | value[i]) != 0) return false;
  }
  return true;
}

Demux::PidHandler::PidHandler(Demux& owner) : demux(owner) {}

Demux::PidHandler::~PidHandler() {
  for (auto const& [table_id, handler] : psi_handlers) delete handler;
  for (PSIFilterHandler* const filter : filter_handlers) delete filter;
}

void Demux::PidHandler::parse(TSHeader& header, unsigned char const* data, int size) {
  Delivery const delivery(demux);
  log_write(3, "Demux::PidHandler::parse()");
  if (size < 1) return;
  if (assembly_ != nullptr && demux.reassembly_ == Reassembly::every_section) {
    assembly_->take(header.pid, header.payload_unit_start_indicator == 1, data, size);
    return;
  }
  if (header.payload_unit_start_indicator != 1) {
    continue_section(header, data, size);
    return;
  }
  int const pointer = data[0];
  if (is_pes_start(data, size) || pointer > size - 1) return;
  if (pointer > 0) continue_section(header, data + 1, pointer);
  start_section(header, data + 1 + pointer, size - 1 - pointer);
}

void Demux::PidHandler::start_section(TSHeader const& header, unsigned char const* data, int size) {
  if (removed_) return;
  auto const entry = size > 0 ? psi_handlers.find(data[0]) : psi_handlers.end();
  PSIHandler* const handler = entry != psi_handlers.end() ? entry->second : nullptr;
  if (handler != nullptr) handler->parse(header, true, data, size);
  current = handler != nullptr && !handler->removed_ ? handler : nullptr;
  give_to_filters(header, true, data, size);
}

void Demux::PidHandler::continue_section(TSHeader const& header, unsigned char const* data, int size) {
  if (current != nullptr) current->parse(header, false, data, size);
  give_to_filters(header, false, data, size);
}

void Demux::PidHandler::give_to_filters(TSHeader const& header, bool start, unsigned char const* data,
                                        int size) {
  log_write(3, "checking %d psifilter handlers", static_cast<int>(filter_handlers.size()));
  if (filter_handlers.empty()) return;
  FilterPass const pass(demux);
  for (PSIFilterHandler* const filter : filter_handlers) {
    if (removed_) return;
    bool const waits = filter->by_a_filter_ && filter->added_in_ == demux.parsed_;
    if (!waits) filter->parse(header, start, data, size);
  }
}

void Demux::PidHandler::AddPsiHandler(int table_id) {
  if (psi_handlers.count(table_id) != 0) return;
  auto handler = std::make_unique<PSIHandler>(demux, table_id);
  psi_handlers.emplace(table_id, handler.get());
  handler.release();
}

void Demux::PidHandler::AddPsiHandler(unsigned char const* value, unsigned char const* mask, int size,
                                      unsigned long id) {
  log_write(3, "Demux::PidHandler::AddPsiHandler(%#x,%#x,%d,%#x)", low_bits(value), low_bits(mask), size,
            static_cast<unsigned int>(id));
  auto filter = std::make_unique<PSIFilterHandler>(demux, value, mask, size, id);
  filter_handlers.insert(filter.get());
  filter.release();
}

void Demux::PidHandler::RemovePsiHandler(int table_id) {
  auto const entry = psi_handlers.find(table_id);
  if (entry == psi_handlers.end()) return;
  PSIHandler* const handler = entry->second;
  psi_handlers.erase(entry);
  if (current == handler) current = nullptr;
  if (demux.deliveries_ == 0) {
    delete handler;
    return;
  }
  handler->removed_ = true;
  handler->next_retired_ = std::exchange(demux.retired_handlers_, handler);
}

void Demux::PidHandler::invalidate() {
  for (auto const& [table_id, handler] : psi_handlers) handler->invalidate();
  cut_section();
}

void Demux::PidHandler::assemble_every_section(PidCounters& counters) {
  if (assembly_ == nullptr) assembly_ = std::make_unique<Assembly>(*this, counters);
}

void Demux::PidHandler::cut_section() {
  if (assembly_ != nullptr) assembly_->cut();
}

void Demux::PidHandler::drop_sections() {
  for (auto const& [table_id, handler] : psi_handlers) handler->close();
  for (PSIFilterHandler* const filter : filter_handlers) filter->close();
  if (assembly_ != nullptr) assembly_->clear();
}

void Demux::PidHandler::dump_state(std::ostream& os) const {
  for (auto const& [table_id, handler] : psi_handlers) handler->dump_state(os);
}

}  // namespace sivane
