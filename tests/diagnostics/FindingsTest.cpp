#include "diagnostics/Receiver.h"
#include "frame/IResourceBase.h"
#include "json/Maps.h"
#include "json/TypeNames.h"
#include "tests/model/RandomTree.h"
#include "tests/model/Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>

/// Findings and results agree, on random trees: the library tells of something lost, changed or
/// invented if and only if what comes out is not what went in.
namespace {

using namespace kiv;
namespace catalogue = zel::kiv::catalogue;
using diagnostics::Fate;
using diagnostics::Finding;
using diagnostics::Id;

/// A null, wherever it stands, does not come out; that is told, if only to who asks for it.
bool tellsOfDifference(Finding const& finding)
{
    static std::set<Id> const nulls{Id::NullValue, Id::NullEntry, Id::UnknownKey};
    bool const arrives = finding.fate == Fate::Suspect || finding.fate == Fate::Mistaken;
    return !arrives || nulls.contains(finding.id);
}

struct Differences : diagnostics::Receiver {
    void onFinding(Finding const& finding) override
    {
        if (tellsOfDifference(finding)) {
            ++count;
            lastId = finding.id;
            last = finding.path + ' ' + finding.stands;
        }
    }

    std::size_t count = 0;
    Id lastId = Id::NullValue;
    std::string last;
};

bool isSame(data::Value const* in, data::Value const* out);

bool areSameEntries(data::Value const& in, data::Value const& out)
{
    auto& left = const_cast<data::Array&>(static_cast<data::Array const&>(in)).get();
    auto& right = const_cast<data::Array&>(static_cast<data::Array const&>(out)).get();
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), isSame);
}

bool areSameFields(data::Object const& in, data::Object const& out)
{
    std::size_t fields = 0;
    bool same = true;
    eachOf(in.get(), [&](std::string_view key, data::Value const* value) {
        ++fields;
        same = same && isSame(value, valueAt(out, std::string(key)));
    });
    eachOf(out.get(), [&](std::string_view, data::Value const*) { --fields; });
    return same && fields == 0;
}

/// A uri that stands for an element comes out as one that has nothing else.
bool isElementOf(data::Value const& uri, data::Object const& out)
{
    std::size_t others = 0;
    eachOf(out.get(), [&](std::string_view key, data::Value const*) {
        others += key == "uri" || key == "id" ? 0 : 1;
    });
    return others == 0 && isSame(&uri, valueAt(out, "uri"));
}

double numberIn(data::Value const* value)
{
    data::Ref const ref(value);
    return typeOf(value) == Type::Integer ? ref.asInteger() : ref.asFloat();
}

bool isSame(data::Value const* in, data::Value const* out)
{
    Type const left = typeOf(in);
    Type const right = typeOf(out);
    if (left == Type::Text && right == Type::Object) {
        return isElementOf(*in, static_cast<data::Object const&>(*out));
    }
    auto const isNumber = [](Type type) { return type == Type::Integer || type == Type::Float; };
    if (isNumber(left) && isNumber(right)) {
        double const number = numberIn(in);
        return number == numberIn(out) || number != number;
    }
    if (left != right || in == nullptr || out == nullptr) {
        return false;
    }
    switch (left) {
    case Type::Array:
        return areSameEntries(*in, *out);
    case Type::Object:
        return areSameFields(static_cast<data::Object const&>(*in),
                             static_cast<data::Object const&>(*out));
    default:
        return left != Type::Blob && model::textOf(in) == model::textOf(out);
    }
}

/// Nothing if the platform refuses to hold such a tree, as with a key that is set twice.
std::optional<std::unique_ptr<data::Value>> treeFor(catalogue::Resource const& row,
                                                    std::uint64_t seed)
{
    try {
        return model::RandomTree(seed).forResource(row);
    } catch (std::logic_error const&) {
        return std::nullopt;
    }
}

/// Whether the platform let the tree be read.
bool agrees(catalogue::Resource const& row, std::uint64_t seed)
{
    auto const tree = treeFor(row, seed);
    if (!tree) {
        return false;
    }
    auto const& value = *tree;
    Differences differences;
    diagnostics::Listening const listening(differences);
    auto const resource = row.makeResource();
    try {
        resource->deserialize(value.get());
    } catch (std::logic_error const&) {
        EXPECT_EQ(differences.lastId, Id::OtherType) << model::textOf(value.get());
        return false;
    }
    auto const out = resource->serialize();
    EXPECT_EQ(differences.count == 0, isSame(value.get(), out.get()))
        << model::nameOf(row) << " seed " << seed << ": " << differences.last << '\n'
        << model::textOf(value.get()) << '\n'
        << model::textOf(out.get());
    return true;
}

TEST(Findings, AreToldIfAndOnlyIfWhatComesOutIsSomethingElse)
{
    for (auto const& row : catalogue::resources()) {
        int read = 0;
        for (std::uint64_t seed = 1; seed <= 200 && !HasFailure(); ++seed) {
            read += agrees(row, seed) ? 1 : 0;
        }
        EXPECT_GE(read, THROWS_OVER_TYPES ? 20 : 200) << model::nameOf(row);
    }
}

} // namespace
