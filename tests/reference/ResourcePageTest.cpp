#include "tools/reference/ResourcePage.h"
#include "frame/ExternalResourceObject.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace reference {
namespace {

using zel::kiv::catalogue::Accessor;
using zel::kiv::catalogue::Field;
using zel::kiv::catalogue::Kind;
using zel::kiv::catalogue::Purpose;
using zel::kiv::catalogue::Resource;

constexpr std::string_view hostile = R"(<b id="x">'&amp;)";

/// Whatever a definition may come to say stays text: no letter of it becomes HTML.
TEST(ResourcePage, NothingOfADefinitionIsTakenForHtml)
{
    std::array const accessors{
        Accessor{"getIt", "std::vector<x> getIt() const", Purpose::Get, nullptr},
        Accessor{"setIt", "void setIt(<script> value)", Purpose::Set, nullptr},
        Accessor{"isItSet", "bool isItSet() const", Purpose::Presence, nullptr}};
    std::array const fields{Field{hostile, Kind::Int, hostile, {}, accessors}};
    Resource const resource{hostile,
                            hostile,
                            hostile,
                            hostile,
                            hostile,
                            hostile,
                            hostile,
                            hostile,
                            hostile,
                            fields,
                            nullptr,
                            []() -> std::unique_ptr<zel::kiv::common::IObjectBase> {
                                return std::make_unique<zel::kiv::common::ExternalResourceObject>();
                            }};
    std::string const page = resourcePart(resource, Templates(REFERENCE_TEMPLATES));

    EXPECT_EQ(page.find("<b id="), std::string::npos);
    EXPECT_EQ(page.find("<script"), std::string::npos);
    EXPECT_EQ(page.find("vector<x"), std::string::npos);
    // A quote that was left alone would end an attribute.
    EXPECT_EQ(page.find("\"x\""), std::string::npos);
    EXPECT_NE(page.find("&lt;b id=&quot;x&quot;&gt;&apos;&amp;amp;"), std::string::npos);
}

} // namespace
} // namespace reference
