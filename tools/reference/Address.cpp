#include "tools/reference/Address.h"

#include <algorithm>

namespace reference {

using zel::kiv::catalogue::Field;
using zel::kiv::catalogue::Kind;
using zel::kiv::catalogue::Resource;

std::string addressOf(std::string_view service)
{
    return std::string(service) + ".html";
}

std::string addressOf(Resource const& resource)
{
    if (resource.isExternal()) {
        return "frame.html#" + std::string(resource.element);
    }
    return std::string(resource.service) + '.' + std::string(resource.resourceKey) + ".html";
}

std::string addressOf(Resource const& resource, Field const& field)
{
    return addressOf(resource) + '#' + std::string(field.key);
}

std::string addressOf(Kind kind)
{
    return "kinds.html#" + placeOf(kind);
}

std::string placeOf(Kind kind)
{
    std::string word(wordOf(kind));
    std::ranges::replace(word, ' ', '-');
    return word;
}

} // namespace reference
