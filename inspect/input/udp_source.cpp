// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "input/udp_source.h"

#include <arpa/inet.h>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <cerrno>
#include <cstring>
#include <memory>

namespace inspect {

namespace {

constexpr int receive_buffer_size = 4 << 20;  // a second of a multiplex, while the program is busy

using AddressInfo = std::unique_ptr<addrinfo, decltype(&freeaddrinfo)>;

AddressInfo resolve(std::string const& address, std::string const& port) {
  addrinfo hints = {};
  hints.ai_socktype = SOCK_DGRAM;
  hints.ai_flags = AI_NUMERICHOST | AI_NUMERICSERV | AI_PASSIVE;
  hints.ai_family = address.empty() ? AF_INET : AF_UNSPEC;
  addrinfo* found = nullptr;
  if (getaddrinfo(address.empty() ? nullptr : address.c_str(), port.c_str(), &hints, &found) != 0) {
    throw NoInput(address + " is no address in numbers");
  }
  return {found, freeaddrinfo};
}

void require(bool is_done, std::string const& name) {
  if (!is_done) throw NoInput("cannot listen on " + name + ": " + std::strerror(errno));
}

bool join(int socket, sockaddr_in const& group, std::string const& local_address) {
  if (!IN_MULTICAST(ntohl(group.sin_addr.s_addr))) return true;
  ip_mreq request = {};
  request.imr_multiaddr = group.sin_addr;
  if (!local_address.empty() && inet_pton(AF_INET, local_address.c_str(), &request.imr_interface) != 1) {
    throw NoInput(local_address + " is no address in numbers");
  }
  return setsockopt(socket, IPPROTO_IP, IP_ADD_MEMBERSHIP, &request, sizeof request) == 0;
}

bool join(int socket, sockaddr_in6 const& group) {
  if (!IN6_IS_ADDR_MULTICAST(&group.sin6_addr)) return true;
  ipv6_mreq request = {};
  request.ipv6mr_multiaddr = group.sin6_addr;
  return setsockopt(socket, IPPROTO_IPV6, IPV6_JOIN_GROUP, &request, sizeof request) == 0;
}

bool join(int socket, sockaddr const* address, std::string const& local_address) {
  if (address->sa_family == AF_INET6) return join(socket, *reinterpret_cast<sockaddr_in6 const*>(address));
  return join(socket, *reinterpret_cast<sockaddr_in const*>(address), local_address);
}

FileDescriptor listen_on(std::string const& name, NetworkAddress const& address) {
  AddressInfo const found =
      resolve(address.group.empty() ? address.local_address : address.group, address.port);
  FileDescriptor listening(socket(found->ai_family, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
  require(listening.get() >= 0, name);
  int const yes = 1;
  // Several programs may listen to a group; a smaller buffer than asked for is no fault.
  setsockopt(listening.get(), SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
  setsockopt(listening.get(), SOL_SOCKET, SO_RCVBUF, &receive_buffer_size, sizeof receive_buffer_size);
  require(bind(listening.get(), found->ai_addr, found->ai_addrlen) == 0, name);
  require(join(listening.get(), found->ai_addr, address.local_address), name);
  return listening;
}

}  // namespace

UdpSource::UdpSource(std::string const& name, NetworkAddress const& address, RunEnd& end)
    : name_(name), end_(end), socket_(listen_on(name, address)) {}

std::size_t UdpSource::read(std::span<unsigned char> buffer) {
  while (!end_.has_come()) {
    if (std::size_t const size = receive(buffer, std::chrono::hours(1)); size > 0) return size;
  }
  return 0;
}

std::size_t UdpSource::receive(std::span<unsigned char> buffer, std::chrono::milliseconds longest) {
  pollfd file = {socket_.get(), POLLIN, 0};
  if (!end_.wait({&file, 1}, longest)) return 0;
  ssize_t const count = recv(socket_.get(), buffer.data(), buffer.size(), 0);
  if (count >= 0) return static_cast<std::size_t>(count);
  if (errno == EINTR || errno == EAGAIN) return 0;
  throw InputFault(name_ + " cannot be read on: " + std::strerror(errno));
}

}  // namespace inspect
