#include "ofe/of_machine.h"

#include <cstring>
#include <string_view>

#include "ofe/elf_file.h"
#include "ofe/object_file.h"

namespace OFE {

std::unique_ptr<OF_MACHINE_DB> OF_MACHINE_DB::machine_db(OBJECT_FILE *ofile, OF_MACHINE machine)
{
    if (machine == OFM_ARM) return std::make_unique<ARM_MACHINE_DB>(ofile);
    return nullptr;
}

OF_ENDIAN OF_MACHINE_DB::of_section_endian(const OF_SECTION *) const
{
    return ofile_m ? ofile_m->machine_endian() : OFE_LITTLE;
}

namespace {

ELF_SECTION *elf_section_of(OBJECT_FILE *f, const OF_SECTION *section)
{
    auto *s = dynamic_cast<const ELF_SECTION *>(section);
    if (!s) {
        if (f) f->set_error(OFERR_INTERNAL, "Not an ELF section");
        return nullptr;
    }
    return const_cast<ELF_SECTION *>(s);
}

bool single_flag(OBJECT_FILE *f, uint32_t flag)
{
    if (flag & (flag - 1)) {
        if (f) f->set_error(OFERR_ILLEGAL_OP, "zq_flag() called with more than one flag specified");
        return false;
    }
    return flag != 0;
}

}  // namespace

bool OF_MACHINE_DB::is_zq_sh_flag_set(const OF_SECTION *section, uint32_t flag)
{
    ELF_SECTION *s = elf_section_of(ofile_m, section);
    if (!s || !single_flag(ofile_m, flag)) return false;
    return (s->zq_sh_flags() & flag) != 0;
}

void OF_MACHINE_DB::set_zq_sh_flag(OF_SECTION *section, uint32_t flag, bool on)
{
    ELF_SECTION *s = elf_section_of(ofile_m, section);
    if (!s || !single_flag(ofile_m, flag)) return;
    s->set_zq_sh_flags(on ? s->zq_sh_flags() | flag : s->zq_sh_flags() & ~flag);
}

unsigned OF_MACHINE_DB::elf_near_common_shndx()
{
    if (ofile_m) ofile_m->set_error(OFERR_INTERNAL, "machine doesn't support \"near\" common blocks");
    return 0;
}

bool OF_MACHINE_DB::of_supports_build_attributes(const OBJECT_FILE *, bool &supported) const
{
    supported = false;
    return true;
}

bool OF_MACHINE_DB::elf_special_section_name(ELF_SECTION_TABLE *, const char *, std::string &) const
{
    return false;
}

bool OF_MACHINE_DB::elf_gnu_symver(const OBJECT_FILE *file, bool &on) const
{
    auto *elf = dynamic_cast<const ELF_FILE *>(file);
    if (!elf) return false;
    on = elf->e_ident_entry(EI_OSABI) == 64;
    return true;
}

void OF_MACHINE_DB::elf_set_gnu_symver(OBJECT_FILE *file, bool on)
{
    auto *elf = dynamic_cast<ELF_FILE *>(file);
    if (!elf) return;
    elf->max_state(OFS_LOCKED);
    elf->set_e_ident_entry(EI_OSABI, on ? 64 : 0);
}

const char *OF_MACHINE_DB::elf_zq_sh_flag_name(uint32_t flag) const
{
    switch (flag) {
    case ZQ_SHF_NONE: return "ZQ_SHF_NONE";
    case ZQ_SHF_INVALID: return "ZQ_SHF_INVALID";
    case ZQ_SHF_RETAIN: return "ZQ_SHF_RETAIN";
    case ZQ_SHF_BOUND: return "ZQ_SHF_BOUND";
    case ZQ_SHF_RETAINREFS: return "ZQ_SHF_RETAINREFS";
    case ZQ_SHF_NOINIT: return "ZQ_SHF_NOINIT";
    case ZQ_SHF_PRESERVE: return "ZQ_SHF_PRESERVE";
    case ZQ_SHF_UPDATE: return "ZQ_SHF_UPDATE";
    default: return nullptr;
    }
}

// ---- ARM ---------------------------------------------------------------------

namespace {

const ELF_SPECIAL_SECTION ARM_SPECIAL_SECTION_DB[] = {
    {".ARM.exidx", SHT_ARM_EXIDX, 8, SHF_ALLOC | SHF_LINK_ORDER, 0},
    {".ARM.extab", SHT_PROGBITS, 0, SHF_ALLOC, 0},
    {".ARM.preemptmap", SHT_PROGBITS, 0, SHF_ALLOC, 0},
    {".ZQ.phattrs", SHT_PROGBITS, 0, 0, 0},
    {nullptr, 0, 0, 0, 0},
};

// Unwind tables merge to one name at link time.
constexpr const char *ARM_UNWIND_PREFIXES[] = {
    ".rel.ARM.exidx", ".rela.ARM.exidx", ".rel.ARM.extab", ".rela.ARM.extab", ".ARM.exidx", ".ARM.extab",
};

}  // namespace

void ARM_MACHINE_DB::of_process_new_ofile()
{
    OBJECT_FILE *f = ofile();
    if (f && f->format() == OFF_ELF && !f->file_handle() && !f->saved()) set_eabi_version(5);
}

bool ARM_MACHINE_DB::elf_special_section_name(ELF_SECTION_TABLE *, const char *name,
                                              std::string &out) const
{
    static const std::pair<const char *, const char *> names[] = {
        {".gnu.version", ".ARM_versym"},
        {".gnu.version_d", ".ARM_verdef"},
        {".gnu.version_r", ".ARM_verneed"},
        {"__ZQ_build_attributes", ".ARM.attributes"},
    };
    if (!name) return false;
    for (const auto &[from, to] : names) {
        if (std::strcmp(name, from) == 0) {
            out = to;
            return true;
        }
    }
    return false;
}

void ARM_MACHINE_DB::elf_lock_section_table(ELF_SECTION_TABLE *table)
{
    for (unsigned i = 1; i < table->scnnum(); ++i) {
        OF_SECTION *s = table->section(i);
        if (!s || s->is_deleted()) continue;
        std::string_view name = s->name();
        for (const char *prefix : ARM_UNWIND_PREFIXES) {
            if (name.starts_with(prefix)) {
                if (name.size() != std::strlen(prefix)) s->set_name(prefix);
                break;
            }
        }
    }
}

void ARM_MACHINE_DB::elf_build_special_section_hash(ELF_SPECIAL_SECTION_MAP &map) const
{
    for (const ELF_SPECIAL_SECTION *row = ARM_SPECIAL_SECTION_DB; row->name; ++row) map[row->name] = *row;
}

const char *ARM_MACHINE_DB::elf_zq_sh_attr_name(int attr) const
{
    switch (attr) {
    case 0: return ".ZQ.section.flags";
    case 1: return ".ZQ.section.page";
    case 2: return ".ZQ.phattrs";
    default: return nullptr;
    }
}

void ARM_MACHINE_DB::rel_build_type_table(OF_RELOC_TYPE_TABLE &table)
{
    for (const OF_RELOC_TEMPLATE *t = OF_ARM_RELOC_TEMPLATE_DB; t->id != ~0u; ++t) table.add_template(*t);
    OBJECT_FILE *f = ofile();
    if (!f) return;
    auto add_rows = [&](const OF_RELOC_TYPE_ROW *rows) {
        for (const OF_RELOC_TYPE_ROW *row = rows; row->number != ~0u; ++row) {
            if (!table.add_type(*row))
                f->set_error(OFERR_WARNING, "cannot find relocation template %ld for %s relocation type %s (%ld)",
                             static_cast<long>(row->template_id), OBJECT_FILE::machine_name(machine()),
                             row->name, static_cast<long>(row->number));
        }
    };
    if (f->format() == OFF_ELF) {
        add_rows(OF_ARM_ELF_RELOC_TYPE_DB);
    } else {
        add_rows(OF_COMMON_ZQCOFF_RELOC_TYPE_DB);
        add_rows(OF_ARM_ZQCOFF_RELOC_TYPE_DB);
    }
}

void ARM_MACHINE_DB::set_eabi_version(unsigned char v)
{
    auto *elf = dynamic_cast<ELF_FILE *>(ofile());
    if (!elf) return;
    elf->clear_e_flags(0xFF000000u);
    elf->set_e_flags(static_cast<uint32_t>(v) << 24);
}

unsigned char ARM_MACHINE_DB::eabi_version() const
{
    auto *elf = dynamic_cast<const ELF_FILE *>(ofile());
    return elf ? static_cast<unsigned char>(elf->e_flags() >> 24) : 0;
}

}  // namespace OFE
