#include "json/ValueBuilder.h"

#include "text/Failure.h"

#include <limits>
#include <utility>

namespace kiv::json {

ValueBuilder::ValueBuilder(std::string const& file, PositionedStream const& stream,
                           Document& document, EntryHandler const* handler,
                           Listeners const& listeners)
    : m_file(file), m_stream(stream), m_document(document), m_handler(handler),
      m_listeners(listeners), m_entryLevels(handler == nullptr ? 1 : 2)
{
}

void ValueBuilder::refuse(std::string const& what, bool isNext) const
{
    throw Failure(placeText(m_file, isNext ? m_stream.here() : m_stream.token()), what);
}

ValueBuilder::Owner ValueBuilder::wideInteger(std::string const& digits)
{
    if (!m_listeners.onMisfit) {
        return Base::wideInteger(digits);
    }
    using Limits = std::numeric_limits<int>;
    m_listeners.onMisfit(Misfit::WideInteger, m_stream.token(), path(), digits);
    return std::make_unique<data::Integer>(digits.front() == '-' ? Limits::min() : Limits::max());
}

ValueBuilder::Owner ValueBuilder::wideNumber(std::string const& number)
{
    if (!m_listeners.onMisfit) {
        return Base::wideNumber(number);
    }
    using Limits = std::numeric_limits<double>;
    m_listeners.onMisfit(Misfit::WideNumber, m_stream.token(), path(), number);
    return std::make_unique<data::Float>(number.front() == '-' ? Limits::lowest() : Limits::max());
}

ValueBuilder::Owner ValueBuilder::tinyNumber(std::string const& number)
{
    if (m_listeners.onMisfit) {
        m_listeners.onMisfit(Misfit::TinyNumber, m_stream.token(), path(), number);
    }
    return Base::tinyNumber(number);
}

void ValueBuilder::opened(data::Value const& holder)
{
    m_document.places.start(&holder);
    m_listPlaces.start(&holder);
    m_marks.push_back({m_stream.here(), {}});
    if (isInList() && levels().size() == m_entryLevels + 1) {
        m_partStart = m_stream.Tell();
        m_isLeft = false;
    }
}

void ValueBuilder::named()
{
    m_marks.back().key = m_stream.token();
    if (levels().size() == m_entryLevels) {
        m_given.erase(levels().back().key);
    }
}

void ValueBuilder::closed()
{
    m_ended = m_marks.back().position;
    m_marks.pop_back();
    if (levels().size() == m_entryLevels) {
        m_document.places.add(m_listPlaces);
    }
}

void ValueBuilder::take(Owner value, std::size_t index)
{
    Position const position = std::exchange(m_ended, std::nullopt).value_or(m_stream.token());
    if (levels().empty()) {
        m_document.value = std::move(value);
        m_document.position = position;
        m_document.given = std::exchange(m_given, {});
        return;
    }
    if (givesEntries() && levels().size() == 1) {
        (*m_handler)({std::move(value), position, index, std::exchange(m_given, {})},
                     m_document.places);
        m_document.places.clear();
        return;
    }
    if (levels().back().isObject) {
        tellRepeated(levels().back());
    }
    notePlace(value.get(), position);
    Base::take(std::move(value), index);
    if (isInList() && levels().size() == m_entryLevels + 1) {
        givePart();
    }
}

void ValueBuilder::notePlace(data::Value const* value, Position position)
{
    Level const& parent = levels().back();
    if (m_listeners.wantsPlace && !m_listeners.wantsPlace(levels().size(), parent.key, value)) {
        return;
    }
    if (parent.isObject) {
        places().addKey(parent.holder.get(), {parent.key, m_marks.back().key, position});
    } else {
        places().addEntry(parent.holder.get(), position);
    }
}

void ValueBuilder::tellRepeated(Level const& parent)
{
    auto const& object = static_cast<data::Object const&>(*parent.holder);
    if (m_listeners.onRepeatedKey && object.get().find(parent.key) != object.get().end()) {
        auto const* const before = places().find(object, parent.key);
        m_listeners.onRepeatedKey(before->keyPosition, path(), m_marks.back().key);
    }
}

/// Gives away what there is of the array under a key of an entry, if that is enough.
void ValueBuilder::givePart()
{
    std::size_t const length = m_stream.Tell() - m_partStart;
    m_isLeft = m_isLeft || length > longestPart;
    if (m_isLeft || length < partSize) {
        return;
    }
    std::size_t const count = levels().back().children;
    std::string const& key = levels()[m_entryLevels - 1].key;
    auto array = replaceHolder(std::make_unique<data::Array>());
    std::size_t const first = count - static_cast<data::Array&>(*array).get().size();
    std::size_t const index = m_handler == nullptr ? 0 : levels().front().children;
    Part part{key, index, first, std::move(array), m_listPlaces};
    if (!m_listeners.onPart(part)) {
        m_isLeft = true;
        replaceHolder(std::move(part.array));
        return;
    }
    m_given[key] = count;
    m_partStart = m_stream.Tell();
    m_listPlaces.clear();
    m_document.places.start(levels().back().holder.get());
}

/// Of the value that is read just now.
Places& ValueBuilder::places()
{
    return isInList() ? m_listPlaces : m_document.places;
}

/// Whether the document is an array whose entries are given away.
bool ValueBuilder::givesEntries() const
{
    return m_handler != nullptr && !levels().front().isObject;
}

/// Whether what is read lies in an array, of which parts are given, under a key of an entry.
bool ValueBuilder::isInList() const
{
    return m_listeners.onPart && levels().size() > m_entryLevels &&
           !levels()[m_entryLevels].isObject && levels()[m_entryLevels - 1].isObject &&
           (m_handler == nullptr || givesEntries());
}

} // namespace kiv::json
