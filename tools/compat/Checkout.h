#pragma once

#include <filesystem>
#include <string>

namespace compat {

/// A folder as git has it in a revision, laid out in a place of its own for as long as this lives.
class Checkout {
public:
    /// Throws `kiv::Failure` if there is no such revision, if the folder is not in it, or if git is
    /// not there.
    Checkout(std::string const& folder, std::string const& revision);
    Checkout(Checkout const&) = delete;
    Checkout(Checkout&&) = delete;
    Checkout& operator=(Checkout const&) = delete;
    Checkout& operator=(Checkout&&) = delete;
    ~Checkout();

    [[nodiscard]] std::filesystem::path folder() const;

private:
    std::filesystem::path m_place;
};

} // namespace compat
