#include "diagnostics/Finding.h"

namespace kiv::diagnostics {

std::string_view wordOf(Fate fate)
{
    switch (fate) {
    case Fate::Lost:
        return "lost";
    case Fate::Changed:
        return "changed";
    case Fate::Invented:
        return "invented";
    case Fate::Mistaken:
        return "mistaken";
    case Fate::Suspect:
        return "suspect";
    case Fate::Forbidden:
        return "error";
    }
    return "";
}

std::string nameOf(zel::kiv::catalogue::Resource const* resource)
{
    if (resource == nullptr) {
        return "external";
    }
    return std::string(resource->service) + '/' + std::string(resource->resourceKey);
}

} // namespace kiv::diagnostics
