// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "help_texts.h"

#include <algorithm>
#include <string_view>

namespace inspect {

namespace {

constexpr HelpRow kinds[] = {
    {"ts", "packets of 188, 192 or 204 bytes, found by themselves; what is none is skipped and told"},
    {"packets",
     "188-byte packets alone, and of each the first section that starts in it; the first packet that does "
     "not begin "
     "with 0x47 ends the run"},
    {"sections",
     "a section on each line, in hexadecimal; a class name in front, as in 'Pat 00b00d...', chooses the "
     "class that it "
     "is read with; lines of the command sections, too"},
    {"xml", "a document as the command xml writes it"},
    {"json", "lines as the command json writes them, for diff alone, which knows both forms by themselves"},
};

constexpr HelpRow sources[] = {
    {"FILE", "a file or a named pipe; what is there is read at once"},
    {"-", "standard input"},
    {"udp://[@]GROUP:PORT[?localaddr=ADDRESS]",
     "datagrams to an address of this machine or to a multicast group, which is joined on the interface of "
     "ADDRESS"},
    {"rtp://...", "the same, the packets in RTP and put back in order"},
    {"dvb://ADAPTER[/DEMUX]",
     "a DVB adapter of this machine that something else has tuned; tried with a stand-in for the device "
     "only"},
};

constexpr HelpRow ends[] = {
    {"0", "all is well"},
    {"1",
     "a section failed; each is a line on standard error and stops nothing; check found something of "
     "priority 1 or 2; diff found a difference"},
    {"2", "wrong usage, or the input cannot be read; a line on standard error says why"},
};

constexpr HelpRow notes[] = {
    {"PID:TABLE_ID", "numbers as in C: --handle 0x11:0x42 --handle 17:70"},
    {"SIGINT, SIGTERM", "end a run as the end of its input would: lists are printed, documents closed"},
};

constexpr HelpList lists[] = {
    {"Kinds of input", kinds}, {"Sources", sources}, {"Exit status", ends}, {"Notes", notes}};

/// The text in lines of 78 cells, each after so many blanks.
std::string wrapped(std::string_view text, std::size_t indent) {
  constexpr std::size_t width = 78;
  std::string lines;
  for (std::size_t room = width - indent; !text.empty();) {
    std::size_t end = text.size() <= room ? text.size() : text.rfind(' ', room);
    lines += std::string(indent, ' ') + std::string(text.substr(0, end)) + '\n';
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

}  // namespace

std::span<HelpList const> help_lists() { return lists; }

std::string help_footer() {
  constexpr std::size_t indent = 12;
  std::string footer;
  for (HelpList const& list : lists) {
    footer += std::string(list.title) + ":\n";
    for (auto const& [word, meaning] : list.rows) {
      std::string lines = wrapped(meaning, indent);
      std::string const label = std::string("  ") + word;
      if (label.size() < indent) {
        lines.replace(0, label.size(), label);
      } else {
        lines.insert(0, label + '\n');
      }
      footer += lines;
    }
    footer += '\n';
  }
  return footer;
}

}  // namespace inspect
