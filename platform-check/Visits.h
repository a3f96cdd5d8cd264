#pragma once

#include "values/values.h"

#include <string>
#include <vector>

namespace check {

using namespace zel::dataformats::data;
namespace types = zel::common::types;

/// Notes which operations were called, and with what.
class Visits : public ConstVisitor {
public:
    void visitNull() override { note("visitNull"); }
    void visitBoolean(bool value) override { note("visitBoolean"), boolean = value; }
    void visitInteger(int value) override { note("visitInteger"), integer = value; }
    void visitFloat(double value) override { note("visitFloat"), real = value; }
    void visitString(types::BufferDescriptor<char const>) override { note("visitString"); }
    void visitBlob(types::BufferDescriptor<char const>) override { note("visitBlob"); }
    void visitArray(types::PtrVector<Value> const& entries) override
    {
        note("visitArray"), array = &entries;
    }
    void visitObject(types::PtrMap<std::string, Value> const& entries) override
    {
        note("visitObject"), object = &entries;
    }

    std::string calls; ///< the operations that were called, one after the other
    bool boolean = false;
    int integer = 0;
    double real = 0;
    types::PtrVector<Value> const* array = nullptr;
    types::PtrMap<std::string, Value> const* object = nullptr;

private:
    void note(char const* operation)
    {
        calls += (calls.empty() ? "" : ", ") + std::string(operation);
    }
};

inline std::string callsFor(Value const* value)
{
    Visits visits;
    visits.visit(value);
    return visits.calls.empty() ? "nothing is called" : visits.calls;
}

} // namespace check
