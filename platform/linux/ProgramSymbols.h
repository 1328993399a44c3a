#pragma once

#include <optional>
#include <string_view>

namespace platform
{

/// A function of the program's own file.
struct ProgramSymbol {
    std::string_view name; ///< as the linker knows it
    unsigned long offset = 0;
};

/// Opens the program's own table of functions. The loader knows only those that are exported, which
/// of a program are none. To be called once, before anything crashes.
void loadProgramSymbols();

/// The function that an address lies in; none outside the program, or when it was stripped. Takes
/// no lock and allocates nothing.
[[nodiscard]] std::optional<ProgramSymbol> programSymbol(const void* address);

} // namespace platform
