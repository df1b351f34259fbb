// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <packet_writer.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>
#include <thread>

namespace sivane::testing {

/// Sends to the tool, once it listens: until then the system says that nobody does.
class LoopbackSender {
 public:
  LoopbackSender() : socket_(socket(AF_INET, SOCK_DGRAM, 0)) {
    int const probe = socket(AF_INET, SOCK_DGRAM, 0);
    address_.sin_family = AF_INET;
    address_.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address_;
    EXPECT_EQ(bind(probe, reinterpret_cast<sockaddr*>(&address_), size), 0);
    getsockname(probe, reinterpret_cast<sockaddr*>(&address_), &size);
    close(probe);
    EXPECT_EQ(connect(socket_, reinterpret_cast<sockaddr*>(&address_), size), 0);
  }
  LoopbackSender(LoopbackSender const&) = delete;
  LoopbackSender& operator=(LoopbackSender const&) = delete;
  ~LoopbackSender() { close(socket_); }

  std::string place() const { return "127.0.0.1:" + std::to_string(ntohs(address_.sin_port)); }
  void send(Bytes const& datagram) {
    EXPECT_EQ(::send(socket_, datagram.data(), datagram.size(), 0), std::ssize(datagram));
  }
  void wait_for_listener() {
    for (int i = 0; i < 1000; ++i) {
      ::send(socket_, "", 0, 0);
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
      char none;
      if (recv(socket_, &none, 1, MSG_DONTWAIT) < 0 && errno != ECONNREFUSED) return;
    }
    FAIL() << "nobody listens";
  }
  /// For those who send more than a socket holds before it loses datagrams.
  void wait_until_all_is_read() const {
    for (int i = 0; i < 1000; ++i) {
      if (waiting_bytes() <= 0) return;
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    FAIL() << "what was sent is not read";
  }

 private:
  /// What the listener's socket holds, as the system's list of sockets tells; -1 without a listener.
  long waiting_bytes() const {
    std::ifstream sockets("/proc/net/udp");
    for (std::string line; std::getline(sockets, line);) {
      unsigned address, port;
      unsigned long waiting;
      if (std::sscanf(line.c_str(), " %*d: %x:%x %*x:%*x %*x %*x:%lx", &address, &port, &waiting) == 3 &&
          address == address_.sin_addr.s_addr && port == ntohs(address_.sin_port)) {
        return static_cast<long>(waiting);
      }
    }
    return -1;
  }

  int socket_;
  sockaddr_in address_ = {};
};

}  // namespace sivane::testing
