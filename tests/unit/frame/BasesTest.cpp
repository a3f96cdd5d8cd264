#include <gtest/gtest.h>

#include "Forms.h"

#include <map>

namespace frame_test {
namespace {

using zel::kiv::common::IObjectBase;
using zel::kiv::common::IResourceBase;
using namespace zel::dataformats::data;

/// Classes outside the library may derive from its bases.
class Note : public IObjectBase {
public:
    explicit Note(bool& isGone) : IObjectBase("note"), m_isGone(&isGone) {}
    ~Note() override { *m_isGone = true; }
    [[nodiscard]] std::unique_ptr<Value>
    serialize(zel::kiv::common::SerializationType type) const override
    {
        return std::make_unique<Integer>(static_cast<int>(type));
    }
    bool deserialize(Value const* value) override { return value == nullptr; }

private:
    bool* m_isGone;
};

class Notes : public IResourceBase {
public:
    Notes() : IResourceBase("notes") {}
    [[nodiscard]] std::unique_ptr<Value> serialize() const override
    {
        return std::make_unique<Array>();
    }
    bool deserialize(Value const* value) override { return value != nullptr; }
    [[nodiscard]] std::size_t getNumberOfElements() const override { return 3; }
};

TEST(Bases, canBeDerivedFromAndFreedThrough)
{
    bool isGone = false;
    std::unique_ptr<IObjectBase> element = std::make_unique<Note>(isGone);
    EXPECT_EQ(shallow(*element), "2");
    EXPECT_TRUE(element->deserialize(nullptr));
    EXPECT_NE(dynamic_cast<Note*>(element.get()), nullptr);
    element.reset();
    EXPECT_TRUE(isGone);

    std::unique_ptr<IResourceBase> const resource = std::make_unique<Notes>();
    EXPECT_EQ(full(*resource), "[]");
    EXPECT_EQ(resource->getNumberOfElements(), 3U);
}

/// What `normalizeObject` says, whether it points elsewhere, and what it left in the object.
std::string normalized(Tree const& given)
{
    auto const value = model::valueOf(given);
    Object temporary;
    Object* object = &temporary;
    bool const result = IObjectBase::normalizeObject(*value, object);
    std::string const where = object == value.get() ? " the value, " : " the temporary, ";
    EXPECT_TRUE(object == value.get() || object == &temporary);
    EXPECT_EQ(model::difference(given, model::treeOf(value.get())), "")
        << "it is not to be changed";
    return (result ? "true" : "false") + where + model::describe(model::treeOf(&temporary));
}

TEST(NormalizeObject, takesTextForAUriAndAnObjectAsItIs)
{
    EXPECT_EQ(normalized(text("/radio/stations/7")),
              R"(true the temporary, {"id":"7","uri":"/radio/stations/7"})");
    for (char const* const uri : {"/radio/stations", "/radio/stations/", "", "7"}) {
        EXPECT_EQ(normalized(text(uri)),
                  "true the temporary, {\"uri\":\"" + std::string(uri) + "\"}");
    }
    EXPECT_EQ(normalized({Map{{"uri", text("/radio/stations/7")}}}), "true the value, {}");
    EXPECT_EQ(normalized({Map{}}), "true the value, {}");
}

TEST(NormalizeObject, leavesEverythingElseAlone)
{
    for (Tree const& other : {Tree{7}, Tree{1.5}, Tree{true}, Tree{Tree::Other{"Null"}},
                              Tree{List{text("/radio/stations/7")}}}) {
        EXPECT_EQ(normalized(other), "false the temporary, {}");
    }
    Blob const blob({"/a/b/c", 6});
    Object temporary;
    Object* object = &temporary;
    EXPECT_FALSE(IObjectBase::normalizeObject(const_cast<Blob&>(blob), object));
    EXPECT_EQ(object, &temporary);
}

std::string serviceAndResource(Tree const& object)
{
    auto const value = model::valueOf(object);
    return IObjectBase::getServiceAndResourceString(static_cast<Object const&>(*value));
}

TEST(ServiceAndResource, isWhatStandsBeforeTheSecondSlash)
{
    std::map<std::string, std::string> const cases{
        {"/radio/stations/7", "radio/stations"},
        {"/radio/stations/", "radio/stations"},
        {"/radio/stations/7/8", "radio/stations"},
        {"radio/stations/7", "adio/stations"}, // the first character does not count, slash or not
        {"/radio/stations", ""},
        {"/radio", ""},
        {"/", ""},
        {"", ""},
        {"//", ""},
        {"///", "/"},
        {"//radio/stations", "/radio"},
        {"/a//7", "a/"},
    };
    for (auto const& [uri, expected] : cases) {
        EXPECT_EQ(serviceAndResource({Map{{"uri", text(uri)}}}), expected) << uri;
    }
    EXPECT_EQ(serviceAndResource({Map{{"id", text("/radio/stations/7")}}}), "");
}

} // namespace
} // namespace frame_test
