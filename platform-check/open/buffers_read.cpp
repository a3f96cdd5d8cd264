#include "Report.h"
#include "Visits.h"

using namespace check;

namespace {

class Text : public Visits {
public:
    void visitString(types::BufferDescriptor<char const> text) override
    {
        bytes.assign(text.data(), text.size());
    }
    std::string bytes;
};

} // namespace

void look(Report& report)
{
    report.open("data and size of what visitString is given", [] {
        String const value("text");
        Text text;
        text.visit(&value);
        return text.bytes;
    });
}
