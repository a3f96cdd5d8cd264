#include "tests/model/RandomTree.h"

#include "tests/model/Model.h"

#include "values/values.h"

#include <array>
#include <bit>
#include <limits>
#include <random>
#include <utility>

namespace model {

namespace {

namespace catalogue = zel::kiv::catalogue;
namespace data = zel::dataformats::data;

using catalogue::Kind;

} // namespace

RandomTree::RandomTree(std::uint64_t seed)
    : RandomTree([engine = std::mt19937_64(seed)](std::uint64_t most) mutable {
          return most == engine.max() ? engine() : engine() % (most + 1);
      })
{
}

std::string RandomTree::pick(std::initializer_list<char const*> texts)
{
    return texts.begin()[below(texts.size())];
}

void RandomTree::restart()
{
    // Small trees show faults as well as large ones and are sooner done.
    constexpr std::array sizes{3, 10, 10, 30, 30, 30, 30, 200};
    m_left = sizes.at(below(sizes.size()));
}

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
    auto const all = catalogue::resources();
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

std::unique_ptr<data::Value> RandomTree::anything(int depth)
{
    --m_left;
    switch (below(depth > 0 ? 12 : 8)) {
    case 0:
        return nullptr;
    case 1:
        return std::make_unique<data::Null>();
    case 2:
        return std::make_unique<data::Boolean>(oneIn(2));
    case 3:
        return std::make_unique<data::Integer>(number());
    case 4:
        return std::make_unique<data::Float>(real());
    case 5:
        return std::make_unique<data::Blob>(
            zel::common::types::BufferDescriptor<char const>("blob", below(5)));
    case 6:
        return std::make_unique<data::String>(text());
    case 7:
        return std::make_unique<data::String>(uri(nullptr));
    case 8:
    case 9:
        return anyArray(depth - 1);
    default:
        return anyObject(depth - 1);
    }
}

std::unique_ptr<data::Array> RandomTree::anyArray(int depth)
{
    auto array = std::make_unique<data::Array>();
    for (std::size_t left = below(4); left > 0; --left) {
        array->pushNew(anything(depth).release());
    }
    return array;
}

/// May end up anywhere, so its uri is always text.
std::unique_ptr<data::Object> RandomTree::anyObject(int depth)
{
    auto object = std::make_unique<data::Object>();
    for (std::size_t left = below(4); left > 0; --left) {
        std::string const key = unknownKey(nullptr);
        object->setNew(key.c_str(), anything(depth).release());
    }
    if (oneIn(2)) {
        object->setNew("id", anything(depth).release());
    }
    if (oneIn(2)) {
        object->setNew("uri", new data::String(uri(nullptr)));
    }
    return object;
}

std::unique_ptr<data::Object> RandomTree::objectOf(Resource const* resource)
{
    auto object = std::make_unique<data::Object>();
    while (oneIn(3)) {
        std::string const key = unknownKey(resource);
        object->setNew(key.c_str(), anything(2).release());
    }
    auto const fields = resource->fields;
    std::size_t const start = below(fields.size());
    std::size_t const oneTaken = 1 + below(4);
    for (std::size_t step = 0; step < fields.size() && !isSpent(); ++step) {
        auto const& field = fields[(start + step) % fields.size()];
        if (oneIn(oneTaken)) {
            object->setNew(field.key.data(), forField(field).release());
        }
    }
    return object;
}

std::unique_ptr<data::Value> RandomTree::forField(Field const& field)
{
    if (isSpent() || oneIn(16)) {
        return nullptr;
    }
    if (oneIn(8)) {
        return anything(3);
    }
    if (catalogue::isList(field.kind)) {
        return forList(field);
    }
    return forEntry(field);
}

std::unique_ptr<data::Value> RandomTree::forList(Field const& field)
{
    auto array = std::make_unique<data::Array>();
    std::size_t const size = below(5);
    bool const isAllNull = oneIn(16);
    for (std::size_t left = size; left > 0; --left) {
        if (isAllNull || oneIn(8)) {
            array->pushNew(nullptr);
        } else {
            array->pushNew((oneIn(8) ? anything(3) : forEntry(field)).release());
        }
    }
    return array;
}

std::unique_ptr<data::Value> RandomTree::forEntry(Field const& field)
{
    --m_left;
    switch (field.kind) {
    case Kind::String:
    case Kind::StringList:
        return std::make_unique<data::String>(text());
    case Kind::Int:
    case Kind::IntList:
        return std::make_unique<data::Integer>(number());
    case Kind::Double:
        return std::make_unique<data::Float>(real());
    case Kind::Bool:
        return std::make_unique<data::Boolean>(oneIn(2));
    case Kind::Polymorphic:
        return forPolymorphic(field);
    case Kind::Element:
    case Kind::ElementList:
    case Kind::External:
    case Kind::ExternalList:
        break;
    }
    if (oneIn(3)) {
        return std::make_unique<data::String>(uri(field.targets.front()));
    }
    return objectOf(field.targets.front());
}

/// The uri is chosen first. What the object holds is then made for the class that will read it: in
/// another class the same key could be a polymorphic field, whose objects are bound in their uri.
std::unique_ptr<data::Value> RandomTree::forPolymorphic(Field const& field)
{
    std::string const text = uri(field.targets[below(field.targets.size())]);
    if (oneIn(3)) {
        return std::make_unique<data::String>(text);
    }
    Choice const choice = choose(field, text);
    auto object = choice.made ? objectOf(choice.resource) : anyObject(2);
    object->setNew("uri", new data::String(text));
    return object;
}

std::unique_ptr<data::Value> RandomTree::forResource(Resource const& resource)
{
    restart();
    if (oneIn(64)) {
        return anything(3);
    }
    auto array = std::make_unique<data::Array>();
    for (std::size_t left = below(4); left > 0; --left) {
        if (isSpent()) {
            restart();
        }
        array->pushNew((oneIn(16) ? anything(3) : objectOf(&resource)).release());
    }
    return array;
}

} // namespace model
