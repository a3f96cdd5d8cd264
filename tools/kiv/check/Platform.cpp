#include "tools/kiv/check/Platform.h"

#include "platform-check/Report.h"
#include "testing/fromJson.h"
#include "text/Failure.h"

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace kiv {

namespace {

using data::Ref;
using data::ValueType;

/// A value as the report names it: `String "7"`, `an Array`.
std::string nameOf(data::Value const& value)
{
    Ref const ref(&value);
    switch (static_cast<ValueType::Code>(value.getType())) {
    case ValueType::Null:
        return "a Null";
    case ValueType::Boolean:
        return "Boolean " + check::shown(ref.asBoolean());
    case ValueType::Integer:
        return "Integer " + check::shown(ref.asInteger());
    case ValueType::Float:
        return "Float " + check::shown(ref.asFloat());
    case ValueType::Blob:
        return "a Blob";
    case ValueType::String:
        return "String " + check::shown(ref.asString());
    case ValueType::Array:
        return "an Array";
    case ValueType::Object:
        return "an Object";
    }
    return {};
}

/// What the stand-ins give.
std::string standInReads(std::string_view operation, data::Value const& value)
{
    Ref const ref(&value);
    if (operation == "asString") {
        return check::shown(ref.asString());
    }
    if (operation == "asInteger") {
        return check::shown(ref.asInteger());
    }
    return operation == "asFloat" ? check::shown(ref.asFloat()) : check::shown(ref.asBoolean());
}

/// The value that a sample's name stands for, of the type of `like`, one that has a plain value.
std::unique_ptr<data::Value> valueNamed(std::string const& text, data::Value const& like)
{
    switch (like.getType()) {
    case ValueType::Boolean:
        return std::make_unique<data::Boolean>(text == "true");
    case ValueType::Float:
        return std::make_unique<data::Float>(std::strtod(text.c_str(), nullptr));
    default:
        return zel::kiv::testing::fromJson(text);
    }
}

std::string textUnder(data::Value const* entry, char const* key)
{
    if (entry == nullptr || entry->getType() != ValueType::Object) {
        return {};
    }
    auto const& map = static_cast<data::Object const*>(entry)->get();
    auto const found = map.find(key);
    return found == map.end() ? "" : Ref(static_cast<data::Value const*>(found->second)).asString();
}

/// The operation of `Ref` that the field of a finding is read by.
std::string_view operationFor(diagnostics::Finding const& finding)
{
    using zel::kiv::catalogue::Content;
    if (finding.holder != nullptr) {
        for (auto const& field : finding.holder->fields) {
            if (field.key != finding.key) {
                continue;
            }
            switch (zel::kiv::catalogue::traitsOf(field.kind).content) {
            case Content::Integer:
                return "asInteger";
            case Content::Float:
                return "asFloat";
            case Content::Boolean:
                return "asBoolean";
            case Content::String:
            case Content::Object:
                break;
            }
        }
    }
    return "asString";
}

data::Value const* valueOf(diagnostics::Place const& place)
{
    if (place.holder->getType() == ValueType::Object) {
        auto const& map = static_cast<data::Object const*>(place.holder)->get();
        return static_cast<data::Value const*>(map.find(std::string(place.key))->second);
    }
    // The getter of an array is not const, though it changes nothing.
    return const_cast<data::Array&>(static_cast<data::Array const&>(*place.holder))
        .get()[place.index];
}

} // namespace

Platform::Platform(std::string const& path)
{
    auto const report = zel::kiv::testing::fromJsonFile(path);
    if (report != nullptr && report->getType() == ValueType::Array) {
        for (data::Value const* const entry : static_cast<data::Array&>(*report).get()) {
            if (textUnder(entry, "verdict") == "open") {
                m_samples.push_back({textUnder(entry, "done"), textUnder(entry, "seen")});
            }
        }
    }
    if (m_samples.empty()) {
        throw Failure(path,
                      "this is no report on a platform; make platform-check JSON=1 writes one");
    }
}

std::optional<std::string> Platform::reads(std::string_view operation,
                                           data::Value const& value) const
{
    std::string const name = nameOf(value);
    std::string const start = std::string(operation) + " of ";
    // What a plain value is stands behind its type; any other has one sample.
    std::string const type = start + name.substr(0, name.find(' ') + 1);
    bool const isPlain = !name.starts_with("a");
    std::vector<Sample> alike;
    for (Sample const& sample : m_samples) {
        if (sample.what == start + name) {
            return sample.seen;
        }
        if (isPlain && sample.what.starts_with(type)) {
            alike.push_back(sample);
        }
    }
    if (alike.empty()) {
        return std::nullopt;
    }
    bool const isAsStandIns = std::ranges::all_of(alike, [&](Sample const& each) {
        auto const sample = valueNamed(each.what.substr(type.size()), value);
        return sample != nullptr && standInReads(operation, *sample) == each.seen;
    });
    if (isAsStandIns) {
        return standInReads(operation, value);
    }
    bool const isOneAnswer = std::ranges::all_of(
        alike, [&](Sample const& each) { return each.seen == alike.front().seen; });
    return isOneAnswer ? std::optional(alike.front().seen) : std::nullopt;
}

void Platform::apply(diagnostics::Finding& finding) const
{
    if (finding.id != diagnostics::Id::OtherType || finding.place.holder == nullptr) {
        return;
    }
    auto const seen = reads(operationFor(finding), *valueOf(finding.place));
    if (!seen) {
        finding.becomes += " on the stand-ins, and the report does not tell of this platform";
    } else if (seen->starts_with("throws")) {
        finding.fate = diagnostics::Fate::Lost;
        finding.becomes = "this platform throws";
    } else {
        finding.becomes = "it reads as " + *seen;
    }
}

} // namespace kiv
