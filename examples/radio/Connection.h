#pragma once

#include "values/values.h"

#include <cstdio>
#include <memory>
#include <string>

namespace radio_example {

/// A value in each line, as JSON, to and from the process at the other end of a socket. Every
/// operation throws `std::runtime_error` if the system does not let it, or on a line that is no
/// JSON.
class Connection {
public:
    /// Waits at `path` until somebody connects.
    static Connection accept(std::string const& path);

    /// Connects to who waits at `path`, for some seconds until somebody does.
    static Connection open(std::string const& path);

    void send(zel::dataformats::data::Value const& value);

    /// The next value, into `value`; false once the other end has closed.
    bool receive(std::unique_ptr<zel::dataformats::data::Value>& value);

private:
    struct Closer {
        void operator()(std::FILE* file) const noexcept { static_cast<void>(std::fclose(file)); }
    };

    explicit Connection(int descriptor);

    std::unique_ptr<std::FILE, Closer> m_in;
    std::unique_ptr<std::FILE, Closer> m_out;
    std::string m_line;
};

} // namespace radio_example
