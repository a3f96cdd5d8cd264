#include "tools/kiv/TextTroubles.h"

#include "text/Path.h"

#include <utility>

namespace kiv {

namespace {

std::string replaced(std::string const& path, std::string_view inner, std::string_view outer)
{
    std::string const top = Path().text();
    std::string const steps = path == top ? "" : path;
    bool const isBelow =
        steps.starts_with(inner) && (inner.empty() || steps.size() == inner.size() ||
                                     steps[inner.size()] == '.' || steps[inner.size()] == '[');
    if (!isBelow) {
        return path;
    }
    std::string rest = steps.substr(inner.size());
    bool const needsDot = !outer.empty() && !rest.empty() && rest[0] != '.' && rest[0] != '[';
    rest.insert(0, std::string(outer) + (needsDot ? "." : ""));
    return rest.empty() ? top : rest;
}

} // namespace

void TextTroubles::keep(json::Listeners& listeners, DocumentHandlers const& handlers)
{
    if (handlers.onMisfit) {
        listeners.onMisfit = [this, &handlers](json::Misfit misfit, json::Position position,
                                               std::string const& path, std::string const& number) {
            m_kept.emplace_back([=, &handlers](PathOf const& pathOf) {
                handlers.onMisfit(misfit, position, pathOf(path), number);
            });
        };
    }
    if (handlers.onRepeatedKey) {
        listeners.onRepeatedKey = [this, &handlers](json::Position before, std::string const& path,
                                                    json::Position again) {
            m_kept.emplace_back([=, &handlers](PathOf const& pathOf) {
                handlers.onRepeatedKey(before, pathOf(path), again);
            });
        };
    }
}

void TextTroubles::tell(std::string_view inner, std::string_view outer)
{
    for (auto const& kept : std::exchange(m_kept, {})) {
        kept([&](std::string const& path) { return replaced(path, inner, outer); });
    }
}

} // namespace kiv
