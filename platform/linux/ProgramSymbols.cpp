#include "platform/linux/ProgramSymbols.h"

#include <cstdint>
#include <cstring>
#include <span>

#include <fcntl.h>
#include <link.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

using Symbol = ElfW(Sym);
using Section = ElfW(Shdr);

struct SymbolTable {
    std::span<const Symbol> symbols;
    std::string_view names;
    std::uintptr_t base = 0; // load address of the file's address 0
};
SymbolTable g_table;

std::span<const std::byte> mapOwnFile()
{
    const int fd = ::open("/proc/self/exe", O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return {};
    struct stat status = {};
    void* file = MAP_FAILED;
    if (::fstat(fd, &status) == 0 && status.st_size > 0)
        file = ::mmap(nullptr, static_cast<std::size_t>(status.st_size), PROT_READ, MAP_PRIVATE, fd,
                      0);
    ::close(fd);
    if (file == MAP_FAILED)
        return {};
    return {static_cast<const std::byte*>(file), static_cast<std::size_t>(status.st_size)};
}

/// An array inside the file; empty if it exceeds the file.
template <typename Entry>
std::span<const Entry> entriesAt(std::span<const std::byte> file, std::size_t offset,
                                 std::size_t count)
{
    if (offset > file.size() || count > (file.size() - offset) / sizeof(Entry))
        return {};
    return {reinterpret_cast<const Entry*>(file.data() + offset), count};
}

SymbolTable readTable(std::span<const std::byte> file)
{
    const auto header = entriesAt<ElfW(Ehdr)>(file, 0, 1);
    if (header.empty() || std::memcmp(header[0].e_ident, ELFMAG, SELFMAG) != 0)
        return {};
    const auto sections = entriesAt<Section>(file, header[0].e_shoff, header[0].e_shnum);
    for (const Section& section : sections) {
        if (section.sh_type != SHT_SYMTAB || section.sh_link >= sections.size())
            continue;
        const Section& text = sections[section.sh_link];
        const auto names = entriesAt<char>(file, text.sh_offset, text.sh_size);
        if (names.empty() || names.back() != '\0')
            continue;
        return {entriesAt<Symbol>(file, section.sh_offset, section.sh_size / sizeof(Symbol)),
                {names.data(), names.size()}};
    }
    return {};
}

} // namespace

namespace platform
{

void loadProgramSymbols()
{
    g_table = readTable(mapOwnFile());
    // The first entry is the program itself.
    ::dl_iterate_phdr(
        [](dl_phdr_info* info, std::size_t, void*) {
            g_table.base = info->dlpi_addr;
            return 1;
        },
        nullptr);
}

std::optional<ProgramSymbol> programSymbol(const void* address)
{
    const std::uintptr_t place = reinterpret_cast<std::uintptr_t>(address) - g_table.base;
    for (const Symbol& symbol : g_table.symbols) {
        if ((symbol.st_info & 0xF) != STT_FUNC || place < symbol.st_value ||
            place - symbol.st_value >= symbol.st_size || symbol.st_name >= g_table.names.size())
            continue;
        return ProgramSymbol{g_table.names.data() + symbol.st_name, place - symbol.st_value};
    }
    return std::nullopt;
}

} // namespace platform
