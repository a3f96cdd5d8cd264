#include "frame/IResourceBase.h"

namespace zel::kiv::common {

IResourceBase::IResourceBase(std::string_view resourceKey) : m_resourceKey(resourceKey) {}

IResourceBase::~IResourceBase() = default;

} // namespace zel::kiv::common
