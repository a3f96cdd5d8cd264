#include "values/values.h"

bool zel::kiv::common::getUriSplitted(std::string const& uri, std::string& /*first*/,
                                      std::string& /*second*/, std::string& third)
{
    auto at = uri.find('/', 1);
    at = at == std::string::npos ? at : uri.find('/', at + 1);
    if (at == std::string::npos) {
        return false;
    }
    third = uri.substr(at + 1);
    return true;
}
