#pragma once

#include "values/BufferDescriptor.h"
#include "values/PlatformApi.h"
#include "values/PtrMap.h"
#include "values/PtrVector.h"

#include <string>

namespace zel::dataformats::data {

class Value;

/// The base of what reads a value without knowing its type. A derived class says in the
/// `visit...` operations what to do with each type, and is then handed to `visit`. What it receives
/// belongs to the visited value and is good for as long as that lives.
class ZEL_PLATFORM_API ConstVisitor {
public:
    ConstVisitor(ConstVisitor const&) = delete;
    ConstVisitor& operator=(ConstVisitor const&) = delete;

    virtual ~ConstVisitor();

    virtual void visitNull() = 0;
    virtual void visitBoolean(bool value) = 0;
    virtual void visitInteger(int value) = 0;
    virtual void visitFloat(double value) = 0;
    virtual void visitString(zel::common::types::BufferDescriptor<char const> text) = 0;
    virtual void visitBlob(zel::common::types::BufferDescriptor<char const> bytes) = 0;
    virtual void visitArray(zel::common::types::PtrVector<Value> const& entries) = 0;
    virtual void visitObject(zel::common::types::PtrMap<std::string, Value> const& entries) = 0;

    /// Calls the one operation above that fits the type of `value`, `visitNull` for a null pointer,
    /// and returns when that has returned. What it throws passes through.
    void visit(Value const* value);

protected:
    ConstVisitor() noexcept = default;
};

} // namespace zel::dataformats::data
