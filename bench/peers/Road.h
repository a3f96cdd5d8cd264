#pragma once

#include "bench/Cases.h"
#include "bench/Mirrors.h"

#include <stdexcept>
#include <string_view>

namespace bench {

/// Brings the platform's tree into the tree of a JSON library. `Json` is its value; `Json::array`
/// and the like differ in name alone, which `List` and `Map` give.
template <typename Json, typename List, typename Members>
class Bringing final : public zel::dataformats::data::ConstVisitor {
public:
    static Json bring(zel::dataformats::data::Value const* value)
    {
        Bringing visitor;
        visitor.visit(value);
        return std::move(visitor.m_json);
    }

    void visitNull() override { m_json = Json(nullptr); }
    void visitBoolean(bool value) override { m_json = Json(value); }
    void visitInteger(int value) override { m_json = Json(value); }
    void visitFloat(double value) override { m_json = Json(value); }
    void visitString(zel::common::types::BufferDescriptor<char const> value) override
    {
        m_json = Json(std::string_view(value.data(), value.size()));
    }
    void visitBlob(zel::common::types::BufferDescriptor<char const> value) override
    {
        visitString(value);
    }
    void
    visitArray(zel::common::types::PtrVector<zel::dataformats::data::Value> const& entries) override
    {
        List list;
        list.reserve(entries.size());
        for (auto const* entry : entries) {
            list.push_back(bring(entry));
        }
        m_json = Json(std::move(list));
    }
    void visitObject(
        zel::common::types::PtrMap<std::string, zel::dataformats::data::Value> const& map) override
    {
        Members members;
        for (auto const& entry : map) {
            members.emplace(entry.first,
                            bring(static_cast<zel::dataformats::data::Value*>(entry.second)));
        }
        m_json = Json(std::move(members));
    }

private:
    Json m_json;
};

/// The cases of a JSON library, which is the argument `Peer`: on the road that the library itself
/// goes, from the platform's tree and back to it, and, with `-own` behind its name, from and to
/// trees of its own alone.
template <typename Peer, typename Mirrors>
void addJsonCases(std::vector<Case>& cases, Workload const& workload, Document const& document,
                  std::string const& subject)
{
    using Json = typename Peer::Json;
    auto const mirrors = std::make_shared<Mirrors>();
    read(*document, *mirrors);
    auto const tree = std::make_shared<Json>(Peer::give(*mirrors));
    std::unique_ptr<zel::dataformats::data::Value> const back(Peer::bringBack(*tree));
    if (Peer::bring(document.get()) != *tree || Peer::bring(back.get()) != *tree) {
        throw std::logic_error(subject + " loses something of " + std::string(workload.name));
    }
    std::string const name(workload.name);
    std::size_t const elements = mirrors->size();
    auto const take = [](Json const& json) {
        auto result = std::make_unique<Mirrors>();
        Peer::take(json, *result);
        return Result(std::move(result));
    };
    cases.push_back({name, "deserialize", subject, elements,
                     [take, document] { return take(Peer::bring(document.get())); }});
    cases.push_back({name, "serialize", subject, elements, [mirrors] {
                         return Result(std::unique_ptr<zel::dataformats::data::Value>(
                             Peer::bringBack(Peer::give(*mirrors))));
                     }});
    cases.push_back(
        {name, "deserialize", subject + "-own", elements, [take, tree] { return take(*tree); }});
    cases.push_back({name, "serialize", subject + "-own", elements,
                     [mirrors] { return Result(std::make_unique<Json>(Peer::give(*mirrors))); }});
}

} // namespace bench
