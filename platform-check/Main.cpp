#include "Report.h"

int main(int argc, char** argv)
{
    check::Report report(argc > 1 && std::string_view(argv[1]) == "--json");
    look(report);
    return 0;
}
