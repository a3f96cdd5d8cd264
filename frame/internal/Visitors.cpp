#include "frame/internal/Visitors.h"

#include "frame/internal/Notices.h"
#include "frame/internal/VisitorTexts.h"

namespace zel::kiv::common::internal {

using zel::common::types::BufferDescriptor;
using zel::common::types::PtrMap;
using zel::common::types::PtrVector;
using zel::dataformats::data::Value;

ElementVisitor::~ElementVisitor() = default;

void ElementVisitor::read(Value const* value)
{
    notice::Reading const reading(*m_target, value);
    visit(value);
    reading.done();
}

void ElementVisitor::visitNull()
{
    m_fault.note(elementText::null);
}

void ElementVisitor::visitBoolean(bool /*value*/)
{
    m_fault.note(elementText::boolean);
}

void ElementVisitor::visitInteger(int /*value*/)
{
    m_fault.note(elementText::integer);
}

void ElementVisitor::visitFloat(double /*value*/)
{
    m_fault.note(elementText::floating);
}

void ElementVisitor::visitString(BufferDescriptor<char const> /*value*/)
{
    m_fault.note(elementText::string);
}

void ElementVisitor::visitBlob(BufferDescriptor<char const> /*value*/)
{
    m_fault.note(elementText::blob);
}

void ElementVisitor::visitArray(PtrVector<Value> const& /*entries*/)
{
    m_fault.note(elementText::array);
}

ResourceVisitor::~ResourceVisitor() = default;

void ResourceVisitor::read(Value const* value)
{
    notice::Reading const reading(*m_target, value);
    visit(value);
    reading.done();
}

void ResourceVisitor::readEntries(Entries const& entries, Handover<IResourceBase> handover,
                                  char const* failure)
{
    notice::readsList(nullptr);
    for (Value const* const entry : entries) {
        notice::readsEntry(entry);
        std::unique_ptr<IObjectBase> element(handover.make());
        if (!element->deserialize(entry)) {
            m_fault.note(failure);
            return;
        }
        handover.give(*m_target, element.release());
    }
    notice::endsList();
}

void ResourceVisitor::visitNull()
{
    m_fault.note(resourceText::null);
}

void ResourceVisitor::visitBoolean(bool /*value*/)
{
    m_fault.note(resourceText::boolean);
}

void ResourceVisitor::visitInteger(int /*value*/)
{
    m_fault.note(resourceText::integer);
}

void ResourceVisitor::visitFloat(double /*value*/)
{
    m_fault.note(resourceText::floating);
}

void ResourceVisitor::visitString(BufferDescriptor<char const> /*value*/)
{
    m_fault.note(resourceText::string);
}

void ResourceVisitor::visitBlob(BufferDescriptor<char const> /*value*/)
{
    m_fault.note(resourceText::blob);
}

void ResourceVisitor::visitObject(PtrMap<std::string, Value> const& /*map*/)
{
    m_fault.note(resourceText::object);
}

} // namespace zel::kiv::common::internal
