#include "Report.h"
#include "Visits.h"

using namespace check;

void look(Report& report)
{
    for (char const* const uri :
         {"", "/", "//", "///", "/a", "/a/", "a/b", "/a/b/", "/a//", "/a//7", "//b/7", "a/b/7",
          "/a/b/7/", "/a/b/7/x", "/a/b//7", "/a/b/ä b?c=/#d"}) {
        report.open("parts of " + quoted(uri), [uri] {
            std::string parts[3];
            zel::kiv::common::getUriSplitted(uri, parts[0], parts[1], parts[2]);
            static std::string all;
            all = quoted(parts[0]) + ", " + quoted(parts[1]) + ", " + quoted(parts[2]);
            return all.c_str();
        });
    }
}
