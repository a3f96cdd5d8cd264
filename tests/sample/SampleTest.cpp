#include "tools/sample/Sample.h"

#include "frame/IObjectBase.h"

#include <gtest/gtest.h>

#include <string>

namespace zel::kiv::sample {
namespace {

using dataformats::data::Array;
using dataformats::data::Object;
using dataformats::data::Ref;
using dataformats::data::Value;
using dataformats::data::ValueType;

Value const* entryOf(Value const& object, std::string const& key)
{
    auto const& map = static_cast<Object const&>(object).get();
    auto const found = map.find(key);
    return found == map.end() ? nullptr : static_cast<Value const*>(found->second);
}

std::string textOf(Value const* value)
{
    return Ref(value).asString();
}

/// Fails if the library lost or bent anything between what it was given and the full form that it
/// gave back. A uri comes back as the element that it stands for.
void expectKept(Value const& given, Value const& full, std::string const& path)
{
    if (given.getType() == ValueType::String && full.getType() == ValueType::Object) {
        std::string const uri = textOf(&given);
        EXPECT_EQ(textOf(entryOf(full, "uri")), uri) << path;
        EXPECT_EQ(textOf(entryOf(full, "id")), uri.substr(uri.rfind('/') + 1)) << path;
        return;
    }
    ASSERT_EQ(given.getType(), full.getType()) << path;
    if (given.getType() == ValueType::Object) {
        auto const& map = static_cast<Object const&>(given).get();
        EXPECT_EQ(map.size(), static_cast<Object const&>(full).get().size()) << path;
        for (auto const& [key, value] : map) {
            auto const* const kept = entryOf(full, key);
            ASSERT_NE(kept, nullptr) << path << '.' << key << " is lost";
            expectKept(*static_cast<Value const*>(value), *kept, (path + '.').append(key));
        }
    } else if (given.getType() == ValueType::Array) {
        auto& entries = const_cast<Array&>(static_cast<Array const&>(given)).get();
        auto& kept = const_cast<Array&>(static_cast<Array const&>(full)).get();
        ASSERT_EQ(entries.size(), kept.size()) << path;
        for (std::size_t index = 0; index < entries.size(); ++index) {
            expectKept(*entries[index], *kept[index], path + '[' + std::to_string(index) + ']');
        }
    } else {
        EXPECT_EQ(textOf(&given), textOf(&full)) << path;
        EXPECT_FALSE(textOf(&given).empty()) << path;
    }
}

class SampleTest : public testing::TestWithParam<int> {};

TEST_P(SampleTest, EveryFieldIsSetAndComesBack)
{
    for (auto const& resource : catalogue::resources()) {
        std::string const name =
            std::string(resource.service) + '/' + std::string(resource.resourceKey);
        auto const sample = sampleOf(resource, GetParam());
        for (auto const& field : resource.fields) {
            EXPECT_NE(entryOf(*sample, std::string(field.key)), nullptr) << name << field.key;
        }
        auto const element = resource.makeElement();
        element->deserialize(sample.get());
        expectKept(*sample, *element->serialize(common::SerializationType::Full), name);
    }
}

INSTANTIATE_TEST_SUITE_P(Depths, SampleTest, testing::Values(0, 1, 2));

TEST(SampleDepthTest, TheDepthCountsTheLevelsOfObjects)
{
    auto const& presets = *catalogue::find("radio", "presets");
    EXPECT_EQ(textOf(entryOf(*sampleOf(presets, 0), "station")), "/radio/stations/2");

    auto const one = sampleOf(presets, 1);
    Value const* const station = entryOf(*one, "station");
    ASSERT_EQ(station->getType(), ValueType::Object);
    EXPECT_EQ(textOf(entryOf(*station, "audioSegment")), "/radio/audiosegments/3");

    auto const two = sampleOf(presets, 2);
    EXPECT_EQ(entryOf(*entryOf(*two, "station"), "audioSegment")->getType(), ValueType::Object);
}

} // namespace
} // namespace zel::kiv::sample
