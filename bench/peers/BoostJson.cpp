#include "bench/peers/Road.h"

#include <boost/json.hpp>

namespace bench {

namespace {

namespace json = boost::json;
using zel::dataformats::data::Array;
using zel::dataformats::data::Boolean;
using zel::dataformats::data::Float;
using zel::dataformats::data::Integer;
using zel::dataformats::data::Object;
using zel::dataformats::data::String;
using zel::dataformats::data::Value;

template <typename Field>
void take(json::value const& value, Field& field)
{
    if constexpr (isVector<Field>) {
        json::array const& array = value.get_array();
        field.reserve(array.size());
        for (json::value const& entry : array) {
            take(entry, field.emplace_back());
        }
    } else if constexpr (isPointer<Field>) {
        field = std::make_unique<typename Field::element_type>();
        take(value, *field);
    } else if constexpr (std::is_same_v<Field, std::string>) {
        json::string const& text = value.get_string();
        field.assign(text.data(), text.size());
    } else if constexpr (std::is_same_v<Field, std::optional<std::string>>) {
        json::string const& text = value.get_string();
        field.emplace(text.data(), text.size());
    } else if constexpr (std::is_same_v<Field, int> || std::is_same_v<Field, std::optional<int>>) {
        field = static_cast<int>(value.get_int64());
    } else if constexpr (std::is_same_v<Field, std::optional<double>>) {
        field = value.get_double();
    } else if constexpr (std::is_same_v<Field, std::optional<bool>>) {
        field = value.get_bool();
    } else {
        json::object const& object = value.get_object();
        eachField(&field, [&](std::string const& key, auto member, auto /*setter*/) {
            if (json::value const* const entry = object.if_contains(key)) {
                take(*entry, field.*member);
            }
        });
    }
}

template <typename Field>
json::value give(Field const& field)
{
    if constexpr (isVector<Field>) {
        json::array array;
        array.reserve(field.size());
        for (auto const& entry : field) {
            array.push_back(give(entry));
        }
        return array;
    } else if constexpr (requires { typename Field::Class; }) {
        json::object object;
        eachField(&field, [&](std::string const& key, auto member, auto /*setter*/) {
            if (isSet(field.*member)) {
                object.emplace(key, give(field.*member));
            }
        });
        return object;
    } else if constexpr (requires { *field; }) {
        return give(*field);
    } else {
        return json::value(field);
    }
}

Value* bringBack(json::value const& value)
{
    switch (value.kind()) {
    case json::kind::null:
        return nullptr;
    case json::kind::bool_:
        return new Boolean(value.get_bool());
    case json::kind::int64:
    case json::kind::uint64:
        return new Integer(value.to_number<int>());
    case json::kind::double_:
        return new Float(value.get_double());
    case json::kind::string:
        return new String(std::string(value.get_string()));
    case json::kind::array: {
        auto array = std::make_unique<Array>();
        for (json::value const& entry : value.get_array()) {
            array->pushNew(bringBack(entry));
        }
        return array.release();
    }
    case json::kind::object: {
        auto object = std::make_unique<Object>();
        for (auto const& entry : value.get_object()) {
            object->setNew(std::string(entry.key()).c_str(), bringBack(entry.value()));
        }
        return object.release();
    }
    }
    return nullptr;
}

struct BoostJson {
    using Json = json::value;

    static Json bring(Value const* value)
    {
        return Bringing<Json, json::array, json::object>::bring(value);
    }
    static Value* bringBack(Json const& value) { return bench::bringBack(value); }
    template <typename Field>
    static void take(Json const& value, Field& field)
    {
        bench::take(value, field);
    }
    template <typename Field>
    static Json give(Field const& field)
    {
        return bench::give(field);
    }
};

} // namespace

void addBoostJson(std::vector<Case>& cases, Workload const& workload, Document const& document)
{
    mirror::withRoot(workload.resource, [&]<typename Root>(Root) {
        addJsonCases<BoostJson, std::vector<typename Root::Element>>(cases, workload, document,
                                                                     "boost");
    });
}

} // namespace bench
