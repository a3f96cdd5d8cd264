#include "frame/internal/Visitors.h"

#include "frame/internal/VisitorTexts.h"

namespace zel::kiv::common::internal {

using zel::common::types::BufferDescriptor;
using zel::common::types::PtrMap;
using zel::common::types::PtrVector;
using zel::dataformats::data::Value;

ElementVisitor::~ElementVisitor() = default;

void ElementVisitor::note(char const* text)
{
    m_error = true;
    m_errorText += text;
}

void ElementVisitor::visitNull()
{
    note(elementText::null);
}

void ElementVisitor::visitBoolean(bool /*value*/)
{
    note(elementText::boolean);
}

void ElementVisitor::visitInteger(int /*value*/)
{
    note(elementText::integer);
}

void ElementVisitor::visitFloat(double /*value*/)
{
    note(elementText::floating);
}

void ElementVisitor::visitString(BufferDescriptor<char const> /*value*/)
{
    note(elementText::string);
}

void ElementVisitor::visitBlob(BufferDescriptor<char const> /*value*/)
{
    note(elementText::blob);
}

void ElementVisitor::visitArray(PtrVector<Value> const& /*entries*/)
{
    note(elementText::array);
}

ResourceVisitor::~ResourceVisitor() = default;

void ResourceVisitor::note(char const* text)
{
    m_error = true;
    m_errorText += text;
}

void ResourceVisitor::readAll(Entries const& entries, IResourceBase& target, Make make,
                              Give<IResourceBase> add, char const* failure)
{
    for (Value const* const entry : entries) {
        std::unique_ptr<IObjectBase> element(make());
        if (!element->deserialize(entry)) {
            note(failure);
            return;
        }
        add(target, element.release());
    }
}

void ResourceVisitor::visitNull()
{
    note(resourceText::null);
}

void ResourceVisitor::visitBoolean(bool /*value*/)
{
    note(resourceText::boolean);
}

void ResourceVisitor::visitInteger(int /*value*/)
{
    note(resourceText::integer);
}

void ResourceVisitor::visitFloat(double /*value*/)
{
    note(resourceText::floating);
}

void ResourceVisitor::visitString(BufferDescriptor<char const> /*value*/)
{
    note(resourceText::string);
}

void ResourceVisitor::visitBlob(BufferDescriptor<char const> /*value*/)
{
    note(resourceText::blob);
}

void ResourceVisitor::visitObject(PtrMap<std::string, Value> const& /*map*/)
{
    note(resourceText::object);
}

} // namespace zel::kiv::common::internal
