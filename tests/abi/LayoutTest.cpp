#include "catalogue/Catalogue.h"
#include "frame/ExternalResourceObject.h"
#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"
#include "tests/model/Samples.h"
#include "tests/unit/platform/Allocations.h"
#include "values/values.h"

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
// puts them.

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
    case Kind::IntList:
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

template <typename Member>
Member const& at(std::byte const* place)
{
    return *reinterpret_cast<Member const*>(place);
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
    allocations::awaitNext();
    auto object = maker();
    return {std::move(object), allocations::sizeOfNext()};
}

// Each base is a virtual table and a key.
constexpr std::size_t keyAt = sizeof(void*);
constexpr std::size_t membersAt = keyAt + sizeof(std::string);

struct SourcePosition {
    std::size_t storageAt;
    std::size_t storageEnd;
    std::size_t flagAt;
};

/// Reads one field of a new element, and looks at what that changed.
void checkField(std::unique_ptr<common::IObjectBase> (*maker)(), catalogue::Field const& field,
                std::size_t target, SourcePosition const& place)
{
    auto const document = model::valueOf(
        {model::Tree::Map{{std::string(field.key), samples::fieldSample(field, target, 1)}}});
    auto const element = make(maker);
    std::vector<std::byte> const before(element.bytes(), element.bytes() + element.size);
    element.object->deserialize(document.get());
    bool isStored = false;
    for (std::size_t index = 0; index < element.size; ++index) {
        bool const isChanged = element.bytes()[index] != before[index];
        bool const isStorage = index >= place.storageAt && index < place.storageEnd;
        ASSERT_TRUE(!isChanged || isStorage || index == place.flagAt) << "changed byte " << index;
        isStored = isStored || (isChanged && isStorage);
    }
    EXPECT_TRUE(isStored);
    EXPECT_FALSE(std::to_integer<bool>(before[place.flagAt]));
    EXPECT_EQ(std::to_integer<int>(element.bytes()[place.flagAt]), 1) << "flag";
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
        std::size_t const flags = field.kind == Kind::Polymorphic ? field.targets.size() : 1;
        for (std::size_t index = 0; index < flags; ++index) {
            checkField(maker, field, index, {storageAt, storageEnd, mirror.add<bool>()});
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
    checkElement(catalogue::external().makeElement, "externalResourceObject",
                 catalogue::external().fields);

    Mirror visitor(sizeof(data::ConstVisitor));
    visitor.add<bool>();
    visitor.add<std::string>();
    visitor.add<void*>();
    EXPECT_EQ(sizeof(common::ExternalResourceObjectDeserializer), visitor.size());
}
