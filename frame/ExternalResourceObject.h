#pragma once

#include "frame/IObjectBase.h"

#include <string>

namespace zel::kiv::common {

/// A reference to something that no class of this library models, known by its uri alone. It stands
/// in a field of another element, which owns it; nobody follows it.
class ZEL_KIV_API ExternalResourceObject : public IObjectBase {
public:
    /// Makes a reference with no field set.
    ExternalResourceObject();
    ~ExternalResourceObject() override;

    [[nodiscard]] std::unique_ptr<zel::dataformats::data::Value>
    serialize(SerializationType type) const override;
    bool deserialize(zel::dataformats::data::Value const* value) override;

    // A getter answers whether or not the field is set: empty if it never was. A setter copies the
    // text and marks the field as set, also when the text is empty.

    [[nodiscard]] std::string const& getId() const;
    void setId(std::string const& value);
    [[nodiscard]] bool isIdSet() const;

    [[nodiscard]] std::string const& getName() const;
    void setName(std::string const& value);
    [[nodiscard]] bool isNameSet() const;

    [[nodiscard]] std::string const& getUri() const;
    void setUri(std::string const& value);
    [[nodiscard]] bool isUriSet() const;

private:
    std::string m_id;
    bool m_id_isSet = false;
    std::string m_name;
    bool m_name_isSet = false;
    std::string m_uri;
    bool m_uri_isSet = false;
};

/// Fills an `ExternalResourceObject` from the value it visits: an object's `id`, `name` and `uri`
/// are set, any other value is noted and leaves the target as it is. Only `ExternalResourceObject`
/// makes one.
class ZEL_KIV_API ExternalResourceObjectDeserializer : public zel::dataformats::data::ConstVisitor {
public:
    ExternalResourceObjectDeserializer(ExternalResourceObjectDeserializer const&) = delete;
    ExternalResourceObjectDeserializer(ExternalResourceObjectDeserializer&&) = delete;
    ExternalResourceObjectDeserializer&
    operator=(ExternalResourceObjectDeserializer const&) = delete;
    ExternalResourceObjectDeserializer& operator=(ExternalResourceObjectDeserializer&&) = delete;
    ~ExternalResourceObjectDeserializer() override;

    void visitNull() override;
    void visitBoolean(bool value) override;
    void visitInteger(int value) override;
    void visitFloat(double value) override;
    void visitString(zel::common::types::BufferDescriptor<char const> value) override;
    void visitBlob(zel::common::types::BufferDescriptor<char const> value) override;
    void visitArray(
        zel::common::types::PtrVector<zel::dataformats::data::Value> const& entries) override;
    void visitObject(
        zel::common::types::PtrMap<std::string, zel::dataformats::data::Value> const& map) override;

private:
    friend class ExternalResourceObject;
    ZEL_KIV_LOCAL explicit ExternalResourceObjectDeserializer(ExternalResourceObject& target);
    ZEL_KIV_LOCAL void note(char const* text);

    bool m_error = false;
    std::string m_errorText;
    ExternalResourceObject* m_target;
};

} // namespace zel::kiv::common
