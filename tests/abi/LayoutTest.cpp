#include "catalogue/Catalogue.h"
#include "frame/ExternalResourceObject.h"
#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"
#include "tests/abi/FirstAllocation.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Members are private, so they are found from outside: one field at a time is set, and the bytes of
// the object that change must be those of the field and of its flag, where the order of the fields
// puts them. What the field then holds is read through its bare address.

namespace {

namespace catalogue = zel::kiv::catalogue;
namespace common = zel::kiv::common;
namespace data = zel::dataformats::data;

using catalogue::Kind;

/// Members laid out one behind the other, as a compiler lays out those of a plain class.
class Mirror {
public:
    explicit Mirror(std::size_t start) : m_end(start) {}

    template <typename Member>
    std::size_t add()
    {
        std::size_t const at = rounded(m_end, alignof(Member));
        m_end = at + sizeof(Member);
        return at;
    }

    [[nodiscard]] std::size_t size() const { return rounded(m_end, alignof(void*)); }

private:
    static std::size_t rounded(std::size_t size, std::size_t to)
    {
        return (size + to - 1) / to * to;
    }

    std::size_t m_end;
};

std::size_t addStorage(Mirror& mirror, Kind kind)
{
    switch (kind) {
    case Kind::String:
        return mirror.add<std::string>();
    case Kind::Int:
        return mirror.add<int>();
    case Kind::Double:
        return mirror.add<double>();
    case Kind::Bool:
        return mirror.add<bool>();
    case Kind::StringList:
        return mirror.add<std::vector<std::string>>();
    case Kind::IntList:
        return mirror.add<std::vector<int>>();
    case Kind::ElementList:
    case Kind::ExternalList:
        return mirror.add<std::vector<void*>>();
    case Kind::Element:
    case Kind::External:
    case Kind::Polymorphic:
        return mirror.add<void*>();
    }
    throw std::logic_error("a kind without storage");
}

constexpr int number = 0x01020304;
constexpr double fraction = 0x1.23456789abcdep+100;
std::string const text = "long enough to lie outside of the string itself";

/// A value that the field takes; of a polymorphic field, one for that target.
std::unique_ptr<data::Value> valueFor(Kind kind, catalogue::Resource const* target)
{
    auto const inArray = [](data::Value* entry) {
        auto array = std::make_unique<data::Array>();
        array->pushNew(entry);
        return array;
    };
    switch (kind) {
    case Kind::String:
        return std::make_unique<data::String>(text);
    case Kind::Int:
        return std::make_unique<data::Integer>(number);
    case Kind::Double:
        return std::make_unique<data::Float>(fraction);
    case Kind::Bool:
        return std::make_unique<data::Boolean>(true);
    case Kind::StringList:
        return inArray(new data::String(text));
    case Kind::IntList:
        return inArray(new data::Integer(number));
    case Kind::ElementList:
    case Kind::ExternalList:
        return inArray(new data::Object);
    case Kind::Element:
    case Kind::External:
        return std::make_unique<data::Object>();
    case Kind::Polymorphic:
        break;
    }
    std::string const uri = target == nullptr ? "/somewhere/else/1"
                                              : '/' + std::string(target->service) + '/' +
                                                    std::string(target->resourceKey) + "/1";
    return std::make_unique<data::String>(uri);
}

template <typename Member>
Member const& at(std::byte const* place)
{
    return *reinterpret_cast<Member const*>(place);
}

/// Whether what `valueFor` gives has arrived there.
bool holds(Kind kind, std::byte const* place)
{
    switch (kind) {
    case Kind::String:
        return at<std::string>(place) == text;
    case Kind::Int:
        return at<int>(place) == number;
    case Kind::Double:
        return at<double>(place) == fraction;
    case Kind::Bool:
        return at<bool>(place);
    case Kind::StringList:
        return at<std::vector<std::string>>(place) == std::vector{text};
    case Kind::IntList:
        return at<std::vector<int>>(place) == std::vector{number};
    case Kind::ElementList:
    case Kind::ExternalList:
        return at<std::vector<void*>>(place).size() == 1;
    case Kind::Element:
    case Kind::External:
    case Kind::Polymorphic:
        return at<void*>(place) != nullptr;
    }
    return false;
}

template <typename Base>
struct Made {
    std::unique_ptr<Base> object;
    std::size_t size;

    [[nodiscard]] std::byte const* bytes() const
    {
        return reinterpret_cast<std::byte const*>(object.get());
    }
};

template <typename Base>
Made<Base> make(std::unique_ptr<Base> (*maker)())
{
    firstAllocation::watch();
    auto object = maker();
    return {std::move(object), firstAllocation::size()};
}

// Each base is a virtual table and a key.
constexpr std::size_t keyAt = sizeof(void*);
constexpr std::size_t membersAt = keyAt + sizeof(std::string);

struct Place {
    std::size_t storageAt;
    std::size_t storageEnd;
    std::size_t flagAt;
};

/// Sets one field of a new element to one value, and looks at what that changed.
void checkField(std::unique_ptr<common::IObjectBase> (*maker)(), catalogue::Field const& field,
                catalogue::Resource const* target, Place const& place)
{
    data::Object document;
    document.setNew(std::string(field.key).c_str(), valueFor(field.kind, target).release());

    auto const element = make(maker);
    std::vector<std::byte> const before(element.bytes(), element.bytes() + element.size);
    element.object->deserialize(&document);
    for (std::size_t index = 0; index < element.size; ++index) {
        bool const isOwn =
            index == place.flagAt || (index >= place.storageAt && index < place.storageEnd);
        ASSERT_TRUE(isOwn || element.bytes()[index] == before[index]) << "changed byte " << index;
    }
    EXPECT_FALSE(std::to_integer<bool>(before[place.flagAt]));
    EXPECT_EQ(std::to_integer<int>(element.bytes()[place.flagAt]), 1) << "flag";
    EXPECT_TRUE(holds(field.kind, element.bytes() + place.storageAt)) << "stored value";
}

void checkElement(std::unique_ptr<common::IObjectBase> (*maker)(), std::string_view key,
                  std::span<catalogue::Field const> fields)
{
    Mirror mirror(membersAt);
    for (catalogue::Field const& field : fields) {
        SCOPED_TRACE(field.key);
        std::size_t const storageAt = addStorage(mirror, field.kind);
        Mirror storage = mirror;
        std::size_t const storageEnd = storage.add<bool>();
        bool const isPolymorphic = field.kind == Kind::Polymorphic;
        std::size_t const flags = isPolymorphic ? field.targets.size() : 1;
        for (std::size_t index = 0; index < flags; ++index) {
            checkField(maker, field, isPolymorphic ? field.targets[index] : nullptr,
                       {storageAt, storageEnd, mirror.add<bool>()});
        }
    }
    auto const element = make(maker);
    EXPECT_EQ(element.size, mirror.size());
    EXPECT_EQ(at<std::string>(element.bytes() + keyAt), key);
}

void checkResource(catalogue::Resource const& definition)
{
    auto const resource = make(definition.makeResource);
    Mirror mirror(membersAt);
    std::size_t const slotsAt = mirror.add<std::vector<void*>>();
    ASSERT_EQ(resource.size, mirror.size());
    EXPECT_EQ(at<std::string>(resource.bytes() + keyAt), definition.resourceKey);

    data::Array document;
    document.pushNew(new data::Object);
    resource.object->deserialize(&document);
    EXPECT_EQ(at<std::vector<void*>>(resource.bytes() + slotsAt).size(), 1U);
}

} // namespace

// The arithmetic of the other tests, held against the compiler's.
TEST(Layout, MirrorDoesAsTheCompilerDoes)
{
    struct Plain {
        std::array<std::byte, membersAt> base;
        int number;
        bool numberIsSet;
        bool flag;
        bool flagIsSet;
        double fraction;
        bool fractionIsSet;
        std::string text;
        bool textIsSet;
        std::vector<int> numbers;
        bool numbersIsSet;
    };
    Mirror mirror(membersAt);
    std::vector<std::size_t> places;
    for (Kind const kind : {Kind::Int, Kind::Bool, Kind::Double, Kind::String, Kind::IntList}) {
        places.push_back(addStorage(mirror, kind));
        places.push_back(mirror.add<bool>());
    }
    EXPECT_EQ(places,
              (std::vector<std::size_t>{offsetof(Plain, number), offsetof(Plain, numberIsSet),
                                        offsetof(Plain, flag), offsetof(Plain, flagIsSet),
                                        offsetof(Plain, fraction), offsetof(Plain, fractionIsSet),
                                        offsetof(Plain, text), offsetof(Plain, textIsSet),
                                        offsetof(Plain, numbers), offsetof(Plain, numbersIsSet)}));
    EXPECT_EQ(mirror.size(), sizeof(Plain));
}

TEST(Layout, OfEveryElementIsTheOrderOfItsFields)
{
    for (catalogue::Resource const& definition : catalogue::resources()) {
        SCOPED_TRACE(std::string(definition.service) + "::" + std::string(definition.name));
        checkElement(definition.makeElement, definition.elementKey, definition.fields);
    }
}

TEST(Layout, OfEveryResourceIsItsSlots)
{
    for (catalogue::Resource const& definition : catalogue::resources()) {
        SCOPED_TRACE(std::string(definition.service) + "::" + std::string(definition.name));
        checkResource(definition);
    }
}

TEST(Layout, OfExternalReferencesIsThatOfAnElement)
{
    std::array<catalogue::Field, 3> const fields{{{"id", Kind::String, {}, {}},
                                                  {"name", Kind::String, {}, {}},
                                                  {"uri", Kind::String, {}, {}}}};
    checkElement(
        []() -> std::unique_ptr<common::IObjectBase> {
            return std::make_unique<common::ExternalResourceObject>();
        },
        "externalResourceObject", fields);

    Mirror visitor(sizeof(data::ConstVisitor));
    visitor.add<bool>();
    visitor.add<std::string>();
    visitor.add<void*>();
    EXPECT_EQ(sizeof(common::ExternalResourceObjectDeserializer), visitor.size());
}
