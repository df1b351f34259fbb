// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: what networks tell of the services of a stream. It is put together once for all of them: any
// number of networks may tell of the stream.
#pragma once

#include <sivane/catalogue/network_book.h>

#include <optional>
#include <string>
#include <vector>

namespace sivane::catalogue {

class AboutStream {
 public:
  AboutStream(StreamKey const& stream, Networks const& networks);

  StreamKey const& stream() const { return stream_; }
  std::optional<ChannelNumber> channel_number(int service) const;
  /// The first that is told; empty where none is.
  std::string const& default_authority() const { return default_authority_; }

 private:
  StreamKey stream_;
  std::vector<ChannelNumber> channel_numbers_;  // by service, one of each
  std::string default_authority_;
};

}  // namespace sivane::catalogue
