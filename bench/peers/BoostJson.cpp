#include "bench/Cases.h"
#include "bench/Mirrors.h"

#include <boost/json.hpp>

namespace bench {

namespace {

namespace json = boost::json;

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

} // namespace

void addBoostJson(std::vector<Case>& cases, Workload const& workload, Document const& document)
{
    mirror::withRoot(workload.resource, [&]<typename Root>(Root) {
        using Mirrors = std::vector<typename Root::Element>;
        auto const mirrors = std::make_shared<Mirrors>();
        read(*document, *mirrors);
        auto const tree = std::make_shared<json::value>(give(*mirrors));
        std::string const name(workload.name);
        cases.push_back({name, "deserialize", "boost", mirrors->size(), [tree] {
                             auto result = std::make_unique<Mirrors>();
                             take(*tree, *result);
                             return Result(std::move(result));
                         }});
        cases.push_back({name, "serialize", "boost", mirrors->size(), [mirrors] {
                             return Result(std::make_unique<json::value>(give(*mirrors)));
                         }});
    });
}

} // namespace bench
