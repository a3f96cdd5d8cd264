#include "bench/Cases.h"
#include "bench/Mirrors.h"

#include <nlohmann/json.hpp>

namespace bench {

namespace {

using nlohmann::json;

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

} // namespace

void addNlohmann(std::vector<Case>& cases, Workload const& workload, Document const& document)
{
    mirror::withRoot(workload.resource, [&]<typename Root>(Root) {
        using Mirrors = std::vector<typename Root::Element>;
        auto const mirrors = std::make_shared<Mirrors>();
        read(*document, *mirrors);
        auto const tree = std::make_shared<json>(give(*mirrors));
        std::string const name(workload.name);
        cases.push_back({name, "deserialize", "nlohmann", mirrors->size(), [tree] {
                             auto result = std::make_unique<Mirrors>();
                             take(*tree, *result);
                             return Result(std::move(result));
                         }});
        cases.push_back({name, "serialize", "nlohmann", mirrors->size(),
                         [mirrors] { return Result(std::make_unique<json>(give(*mirrors))); }});
    });
}

} // namespace bench
