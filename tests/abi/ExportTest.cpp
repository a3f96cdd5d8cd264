#include "catalogue/Catalogue.h"
#include "tests/abi/Binary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <vector>

namespace {

namespace catalogue = zel::kiv::catalogue;

using Names = std::set<std::string>;

void addLife(Names& names, std::string const& scope, std::string const& name)
{
    for (std::string const variant : {"D0", "D1", "D2"}) {
        names.insert(scope + "::~" + name + "() [" + variant + ']');
    }
    for (std::string const word : {"vtable", "typeinfo", "typeinfo name"}) {
        names.insert(word + " for " + scope);
    }
}

/// What every element and every resource has.
void addClass(Names& names, std::string const& scope, std::string const& name)
{
    addLife(names, scope, name);
    names.insert(scope + "::" + name + "() [C1]");
    names.insert(scope + "::" + name + "() [C2]");
    names.insert(scope + "::deserialize(zel::dataformats::data::Value const*)");
}

/// `setId(std::string const&)` of `void setId(std::string const& value)`.
std::string withoutResult(catalogue::Accessor const& accessor)
{
    std::string text(
        accessor.signature.substr(accessor.signature.find(std::string(accessor.name) + '(')));
    auto const parameter = text.find(" value)");
    return parameter == std::string::npos ? text : text.erase(parameter, 6);
}

void addResource(Names& names, catalogue::Resource const& resource)
{
    std::string const name(resource.name);
    std::string const element(resource.element);
    std::string const scope = std::string(resource.service) + "::" + name;
    std::string const owner = "std::unique_ptr<" + scope + "::" + element + '>';
    addClass(names, scope, name);
    names.insert({scope + "::serialize() const", scope + "::getNumberOfElements() const",
                  scope + "::getObjects() const", scope + "::addObject(" + owner + ')',
                  scope + "::extractElement(unsigned int)"});

    std::string const elementScope = scope + "::" + element;
    addClass(names, elementScope, element);
    names.insert(elementScope + "::serialize(SerializationType) const");
    for (catalogue::Field const& field : resource.fields) {
        for (catalogue::Accessor const& accessor : field.accessors) {
            names.insert(elementScope + "::" + withoutResult(accessor));
        }
    }
}

void addFrame(Names& names)
{
    for (std::string const base : {"IObjectBase", "IResourceBase"}) {
        names.insert({"typeinfo for " + base, "typeinfo name for " + base});
    }
    names.insert({"IObjectBase::normalizeObject(zel::dataformats::data::Value&, "
                  "zel::dataformats::data::Object*&)",
                  "IObjectBase::getServiceAndResourceString(zel::dataformats::data::Object const&)",
                  "ELEMENTSTATUSANDSTRINGMAP", "STRINGANDELEMENTSTATUSMAP"});

    std::string const external = "ExternalResourceObject";
    addClass(names, external, external);
    names.insert(external + "::serialize(SerializationType) const");
    for (std::string const stem : {"Id", "Name", "Uri"}) {
        names.insert({external + "::get" + stem + "() const",
                      external + "::set" + stem + "(std::string const&)",
                      external + "::is" + stem + "Set() const"});
    }

    std::string const visitor = external + "Deserializer";
    addLife(names, visitor, visitor);
    for (std::string const operation : binary::visitOperations) {
        names.insert(visitor + "::" + operation);
    }
}

/// What may come out and need not: a client may derive from the two bases.
bool isFree(std::string const& name)
{
    static Names const beginnings{"IObjectBase::IObjectBase(", "IObjectBase::~IObjectBase(",
                                  "IResourceBase::IResourceBase(",
                                  "IResourceBase::~IResourceBase("};
    return std::ranges::any_of(
        beginnings, [&](std::string const& beginning) { return name.starts_with(beginning); });
}

} // namespace

TEST(Exports, AreWhatTheCataloguePromisesAndNothingElse)
{
    Names expected;
    addFrame(expected);
    for (catalogue::Resource const& resource : catalogue::resources()) {
        addResource(expected, resource);
    }

    Names found;
    for (binary::Symbol const& symbol : binary::exportsOf(ABI_LIBRARY)) {
        std::string const name = binary::readable(symbol.name);
        if (!isFree(name)) {
            EXPECT_TRUE(found.insert(name).second) << "twice: " << name;
        }
    }

    std::vector<std::string> missing;
    std::ranges::set_difference(expected, found, std::back_inserter(missing));
    EXPECT_THAT(missing, testing::IsEmpty());
    std::vector<std::string> extra;
    std::ranges::set_difference(found, expected, std::back_inserter(extra));
    EXPECT_THAT(extra, testing::IsEmpty());
}
