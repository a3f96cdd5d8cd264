#include "examples/radio/Connection.h"

#include "testing/fromJson.h"
#include "testing/toJson.h"

#include <cerrno>
#include <chrono>
#include <cstring>
#include <stdexcept>
#include <thread>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace radio_example {

namespace testing = zel::kiv::testing;
using zel::dataformats::data::Value;

namespace {

[[noreturn]] void fail(std::string const& what)
{
    throw std::runtime_error(what + ": " + std::strerror(errno));
}

sockaddr_un addressOf(std::string const& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path) {
        throw std::runtime_error(path + ": too long for the name of a socket");
    }
    path.copy(address.sun_path, path.size());
    return address;
}

int newSocket()
{
    int const descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (descriptor < 0) {
        fail("no socket");
    }
    return descriptor;
}

sockaddr const* generic(sockaddr_un const& address)
{
    return reinterpret_cast<sockaddr const*>(&address);
}

} // namespace

// A stream is for one direction alone.
Connection::Connection(int descriptor)
    : m_in(fdopen(descriptor, "r")), m_out(fdopen(dup(descriptor), "w"))
{
    if (m_in == nullptr || m_out == nullptr) {
        fail("no stream");
    }
}

Connection Connection::accept(std::string const& path)
{
    int const waiting = newSocket();
    sockaddr_un const address = addressOf(path);
    if (bind(waiting, generic(address), sizeof address) != 0 || listen(waiting, 1) != 0) {
        fail(path);
    }
    int const descriptor = accept4(waiting, nullptr, nullptr, SOCK_CLOEXEC);
    close(waiting);
    if (descriptor < 0) {
        fail(path);
    }
    return Connection(descriptor);
}

Connection Connection::open(std::string const& path)
{
    int const descriptor = newSocket();
    sockaddr_un const address = addressOf(path);
    for (int tries = 0; connect(descriptor, generic(address), sizeof address) != 0; ++tries) {
        if (tries == 100) {
            fail(path);
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    return Connection(descriptor);
}

void Connection::send(Value const& value)
{
    std::string const line = testing::toJson(value) + '\n';
    if (std::fputs(line.c_str(), m_out.get()) == EOF || std::fflush(m_out.get()) != 0) {
        fail("cannot send");
    }
}

bool Connection::receive(std::unique_ptr<Value>& value)
{
    m_line.clear();
    for (int byte = std::fgetc(m_in.get()); byte != '\n'; byte = std::fgetc(m_in.get())) {
        if (byte == EOF) {
            return false;
        }
        m_line += static_cast<char>(byte);
    }
    value = testing::fromJson(m_line);
    return true;
}

} // namespace radio_example
