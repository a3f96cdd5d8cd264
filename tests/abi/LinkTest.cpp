#include "tests/abi/Binary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <string>
#include <vector>

// How the built files are linked: what starts by itself, what the loader has to look up, what
// protects them.

namespace {

using Lines = std::vector<std::string>;

/// The line that has that word first, or nothing.
std::string lineOf(std::string const& word, Lines const& lines)
{
    auto const found = std::ranges::find_if(lines, [&](std::string const& line) {
        auto const start = line.find_first_not_of(' ');
        return start != std::string::npos && line.compare(start, word.size(), word) == 0;
    });
    return found == lines.end() ? std::string() : *found;
}

bool holds(std::string const& line, std::string const& text)
{
    return line.find(text) != std::string::npos;
}

/// Relocations that name a symbol, which the loader has to find, but for calls.
std::size_t symbolicDataRelocations(Lines const& relocations)
{
    return binary::countOf("R_X86_64_64 ", relocations) +
           binary::countOf("R_X86_64_GLOB_DAT", relocations) +
           binary::countOf("R_AARCH64_ABS64", relocations) +
           binary::countOf("R_AARCH64_GLOB_DA", relocations);
}

} // namespace

TEST(Library, HasOneUnitWithStaticInitialisation)
{
    Lines const symbols = binary::readelf("--symbols", ABI_LIBRARY);
    EXPECT_EQ(binary::countOf("_GLOBAL__sub_I_", symbols), 1U);
    EXPECT_EQ(binary::countOf("_GLOBAL__sub_I_ElementStatus.cpp", symbols), 1U);
    EXPECT_EQ(binary::countOf("_ZGV", symbols), 0U) << "statics that are made at first use";
    // One address is the compiler's own, in every library.
    EXPECT_TRUE(
        holds(lineOf("0x0000000000000019 (INIT_ARRAY)", binary::readelf("--dynamic", ABI_LIBRARY)),
              "0x"));
    EXPECT_TRUE(holds(
        lineOf("0x000000000000001b (INIT_ARRAYSZ)", binary::readelf("--dynamic", ABI_LIBRARY)),
        " 16 (bytes)"));
}

TEST(Library, LeavesTheStatusTablesAloneToTheLoader)
{
    Lines const relocations = binary::readelf("--relocs", ABI_LIBRARY);
    EXPECT_GE(binary::countOf("ELEMENTSTATUSANDSTRINGMAP", relocations), 1U);
    EXPECT_GE(binary::countOf("STRINGANDELEMENTSTATUSMAP", relocations), 1U);
    // What is left names the platform libraries and the run-time library; bound loosely, the
    // library's own names alone are more than 3,000.
    EXPECT_LE(symbolicDataRelocations(relocations), 850U);
    EXPECT_EQ(binary::countOf("_ZTVN3zel3kiv6common", relocations), 0U);
    EXPECT_EQ(lineOf("0x0000000000000016 (TEXTREL)", binary::readelf("--dynamic", ABI_LIBRARY)),
              "");
}

TEST(Library, NamesItselfByItsMajorVersion)
{
    EXPECT_TRUE(
        holds(lineOf("0x000000000000000e (SONAME)", binary::readelf("--dynamic", ABI_LIBRARY)),
              "[libzel.kiv.services.so.1]"));
}

// Otherwise that client would show nothing about copies.
TEST(Client, WithoutPositionIndependentCodeHasCopiesOfTheTables)
{
    Lines const relocations = binary::readelf("--relocs", ABI_CLIENT_WITHOUT_PIC);
    for (std::string const table : {"ELEMENTSTATUSANDSTRINGMAP", "STRINGANDELEMENTSTATUSMAP"}) {
        EXPECT_TRUE(std::ranges::any_of(relocations, [&](std::string const& line) {
            return holds(line, table) && holds(line, "_COPY");
        })) << table;
    }
}

TEST(Hardening, IsInTheBuiltFiles)
{
    for (std::string const file : {ABI_HARDENED}) {
        SCOPED_TRACE(file);
        Lines const segments = binary::readelf("--segments", file);
        EXPECT_NE(lineOf("GNU_RELRO", segments), "");
        EXPECT_TRUE(holds(lineOf("GNU_STACK", segments), " RW "));
        EXPECT_TRUE(holds(
            lineOf("0x000000006ffffffb (FLAGS_1)", binary::readelf("--dynamic", file)), "NOW"));
        EXPECT_GE(binary::countOf("__stack_chk_fail", binary::readelf("--dyn-syms", file)), 1U);
    }
}

// Fortified calls show only where a unit makes one, so the command that built each unit is read.
TEST(Library, IsFortifiedThroughout)
{
    std::ifstream commands(ABI_COMMANDS);
    std::size_t units = 0;
    for (std::string line; std::getline(commands, line);) {
        bool const isCommand =
            holds(line, "\"command\":") &&
            (holds(line, "/zel_kiv_classes.dir/") || holds(line, "/zel_kiv_frame.dir/")) &&
            !holds(line, "cmake_pch");
        if (isCommand) {
            ++units;
            EXPECT_TRUE(holds(line, "-D_FORTIFY_SOURCE=2") &&
                        holds(line, "-fstack-protector-strong"))
                << line;
        }
    }
    EXPECT_GT(units, 0U);
}
