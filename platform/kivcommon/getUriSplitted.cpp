#include "values/getUriSplitted.h"

#include <string_view>

namespace zel::kiv::common {
namespace {

/// The text up to the next slash, which is taken off `rest` together with the slash.
std::string_view takePart(std::string_view& rest)
{
    std::size_t const slash = rest.find('/');
    std::string_view const part = rest.substr(0, slash);
    rest.remove_prefix(slash == std::string_view::npos ? rest.size() : slash + 1);
    return part;
}

} // namespace

void getUriSplitted(std::string const& uri, std::string& first, std::string& second,
                    std::string& third)
{
    std::string_view rest = uri;
    if (rest.starts_with('/')) {
        rest.remove_prefix(1);
    }
    first = takePart(rest);
    second = takePart(rest);
    third = takePart(rest);
}

} // namespace zel::kiv::common
