#pragma once

#include "json/InputFile.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace kiv {

/// A bar that shows how much of a file has been read. It takes one line of a terminal, and wipes it
/// when all has been read or the bar goes.
class Progress {
public:
    using Sink = std::function<void(std::string_view text)>;

    /// `total` is the size of the file in bytes, and not zero.
    Progress(std::string name, std::size_t total, Sink sink)
        : m_name(std::move(name)), m_total(total), m_sink(std::move(sink))
    {
    }
    Progress(Progress const&) = delete;
    Progress& operator=(Progress const&) = delete;
    ~Progress();

    /// That many bytes more were read; none at the end. Draws only what looks different.
    void advance(std::size_t bytes);

private:
    void wipe();

    std::string m_name;
    std::size_t m_total;
    Sink m_sink;
    std::size_t m_done = 0;
    std::size_t m_shown = 0; ///< percent, and one more; 0: no bar is there
};

/// Opens a file, with a bar on standard error while it is read if somebody may look at it and it
/// would not get into the way: standard error is a terminal that can redraw a line, standard output
/// is none, and the file is regular and large. Throws as `openInput` does; the source throws
/// `Interrupted` as well.
InputFile openWithProgress(std::string const& path);

} // namespace kiv
