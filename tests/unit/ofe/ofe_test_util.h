// Helpers of the engine tests: an object made the way the driver makes it,
// an error log, temporary files, external tools, and a small ELF reader
// written independently of the engine.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "ofe/ofe.h"

namespace ofe_test {

struct LoggedError {
    int code;
    std::string text;
};

// Everything the handler of the current test received.
std::vector<LoggedError> &errors();
void clear_errors();
bool has_error(int code, const std::string &text_part);
// Records and clears the pending error, as the assembler's handler does.
void record_error(OFE::OBJECT_FILE *f, OFE::OF_ERROR_CODE code, const char *text);

// An ELF object as the driver sets it up: endianness, producer "Assembler",
// handler, `.symtab` with hidden default visibility. Clears the error log.
std::unique_ptr<OFE::OBJECT_FILE> make_elf(bool big_endian = false, const char *producer = "Assembler");

// A section holding `words`, a named symbol, a relocation of `type` at `offset`.
OFE::OF_SECTION *new_section(OFE::OBJECT_FILE *f, const char *name, std::initializer_list<uint32_t> words = {0});
OFE::OF_SYMBOL *new_symbol(OFE::OBJECT_FILE *f, const char *name, OFE::OF_SECTION *section = nullptr);
OFE::OF_RELOC *new_reloc(OFE::OBJECT_FILE *f, OFE::OF_SECTION *s, unsigned type, OFE::OF_SYMBOL *sym = nullptr,
                         uint64_t offset = 0);

std::string temp_path(const std::string &name);
std::vector<unsigned char> read_file(const std::string &path);
void write_file(const std::string &path, const std::string &contents);

struct RunResult {
    int status = -1;
    std::string out, err;
};
RunResult run(const std::string &command);

// Reader of 32-bit ELF files.
struct Shdr {
    std::string name;
    uint32_t sh_name, sh_type, sh_flags, sh_addr, sh_offset, sh_size, sh_link, sh_info, sh_addralign, sh_entsize;
};

struct Sym {
    std::string name;
    uint32_t st_name, st_value, st_size;
    uint8_t st_info, st_other;
    uint16_t st_shndx;
};

struct Rel {
    uint32_t offset, info;
    int32_t addend;
    bool operator==(const Rel &) const = default;
};

struct Elf {
    std::vector<unsigned char> bytes;
    bool big = false;
    std::vector<Shdr> sections;

    uint32_t u32(std::size_t off) const;
    uint16_t u16(std::size_t off) const;
    const Shdr *find(const std::string &name) const;
    int index_of(const std::string &name) const;
    std::vector<unsigned char> contents(const Shdr &s) const;
    std::vector<Sym> symbols() const;
    std::vector<Rel> relocs(const Shdr &s) const;
    std::vector<std::string> section_names() const;
};

Elf parse_elf(const std::string &path);
// Saves `f` under `name` in the temporary directory and reads it back.
Elf save_and_parse(OFE::OBJECT_FILE *f, const std::string &name);

// One object with a bit of everything, built through the engine's interface
// in the order the assembler uses.
struct TypicalObject {
    std::unique_ptr<OFE::OBJECT_FILE> file;
    OFE::OF_SECTION *text = nullptr, *data = nullptr, *bss = nullptr, *user = nullptr, *debug = nullptr,
                    *inl = nullptr, *group = nullptr;
    OFE::OF_SYMBOL *main_sym = nullptr, *loop = nullptr, *weak = nullptr, *ext = nullptr, *common = nullptr,
                   *inl_sym = nullptr;
};

TypicalObject build_typical(bool big_endian);

}  // namespace ofe_test
