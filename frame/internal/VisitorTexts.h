#pragma once

/// The texts that visitors note when they meet a value that they cannot read. Nobody sees them:
/// they go with the visitor.
namespace zel::kiv::common::internal {

namespace elementText {
inline constexpr char const* null = "Element must contain object data! Data is 'NULL'\n";
inline constexpr char const* boolean = "Element must contain object data! Data is 'Boolean '\n";
inline constexpr char const* integer = "Element must contain object data! Data is 'Integer'\n";
inline constexpr char const* floating = "Element must contain object data! Data is 'Float'\n";
inline constexpr char const* string = "Element must contain object data! Data is 'String'\n";
inline constexpr char const* blob = "Element must contain object data! Data is 'Blob'\n";
inline constexpr char const* array = "Element must contain object data! Data is 'Array'\n";
} // namespace elementText

// A resource takes an array and yet asks for object data, except of an object.
namespace resourceText {
inline constexpr char const* null = "Resource must contain object data! Data is 'NULL'\n";
inline constexpr char const* boolean = "Resource must contain object data! Data is 'Boolean '\n";
inline constexpr char const* integer = "Resource must contain object data! Data is 'Integer'\n";
inline constexpr char const* floating = "Resource must contain object data! Data is 'Float'\n";
inline constexpr char const* string = "Resource must contain object data! Data is 'String'\n";
inline constexpr char const* blob = "Resource must contain object data! Data is 'Blob'\n";
inline constexpr char const* object = "Resource must contain array data! Data is 'Object'\n";
} // namespace resourceText

} // namespace zel::kiv::common::internal
