#include "bench/peers/Road.h"

#include <nlohmann/json.hpp>

namespace bench {

namespace {

using nlohmann::json;
using zel::dataformats::data::Array;
using zel::dataformats::data::Boolean;
using zel::dataformats::data::Float;
using zel::dataformats::data::Integer;
using zel::dataformats::data::Object;
using zel::dataformats::data::String;
using zel::dataformats::data::Value;

template <typename Field>
void take(json const& value, Field& field)
{
    if constexpr (isVector<Field>) {
        for (json const& entry : value) {
            take(entry, field.emplace_back());
        }
    } else if constexpr (isPointer<Field>) {
        field = std::make_unique<typename Field::element_type>();
        take(value, *field);
    } else if constexpr (std::is_same_v<Field, std::string> ||
                         std::is_same_v<Field, std::optional<std::string>>) {
        field = value.get_ref<std::string const&>();
    } else if constexpr (std::is_same_v<Field, int>) {
        field = value.get<int>();
    } else if constexpr (std::is_class_v<Field> && !requires { typename Field::Class; }) {
        field = value.get<typename Field::value_type>();
    } else {
        eachField(&field, [&](std::string const& key, auto member, auto /*setter*/) {
            auto const entry = value.find(key);
            if (entry != value.end()) {
                take(*entry, field.*member);
            }
        });
    }
}

template <typename Field>
json give(Field const& field)
{
    if constexpr (isVector<Field>) {
        json array = json::array();
        for (auto const& entry : field) {
            array.push_back(give(entry));
        }
        return array;
    } else if constexpr (requires { typename Field::Class; }) {
        json object = json::object();
        eachField(&field, [&](std::string const& key, auto member, auto /*setter*/) {
            if (isSet(field.*member)) {
                object.emplace(key, give(field.*member));
            }
        });
        return object;
    } else if constexpr (requires { *field; }) {
        return give(*field);
    } else {
        return field;
    }
}

Value* bringBack(json const& value)
{
    if (value.is_boolean()) {
        return new Boolean(value.get<bool>());
    }
    if (value.is_number_integer()) {
        return new Integer(value.get<int>());
    }
    if (value.is_number_float()) {
        return new Float(value.get<double>());
    }
    if (value.is_string()) {
        return new String(value.get_ref<std::string const&>());
    }
    if (value.is_array()) {
        auto array = std::make_unique<Array>();
        for (json const& entry : value) {
            array->pushNew(bringBack(entry));
        }
        return array.release();
    }
    if (value.is_object()) {
        auto object = std::make_unique<Object>();
        for (auto const& entry : value.get_ref<json::object_t const&>()) {
            object->setNew(entry.first.c_str(), bringBack(entry.second));
        }
        return object.release();
    }
    return nullptr;
}

struct Nlohmann {
    using Json = json;

    static Json bring(Value const* value)
    {
        return Bringing<Json, json::array_t, json::object_t>::bring(value);
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

void addNlohmann(std::vector<Case>& cases, Workload const& workload, Document const& document)
{
    mirror::withRoot(workload.resource, [&]<typename Root>(Root) {
        addJsonCases<Nlohmann, std::vector<typename Root::Element>>(cases, workload, document,
                                                                    "nlohmann");
    });
}

} // namespace bench
