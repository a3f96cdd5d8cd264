#pragma once

#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"

#include <memory>
#include <string>
#include <vector>

namespace zel::kiv::common::internal {

/// The value form of an element that is wanted as a reference only.
std::unique_ptr<zel::dataformats::data::Value> makeReference(IObjectBase const& element,
                                                             std::string const& uri);

/// Builds an array of elements in their value form. Until it is taken, what has been built belongs
/// to the writer.
class ArrayWriter {
public:
    /// Starts the array of a resource, whose elements are written in full.
    explicit ArrayWriter(IResourceBase const& resource);

    /// Starts the array of the list under that key, whose elements are as deep as `type` says.
    ArrayWriter(char const* key, SerializationType type);

    // Defined with the frame, so that no class has the code of it.
    ~ArrayWriter();

    ArrayWriter(ArrayWriter const&) = delete;
    ArrayWriter(ArrayWriter&&) = delete;
    ArrayWriter& operator=(ArrayWriter const&) = delete;
    ArrayWriter& operator=(ArrayWriter&&) = delete;

    /// `element` is not tested for null.
    void add(IObjectBase const* element);

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
    /// Starts the object of an element. `type` is the depth that the element itself was asked for;
    /// what is nested in it follows from that.
    ObjectWriter(IObjectBase const& element, SerializationType type);
    ~ObjectWriter();

    ObjectWriter(ObjectWriter const&) = delete;
    ObjectWriter(ObjectWriter&&) = delete;
    ObjectWriter& operator=(ObjectWriter const&) = delete;
    ObjectWriter& operator=(ObjectWriter&&) = delete;

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
        ArrayWriter array(key, m_nestedType);
        for (Element const* const element : elements) {
            array.add(element);
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
serializeAll(IResourceBase const& resource, std::vector<std::unique_ptr<Element>> const& elements)
{
    ArrayWriter array(resource);
    for (auto const& element : elements) {
        array.add(element.get());
    }
    return array.take();
}

} // namespace zel::kiv::common::internal
