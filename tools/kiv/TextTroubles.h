#pragma once

#include "tools/kiv/Documents.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace kiv {

/// What is told of the text of a document while it is read, kept until it is known what the
/// document is: only then can be said where in which element it stands.
class TextTroubles {
public:
    /// Keeps what `listeners` would hear, and tells it to `handlers`, which must outlive this.
    void keep(json::Listeners& listeners, DocumentHandlers const& handlers);

    /// Tells it all. A path that begins with `inner` begins with `outer` instead; both may be
    /// empty.
    void tell(std::string_view inner, std::string_view outer);

private:
    using PathOf = std::function<std::string(std::string const& path)>;
    std::vector<std::function<void(PathOf const& pathOf)>> m_kept;
};

} // namespace kiv
