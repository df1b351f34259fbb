// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The snippets of docs/guide.md in one program, run over the stream that it is given.
#include <sivane/catalogue/catalogue.h>
#include <sivane/charset/charset.h>
#include <sivane/dom/document.h>
#include <sivane/dom/element_reader.h>
#include <sivane/dom/element_writer.h>
#include <sivane/sivane.h>

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <variant>
#include <vector>

// Sections from buffers

class Receiver final : public sivane::DemuxPush {
 public:
  Receiver() { add_psi_handler(0x0000, 0x00); }

  int program_maps = 0;

 protected:
  void on_psi_section(int pid, int table_id, int, unsigned char const* section) override {
    try {
      if (table_id == 0x00) {
        follow_programs(section);
      } else {
        print_streams(section);
      }
    } catch (sivane::error const& failure) {
      std::cerr << "PID " << pid << ", byte " << failure.offset << ": " << failure.what() << '\n';
    }
  }

 private:
  void follow_programs(unsigned char const* section) {
    sivane::Pat pat;
    pat.Parse(section);
    for (sivane::Pat::program_info const& program : pat.program_infos) {
      if (program.program_number != 0) add_psi_handler(program.program_map_pid, 0x02);
    }
  }
  void print_streams(unsigned char const* section) {
    sivane::Pmt pmt;
    pmt.Parse(section);
    ++program_maps;
    for (sivane::PmtStreamInfo const& stream : pmt.stream_infos) {
      std::cout << "stream type " << stream.stream_type << " on PID " << stream.elementary_pid << '\n';
    }
  }
};

// From bytes to tables: what to use when

class OffTheAir final : public sivane::DemuxPush, public sivane::PacketFinder, public sivane::GapListener {
 public:
  OffTheAir() {
    set_reassembly(sivane::Reassembly::every_section);
    set_gap_listener(this);
    add_psi_handler(0x0012, 0x4E);
  }

  int sections = 0;

 protected:
  void on_packets(sivane::PacketRun const& run) override { push_packets(run); }
  void on_skipped(std::uint64_t offset, std::uint64_t size) override {
    std::cerr << size << " bytes at " << offset << " are no packets\n";
  }
  void on_gap(sivane::Gap const& gap) override {
    std::cerr << gap.missing << " packets of PID " << gap.pid << " are missing in front of " << gap.offset
              << '\n';
  }
  void on_psi_section(int, int, int, unsigned char const*) override { ++sections; }
};

// Sections by a filter

class EventCounter final : public sivane::DemuxPush {
 public:
  EventCounter() { add_psi_handler(0x0012, value, mask, 1, 7); }

  int sections = 0;

 protected:
  void on_psi_section(unsigned long id, int size, unsigned char* section) override {
    sections += id == 7 && size > 0 && section[0] == value[0] ? 1 : 0;
  }

 private:
  static constexpr unsigned char value[] = {0x4E};  // every bit of the mask counts, so that
  static constexpr unsigned char mask[] = {0xFF};   // this is table id 0x4E alone
};

// A section that came from elsewhere

void print_section(std::vector<unsigned char> const& bytes) {
  sivane::Pat pat;
  try {
    pat.Parse(bytes.data(), bytes.size());
    pat.dump_state(std::cout);
  } catch (sivane::error const& failure) {
    std::cout << "error " << failure.code << ' ' << failure.what() << '\n';
  }
}

// What was seen before

class TablesOnce final : public sivane::DemuxPush {
 public:
  TablesOnce() { add_psi_handler(0x0011, 0x42); }

  int parsed = 0;

 protected:
  void on_psi_section(int pid, int, int, unsigned char const* section) override {
    if (!seen_.is_new(pid, section)) return;
    try {
      sivane::Sdt sdt;
      sdt.Parse(section);
      ++parsed;
    } catch (sivane::error const& failure) {
      std::cerr << "PID " << pid << ": " << failure.what() << '\n';
    }
  }

 private:
  sivane::SeenSections seen_;
};

// Damaged tables, and only what is needed

void print_events(unsigned char const* section, std::size_t size) {
  sivane::ParseOptions options;
  options.build_only({0x4D, 0x54});  // short event and content descriptors
  sivane::Eit eit;
  eit.Parse(section, size, options);
  for (sivane::Eit::EventInfo const& event : eit.event_infos) {
    for (sivane::DescriptorShortEvent const& text : event.get_short_event_descriptors()) {
      std::cout << "event " << event.event_id << ": " << text.event_name << '\n';
    }
  }
  for (sivane::ParseProblem const& problem : options.problems) {
    std::cout << "byte " << problem.offset << ", tag " << problem.tag << ": " << problem.text << '\n';
  }
}

std::vector<std::string> event_names(unsigned char const* section) {
  constexpr int crc_size = 4, bytes_before_events = 14, id_time_and_duration = 10;
  std::vector<std::string> names;
  sivane::Reader reader = sivane::Reader::within(section, sivane::section_size(section) - crc_size);
  reader.raw(bytes_before_events);
  while (reader.more()) {
    reader.raw(id_time_and_duration);
    reader.skip_bits(4);
    int const length = reader.bits(12);
    unsigned char const* const loop = reader.raw(length);
    for (sivane::DescriptorBytes const descriptor : sivane::DescriptorLoop(loop, length)) {
      if (descriptor.tag() != 0x4D) continue;
      names.push_back(sivane::DescriptorShortEvent(descriptor).event_name);
    }
  }
  return names;
}

class Events final : public sivane::DemuxPush {
 public:
  Events() { add_psi_handler(0x0012, 0x4E); }

  std::size_t names = 0;

 protected:
  void on_psi_section(int, int, int, unsigned char const* section) override {
    print_events(section, static_cast<std::size_t>(sivane::section_size(section)));
    names += event_names(section).size();
  }
};

// Services of a stream

class ServiceNames final : public sivane::DemuxPush {
 public:
  ServiceNames() { add_psi_handler(0x0011, 0x42); }

  std::map<int, std::string> names;  // by service_id

 protected:
  void on_psi_section(int pid, int, int, unsigned char const* section) override {
    try {
      sivane::Sdt sdt;
      sdt.Parse(section);
      for (sivane::Sdt::Service_info const& service : sdt.service_infos) {
        for (sivane::DescriptorService const& descriptor : service.get_service_descriptors()) {
          names[service.service_id] = texts_.utf8(descriptor.service_name);
        }
      }
    } catch (sivane::error const& failure) {
      std::cerr << "PID " << pid << ": " << failure.what() << '\n';
    }
  }

 private:
  sivane::charset::Converter texts_;
};

// Events

class PresentEvents final : public sivane::DemuxPush {
 public:
  PresentEvents() { add_psi_handler(0x0012, 0x4E); }

  std::map<int, std::string> names;  // by service_id

 protected:
  void on_psi_section(int pid, int, int section_number, unsigned char const* section) override {
    if (section_number != 0) return;  // 1 is the following event
    try {
      sivane::Eit eit;
      eit.Parse(section);
      for (sivane::Eit::EventInfo const& event : eit.event_infos) {
        for (sivane::DescriptorShortEvent const& descriptor : event.get_short_event_descriptors()) {
          names[eit.context_id] = texts_.utf8(descriptor.event_name);
        }
      }
    } catch (sivane::error const& failure) {
      std::cerr << "PID " << pid << ": " << failure.what() << '\n';
    }
  }

 private:
  sivane::charset::Converter texts_;
};

// Every field of any table

class Numbers : public sivane::FieldVisitor {
 public:
  void number(sivane::Field const& field, std::int64_t value) override {
    std::cout << field.name << ": " << value << " in " << field.bits << " bits\n";
  }
};

void print_numbers(std::vector<unsigned char> const& section) {
  sivane::AnyTable const table = sivane::parse_table(section.data(), section.size());
  Numbers numbers;
  sivane::visit_table(table, numbers);
  bool const same = table == sivane::parse_table(section.data(), section.size());
  std::cout << (same ? "it has not changed\n" : "it has changed\n");
}

// Texts

std::string on_one_line(sivane::Text const& text) {
  sivane::charset::Options options;
  options.default_table = "ISO-8859-1";
  options.line_break = " / ";
  sivane::charset::Converter converter(options);  // a program keeps one
  return converter.utf8(text);
}

// Documents

std::string as_document(sivane::Pat const& pat) {
  sivane::dom::Document document;
  pat.SaveSection(document.dom(), document.make_root("pat").get());
  return document.save_string();
}

sivane::Pat from_document(std::string const& text) {
  sivane::dom::Document const document = sivane::dom::Document::load_string(text);
  sivane::Pat pat;
  pat.Parse(document.root_node().get());
  return pat;
}

void write_programs(std::ostream& out, std::vector<sivane::Pat> const& pats) {
  sivane::dom::ElementWriter writer(out, "sections");
  for (sivane::Pat const& pat : pats) {
    writer.write("Pat", [&](auto* document, auto* element) { pat.SaveSection(document, element); });
  }
  writer.finish();
}

std::vector<sivane::Pat> read_programs(std::istream& in) {
  std::vector<sivane::Pat> pats;
  sivane::dom::ElementReader reader(in);
  while (auto const node = reader.next()) pats.emplace_back().Parse(node.get());
  return pats;
}

// Registered names

void print_scrambling(sivane::DescriptorCa const& ca) {
  std::cout << "scrambled by " << sivane::get_ca_system_id(ca.sys_id) << '\n';
}

// What a stream has

class NowOn final : public sivane::DemuxPush {
 public:
  NowOn() {
    set_reassembly(sivane::Reassembly::every_section);
    for (int const table_id : {0x42, 0x46}) add_psi_handler(0x0011, table_id);
    for (int const table_id : {0x4E, 0x4F}) add_psi_handler(0x0012, table_id);
  }
  void print() const {
    for (auto const& [key, service] : catalogue.services()) {
      auto const* const event = catalogue.present_event(key);
      std::cout << service.name << ": " << (event == nullptr ? "?" : event->second.title()) << '\n';
    }
  }
  sivane::catalogue::Catalogue catalogue;

 protected:
  void on_psi_section(int pid, int, int, unsigned char const* section) override try {
    catalogue.add(pid, section, static_cast<std::size_t>(sivane::section_size(section)));
  } catch (sivane::error const&) {  // a broken section changes nothing, and comes again
  }
};

void print_news(sivane::catalogue::Changes const& changes, sivane::catalogue::Catalogue const& catalogue) {
  for (sivane::catalogue::Change const& change : changes) {
    auto const* const key = std::get_if<sivane::catalogue::EventKey>(&change.key);
    if (key == nullptr || change.action == sivane::catalogue::Change::Action::removed) continue;
    std::cout << key->service.service << " will show " << catalogue.find(*key)->title() << '\n';
  }
}

int main(int argc, char** argv) {
  std::ifstream file(argc > 1 ? argv[1] : "", std::ios::binary);
  std::vector<char> text{std::istreambuf_iterator<char>(file), {}};
  std::vector<unsigned char> stream(text.begin(), text.end());
  int const size = static_cast<int>(stream.size());

  Receiver receiver;
  OffTheAir receiver_of_bytes;
  for (std::size_t at = 0; at < stream.size(); at += 1000) {
    receiver_of_bytes.push(stream.data() + at, std::min<std::size_t>(1000, stream.size() - at));
  }
  receiver_of_bytes.flush();
  EventCounter events;
  TablesOnce tables;
  ServiceNames services;
  PresentEvents present;
  Events programme;
  NowOn now;
  bool const whole =
      receiver.push_data(stream.data(), size) == 0 && events.push_data(stream.data(), size) == 0 &&
      tables.push_data(stream.data(), size) == 0 && services.push_data(stream.data(), size) == 0 &&
      present.push_data(stream.data(), size) == 0 && programme.push_data(stream.data(), size) == 0 &&
      now.push_data(stream.data(), size) == 0;
  std::cout << receiver.program_maps << " program maps, " << events.sections << " event sections, "
            << tables.parsed << " versions of the services\n";

  print_section({0x00, 0xB0, 0x0D, 0x00});
  for (auto const& [id, name] : services.names) std::cout << "service " << id << ": " << name << '\n';
  for (auto const& [id, name] : present.names) std::cout << "now on " << id << ": " << name << '\n';

  now.print();
  auto const& events_now = now.catalogue.events();
  print_news({{sivane::catalogue::Change::Action::added, events_now.begin()->first}}, now.catalogue);

  sivane::Pat pat;
  pat.program_infos.resize(2);
  std::stringstream programs;
  write_programs(programs, {pat, pat});
  bool const survives =
      from_document(as_document(pat)).program_infos.size() == 2 && read_programs(programs).size() == 2;

  print_numbers({0x72, 0x70, 0x00});                                                        // of no class
  print_numbers({0x71, 0x70, 0x09, 0x00, 0x01, 0x00, 0x02, 0x00, 0x03, 0x00, 0x04, 0x04});  // an Rst

  unsigned char const field[] = {6, 'C', 'a', 'f', 0xE9, 0x8A, '!'};
  int used = 0;
  bool const readable = on_one_line(sivane::Text(field, used)) == "Caf\u00e9 / !";

  sivane::init();
  unsigned char const ca[] = {0x09, 0x04, 0x01, 0x00, 0xE1, 0x23};
  print_scrambling(sivane::DescriptorCa(ca));
  bool const found = tables.parsed == 2 && receiver_of_bytes.sections >= events.sections &&
                     receiver.program_maps > 0 && events.sections > 0 && !services.names.empty() &&
                     !present.names.empty() && programme.names > 0;
  return whole && found && survives && readable ? 0 : 1;
}
