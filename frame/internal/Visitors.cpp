#include "frame/internal/Visitors.h"

#include "frame/internal/Notices.h"
#include "frame/internal/ObjectReader.h"
#include "frame/internal/VisitorTexts.h"

#include <string>

namespace zel::kiv::common::internal {

using zel::common::types::BufferDescriptor;
using zel::common::types::PtrMap;
using zel::common::types::PtrVector;
using zel::dataformats::data::ConstVisitor;
using zel::dataformats::data::Value;

namespace {

/// The fault that a visitor notes when it meets a value that it cannot read. Nobody looks at it.
class Fault {
public:
    void note(char const* text)
    {
        m_isNoted = true;
        m_text += text;
    }

private:
    bool m_isNoted = false;
    std::string m_text;
};

/// Reads the fields of an element from an object.
class ElementVisitor final : public ConstVisitor {
public:
    ElementVisitor(IObjectBase& target, void (*readFields)(ObjectReader& fields))
        : m_fields(target), m_readFields(readFields)
    {
    }
    // In line, it would make every level of nesting take more stack.
    [[gnu::noinline]] ~ElementVisitor() override = default;

    ElementVisitor(ElementVisitor const&) = delete;
    ElementVisitor(ElementVisitor&&) = delete;
    ElementVisitor& operator=(ElementVisitor const&) = delete;
    ElementVisitor& operator=(ElementVisitor&&) = delete;

    void visitNull() override { m_fault.note(elementText::null); }
    void visitBoolean(bool /*value*/) override { m_fault.note(elementText::boolean); }
    void visitInteger(int /*value*/) override { m_fault.note(elementText::integer); }
    void visitFloat(double /*value*/) override { m_fault.note(elementText::floating); }
    void visitString(BufferDescriptor<char const> /*value*/) override
    {
        m_fault.note(elementText::string);
    }
    void visitBlob(BufferDescriptor<char const> /*value*/) override
    {
        m_fault.note(elementText::blob);
    }
    void visitArray(PtrVector<Value> const& /*entries*/) override
    {
        m_fault.note(elementText::array);
    }

    void visitObject(PtrMap<std::string, Value> const& map) override
    {
        m_fields.readFrom(map);
        m_readFields(m_fields);
    }

private:
    // With the reader here, the visit ends in a jump and takes no stack of its own at any level of
    // nesting.
    ObjectReader m_fields;
    Fault m_fault;
    void (*m_readFields)(ObjectReader& fields);
};

/// Makes the elements of a resource of the entries of an array.
class ResourceVisitor final : public ConstVisitor {
public:
    ResourceVisitor(IResourceBase& target, Handover<IResourceBase> handover, char const* failure)
        : m_target(&target), m_handover(handover), m_failure(failure)
    {
    }

    void visitNull() override { m_fault.note(resourceText::null); }
    void visitBoolean(bool /*value*/) override { m_fault.note(resourceText::boolean); }
    void visitInteger(int /*value*/) override { m_fault.note(resourceText::integer); }
    void visitFloat(double /*value*/) override { m_fault.note(resourceText::floating); }
    void visitString(BufferDescriptor<char const> /*value*/) override
    {
        m_fault.note(resourceText::string);
    }
    void visitBlob(BufferDescriptor<char const> /*value*/) override
    {
        m_fault.note(resourceText::blob);
    }
    void visitObject(PtrMap<std::string, Value> const& /*map*/) override
    {
        m_fault.note(resourceText::object);
    }

    void visitArray(PtrVector<Value> const& entries) override
    {
        notice::readsList(nullptr);
        for (Value const* const entry : entries) {
            notice::readsEntry(entry);
            std::unique_ptr<IObjectBase> element(m_handover.make());
            if (!element->deserialize(entry)) {
                m_fault.note(m_failure);
                return;
            }
            m_handover.give(*m_target, element.release());
        }
        notice::endsList();
    }

private:
    Fault m_fault;
    IResourceBase* m_target;
    Handover<IResourceBase> m_handover;
    char const* m_failure;
};

} // namespace

bool deserializeElement(IObjectBase& target, Value const* value,
                        void (*readFields)(ObjectReader& fields))
{
    ElementVisitor visitor(target, readFields);
    notice::Reading const reading(target, value);
    visitor.visit(value);
    reading.done();
    return true;
}

bool deserializeResource(IResourceBase& target, Value const* value,
                         Handover<IResourceBase> handover, char const* failure)
{
    ResourceVisitor visitor(target, handover, failure);
    notice::Reading const reading(target, value);
    visitor.visit(value);
    reading.done();
    return true;
}

} // namespace zel::kiv::common::internal
