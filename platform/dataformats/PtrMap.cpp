#include "values/PtrMap.h"

#include "values/Value.h" // says that the type is seen outside, and so is what is made for it

namespace zel::common::types {

template <typename K, typename V>
auto PtrMap<K, V>::find(K const& key) const noexcept -> const_iterator
{
    return m_entries.find(key);
}

template class PtrMap<std::string, zel::dataformats::data::Value>;

} // namespace zel::common::types
