#include "Readings.h"

void look(check::Report& report)
{
    check::readings(report, "a null pointer", nullptr);
}
