#include "tests/model/RandomTree.h"

#include <array>
#include <bit>
#include <limits>

// What stands at the ends of the branches: numbers, texts, uris and keys.
namespace model {

int RandomTree::number()
{
    using Limits = std::numeric_limits<int>;
    constexpr std::array known{0, 1, -1, 7, 1000, Limits::max(), Limits::min()};
    std::size_t const place = below(known.size() + 3);
    if (place < known.size()) {
        return known.at(place);
    }
    auto const bits = static_cast<std::uint32_t>(m_source(~0U));
    return static_cast<int>(bits >> below(32));
}

double RandomTree::real()
{
    using Limits = std::numeric_limits<double>;
    constexpr std::array known{0.0,
                               -0.0,
                               1.5,
                               -2.75,
                               0.1,
                               2147483647.5,
                               -2147483649.0,
                               1e300,
                               Limits::denorm_min(),
                               Limits::max(),
                               Limits::infinity(),
                               -Limits::infinity(),
                               Limits::quiet_NaN()};
    std::size_t const place = below(known.size() + 3);
    return place < known.size() ? known.at(place) : std::bit_cast<double>(m_source(~0UL));
}

std::string RandomTree::text()
{
    switch (below(8)) {
    case 0:
        return pick({"", " ", "/", "true", "false", "TRUE", "null", "\xff\xfe", "\xc3\xa4\n\""});
    case 1:
        return pick({"7", "-7", "+7", "007", "1.5", "-1e3", "1e400", "-1e400", "2147483648", "0x10",
                     "1e", ".5", "5.", "nan", "inf", " 1", "1 "});
    case 2:
        return {"a\0b", 3};
    case 3:
        return pick({"x", "yy"}).append(16 + below(300), 'x');
    case 4:
        return uri(nullptr);
    case 5:
        return bytes();
    default:
        return "text" + std::to_string(below(1000));
    }
}

std::string RandomTree::bytes()
{
    std::string text(below(20), '\0');
    for (char& each : text) {
        each = static_cast<char>(below(256));
    }
    return text;
}

std::string RandomTree::uri(Resource const* resource)
{
    auto const all = zel::kiv::catalogue::resources();
    auto const& other = all[below(all.size())];
    if (resource == nullptr || resource->isExternal()) {
        resource = &other;
    }
    std::string const service(oneIn(8) ? other.service : resource->service);
    std::string const name(oneIn(8) ? other.resourceKey : resource->resourceKey);
    std::string const id = std::to_string(below(100));
    std::string const place = '/' + service + '/' + name;
    if (!oneIn(3)) {
        return place + '/' + id;
    }
    std::string const shorter = place.substr(0, place.size() - 1);
    std::array const shapes{
        '/' + service,
        place,
        place + '/',
        place + '/' + id + '/' + id,
        place + "//" + id,
        '/' + service + "//" + name + '/' + id,
        '/' + place + '/' + id,
        place.substr(1) + '/' + id,
        'x' + place.substr(1) + '/' + id,
        place + "x/" + id,
        shorter + '/' + id,
        '/' + service + '/' + std::string(resource->name) + '/' + id,
        '/' + service + '/' + std::string(resource->elementKey) + '/' + id,
        "/nobody/" + name + '/' + id,
        place + '/' + std::string(below(200), 'i'),
        pick({"", "/", "//", "///", "a", "a/", "a/b", "a/b/", "/a", "/a/", "/a//"}),
    };
    return shapes.at(below(shapes.size()));
}

std::string RandomTree::unknownKey(Resource const* resource)
{
    std::string key = "uri";
    if (resource != nullptr) {
        key = resource->fields[below(resource->fields.size())].key;
    }
    switch (below(6)) {
    case 0:
        return key.substr(0, below(key.size()));
    case 1:
        return key + pick({"s", "x", " ", "\n", "Set"});
    case 2:
        key.front() = static_cast<char>(key.front() ^ 0x20);
        return key;
    case 3:
        key.back() = static_cast<char>(key.back() + 1);
        return key;
    case 4:
        return '~' + bytes();
    default:
        return pick({"speed", "ID", "Uri", "zzz", "_", "0", "\xc3\xa4"});
    }
}

} // namespace model
