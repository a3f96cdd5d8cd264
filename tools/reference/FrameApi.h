#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// What the headers of the frame say of themselves.
namespace reference {

/// An operation of a class, or a constant beside it.
struct Operation {
    std::string name;
    std::string before; ///< what stands before the name in its declaration
    std::string after;
    std::string about; ///< HTML
};

/// One of the values of an enumeration.
struct Value {
    std::string name;
    std::string number;
    std::string about; ///< HTML
};

/// A class or an enumeration.
struct Type {
    std::string name;   ///< below the root namespace: `IObjectBase`, `radio::Presets`
    std::string header; ///< `frame/IObjectBase.h`
    std::string about;  ///< HTML
    std::vector<Value> values;
    std::vector<Operation> operations;
};

/// The types of these names, as Doxygen read their headers and wrote them to `folder` as XML. Of
/// their operations those of which a class has something of its own to say, but no constructors.
/// Throws `std::runtime_error` if a file cannot be read or a name is missing.
std::vector<Type> readTypes(std::filesystem::path const& folder,
                            std::vector<std::string_view> const& names);

/// The constants of the root namespace.
std::vector<Operation> readConstants(std::filesystem::path const& folder);

} // namespace reference
