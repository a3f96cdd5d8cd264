#include "catalogue/Catalogue.h"
#include "frame/ExternalResourceObject.h"
#include "frame/IResourceBase.h"
#include "tests/unit/platform/Allocations.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

// What a platform may do in its own way, done otherwise than by the stand-ins: it passes through
// the library, and the library leaves nothing behind.

namespace {

namespace catalogue = zel::kiv::catalogue;
namespace data = zel::dataformats::data;

using catalogue::Kind;

/// A value that a field of this kind cannot take here: something else than it is made of.
std::unique_ptr<data::Value> wrongFor(Kind kind)
{
    if (kind == Kind::Element || kind == Kind::External) {
        // An element is read from any object; it is its id that is wrong.
        auto object = std::make_unique<data::Object>();
        object->setNew("id", new data::Integer(7));
        return object;
    }
    if (catalogue::isList(kind)) {
        auto array = std::make_unique<data::Array>();
        array->pushNew(catalogue::isNested(kind) ? wrongFor(Kind::Element).release()
                                                 : new data::Array);
        return array;
    }
    if (kind == Kind::Polymorphic) {
        auto object = std::make_unique<data::Object>();
        object->setNew("uri", new data::String("/somewhere/else/1"));
        object->setNew("name", new data::Integer(7));
        return object;
    }
    return std::make_unique<data::Array>();
}

/// Whether an element of some class is made for any uri in the field.
bool takesAnyUri(catalogue::Field const& field)
{
    return field.kind != Kind::Polymorphic || field.hasLastResort();
}

std::size_t fieldsSet(zel::kiv::common::IObjectBase const& element)
{
    auto const value = element.serialize(zel::kiv::common::SerializationType::Full);
    return static_cast<data::Object const&>(*value).get().size();
}

} // namespace

TEST(Platform, MayThrowOverEveryField)
{
    for (catalogue::Resource const& resource : catalogue::resources()) {
        for (catalogue::Field const& field : resource.fields) {
            if (!takesAnyUri(field)) {
                continue;
            }
            SCOPED_TRACE(std::string(resource.name) + '.' + std::string(field.key));
            std::size_t const before = allocations::alive();
            {
                data::Object document;
                document.setNew(std::string(field.key).c_str(), wrongFor(field.kind).release());
                auto const element = resource.makeElement();
                EXPECT_THROW(element->deserialize(&document), std::invalid_argument);
                EXPECT_EQ(fieldsSet(*element), 0U);
            }
            EXPECT_EQ(allocations::alive(), before);
        }
    }
}

TEST(Platform, MayThrowInTheMiddleOfAResource)
{
    for (catalogue::Resource const& each : catalogue::resources()) {
        std::size_t const before = allocations::alive();
        {
            data::Array document;
            document.pushNew(new data::Object);
            document.pushNew(wrongFor(Kind::Element).release());
            document.pushNew(new data::Object);
            auto const resource = each.makeResource();
            EXPECT_THROW(resource->deserialize(&document), std::invalid_argument);
            EXPECT_EQ(resource->getNumberOfElements(), 1U);
        }
        EXPECT_EQ(allocations::alive(), before) << each.name;
    }
}

TEST(Platform, NeedNotCallBackForNull)
{
    for (catalogue::Resource const& each : catalogue::resources()) {
        EXPECT_TRUE(each.makeElement()->deserialize(nullptr));
        auto const resource = each.makeResource();
        EXPECT_TRUE(resource->deserialize(nullptr));
        EXPECT_EQ(resource->getNumberOfElements(), 0U);
        data::Array document;
        document.pushNew(nullptr);
        resource->deserialize(&document);
        EXPECT_EQ(resource->getNumberOfElements(), 1U) << each.name;
    }
}

TEST(Platform, MaySplitUrisInItsOwnWay)
{
    data::String uri("/somewhere/else/7/and/more");
    data::Object temporary;
    data::Object* object = &temporary;
    ASSERT_TRUE(zel::kiv::common::IObjectBase::normalizeObject(uri, object));
    zel::kiv::common::ExternalResourceObject external;
    external.deserialize(object);
    EXPECT_EQ(external.getId(), "7/and/more");
    EXPECT_EQ(external.getUri(), uri.get());
}
