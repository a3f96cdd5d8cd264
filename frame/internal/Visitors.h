#pragma once

#include "frame/IObjectBase.h"
#include "frame/IResourceBase.h"
#include "frame/internal/Handover.h"
#include "values/values.h"

#include <string>

namespace zel::kiv::common::internal {

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

/// What all element visitors but the exported one have in common: everything but an object is noted
/// as a fault. The derived class adds `visitObject`.
class ElementVisitor : public zel::dataformats::data::ConstVisitor {
public:
    ElementVisitor(ElementVisitor const&) = delete;
    ElementVisitor(ElementVisitor&&) = delete;
    ElementVisitor& operator=(ElementVisitor const&) = delete;
    ElementVisitor& operator=(ElementVisitor&&) = delete;

    void visitNull() final;
    void visitBoolean(bool value) final;
    void visitInteger(int value) final;
    void visitFloat(double value) final;
    void visitString(zel::common::types::BufferDescriptor<char const> value) final;
    void visitBlob(zel::common::types::BufferDescriptor<char const> value) final;
    void
    visitArray(zel::common::types::PtrVector<zel::dataformats::data::Value> const& entries) final;

    /// Fills the target from the value, which may be null if the value library takes that.
    void read(zel::dataformats::data::Value const* value);

protected:
    explicit ElementVisitor(IObjectBase& target) : m_target(&target) {}
    ~ElementVisitor() override;

    [[nodiscard]] IObjectBase& target() const { return *m_target; }

private:
    Fault m_fault;
    IObjectBase* m_target;
};

/// The same for resource visitors: everything but an array is noted as a fault. The derived class
/// adds `visitArray`.
class ResourceVisitor : public zel::dataformats::data::ConstVisitor {
public:
    using Entries = zel::common::types::PtrVector<zel::dataformats::data::Value>;

    ResourceVisitor(ResourceVisitor const&) = delete;
    ResourceVisitor(ResourceVisitor&&) = delete;
    ResourceVisitor& operator=(ResourceVisitor const&) = delete;
    ResourceVisitor& operator=(ResourceVisitor&&) = delete;

    void visitNull() final;
    void visitBoolean(bool value) final;
    void visitInteger(int value) final;
    void visitFloat(double value) final;
    void visitString(zel::common::types::BufferDescriptor<char const> value) final;
    void visitBlob(zel::common::types::BufferDescriptor<char const> value) final;
    void visitObject(
        zel::common::types::PtrMap<std::string, zel::dataformats::data::Value> const& map) final;

    /// Fills the target from the value, which may be null if the value library takes that.
    void read(zel::dataformats::data::Value const* value);

protected:
    explicit ResourceVisitor(IResourceBase& target) : m_target(&target) {}
    ~ResourceVisitor() override;

    /// Makes an element of each entry, null entries included, and hands it to the target's adder.
    /// `failure` is noted if an element cannot be read, which ends it.
    template <auto adder>
    void readEntries(Entries const& entries, char const* failure)
    {
        readEntries(entries, HandoverTo<IResourceBase, adder>::get(), failure);
    }

private:
    void readEntries(Entries const& entries, Handover<IResourceBase> handover, char const* failure);

    Fault m_fault;
    IResourceBase* m_target;
};

} // namespace zel::kiv::common::internal
