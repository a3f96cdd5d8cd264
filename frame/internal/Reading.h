#pragma once

#include "frame/IObjectBase.h"
#include "frame/internal/Giving.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace zel::kiv::common::internal {

/// A nested value in the form of an object: the value itself if it is an `Object`, else a temporary
/// that holds what a uri tells, which is nothing if the value is no text. One is made for each
/// field and for each entry of a list.
class NestedObject {
public:
    explicit NestedObject(zel::dataformats::data::Value const& value);
    ~NestedObject() = default;

    NestedObject(NestedObject const&) = delete;
    NestedObject(NestedObject&&) = delete;
    NestedObject& operator=(NestedObject const&) = delete;
    NestedObject& operator=(NestedObject&&) = delete;

    [[nodiscard]] zel::dataformats::data::Object const& get() const { return *m_current; }

    /// Makes an element, fills it and hands it to the owner's setter or adder.
    template <typename Element, typename Owner>
    void attach(Owner& owner, void (Owner::*accept)(std::unique_ptr<Element>)) const
    {
        auto element = std::make_unique<Element>();
        element->deserialize(m_current);
        (owner.*accept)(std::move(element));
    }

private:
    zel::dataformats::data::Object m_temporary;
    zel::dataformats::data::Object* m_current;
};

/// A key as it is written in code. Its length is a constant, which that of a `std::string_view` is
/// not where code is optimised for size.
struct Key {
    template <std::size_t size>
    [[gnu::always_inline]] constexpr Key(char const (&key)[size]) : text(key), length(size - 1)
    {
    }

    char const* text;
    std::size_t length;
};

/// Reads the fields of one element from an object, through the element's setters and adders. A key
/// that is absent, or whose value is null, is passed over.
class ObjectReader {
public:
    using Map = zel::common::types::PtrMap<std::string, zel::dataformats::data::Value>;

    /// `longestKey` is the length of the longest key that will be asked for: long keys are looked
    /// up through one buffer that grows once.
    ObjectReader(Map const& map, IObjectBase& target, std::size_t longestKey);

    /// The value of that key, or null.
    zel::dataformats::data::Value const* find(Key key);

    template <typename Element>
    void readString(Key key, void (Element::*setter)(std::string const&))
    {
        readText(key, static_cast<TextSetter>(setter));
    }

    template <typename Element>
    void readInt(Key key, void (Element::*setter)(int))
    {
        readInteger(key, static_cast<IntegerSetter>(setter));
    }

    template <typename Element>
    void readDouble(Key key, void (Element::*setter)(double))
    {
        readFloat(key, static_cast<FloatSetter>(setter));
    }

    template <typename Element>
    void readBool(Key key, void (Element::*setter)(bool))
    {
        readFlag(key, static_cast<FlagSetter>(setter));
    }

    template <typename Element>
    void readStringList(Key key, void (Element::*adder)(std::string const&))
    {
        readTexts(key, static_cast<TextSetter>(adder));
    }

    template <typename Element>
    void readIntList(Key key, void (Element::*adder)(int))
    {
        readIntegers(key, static_cast<IntegerSetter>(adder));
    }

    template <auto setter>
    void readElement(Key key)
    {
        using Owning = Giver<decltype(setter)>;
        attachOne(key, Owning::make, Owning::template give<IObjectBase, setter>);
    }

    template <auto adder>
    void readElementList(Key key)
    {
        using Owning = Giver<decltype(adder)>;
        attachAll(key, Owning::make, Owning::template give<IObjectBase, adder>);
    }

private:
    // The setters are carried as members of the common base, so that the work is compiled once and
    // not once for each element class.
    using TextSetter = void (IObjectBase::*)(std::string const&);
    using IntegerSetter = void (IObjectBase::*)(int);
    using FloatSetter = void (IObjectBase::*)(double);
    using FlagSetter = void (IObjectBase::*)(bool);
    using Entries = zel::common::types::PtrVector<zel::dataformats::data::Value>;

    void readText(Key key, TextSetter setter);
    void readInteger(Key key, IntegerSetter setter);
    void readFloat(Key key, FloatSetter setter);
    void readFlag(Key key, FlagSetter setter);
    void readTexts(Key key, TextSetter adder);
    void readIntegers(Key key, IntegerSetter adder);

    /// The entries of the array under that key, or null if there is none.
    Entries const* findEntries(Key key);

    void attachOne(Key key, Make make, Give<IObjectBase> give);
    void attachAll(Key key, Make make, Give<IObjectBase> give);

    Map const* m_map;
    IObjectBase* m_target;
    std::string m_key;
};

} // namespace zel::kiv::common::internal
