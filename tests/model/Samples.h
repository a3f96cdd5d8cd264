#pragma once

#include "tests/model/Tree.h"

#include "catalogue/Catalogue.h"

#include <cstddef>
#include <memory>
#include <string>

/// Good input for every resource, with what must come out of it, and a way to send it through. What
/// must come out is told here without the model.
namespace samples {

using model::Tree;
using zel::kiv::catalogue::Field;
using zel::kiv::catalogue::Resource;

/// How many variants there are of the samples of a resource: a variant for each target of the
/// polymorphic field that has most, and at least one.
std::size_t variantsOf(Resource const& resource);

/// A value for the field, which lets a variant choose the target of a polymorphic one. Nested
/// elements lie in it `depth` deep, which is at least one for a field that holds them.
Tree fieldSample(Field const& field, std::size_t variant, int depth);

/// An element with all its fields, nested ones as objects; those `depth` levels down have no nested
/// ones themselves. A null resource stands for an external reference. Lists have two entries,
/// and all texts and numbers are different; texts take memory of their own.
Tree sampleOf(Resource const* resource, std::size_t variant, int depth);

/// The same element with its nested objects as their uris.
Tree withUris(Resource const& resource, Tree const& element);

/// The same element with its nested uris as the objects that are made of them: the id and the uri.
Tree withReferences(Resource const& resource, Tree const& element);

/// The member of that key, which must be there.
Tree const& memberOf(Tree const& map, std::string_view key);

/// A new element of the resource that has read that.
std::unique_ptr<zel::kiv::common::IObjectBase> elementFrom(Resource const& resource,
                                                           Tree const& tree);

/// What the library makes of an element.
Tree fullOf(zel::kiv::common::IObjectBase const& element);
Tree shallowOf(zel::kiv::common::IObjectBase const& element);
Tree referenceOf(zel::kiv::common::IObjectBase const& element);

/// The resource's name, for messages: `radio/presets`.
std::string nameOf(Resource const& resource);

} // namespace samples
