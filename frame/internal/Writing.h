#pragma once

#include "frame/IObjectBase.h"

#include <memory>
#include <string>
#include <vector>

namespace zel::kiv::common::internal {

/// The value form of an element that is wanted as a reference only.
std::unique_ptr<zel::dataformats::data::Value> makeReference(std::string const& uri);

/// Builds an array of elements in their value form. Until it is taken, what has been built belongs
/// to the writer.
class ArrayWriter {
public:
    /// Starts an empty array of elements as deep as `type` says.
    explicit ArrayWriter(SerializationType type);

    void add(IObjectBase const& element);

    /// Hands the array over; the writer is empty from then on.
    std::unique_ptr<zel::dataformats::data::Value> take();

private:
    std::unique_ptr<zel::dataformats::data::Array> m_array;
    SerializationType m_type;
};

/// Builds the value form of one element, field by field. Until it is taken, what has been built
/// belongs to the writer.
class ObjectWriter {
public:
    /// Starts an empty object. `type` is the depth that the element itself was asked for; what is
    /// nested in it follows from that.
    explicit ObjectWriter(SerializationType type);

    void addString(char const* key, std::string const& text);
    void addInt(char const* key, int number);
    void addDouble(char const* key, double number);
    void addBool(char const* key, bool flag);
    void addStringList(char const* key, std::vector<std::string> const& texts);
    void addIntList(char const* key, std::vector<int> const& numbers);

    /// `element` is not tested for null, nor are the entries of a list.
    void addElement(char const* key, IObjectBase const* element);

    // Inlined, it would make every level of nesting take more stack, and every class more code.
    template <typename Element>
    [[gnu::noinline]] void addElementList(char const* key, std::vector<Element*> const& elements)
    {
        ArrayWriter array(m_nestedType);
        for (Element const* const element : elements) {
            array.add(*element);
        }
        addArray(key, array);
    }

    /// Hands the object over; the writer is empty from then on.
    std::unique_ptr<zel::dataformats::data::Value> take();

private:
    void addArray(char const* key, ArrayWriter& array);

    std::unique_ptr<zel::dataformats::data::Object> m_object;
    SerializationType m_nestedType;
};

/// The value form of a resource: its elements in slot order, each in full. No slot may be null.
template <typename Element>
std::unique_ptr<zel::dataformats::data::Value>
serializeAll(std::vector<std::unique_ptr<Element>> const& elements)
{
    ArrayWriter array(SerializationType::Full);
    for (auto const& element : elements) {
        array.add(*element);
    }
    return array.take();
}

} // namespace zel::kiv::common::internal
