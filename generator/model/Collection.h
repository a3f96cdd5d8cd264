#pragma once

#include "generator/model/Definition.h"
#include "generator/model/Loader.h"
#include "generator/model/ServiceFile.h"

#include <optional>
#include <string>
#include <vector>

namespace kivgen {

/// Puts an interface together from what was read one by one, wherever it comes from.
class Collection {
public:
    /// Whatever is found wrong, here or by whoever reads.
    [[nodiscard]] Faults& faults() { return m_faults; }

    void checkServiceName(std::string const& name, SourcePosition const& place);

    /// Takes over what there is to say of a service; nothing if it could not be read.
    void addService(std::optional<Node> const& document, std::string const& service,
                    SourcePosition const& place);

    /// Takes a definition over; without a document, its name alone, so that it counts as there.
    void addDefinition(std::optional<Node> const& document, std::string const& service,
                       std::string const& name, SourcePosition const& place);

    [[nodiscard]] bool isEmpty() const { return m_names.empty(); }

    /// All of it, checked as a whole; faults in order.
    Loaded finish();

private:
    void checkResourceName(std::string const& name, SourcePosition const& place);
    void checkWhole(Interface const& interface);
    void fail(SourcePosition const& place, std::string text)
    {
        m_faults.push_back({place, std::move(text), {}, true}); // of a name, which others go by
    }

    std::vector<Definition> m_definitions;
    std::vector<ServiceFile> m_services;
    std::vector<std::string> m_names; ///< of all definitions, also of those that cannot be read
    bool m_isWhole = true;            ///< whether no definition was read in part alone
    Faults m_faults;
};

} // namespace kivgen
