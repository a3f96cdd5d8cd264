#pragma once

#include "catalogue/Catalogue.h"
#include "values/values.h"

#include <memory>
#include <vector>

/// Input that is made of the catalogue.
namespace samples {

namespace data = zel::dataformats::data;
using zel::kiv::catalogue::Field;
using zel::kiv::catalogue::Resource;

/// Which fields an object gets.
enum class Fields { All, Plain };

/// An object with those fields of the resource's element; texts are too long to be kept without
/// memory of their own. Elements in it have only plain fields, and those in a polymorphic field are
/// of the target at `target`, counted round.
std::unique_ptr<data::Object> objectOf(Resource const& resource, Fields fields,
                                       std::size_t target = 0);

/// An array of two such objects, one for the first and one for the last targets, a text and a null.
std::unique_ptr<data::Array> arrayOf(Resource const& resource);

/// Whether two trees are the same, doubles bit by bit. Either may be null. Allocates nothing but
/// for texts, and takes little stack for depth.
bool same(data::Value const* left, data::Value const* right);

/// A field and the resource whose element may lie in it.
struct Step {
    Field const* field;
    Resource const* target;
};

/// The shortest way from an element of `resource` down to another one of the same resource; empty
/// if there is none.
std::vector<Step> wayToItself(Resource const& resource);

/// An object of `resource` with others in it, `depth` of them one in the other, along `way`.
std::unique_ptr<data::Object> chainOf(Resource const& resource, std::vector<Step> const& way,
                                      std::size_t depth);

} // namespace samples
