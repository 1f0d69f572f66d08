#include "ofe/elf_symbol.h"

#include "ofe/elf_file.h"

namespace OFE {

ELF_SYMBOL::ELF_SYMBOL(ELF_SYMBOL_TABLE *table, unsigned id) : OF_SYMBOL(table, id) {}

ELF_SYMBOL::~ELF_SYMBOL() = default;

ELF_SYMBOL_TABLE *ELF_SYMBOL::elf_table() const { return static_cast<ELF_SYMBOL_TABLE *>(table()); }

bool ELF_SYMBOL::begin_change()
{
    elf_table()->max_state(OFS_LOCKED);
    return true;
}

void ELF_SYMBOL::end_change()
{
    if (elf_table()->state() == OFS_LOCKED) elf_table()->patch_raw_data(this);
}

void ELF_SYMBOL::set_null()
{
    set_name_raw(nullptr);
    set_st_name(0);
    set_st_value(0);
    set_st_size(0);
    set_st_info(0);
    set_st_other(0);
    set_st_shndx(0);
    xindex_m = 0;
}

void ELF_SYMBOL::set_name(const char *name) { OF_SYMBOL::set_name(name); }

void ELF_SYMBOL::set_value(uint64_t v)
{
    begin_change();
    set_st_value(v);
    end_change();
}

void ELF_SYMBOL::set_size(uint64_t s)
{
    begin_change();
    set_st_size(s);
    end_change();
}

bool ELF_SYMBOL::refs_section() const
{
    uint16_t n = st_shndx();
    return n == SHN_XINDEX || (n >= 1 && n <= SHN_MAX_DIRECT);
}

unsigned ELF_SYMBOL::section_id() const { return st_shndx() == SHN_XINDEX ? xindex_m : st_shndx(); }

void ELF_SYMBOL::set_section_id(unsigned id)
{
    begin_change();
    if (id > SHN_MAX_DIRECT) {
        xindex_m = id;
        set_st_shndx(SHN_XINDEX);
    } else {
        xindex_m = 0;
        set_st_shndx(static_cast<uint16_t>(id));
    }
    end_change();
}

OF_SYM_KIND ELF_SYMBOL::kind() const
{
    if (refs_section()) return OFK_DEFINED;
    OF_SYM_KIND k = OFK_UNKNOWN;
    const OF_MACHINE_DB *db = ofile() ? ofile()->machine_db() : nullptr;
    if (db && db->elf_sym_kind(this, k)) return k;
    switch (st_shndx()) {
    case SHN_UNDEF: return OFK_UNDEFINED;
    case SHN_ABS: return OFK_ABSOLUTE;
    case SHN_COMMON: return OFK_COMMON;
    default: return OFK_UNKNOWN;
    }
}

void ELF_SYMBOL::set_kind(OF_SYM_KIND k)
{
    uint16_t shndx;
    switch (k) {
    case OFK_UNDEFINED: shndx = SHN_UNDEF; break;
    case OFK_ABSOLUTE: shndx = SHN_ABS; break;
    case OFK_COMMON: shndx = SHN_COMMON; break;
    case OFK_DEFINED:
        ofile()->set_error(OFERR_ILLEGAL_OP,
                           "To mark a symbol as being defined, you must use set_section_id() to set its "
                           "section reference");
        return;
    default: ofile()->set_error(OFERR_ILLEGAL_OP, "Invalid symbol kind %x", static_cast<unsigned>(k)); return;
    }
    begin_change();
    xindex_m = 0;
    set_st_shndx(shndx);
    end_change();
}

OF_SYM_BINDING ELF_SYMBOL::binding() const
{
    switch (st_info() >> 4) {
    case STB_LOCAL: return OFB_LOCAL;
    case STB_GLOBAL: return OFB_GLOBAL;
    case STB_WEAK: return OFB_WEAK;
    default: return OFB_UNKNOWN;
    }
}

void ELF_SYMBOL::set_binding(OF_SYM_BINDING b)
{
    unsigned char v;
    switch (b) {
    case OFB_LOCAL: v = STB_LOCAL; break;
    case OFB_GLOBAL: v = STB_GLOBAL; break;
    case OFB_WEAK: v = STB_WEAK; break;
    default:
        ofile()->set_error(OFERR_ILLEGAL_OP, "Invalid symbol binding value 0x%x", static_cast<unsigned>(b));
        return;
    }
    begin_change();
    set_st_info(static_cast<unsigned char>((v << 4) | (st_info() & 0xF)));
    end_change();
}

OF_SYM_TYPE ELF_SYMBOL::type() const { return static_cast<OF_SYM_TYPE>(st_info() & 0xF); }

void ELF_SYMBOL::set_type(OF_SYM_TYPE t)
{
    if (static_cast<unsigned>(t) > OFY_TLS) {
        ofile()->set_error(OFERR_ILLEGAL_OP, "Invalid symbol type value 0x%x", static_cast<unsigned>(t));
        return;
    }
    begin_change();
    set_st_info(static_cast<unsigned char>((st_info() & 0xF0) | static_cast<unsigned>(t)));
    end_change();
}

void ELF_SYMBOL::set_visibility(unsigned char v)
{
    begin_change();
    set_st_other(static_cast<unsigned char>((st_other() & ~3u) | (v & 3u)));
    end_change();
}

// ---- meta information -----------------------------------------------------------

void ELF_SYMBOL::init_metainfo()
{
    if (!meta_m) meta_m = std::make_unique<ELF_SYM_META>();
}

void ELF_SYMBOL::set_retained(bool on)
{
    init_metainfo();
    meta_m->retained = on;
}

void ELF_SYMBOL::set_location(uint64_t addr)
{
    init_metainfo();
    meta_m->has_location = true;
    meta_m->location = addr;
}

void ELF_SYMBOL::set_noinit(bool on)
{
    init_metainfo();
    meta_m->noinit = on;
}

void ELF_SYMBOL::set_preserve(bool on)
{
    init_metainfo();
    meta_m->preserve = on;
}

void ELF_SYMBOL::set_update(bool on)
{
    init_metainfo();
    meta_m->update = on;
}

void ELF_SYMBOL::set_optprintf_formatstr(const char *s)
{
    init_metainfo();
    meta_m->has_formatstr = true;
    meta_m->formatstr = s ? s : "";
}

const char *ELF_SYMBOL::optprintf_formatstr() const
{
    return has_optprintf_formatstr() ? meta_m->formatstr.c_str() : nullptr;
}

void ELF_SYMBOL::add_to_optprintf_forward(const char *s)
{
    init_metainfo();
    meta_m->forward.emplace_back(s ? s : "");
}

const std::vector<std::string> *ELF_SYMBOL::optprintf_forward() const
{
    return meta_m ? &meta_m->forward : nullptr;
}

void ELF_SYMBOL::set_user_section_name(const char *s)
{
    init_metainfo();
    meta_m->has_user_section_name = true;
    meta_m->user_section_name = s ? s : "";
}

const char *ELF_SYMBOL::user_section_name() const
{
    return has_user_section_name() ? meta_m->user_section_name.c_str() : nullptr;
}

void ELF_SYMBOL::write_metainfo(DATA_MAP &out) const
{
    if (!meta_m) return;
    const auto sym = id();
    auto flag = [&](unsigned tag) {
        out.ULEB128_write(tag);
        out.ULEB128_write(1);
        out.ULEB128_write(sym);
    };
    auto text = [&](unsigned tag, const std::string &s) {
        out.ULEB128_write(tag);
        out.string_write(s.c_str());
        out.ULEB128_write(sym);
    };
    if (meta_m->retained) flag(SMK_RETAIN);
    if (meta_m->has_location) {
        out.ULEB128_write(SMK_LOCATION);
        out.ULEB128_write(static_cast<unsigned>(meta_m->location));
        out.ULEB128_write(sym);
    }
    if (meta_m->noinit) flag(SMK_NOINIT);
    if (meta_m->has_formatstr) text(SMK_OPTPRINTF_FORMATSTR, meta_m->formatstr);
    for (const std::string &f : meta_m->forward) text(SMK_OPTPRINTF_FORWARD, f);
    if (meta_m->preserve) flag(SMK_PRESERVE);
    if (meta_m->update) flag(SMK_UPDATE);
    if (meta_m->has_user_section_name) text(SMK_USER_SECTION_NAME, meta_m->user_section_name);
}

// ---- 32-bit record ----------------------------------------------------------------

template <int BITS>
void ELF_SYMBOL_IMPL<BITS>::set_st_value(uint64_t v)
{
    sym_m.st_value = static_cast<typename ELF_TRAITS<BITS>::Addr>(v);
}

template <int BITS>
void ELF_SYMBOL_IMPL<BITS>::set_st_size(uint64_t v)
{
    sym_m.st_size = static_cast<typename ELF_TRAITS<BITS>::Word>(v);
}

template <int BITS>
void ELF_SYMBOL_IMPL<BITS>::write_elf_symbol(DATA_MAP &out) const
{
    out.UINT32_write(sym_m.st_name);
    out.UINT32_write(sym_m.st_value);
    out.UINT32_write(sym_m.st_size);
    out.UINT8_write(sym_m.st_info);
    out.UINT8_write(sym_m.st_other);
    out.UINT16_write(sym_m.st_shndx);
}

template class ELF_SYMBOL_IMPL<32>;

}  // namespace OFE
