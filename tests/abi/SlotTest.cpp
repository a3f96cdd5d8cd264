#include "catalogue/Catalogue.h"
#include "tests/abi/Binary.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <dlfcn.h>
#include <iterator>
#include <map>
#include <string>
#include <vector>

// Virtual tables are read as they stand in the loaded library: behind two words, one address for
// each slot, which the loader can name.

namespace {

namespace catalogue = zel::kiv::catalogue;

class Slots : public testing::Test {
protected:
    void SetUp() override
    {
        m_library = dlopen(ABI_LIBRARY, RTLD_NOW | RTLD_NOLOAD);
        ASSERT_NE(m_library, nullptr) << dlerror();
        for (binary::Symbol const& symbol : binary::exportsOf(ABI_LIBRARY)) {
            if (symbol.name.starts_with("_ZTV")) {
                m_tables.emplace(binary::readable(symbol.name), symbol);
            }
        }
    }

    void TearDown() override { dlclose(m_library); }

    /// What stands in the slots of that class, by name.
    std::vector<std::string> slotsOf(std::string const& scope)
    {
        auto const found = m_tables.find("vtable for " + scope);
        if (found == m_tables.end()) {
            return {"no virtual table"};
        }
        binary::Symbol const& table = found->second;
        auto const* const words = static_cast<void* const*>(dlsym(m_library, table.name.c_str()));
        std::vector<std::string> names;
        for (std::size_t index = 2; index < table.size / sizeof(void*); ++index) {
            Dl_info info{};
            dladdr(words[index], &info);
            names.push_back(binary::readable(info.dli_sname == nullptr ? "?" : info.dli_sname));
        }
        return names;
    }

    /// The complete destructor, which may share its address with that of the base, and the
    /// deleting.
    static std::vector<std::string> destructors(std::string const& scope, std::string const& name,
                                                std::string const& first)
    {
        std::string const destructor = scope + "::~" + name + "()";
        bool const isShared = first == destructor + " [D2]";
        return {destructor + (isShared ? " [D2]" : " [D1]"), destructor + " [D0]"};
    }

    void expectSlots(std::string const& scope, std::string const& name,
                     std::vector<std::string> const& operations)
    {
        std::vector<std::string> const slots = slotsOf(scope);
        std::vector<std::string> expected = destructors(scope, name, slots.front());
        for (std::string const& operation : operations) {
            expected.push_back(scope + "::" + operation);
        }
        EXPECT_EQ(slots, expected);
    }

private:
    void* m_library = nullptr;
    std::map<std::string, binary::Symbol> m_tables;
};

std::string const deserialize = "deserialize(zel::dataformats::data::Value const*)";

} // namespace

TEST_F(Slots, OfElementsAndResourcesAreThoseOfTheirBases)
{
    for (catalogue::Resource const& each : catalogue::resources()) {
        std::string const name(each.name);
        std::string const element(each.element);
        std::string const scope = std::string(each.service) + "::" + name;
        expectSlots(scope, name, {"serialize() const", deserialize, "getNumberOfElements() const"});
        expectSlots(scope + "::" + element, element,
                    {"serialize(SerializationType) const", deserialize});
    }
    expectSlots("ExternalResourceObject", "ExternalResourceObject",
                {"serialize(SerializationType) const", deserialize});
}

TEST_F(Slots, OfVisitorsAreInTheOrderOfTheValueTypes)
{
    std::string const name = "ExternalResourceObjectDeserializer";
    expectSlots(name, name,
                {std::begin(binary::visitOperations), std::end(binary::visitOperations)});
}
