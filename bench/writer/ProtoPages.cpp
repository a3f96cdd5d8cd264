#include "bench/writer/Pages.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace benchwriter {

using zel::kiv::catalogue::Field;
using zel::kiv::catalogue::Kind;

namespace {

std::string messageOf(Resource const& resource)
{
    std::string const element(resource.element);
    return resource.isExternal() ? element
                                 : raised(resource.service) + std::string(resource.name) + element;
}

std::string typeOf(Field const& field)
{
    switch (field.kind) {
    case Kind::String:
        return "optional string";
    case Kind::Int:
        return "optional int32";
    case Kind::Double:
        return "optional double";
    case Kind::Bool:
        return "optional bool";
    case Kind::StringList:
        return "repeated string";
    case Kind::IntList:
        return "repeated int32";
    case Kind::Element:
    case Kind::External:
        return "optional " + messageOf(*field.targets.front());
    case Kind::ElementList:
    case Kind::ExternalList:
        return "repeated " + messageOf(*field.targets.front());
    case Kind::Polymorphic:
        break;
    }
    throw std::logic_error("a field of several types has none of its own");
}

std::string rowsOf(Field const& field, int& number)
{
    std::string const key(field.key);
    if (field.kind != Kind::Polymorphic) {
        return "  " + typeOf(field) + ' ' + key + " = " + std::to_string(++number) + ";\n";
    }
    std::string rows = "  oneof " + key + " {\n";
    for (Resource const* target : field.targets) {
        ++number;
        rows += "    " + messageOf(*target) + ' ' + key + "_" + std::to_string(number) + " = " +
                std::to_string(number) + ";\n";
    }
    return rows + "  }\n";
}

std::string messagesOf(Resource const& resource)
{
    std::string const element = messageOf(resource);
    std::string rows;
    int number = 0;
    for (Field const& field : resource.fields) {
        rows += rowsOf(field, number);
    }
    std::string const message = "message " + element + " {\n" + rows + "}\n\n";
    return resource.isExternal()
               ? message
               : message + "message " + raised(resource.service) + std::string(resource.name) +
                     " {\n  repeated " + element + " objects = 1;\n}\n\n";
}

std::set<std::string> servicesHeldBy(std::string_view service)
{
    Resources own;
    for (Resource const& resource : zel::kiv::catalogue::resources()) {
        if (resource.service == service) {
            own.insert(&resource);
        }
    }
    std::set<std::string> services;
    for (Resource const* resource : reachableFrom(own)) {
        if (!resource->isExternal()) {
            services.emplace(resource->service);
        }
    }
    return services;
}

} // namespace

Files protoPages()
{
    std::map<std::string, std::set<std::string>> held;
    for (Resource const& resource : zel::kiv::catalogue::resources()) {
        if (!held.contains(std::string(resource.service))) {
            held[std::string(resource.service)] = servicesHeldBy(resource.service);
        }
    }
    // Files may not import each other in a circle: the first of those services gives the name.
    auto const fileOf = [&](std::string const& service) {
        for (std::string const& other : held[service]) {
            if (held[other].contains(service)) {
                return other + ".proto";
            }
        }
        return service + ".proto";
    };
    std::string const head = "syntax = \"proto2\";\npackage peer;\n";
    Files files{{"external.proto", head + '\n' + messagesOf(zel::kiv::catalogue::external())}};
    std::map<std::string, std::set<std::string>> imports;
    std::map<std::string, std::string> messages;
    for (Resource const& resource : zel::kiv::catalogue::resources()) {
        std::string const file = fileOf(std::string(resource.service));
        messages[file] += messagesOf(resource);
        for (Field const& field : resource.fields) {
            for (Resource const* target : field.targets) {
                imports[file].insert(target->isExternal() ? "external.proto"
                                                          : fileOf(std::string(target->service)));
            }
        }
        imports[file].erase(file);
    }
    for (auto const& [file, text] : messages) {
        std::string lines;
        for (std::string const& import : imports[file]) {
            lines += "import \"" + import + "\";\n";
        }
        files[file] = head + lines + '\n' + text;
    }
    return files;
}

} // namespace benchwriter
