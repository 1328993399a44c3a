#pragma once

#include <optional>
#include <string_view>

namespace platform
{

/// A function of the program's executable file.
struct ProgramSymbol {
    std::string_view name; ///< mangled
    unsigned long offset = 0;
};

/// Maps the symbol table of the program's file. The dynamic loader knows exported functions only,
/// and a program exports none. Call it once, from the main thread, before anything crashes.
void loadProgramSymbols();

/// The function that contains an address. Empty for addresses outside the program and if the
/// program is stripped. Async-signal-safe.
[[nodiscard]] std::optional<ProgramSymbol> programSymbol(const void* address);

} // namespace platform
