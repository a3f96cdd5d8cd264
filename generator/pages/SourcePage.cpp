#include "generator/Naming.h"
#include "generator/Printer.h"
#include "generator/pages/Pages.h"
#include "generator/pages/Signatures.h"

#include <string>

namespace kivgen {

namespace {

constexpr std::string_view source = R"(
$mark$$definition$
#include "$header$"

#include "frame/internal/ObjectReader.h"
#include "frame/internal/ObjectWriter.h"
#include "frame/internal/Owning.h"
#include "frame/internal/Visitors.h"

#include <utility>

namespace {

namespace common = zel::kiv::common;
namespace internal = zel::kiv::common::internal;

using zel::dataformats::data::Value;

using Resource = common::$service$::$Resource$;
using Element = Resource::$Element$;
// The operations are defined under the name of their class, by which they are searched for.
using $Element$ = Element;

$targets$
struct $Element$Deserializer {
    static bool read(Element& target, Value const* value)
    {
        return internal::deserializeElement(target, value, readFields);
    }

    static void readFields(internal::ObjectReader& fields)
    {
        $reads$
    }
};

struct $Resource$Deserializer {
    static bool read(Resource& target, Value const* value)
    {
        $readEntries$
    }
};

} // namespace

namespace zel::kiv::common::$service$ {

$constructResource$

$Resource$::~$Resource$() = default;

std::unique_ptr<Value> $Resource$::serialize() const
{
    return internal::serializeAll(*this, m_objects);
}

bool $Resource$::deserialize(Value const* value)
{
    return $Resource$Deserializer::read(*this, value);
}

std::size_t $Resource$::getNumberOfElements() const
{
    return m_objects.size();
}

std::vector<std::unique_ptr<Element>> const& $Resource$::getObjects() const
{
    return m_objects;
}

void $Resource$::addObject(std::unique_ptr<Element> element)
{
    m_objects.push_back(std::move(element));
}

std::unique_ptr<Element> $Resource$::extractElement(unsigned int index)
{
    if (index >= m_objects.size()) {
        return nullptr;
    }
    return std::move(m_objects[index]);
}

$construct$

$destruct$

$serialize$
{
    if (type == SerializationType::Reference) {
        return internal::makeReference(*this, getUri());
    }
    internal::ObjectWriter object(*this, type);
    $writes$
    return object.take();
}

bool $Element$::deserialize(Value const* value)
{
    return $Element$Deserializer::read(*this, value);
}
$accessors$

} // namespace zel::kiv::common::$service$
)";

Block writeStep(FieldCode const& code)
{
    return fill(R"(
$condition$
    $write$
}
)",
                {{"condition", wrapped("if (", code.flags, " ||", ") {")}, {"write", code.write}});
}

Block destructorOf(std::string const& element, Block const& releases)
{
    std::string const head = element + "::~" + element + "()";
    if (releases.isEmpty()) {
        return head + " = default;";
    }
    return fill(R"(
$head$
{
    $releases$
}
)",
                {{"head", head}, {"releases", releases}});
}

Block readEntriesOf(Resource const& resource)
{
    std::string const failure = "Error while deserializing array into '" + resource.name +
                                "::" + resource.element + "'-object!\\n";
    return wrapped("return internal::deserializeResource<&Resource::addObject>(",
                   {"target", "value", '"' + failure + '"'}, ",", ");");
}

/// What the fields of one element make of its source unit.
struct Steps {
    Block reads;
    Block targets;
    Block writes;
    Block releases;
    Block accessors;
};

Steps stepsOf(Resource const& resource, Interface const& interface)
{
    Steps steps;
    for (Field const& field : resource.fields) {
        FieldCode const code = codeOf(field, interface);
        steps.reads += code.read;
        steps.targets += code.targets;
        steps.writes += writeStep(code);
        steps.releases += code.release;
        for (Accessor const& accessor : code.accessors) {
            steps.accessors += definitionOf(accessor, resource.element);
        }
    }
    return steps;
}

} // namespace

std::string sourcePage(Resource const& resource, Interface const& interface)
{
    std::string const& element = resource.element;
    Steps const steps = stepsOf(resource, interface);
    return fill(source,
                {{"mark", generatedMark},
                 {"definition", resource.place.file},
                 {"header", headerOf(resource)},
                 {"service", resource.service},
                 {"Resource", resource.name},
                 {"Element", resource.element},
                 {"reads", steps.reads},
                 {"targets", steps.targets},
                 {"readEntries", readEntriesOf(resource)},
                 {"constructResource", constructorOf(resource.name + "::" + resource.name + "()",
                                                     "IResourceBase", resource.resourceKey)},
                 {"construct", constructorOf(element + "::" + element + "()", "IObjectBase",
                                             resource.elementKey)},
                 {"destruct", destructorOf(element, steps.releases)},
                 {"serialize", withResult("std::unique_ptr<Value>",
                                          element + "::serialize(SerializationType type) const")},
                 {"writes", steps.writes},
                 {"accessors", steps.accessors}})
        .at(0);
}

} // namespace kivgen
