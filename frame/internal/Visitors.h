#pragma once

#include "frame/IResourceBase.h"
#include "frame/internal/Giving.h"
#include "values/values.h"

#include <string>

namespace zel::kiv::common::internal {

/// What all element visitors but the exported one have in common: everything but an object is noted
/// as a fault. The derived class adds a pointer to its target and `visitObject`.
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

protected:
    ElementVisitor() = default;
    ~ElementVisitor() override;

private:
    void note(char const* text);

    bool m_error = false;
    std::string m_errorText;
};

/// The same for resource visitors: everything but an array is noted as a fault. The derived class
/// adds a pointer to its target and `visitArray`.
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

protected:
    ResourceVisitor() = default;
    ~ResourceVisitor() override;

    /// Makes an element of each entry, null entries included, and hands it to the target's adder.
    /// `failure` is noted if an element cannot be read, which ends it.
    template <auto adder, typename Resource>
    void readEntries(Entries const& entries, Resource& target, char const* failure)
    {
        using Owning = Giver<decltype(adder)>;
        readAll(entries, target, Owning::make, Owning::template give<IResourceBase, adder>,
                failure);
    }

private:
    void note(char const* text);
    void readAll(Entries const& entries, IResourceBase& target, Make make, Give<IResourceBase> add,
                 char const* failure);

    bool m_error = false;
    std::string m_errorText;
};

} // namespace zel::kiv::common::internal
