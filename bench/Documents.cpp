#include "bench/Documents.h"

#include <set>
#include <stdexcept>
#include <string>

namespace bench {

namespace {

using zel::dataformats::data::Array;
using zel::dataformats::data::Boolean;
using zel::dataformats::data::Float;
using zel::dataformats::data::Integer;
using zel::dataformats::data::Object;
using zel::dataformats::data::String;
using zel::dataformats::data::Value;
using zel::dataformats::data::ValueType;
using zel::kiv::catalogue::Content;
using zel::kiv::catalogue::Field;
using zel::kiv::catalogue::isList;
using zel::kiv::catalogue::isNested;
using zel::kiv::catalogue::Kind;
using zel::kiv::catalogue::Resource;

/// What an element shows of the fields that it could.
struct Shown {
    std::set<std::string_view> nested; ///< keys; empty: all, down to `depth`
    std::size_t plain = 1000;          ///< how many of the fields that hold no element, at most
    int depth = 3;
};

Shown shownOf(Workload const& workload)
{
    if (workload.name == "stations") {
        return {{"audioSegment", "bands", "ranges"}, 28, 3};
    }
    if (workload.name == "locations") {
        return {{"apartment", "brand",       "chome",        "city",
                 "country",   "houseNumber", "intersection", "localTranslation",
                 "place",     "poiName",     "prefecture",   "provinceMetro",
                 "state",     "street",      "suburb",       "town",
                 "type",      "village",     "ward",         "zipcode"},
                1000,
                2};
    }
    return {};
}

class Maker {
public:
    explicit Maker(Shown shown) : m_shown(std::move(shown)) {}

    std::unique_ptr<Object> element(Resource const& resource, int seed, int level) const
    {
        auto object = std::make_unique<Object>();
        std::size_t plain = 0;
        std::size_t all = 0;
        for (Field const& field : resource.fields) {
            all += isNested(field.kind) ? 0 : 1;
        }
        // Those that are shown are spread evenly; the cut is for the outermost element alone.
        std::size_t const wanted = level == 1 ? std::min(all, m_shown.plain) : all;
        for (Field const& field : resource.fields) {
            if (isNested(field.kind)) {
                addNested(*object, field, seed, level);
                continue;
            }
            std::size_t const place = plain++;
            if (place * wanted / all != (place + 1) * wanted / all) {
                object->setNew(field.key.data(), plainValue(resource, field, seed).release());
            }
        }
        return object;
    }

private:
    void addNested(Object& object, Field const& field, int seed, int level) const
    {
        bool const shown = m_shown.nested.empty() || m_shown.nested.contains(field.key);
        if (!shown || level == m_shown.depth || field.kind == Kind::Polymorphic) {
            return;
        }
        if (!isList(field.kind)) {
            object.setNew(field.key.data(), nested(field, seed, level).release());
            return;
        }
        auto array = std::make_unique<Array>();
        array->pushNew(nested(field, seed, level).release());
        array->pushNew(nested(field, seed + 1, level).release());
        object.setNew(field.key.data(), array.release());
    }

    std::unique_ptr<Object> nested(Field const& field, int seed, int level) const
    {
        if (!field.targets.front()->isExternal()) {
            return element(*field.targets.front(), seed, level + 1);
        }
        auto reference = std::make_unique<Object>();
        std::string const id = std::to_string(seed);
        reference->setNew("id", new String(id));
        reference->setNew("name", new String("reference"));
        reference->setNew("uri", new String("/elsewhere/things/" + id));
        return reference;
    }

    static std::unique_ptr<Value> plainValue(Resource const& resource, Field const& field, int seed)
    {
        if (!isList(field.kind)) {
            return plainEntry(resource, field, seed,
                              seed * 31 + static_cast<int>(field.key.size()));
        }
        auto array = std::make_unique<Array>();
        array->pushNew(plainEntry(resource, field, seed, seed).release());
        array->pushNew(plainEntry(resource, field, seed + 1, -seed).release());
        return array;
    }

    static std::unique_ptr<Value> plainEntry(Resource const& resource, Field const& field, int seed,
                                             int number)
    {
        switch (traitsOf(field.kind).content) {
        case Content::String:
            return std::make_unique<String>(text(resource, field, seed));
        case Content::Integer:
            return std::make_unique<Integer>(number);
        case Content::Float:
            return std::make_unique<Float>(seed + 0.25);
        case Content::Boolean:
            return std::make_unique<Boolean>(seed % 2 == 0);
        case Content::Object:
            break;
        }
        throw std::logic_error("a nested field where a plain one is meant");
    }

    /// About one text in three is long enough to need memory of its own.
    static std::string text(Resource const& resource, Field const& field, int seed)
    {
        std::string const number = std::to_string(seed);
        if (field.key == "uri") {
            return '/' + std::string(resource.service) + '/' + std::string(resource.resourceKey) +
                   '/' + number;
        }
        if (field.key.size() % 3 == 0) {
            return "a longer text, number " + number;
        }
        return "text " + number;
    }

    Shown m_shown;
};

std::size_t longKeysIn(Resource const* resource, Value const& value)
{
    if (resource->isExternal()) {
        return 0;
    }
    if (value.getType() == ValueType::Array) {
        std::size_t count = 0;
        for (Value const* each : const_cast<Array&>(static_cast<Array const&>(value)).get()) {
            count += longKeysIn(resource, *each);
        }
        return count;
    }
    auto const& entries = static_cast<Object const&>(value).get();
    std::size_t count = 0;
    bool isLong = false;
    for (Field const& field : resource->fields) {
        isLong = isLong || field.key.size() > std::string().capacity();
        auto const entry = entries.find(std::string(field.key));
        if (isNested(field.kind) && entry != entries.end()) {
            count += longKeysIn(field.targets.front(), *static_cast<Value const*>(entry->second));
        }
    }
    return count + (isLong ? 1 : 0);
}

} // namespace

std::size_t elementsWithLongKeys(Workload const& workload, Array const& document)
{
    return longKeysIn(&resourceOf(workload), document);
}

Resource const& resourceOf(Workload const& workload)
{
    for (Resource const& each : zel::kiv::catalogue::resources()) {
        if (std::string(each.service) + "::" + std::string(each.name) == workload.resource) {
            return each;
        }
    }
    throw std::logic_error("a workload of an unknown resource");
}

std::unique_ptr<Array> document(Workload const& workload, std::size_t elements)
{
    Maker const maker(shownOf(workload));
    Resource const& resource = resourceOf(workload);
    auto array = std::make_unique<Array>();
    for (std::size_t i = 0; i < elements; ++i) {
        array->pushNew(maker.element(resource, static_cast<int>(i), 1).release());
    }
    return array;
}

} // namespace bench
