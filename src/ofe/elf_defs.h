// ELF numbers and records as published, for the 32-bit class.
#pragma once

#include <cstdint>

namespace OFE {

inline constexpr unsigned EI_NIDENT = 16;
inline constexpr unsigned EI_CLASS = 4;
inline constexpr unsigned EI_DATA = 5;
inline constexpr unsigned EI_VERSION = 6;
inline constexpr unsigned EI_OSABI = 7;
inline constexpr unsigned char ELFCLASS32 = 1;
inline constexpr unsigned char ELFDATA2LSB = 1;
inline constexpr unsigned char ELFDATA2MSB = 2;
inline constexpr unsigned char EV_CURRENT = 1;

inline constexpr uint16_t ET_NONE = 0;
inline constexpr uint16_t ET_REL = 1;
inline constexpr uint16_t ET_EXEC = 2;
inline constexpr uint16_t ET_DYN = 3;
inline constexpr uint16_t ET_CORE = 4;
inline constexpr uint16_t ET_ZQ_STATIC_SHARED = 0xE001;

inline constexpr uint32_t SHT_NULL = 0;
inline constexpr uint32_t SHT_PROGBITS = 1;
inline constexpr uint32_t SHT_SYMTAB = 2;
inline constexpr uint32_t SHT_STRTAB = 3;
inline constexpr uint32_t SHT_RELA = 4;
inline constexpr uint32_t SHT_HASH = 5;
inline constexpr uint32_t SHT_DYNAMIC = 6;
inline constexpr uint32_t SHT_NOTE = 7;
inline constexpr uint32_t SHT_NOBITS = 8;
inline constexpr uint32_t SHT_REL = 9;
inline constexpr uint32_t SHT_DYNSYM = 11;
inline constexpr uint32_t SHT_INIT_ARRAY = 14;
inline constexpr uint32_t SHT_FINI_ARRAY = 15;
inline constexpr uint32_t SHT_PREINIT_ARRAY = 16;
inline constexpr uint32_t SHT_GROUP = 17;
inline constexpr uint32_t SHT_SYMTAB_SHNDX = 18;
inline constexpr uint32_t SHT_ARM_EXIDX = 0x70000001;
inline constexpr uint32_t SHT_ARM_ATTRIBUTES = 0x70000003;
inline constexpr uint32_t SHT_ZQ_SYMTAB_META = 0x6FFF4C0E;
inline constexpr uint32_t SHT_ZQ_SECTION_FLAGS = 0x7F000005;
inline constexpr uint32_t SHT_ZQ_SYMBOL_ALIAS = 0x7F000006;
inline constexpr uint32_t SHT_ZQ_SECTION_PAGE = 0x7F000007;

inline constexpr uint32_t SHF_WRITE = 0x1;
inline constexpr uint32_t SHF_ALLOC = 0x2;
inline constexpr uint32_t SHF_EXECINSTR = 0x4;
inline constexpr uint32_t SHF_MERGE = 0x10;
inline constexpr uint32_t SHF_STRINGS = 0x20;
inline constexpr uint32_t SHF_INFO_LINK = 0x40;
inline constexpr uint32_t SHF_LINK_ORDER = 0x80;
inline constexpr uint32_t SHF_GROUP = 0x200;
inline constexpr uint32_t SHF_TLS = 0x400;

inline constexpr uint32_t GRP_COMDAT = 1;

inline constexpr uint16_t SHN_UNDEF = 0;
inline constexpr uint16_t SHN_LORESERVE = 0xFF00;
inline constexpr uint16_t SHN_ABS = 0xFFF1;
inline constexpr uint16_t SHN_COMMON = 0xFFF2;
inline constexpr uint16_t SHN_XINDEX = 0xFFFF;
inline constexpr unsigned SHN_MAX_DIRECT = 0xFEFF;

inline constexpr unsigned char STB_LOCAL = 0;
inline constexpr unsigned char STB_GLOBAL = 1;
inline constexpr unsigned char STB_WEAK = 2;
inline constexpr unsigned char STV_DEFAULT = 0;
inline constexpr unsigned char STV_INTERNAL = 1;
inline constexpr unsigned char STV_HIDDEN = 2;
inline constexpr unsigned char STV_PROTECTED = 3;

struct Elf32_Ehdr {
    unsigned char e_ident[EI_NIDENT];
    uint16_t e_type;
    uint16_t e_machine;
    uint32_t e_version;
    uint32_t e_entry;
    uint32_t e_phoff;
    uint32_t e_shoff;
    uint32_t e_flags;
    uint16_t e_ehsize;
    uint16_t e_phentsize;
    uint16_t e_phnum;
    uint16_t e_shentsize;
    uint16_t e_shnum;
    uint16_t e_shstrndx;
};

struct Elf32_Shdr {
    uint32_t sh_name;
    uint32_t sh_type;
    uint32_t sh_flags;
    uint32_t sh_addr;
    uint32_t sh_offset;
    uint32_t sh_size;
    uint32_t sh_link;
    uint32_t sh_info;
    uint32_t sh_addralign;
    uint32_t sh_entsize;
};

struct Elf32_Sym {
    uint32_t st_name;
    uint32_t st_value;
    uint32_t st_size;
    unsigned char st_info;
    unsigned char st_other;
    uint16_t st_shndx;
};

template <int BITS>
struct ELF_TRAITS;

template <>
struct ELF_TRAITS<32> {
    using Ehdr = Elf32_Ehdr;
    using Shdr = Elf32_Shdr;
    using Sym = Elf32_Sym;
    using Addr = uint32_t;
    using Word = uint32_t;
    static constexpr unsigned char elf_class = ELFCLASS32;
    static constexpr unsigned ehdr_size = 52;
    static constexpr unsigned phdr_size = 32;
    static constexpr unsigned shdr_size = 40;
    static constexpr unsigned sym_size = 16;
    static constexpr unsigned rel_size = 8;
    static constexpr unsigned rela_size = 12;
    static constexpr unsigned align = 4;
    static constexpr unsigned r_sym_shift = 8;
    static constexpr uint32_t r_type_mask = 0xFF;
};

}  // namespace OFE
