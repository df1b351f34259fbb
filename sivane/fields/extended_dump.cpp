// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The dump of descriptors that no stored text holds, and whose labels are therefore the names of their
// fields.
#include <sivane/descriptors/extended/extended_descriptor.h>
#include <sivane/fields/field_list.h>
#include <sivane/foundation/dump.h>
#include <sivane/foundation/dump_line.h>

#include <charconv>
#include <iterator>
#include <ostream>
#include <string>

namespace sivane {

namespace {

class Dump final : public FieldVisitor {
 public:
  explicit Dump(std::ostream& os) : os_(os) {}

  void number(Field const& field, std::int64_t value) override {
    labelled(field).number(static_cast<unsigned long>(value)).end();
  }
  /// With as many digits as the largest of them, of 33 bits, has.
  void real(Field const& field, double value) override {
    constexpr int digits = 10;
    char text[32];
    char const* const end =
        std::to_chars(text, std::end(text), value, std::chars_format::general, digits).ptr;
    labelled(field).text({text, static_cast<std::size_t>(end - text)}).end();
  }
  void flag(Field const& field, bool value) override { labelled(field).number(value ? 1 : 0).end(); }
  void text(Field const& field, std::string_view bytes) override { labelled(field).text(bytes).end(); }
  void string(Field const& field, std::string_view value) override { text(field, value); }
  void code(Field const& field, std::string_view letters) override {
    text(field, letters.substr(0, letters.find('\0')));
  }
  void bytes(Field const& field, unsigned char const* data, std::size_t size) override {
    if (size == 0) return;
    labelled(field).end();
    dump_block(os_, data, static_cast<int>(size));
  }
  void date(Field const& field, DateTime const& value) override { decimal(field, value); }
  void duration(Field const& field, Duration const& value) override { decimal(field, value); }

  void begin_list(Field const& field, std::size_t) override { lists_.append(field.name).append(1, '.'); }
  void end_list() override {
    lists_.pop_back();
    lists_.erase(lists_.rfind('.') + 1);  // all of it where there is none
  }

 private:
  /// "list.field: "; an item of a list of numbers has its list's name alone.
  dump::Line& labelled(Field const& field) {
    std::string_view const list = lists_;
    line_.text(field.name.empty() ? list.substr(0, list.size() - 1) : list);
    return line_.text(field.name).text(": ");
  }
  /// As `operator<<` of them, and leaves the stream's base as it was.
  template <class Time>
  void decimal(Field const& field, Time const& value) {
    labelled(field).write();
    std::ios_base::fmtflags const flags = os_.flags();
    os_ << value << std::endl;
    os_.flags(flags);
  }

  std::ostream& os_;
  dump::Line line_{os_};
  std::string lists_;
};

}  // namespace

void ExtendedDescriptor::_dump_state(std::ostream& os) const {
  Dump dump(os);
  visit_fields(AnyObject(*this), dump);
}

}  // namespace sivane
