#include "json/JsonWriter.h"
#include "json/Make.h"
#include "testing/difference.h"
#include "text/Path.h"
#include "text/Printable.h"
#include "tools/kiv/Command.h"
#include "tools/kiv/diff/ElementFeed.h"
#include "tools/lookup/Lookup.h"

#include <algorithm>
#include <functional>
#include <map>
#include <utility>
#include <vector>

namespace kiv {

namespace {

/// The elements of one document whose partner in the other has not come yet, by what pairs them. Of
/// several with the same, the first comes first.
using Waiting = std::multimap<std::string, FullElement>;

std::optional<FullElement> taken(Waiting& waiting, std::string const& key)
{
    auto const found = waiting.lower_bound(key);
    if (found == waiting.end() || found->first != key) {
        return std::nullopt;
    }
    FullElement element = std::move(found->second);
    waiting.erase(found);
    return element;
}

/// A place where two elements differ; null stands for a value that is not there.
struct Difference {
    std::string path; ///< in A, unless it is B alone that has the element
    data::Value const* a;
    data::Value const* b;
    std::size_t placeA; ///< of the elements in their documents
    std::size_t placeB;
};

std::string textAt(data::Value const& value, std::string const& key)
{
    auto const& map = static_cast<data::Object const&>(value).get();
    auto const found = map.find(key);
    return found == map.end()
               ? std::string()
               : data::Ref(static_cast<data::Value const*>(found->second)).asString();
}

class DiffCommand : public Command {
public:
    [[nodiscard]] std::string_view name() const override { return "diff"; }
    [[nodiscard]] std::string_view about() const override
    {
        return "Compare two documents as the library reads them";
    }
    [[nodiscard]] std::string_view example() const override
    {
        return "kiv diff radio/presets before.json after.json";
    }

    void declare(commandline::Arguments arguments) override
    {
        m_options.declare(arguments);
        arguments.required("A", m_left, "A JSON file, or - for standard input");
        arguments.required("B", m_right, "Another one");
        arguments.choice("--by", m_by, {"uri", "id", "place"},
                         "What pairs elements: the uri, or else the id, or else the place; the id, "
                         "or else the place; the place alone");
        arguments.flag("--json", m_json, "Write the differences as JSON");
    }

    /// Both documents are read side by side. An element is held only until its partner comes, so
    /// that documents in the same order need no more memory than a few elements.
    Exit run(Console& console) override
    {
        auto const writer = json::makeWriter(console.output, json::Layout::Indented);
        if (m_json) {
            writer->startArray();
        }
        m_tell = [&](Difference const& difference) {
            m_isSame = false;
            m_json ? writer->entry(valueOf(difference).get()) : print(console, difference);
        };
        comparePairs(console);
        if (m_json) {
            writer->endArray();
        }
        if (m_isUnable) {
            return Exit::Unable;
        }
        return m_isSame ? Exit::Clean : Exit::Findings;
    }

private:
    void comparePairs(Console& console)
    {
        ElementFeed feedA(m_left, m_options);
        ElementFeed feedB(m_right, m_options);
        Waiting waitingA;
        Waiting waitingB;
        auto a = feedA.next();
        auto b = feedB.next();
        while (a || b) {
            if (a) {
                auto partner = pair(*a, waitingB, waitingA);
                if (partner) {
                    compare(*a, *partner);
                }
                a = feedA.next();
            }
            if (b) {
                auto partner = pair(*b, waitingA, waitingB);
                if (partner) {
                    compare(*partner, *b);
                }
                b = feedB.next();
            }
            complain(console, feedA);
            complain(console, feedB);
        }
        complain(console, feedA);
        complain(console, feedB);
        tellAlone(waitingA, true);
        tellAlone(waitingB, false);
    }

    void complain(Console& console, ElementFeed& feed)
    {
        for (Failure const& fault : feed.takeFaults()) {
            m_isUnable = true;
            console.complain(fault);
        }
    }

    /// The partner of an element if it is among those of the other side; otherwise the element
    /// waits among those of its own.
    std::optional<FullElement> pair(FullElement& element, Waiting& others, Waiting& own) const
    {
        std::string const key = keyOf(element);
        auto partner = taken(others, key);
        if (!partner) {
            own.emplace(key, std::move(element));
        }
        return partner;
    }

    [[nodiscard]] std::string keyOf(FullElement const& element) const
    {
        std::string const resource = nameOf(element.resource) + ' ';
        std::string const uri = m_by == "uri" ? textAt(*element.value, "uri") : "";
        std::string const id = m_by == "place" ? "" : textAt(*element.value, "id");
        if (!uri.empty()) {
            return resource + "uri " + uri;
        }
        return resource + (id.empty() ? "place " + std::to_string(element.index) : "id " + id);
    }

    void compare(FullElement const& a, FullElement const& b)
    {
        Path path;
        path.enter(a.index);
        zel::kiv::testing::compare(
            path, a.value.get(), b.value.get(),
            [&](Path const& place, data::Value const* left, data::Value const* right) {
                m_tell({place.text(), left, right, a.index, b.index});
            });
    }

    /// Tells of those that have no partner, in the order of the file.
    void tellAlone(Waiting const& waiting, bool isA)
    {
        std::vector<FullElement const*> alone;
        for (auto const& [key, element] : waiting) {
            alone.push_back(&element);
        }
        std::ranges::sort(alone, {}, &FullElement::index);
        for (auto const* element : alone) {
            Path path;
            path.enter(element->index);
            m_tell({path.text(), isA ? element->value.get() : nullptr,
                    isA ? nullptr : element->value.get(), element->index, element->index});
        }
    }

    static std::unique_ptr<data::Value> valueOf(Difference const& difference)
    {
        json::Members members;
        for (auto const& [key, value] :
             {std::pair("a", difference.a), std::pair("b", difference.b)}) {
            if (value != nullptr) {
                members.with(key, json::ValuePointer(value->clone()));
            }
        }
        if (difference.placeA != difference.placeB) {
            members.with("movedTo", json::number(difference.placeB));
        }
        return members.with("path", difference.path).take();
    }

    static void print(Console& console, Difference const& difference)
    {
        auto const& [path, a, b, placeA, placeB] = difference;
        std::string const moved = placeA == placeB ? "" : " (B: [" + std::to_string(placeB) + "])";
        console.output.write(console.style.strong(printable(path) + moved + ":") + " ");
        if (a == nullptr || b == nullptr) {
            console.output.write(a == nullptr ? "only in B: " : "only in A: ");
            write(console, a == nullptr ? b : a);
        } else {
            write(console, a);
            console.output.write(" -> ");
            write(console, b);
        }
        console.output.put('\n');
    }

    static void write(Console& console, data::Value const* value)
    {
        json::makeWriter(console.output, json::Layout::Compact)->entry(value);
    }

    DocumentOptions m_options;
    std::string m_left;
    std::string m_right;
    std::string m_by = "uri";
    bool m_json = false;
    bool m_isSame = true;
    bool m_isUnable = false; ///< to read some line
    std::function<void(Difference const& difference)> m_tell;
};

} // namespace

std::unique_ptr<Command> makeDiffCommand()
{
    return std::make_unique<DiffCommand>();
}

} // namespace kiv
