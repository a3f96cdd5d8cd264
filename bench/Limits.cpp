#include "bench/Cases.h"
#include "bench/Mirrors.h"

namespace bench {

namespace {

using zel::dataformats::data::Array;
using zel::dataformats::data::Boolean;
using zel::dataformats::data::Float;
using zel::dataformats::data::Integer;
using zel::dataformats::data::Object;
using zel::dataformats::data::Ref;
using zel::dataformats::data::String;
using zel::dataformats::data::Value;

// build

Value* built(std::string const& text)
{
    return new String(text);
}

Value* built(int number)
{
    return new Integer(number);
}

Value* built(double number)
{
    return new Float(number);
}

Value* built(bool flag)
{
    return new Boolean(flag);
}

template <typename Mirror, typename = typename Mirror::Class>
Value* built(Mirror const& mirror);

template <typename Scalar>
Value* built(std::optional<Scalar> const& field)
{
    return built(*field);
}

template <typename Held>
Value* built(std::unique_ptr<Held> const& field)
{
    return built(*field);
}

template <typename Entry>
Value* built(std::vector<Entry> const& field)
{
    auto array = std::make_unique<Array>();
    for (auto const& entry : field) {
        array->pushNew(built(entry));
    }
    return array.release();
}

template <typename Mirror, typename>
Value* built(Mirror const& mirror)
{
    auto object = std::make_unique<Object>();
    eachField(&mirror, [&](std::string const& key, auto member, auto /*setter*/) {
        auto const& field = mirror.*member;
        if (isSet(field)) {
            object->setNew(key.c_str(), built(field));
        }
    });
    return object.release();
}

// read and fill

template <typename Mirror>
void readInto(typename Mirror::Class& element, Map const& map);

template <typename Mirror>
void fillInto(typename Mirror::Class& element, Mirror const& mirror);

template <typename Field, typename Element, typename Argument>
void readField(Value const& value, Element& element, void (Element::*setter)(Argument))
{
    if constexpr (std::is_same_v<Argument, std::string const&>) {
        (element.*setter)(Ref(&value).asString());
    } else if constexpr (std::is_same_v<Argument, int>) {
        (element.*setter)(Ref(&value).asInteger());
    } else if constexpr (std::is_same_v<Argument, double>) {
        (element.*setter)(Ref(&value).asFloat());
    } else if constexpr (std::is_same_v<Argument, bool>) {
        (element.*setter)(Ref(&value).asBoolean());
    } else {
        auto nested = std::make_unique<typename Argument::element_type>();
        readInto<Field>(*nested, mapOf(value));
        (element.*setter)(std::move(nested));
    }
}

template <typename Mirror>
void readInto(typename Mirror::Class& element, Map const& map)
{
    eachField(static_cast<Mirror const*>(nullptr),
              [&](std::string const& key, auto member, auto setter) {
                  using Field = TypeOf<decltype(member)>;
                  auto const entry = map.find(key);
                  if (entry == map.end() || entry->second == nullptr) {
                      return;
                  }
                  Value const& value = *static_cast<Value const*>(entry->second);
                  if constexpr (isVector<Field>) {
                      for (Value const* each : entriesOf(value)) {
                          readField<typename Field::value_type>(*each, element, setter);
                      }
                  } else if constexpr (isPointer<Field>) {
                      readField<typename Field::element_type>(value, element, setter);
                  } else {
                      readField<Field>(value, element, setter);
                  }
              });
}

template <typename Mirror, typename Element, typename Argument>
void fillField(Mirror const& field, Element& element, void (Element::*setter)(Argument))
{
    if constexpr (std::is_convertible_v<Mirror const&, Argument>) {
        (element.*setter)(field);
    } else {
        auto nested = std::make_unique<typename Argument::element_type>();
        fillInto(*nested, field);
        (element.*setter)(std::move(nested));
    }
}

template <typename Mirror>
void fillInto(typename Mirror::Class& element, Mirror const& mirror)
{
    eachField(&mirror, [&](std::string const& /*key*/, auto member, auto setter) {
        auto const& field = mirror.*member;
        if (!isSet(field)) {
            return;
        }
        if constexpr (isVector<TypeOf<decltype(member)>>) {
            for (auto const& entry : field) {
                fillField(entry, element, setter);
            }
        } else {
            fillField(*field, element, setter);
        }
    });
}

template <typename Root>
void addCases(std::vector<Case>& cases, std::string const& name, Document const& document)
{
    using Mirror = typename Root::Element;
    using Resource = typename Root::Resource;
    // Each in a piece of memory of its own, as typed elements are.
    auto const mirrors = std::make_shared<std::vector<std::unique_ptr<Mirror>>>();
    read(*document, *mirrors);
    std::size_t const elements = mirrors->size();
    cases.push_back({name, "serialize", "build", elements,
                     [mirrors] { return Result(std::unique_ptr<Value>(built(*mirrors))); }});
    cases.push_back({name, "deserialize", "read", elements, [document] {
                         auto resource = std::make_unique<Resource>();
                         for (Value const* entry : document->get()) {
                             auto element = std::make_unique<typename Mirror::Class>();
                             readInto<Mirror>(*element, mapOf(*entry));
                             resource->addObject(std::move(element));
                         }
                         return Result(std::move(resource));
                     }});
    cases.push_back({name, "deserialize", "fill", elements, [mirrors] {
                         auto resource = std::make_unique<Resource>();
                         for (auto const& mirror : *mirrors) {
                             auto element = std::make_unique<typename Mirror::Class>();
                             fillInto(*element, *mirror);
                             resource->addObject(std::move(element));
                         }
                         return Result(std::move(resource));
                     }});
}

} // namespace

void addLimits(std::vector<Case>& cases, Workload const& workload, Document const& document)
{
    mirror::withRoot(workload.resource, [&]<typename Root>(Root) {
        addCases<Root>(cases, std::string(workload.name), document);
    });
}

} // namespace bench
