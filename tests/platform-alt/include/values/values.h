#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

// Another implementation of what the library takes from its platform, made to differ from the
// stand-ins wherever it may: whatever the library leans on that nobody has promised breaks here.
// What reading needs beyond that (walking a map, the plain values) is for the tests; with
// `OTHER_PLATFORM_IS_BARE` a map cannot be walked.

namespace zel::common::types {

/// Public members and a short length.
template <typename C>
struct BufferDescriptor {
    C* start;
    std::uint32_t length;
};

#ifdef OTHER_PLATFORM_IS_BARE
/// Holds its map, and can be asked for a key and nothing else.
template <typename K, typename V>
class PtrMap : private std::map<K, void*> {
    using Held = std::map<K, void*>;

public:
    using Held::end;
    using Held::find;
    Held const& held() const { return *this; }
    Held& held() { return *this; }
};
#else
/// Is its map, and can be walked through as one.
template <typename K, typename V>
class PtrMap : public std::map<K, void*> {
public:
    std::map<K, void*> const& held() const { return *this; }
    std::map<K, void*>& held() { return *this; }
};
#endif

/// Hands out plain pointers.
template <typename V>
class PtrVector {
public:
    V* const* begin() const { return m_entries.data(); }
    V* const* end() const { return m_entries.data() + m_entries.size(); }
    std::vector<V*> m_entries;
};

} // namespace zel::common::types

namespace zel::dataformats::data {

class Value;

class ConstVisitor {
public:
    virtual ~ConstVisitor();
    virtual void visitNull() = 0;
    virtual void visitBoolean(bool value) = 0;
    virtual void visitInteger(int value) = 0;
    virtual void visitFloat(double value) = 0;
    virtual void visitString(zel::common::types::BufferDescriptor<char const> text) = 0;
    virtual void visitBlob(zel::common::types::BufferDescriptor<char const> bytes) = 0;
    virtual void visitArray(zel::common::types::PtrVector<Value> const& entries) = 0;
    virtual void visitObject(zel::common::types::PtrMap<std::string, Value> const& entries) = 0;

    /// Calls nothing for a null pointer, or throws if the platform is bare.
    int visit(Value const* value);
};

/// Codes that are not an enumeration and, but for the three promised ones, others.
struct ValueType {
    static constexpr std::int32_t String = 5;
    static constexpr std::int32_t Array = 7;
    static constexpr std::int32_t Object = 8;
    static constexpr std::int32_t Float = 20;
    static constexpr std::int32_t Integer = 21;
    static constexpr std::int32_t Boolean = 22;
    static constexpr std::int32_t Blob = -1;
    static constexpr std::int32_t Null = -2;
};

class Value {
public:
    virtual ~Value();
    virtual char const* typeName() const = 0;
    virtual void dispatch(ConstVisitor& visitor) const = 0;
    virtual std::int32_t getType() const = 0;
    virtual Value* clone() const = 0;
};

/// What the types of values have in common.
template <typename Self, std::int32_t code>
class Typed : public Value {
public:
    char const* typeName() const override { return Self::name; }
    std::int32_t getType() const override { return code; }
};

template <typename Self, std::int32_t code, typename Plain, auto visitPlain>
class Holder : public Typed<Self, code> {
public:
    Holder(Plain value) : m_value(std::move(value)) {}
    Value* clone() const override { return new Self(m_value); }
    Plain const& get() const { return m_value; }
    void dispatch(ConstVisitor& visitor) const override
    {
        if constexpr (std::is_same_v<Plain, std::string>) {
            (visitor.*visitPlain)({m_value.data(), static_cast<std::uint32_t>(m_value.size())});
        } else {
            (visitor.*visitPlain)(m_value);
        }
    }

private:
    Plain m_value;
};

class Null : public Typed<Null, ValueType::Null> {
public:
    static constexpr char const* name = "Null";
    Value* clone() const override { return new Null; }
    void dispatch(ConstVisitor& visitor) const override { visitor.visitNull(); }
};

class Boolean : public Holder<Boolean, ValueType::Boolean, bool, &ConstVisitor::visitBoolean> {
public:
    static constexpr char const* name = "Boolean";
    using Holder::Holder;
};

class Integer : public Holder<Integer, ValueType::Integer, int, &ConstVisitor::visitInteger> {
public:
    static constexpr char const* name = "Integer";
    using Holder::Holder;
};

class Float : public Holder<Float, ValueType::Float, double, &ConstVisitor::visitFloat> {
public:
    static constexpr char const* name = "Float";
    using Holder::Holder;
};

class String : public Holder<String, ValueType::String, std::string, &ConstVisitor::visitString> {
public:
    static constexpr char const* name = "String";
    using Holder::Holder;
};

class Blob : public Holder<Blob, ValueType::Blob, std::string, &ConstVisitor::visitBlob> {
public:
    static constexpr char const* name = "Blob";
    using Holder::Holder;
    Blob(zel::common::types::BufferDescriptor<char const> bytes)
        : Holder(std::string(bytes.start, bytes.length))
    {
    }
};

class Array : public Typed<Array, ValueType::Array> {
public:
    static constexpr char const* name = "Array";
    ~Array() override;
    void dispatch(ConstVisitor& visitor) const override;
    Value* clone() const override;
    void pushNew(Value* value);
    zel::common::types::PtrVector<Value>& get() { return m_entries; }

private:
    zel::common::types::PtrVector<Value> m_entries;
};

class Object : public Typed<Object, ValueType::Object> {
public:
    static constexpr char const* name = "Object";
    ~Object() override;
    void dispatch(ConstVisitor& visitor) const override;
    Value* clone() const override;

    /// Throws for a key that is there already.
    void setNew(char const* key, Value* value);
    zel::common::types::PtrMap<std::string, Value> const& get() const { return m_entries; }

private:
    zel::common::types::PtrMap<std::string, Value> m_entries;
};

/// Throws where the value is of another type, or is not there.
class Ref {
public:
    Ref(Value const* value) : m_value(value) {}
    std::string asString() const;
    int asInteger() const;
    bool asBoolean() const;
    double asFloat() const;

private:
    Value const* m_value;
};

} // namespace zel::dataformats::data

namespace zel::kiv::common {

/// Fills the third text alone, with all that stands behind the second part.
bool getUriSplitted(std::string const& uri, std::string& first, std::string& second,
                    std::string& third);

} // namespace zel::kiv::common
