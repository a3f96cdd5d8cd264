#include "catalogue/Catalogue.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

/// No call shows the texts that the visitors note, so they are looked for in the library's file.
namespace {

namespace catalogue = zel::kiv::catalogue;

std::string libraryFile()
{
    std::ifstream stream(ZEL_KIV_LIBRARY, std::ios::binary);
    std::stringstream content;
    content << stream.rdbuf();
    return content.str();
}

TEST(Texts, areAllInTheLibrary)
{
    std::string const file = libraryFile();
    ASSERT_FALSE(file.empty());
    std::vector<std::string> texts{"Element must contain object data! Data is 'Array'\n",
                                   "Resource must contain array data! Data is 'Object'\n"};
    for (char const* const type : {"NULL", "Boolean ", "Integer", "Float", "String", "Blob"}) {
        texts.push_back(std::string("Element must contain object data! Data is '") + type + "'\n");
        texts.push_back(std::string("Resource must contain object data! Data is '") + type + "'\n");
    }
    // The text of a step that never runs, one for each resource.
    for (auto const& resource : catalogue::resources()) {
        texts.push_back("Error while deserializing array into '" + std::string(resource.name) +
                        "::" + std::string(resource.element) + "'-object!\n");
    }
    for (std::string const& text : texts) {
        EXPECT_NE(file.find(text + '\0'), std::string::npos) << text;
    }
}

} // namespace
