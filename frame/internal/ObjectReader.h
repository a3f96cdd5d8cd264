#pragma once

#include "frame/IObjectBase.h"
#include "frame/internal/Handover.h"

#include <cstddef>
#include <memory>
#include <string>

namespace zel::kiv::common::internal {

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

    explicit ObjectReader(IObjectBase& target) : m_target(&target) {}

    /// Says what to read from, before anything is read.
    void readFrom(Map const& map);

    template <typename Element>
    void readString(Key key, void (Element::*setter)(std::string const&))
    {
        read(key, static_cast<StringSetter>(setter));
    }

    template <typename Element>
    void readInt(Key key, void (Element::*setter)(int))
    {
        read(key, static_cast<IntSetter>(setter));
    }

    template <typename Element>
    void readDouble(Key key, void (Element::*setter)(double))
    {
        read(key, static_cast<DoubleSetter>(setter));
    }

    template <typename Element>
    void readBool(Key key, void (Element::*setter)(bool))
    {
        read(key, static_cast<BoolSetter>(setter));
    }

    template <typename Element>
    void readStringList(Key key, void (Element::*adder)(std::string const&))
    {
        readList(key, static_cast<StringSetter>(adder));
    }

    template <typename Element>
    void readIntList(Key key, void (Element::*adder)(int))
    {
        readList(key, static_cast<IntSetter>(adder));
    }

    template <auto setter>
    void readElement(Key key)
    {
        read(key, HandoverTo<IObjectBase, setter>::get());
    }

    template <auto adder>
    void readElementList(Key key)
    {
        readList(key, HandoverTo<IObjectBase, adder>::get());
    }

    /// The uri decides: the first target of its service and resource takes the value, or the last
    /// resort if there is one. Without a uri of three parts nothing is made.
    void readPolymorphic(Key key, Targets targets,
                         Handover<IObjectBase> const* lastResort = nullptr);

private:
    // The setters are carried as members of the common base, so that the work is compiled once and
    // not once for each element class.
    using StringSetter = void (IObjectBase::*)(std::string const&);
    using IntSetter = void (IObjectBase::*)(int);
    using DoubleSetter = void (IObjectBase::*)(double);
    using BoolSetter = void (IObjectBase::*)(bool);

    /// The value of that key, or null.
    zel::dataformats::data::Value const* find(Key key);
    zel::dataformats::data::Value const* findLong(Key key);

    void read(Key key, StringSetter setter);
    void read(Key key, IntSetter setter);
    void read(Key key, DoubleSetter setter);
    void read(Key key, BoolSetter setter);
    void read(Key key, Handover<IObjectBase> handover);
    void readList(Key key, StringSetter adder);
    void readList(Key key, IntSetter adder);
    void readList(Key key, Handover<IObjectBase> handover);

    /// Uses each entry that is not null of the array under that key, if it is one.
    template <typename Use>
    void eachEntry(Key key, Use use);

    Map const* m_map = nullptr;
    IObjectBase* m_target;
    std::string m_key; ///< the long key that is looked up
};

} // namespace zel::kiv::common::internal
