#include "values/Value.h"

namespace zel::dataformats::data {

Value::~Value() = default;

} // namespace zel::dataformats::data
