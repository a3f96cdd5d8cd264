#include "json/ValueBuilder.h"

#include "text/Failure.h"

#include <limits>
#include <utility>

namespace kiv::json {

ValueBuilder::ValueBuilder(std::string const& file, PositionedStream const& stream,
                           Document& document, EntryHandler const* handler,
                           MisfitHandler const& onMisfit, RepeatedKeyHandler const& onRepeatedKey)
    : m_file(file), m_stream(stream), m_document(document), m_handler(handler),
      m_onMisfit(onMisfit), m_onRepeatedKey(onRepeatedKey)
{
}

void ValueBuilder::refuse(std::string const& what, bool isNext) const
{
    throw Failure(placeText(m_file, isNext ? m_stream.here() : m_stream.token()), what);
}

ValueBuilder::Owner ValueBuilder::wideInteger(std::string const& digits)
{
    if (!m_onMisfit) {
        return Base::wideInteger(digits);
    }
    using Limits = std::numeric_limits<int>;
    m_onMisfit(Misfit::WideInteger, m_stream.token(), path(), digits);
    return std::make_unique<data::Integer>(digits.front() == '-' ? Limits::min() : Limits::max());
}

ValueBuilder::Owner ValueBuilder::wideNumber(std::string const& number)
{
    if (!m_onMisfit) {
        return Base::wideNumber(number);
    }
    using Limits = std::numeric_limits<double>;
    m_onMisfit(Misfit::WideNumber, m_stream.token(), path(), number);
    return std::make_unique<data::Float>(number.front() == '-' ? Limits::lowest() : Limits::max());
}

ValueBuilder::Owner ValueBuilder::tinyNumber(std::string const& number)
{
    if (m_onMisfit) {
        m_onMisfit(Misfit::TinyNumber, m_stream.token(), path(), number);
    }
    return Base::tinyNumber(number);
}

void ValueBuilder::opened(data::Value const& holder)
{
    m_document.places.start(&holder);
    m_marks.push_back({m_stream.here(), {}});
}

void ValueBuilder::named()
{
    m_marks.back().key = m_stream.token();
}

void ValueBuilder::closed()
{
    m_ended = m_marks.back().position;
    m_marks.pop_back();
}

void ValueBuilder::take(Owner value, std::size_t index)
{
    Position const position = std::exchange(m_ended, std::nullopt).value_or(m_stream.token());
    if (levels().empty()) {
        m_document.value = std::move(value);
        m_document.position = position;
        return;
    }
    if (givesEntries()) {
        (*m_handler)({std::move(value), position, index}, m_document.places);
        m_document.places.clear();
        return;
    }
    Level const& parent = levels().back();
    if (parent.isObject) {
        tellRepeated(parent);
        m_document.places.addKey(parent.holder.get(), {parent.key, m_marks.back().key, position});
    } else {
        m_document.places.addEntry(parent.holder.get(), position);
    }
    Base::take(std::move(value), index);
}

void ValueBuilder::tellRepeated(Level const& parent) const
{
    auto const& object = static_cast<data::Object const&>(*parent.holder);
    if (m_onRepeatedKey && object.get().find(parent.key) != object.get().end()) {
        auto const* const before = m_document.places.find(object, parent.key);
        m_onRepeatedKey(before->keyPosition, path(), m_marks.back().key);
    }
}

bool ValueBuilder::givesEntries() const
{
    return m_handler != nullptr && levels().size() == 1 && !levels().front().isObject;
}

} // namespace kiv::json
