#pragma once

#include "tests/model/Tree.h"

#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"
#include "values/values.h"

#include <memory>
#include <string>

/// Short words for what goes in, and text for what comes out.
namespace frame_test {

using model::Tree;
using Map = Tree::Map;
using List = Tree::List;

inline Tree const nothing{Tree::Nothing{}};

inline Tree text(std::string const& content)
{
    return {content};
}

/// A new element or resource that has read that.
template <typename T>
std::unique_ptr<T> read(Tree const& tree)
{
    auto made = std::make_unique<T>();
    EXPECT_TRUE(made->deserialize(model::valueOf(tree).get()));
    return made;
}

inline std::string form(zel::kiv::common::IObjectBase const& element,
                        zel::kiv::common::SerializationType type)
{
    return model::describe(model::treeOf(element.serialize(type).get()));
}

inline std::string full(zel::kiv::common::IObjectBase const& element)
{
    return form(element, zel::kiv::common::SerializationType::Full);
}

inline std::string shallow(zel::kiv::common::IObjectBase const& element)
{
    return form(element, zel::kiv::common::SerializationType::Shallow);
}

inline std::string reference(zel::kiv::common::IObjectBase const& element)
{
    return form(element, zel::kiv::common::SerializationType::Reference);
}

inline std::string full(zel::kiv::common::IResourceBase const& resource)
{
    return model::describe(model::treeOf(resource.serialize().get()));
}

} // namespace frame_test
