#pragma once

#include "catalogue/Catalogue.h"
#include "tools/reference/FrameApi.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace reference {

/// Turns texts for people into HTML in which a name leads to its place.
class Prose {
public:
    /// Knows the interface and these types of the frame.
    explicit Prose(std::vector<Type> const& frame);

    /// A text of a definition, with names in backticks. It may name keys of `own`, which may be
    /// null, and of each resource that it names; classes of `service` without the service.
    [[nodiscard]] std::string htmlOf(std::string_view text, std::string_view service,
                                     zel::kiv::catalogue::Resource const* own) const;

    /// HTML in which each `<code>` that is a name of the interface or the frame becomes a link.
    [[nodiscard]] std::string linked(std::string_view html) const;

private:
    struct Place {
        std::string address;
        zel::kiv::catalogue::Resource const* resource; ///< null if it is none
    };
    using Places = std::map<std::string, Place, std::less<>>;

    void add(zel::kiv::catalogue::Resource const& resource);
    [[nodiscard]] Place const* find(std::string_view name, std::string_view service) const;

    Places m_places;                        ///< of names that hold everywhere
    Places m_members;                       ///< of operations and values of the frame
    std::map<std::string, Places> m_within; ///< of classes, by service
};

/// The first sentence of a text.
std::string_view firstSentence(std::string_view text);

} // namespace reference
