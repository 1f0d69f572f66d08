// Relocation vocabulary: format-independent templates, and the types that
// bind a template to the number a file format stores.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

#include "ofe/of_types.h"

namespace OFE {

// Template flag bits.
inline constexpr uint32_t OFRF_PCREL = 0x1;
inline constexpr uint32_t OFRF_UNARY = 0x2;
inline constexpr uint32_t OFRF_SYMREL = 0x4;
inline constexpr uint32_t OFRF_OPERATOR = 0x8;
inline constexpr uint32_t OFRF_PUSH = 0x10;
inline constexpr uint32_t OFRF_LDFLD = 0x20;
inline constexpr uint32_t OFRF_STFLD = 0x40;
inline constexpr uint32_t OFRF_MARKER = 0x80;
inline constexpr uint32_t OFRF_FLDREL = 0x100;
inline constexpr uint32_t OFRF_CONST = 0x200;
inline constexpr uint32_t OFRF_SPC = 0x400;
inline constexpr uint32_t OFRF_DISP = 0x800;
inline constexpr uint32_t OFRF_ADDEND = 0x80000000u;

enum OF_RELOC_OVERFLOW : uint32_t { OFRO_NONE = 0, OFRO_SIGNED = 1, OFRO_UNSIGNED = 2, OFRO_EITHER = 3 };

struct OF_RELOC_TEMPLATE {
    uint32_t id;
    const char *name;
    uint32_t flags;
    uint32_t pc_mask;
    uint32_t overflow;
    uint32_t field_size;
    uint32_t field_offset;
    uint32_t container_size;
    uint8_t scale;
};

// Template ids that the engine and the assembler name directly.
enum OF_RELOC_TEMPLATE_ID : uint32_t {
    OFR_NO_TEMPLATE = 0,
    OFR_OBSOLETE = 1,
    OFR_NONE = 0x100,
    OFR_ABS = 0x101,
    OFRE_ADD = 0x102,
    OFRE_SUB,
    OFRE_NEG,
    OFRE_MPY,
    OFRE_DIV,
    OFRE_MOD,
    OFRE_SR,
    OFRE_ASR,
    OFRE_SL,
    OFRE_AND,
    OFRE_OR,
    OFRE_XOR,
    OFRE_NOTB = 0x10E,
    OFRE_ULDFLD = 0x10F,
    OFRE_SLDFLD = 0x110,
    OFRE_USTFLD = 0x111,
    OFRE_SSTFLD = 0x112,
    OFRE_PUSH = 0x113,
    OFRE_PUSHSK = 0x114,
    OFRE_PUSHUK = 0x115,
    OFRE_PUSHPC = 0x116,
    OFRE_DUP = 0x117,
    OFRE_XSTFLD = 0x118,
    OFRM_RANGE = 0x119,
    OFRM_OBJ = 0x11A,
    OFRM_DWARF_LENGTH = 0x11B,
    OFR_RELBYTE = 0x11C,
    OFR_RELWORD = 0x11D,
    OFR_RELLONG = 0x11E,
    OFR_PCRBYTE = 0x11F,
    OFR_PCRWORD = 0x120,
    OFR_PCRLONG = 0x121,
    OFR_ABS64 = 0x122,

    OFR_ARM_PC24 = 0x300,
    OFR_ARM_LDR_PC_G0,
    OFR_ARM_ABS12,
    OFR_ARM_THM_ABS5,
    OFR_ARM_ABS8,
    OFR_ARM_SBREL32,
    OFR_ARM_THM_CALL,
    OFR_ARM_THM_PC8,
    OFR_ARM_BASE_PREL,
    OFR_ARM_PLT32,
    OFR_ARM_CALL,
    OFR_ARM_JUMP24,
    OFR_ARM_THM_JUMP24,
    OFR_ARM_BASE_ABS,
    OFR_ARM_LDR_SBREL_11_0_NC,
    OFR_ARM_ALU_SBREL_19_12_NC,
    OFR_ARM_ALU_SBREL_27_20_CK,
    OFR_ARM_TARGET1,
    OFR_ARM_SBREL31,
    OFR_ARM_V4BX,
    OFR_ARM_TARGET2,
    OFR_ARM_PREL31,
    OFR_ARM_MOVW_ABS_NC,
    OFR_ARM_MOVT_ABS,
    OFR_ARM_MOVW_PREL_NC,
    OFR_ARM_MOVT_PREL,
    OFR_ARM_THM_MOVW_ABS_NC,
    OFR_ARM_THM_MOVT_ABS,
    OFR_ARM_THM_MOVW_PREL_NC,
    OFR_ARM_THM_MOVT_PREL,
    OFR_ARM_THM_JUMP19,
    OFR_ARM_THM_JUMP6,
    OFR_ARM_THM_ALU_PREL_11_0,
    OFR_ARM_THM_PC12,
    OFR_ARM_ABS32_NOI,
    OFR_ARM_REL32_NOI,
    OFR_ARM_ALU_PC_G0_NC,
    OFR_ARM_ALU_PC_G0,
    OFR_ARM_ALU_PC_G1_NC,
    OFR_ARM_ALU_PC_G1,
    OFR_ARM_ALU_PC_G2,
    OFR_ARM_LDR_PC_G1,
    OFR_ARM_LDR_PC_G2,
    OFR_ARM_LDRS_PC_G0,
    OFR_ARM_LDRS_PC_G1,
    OFR_ARM_LDRS_PC_G2,
    OFR_ARM_LDC_PC_G0,
    OFR_ARM_LDC_PC_G1,
    OFR_ARM_LDC_PC_G2,
    OFR_ARM_ALU_SB_G0_NC,
    OFR_ARM_ALU_SB_G0,
    OFR_ARM_ALU_SB_G1_NC,
    OFR_ARM_ALU_SB_G1,
    OFR_ARM_ALU_SB_G2,
    OFR_ARM_LDR_SB_G0,
    OFR_ARM_LDR_SB_G1,
    OFR_ARM_LDR_SB_G2,
    OFR_ARM_LDRS_SB_G0,
    OFR_ARM_LDRS_SB_G1,
    OFR_ARM_LDRS_SB_G2,
    OFR_ARM_LDC_SB_G0,
    OFR_ARM_LDC_SB_G1,
    OFR_ARM_LDC_SB_G2,
    OFR_ARM_MOVW_BREL_NC,
    OFR_ARM_MOVT_BREL,
    OFR_ARM_MOVW_BREL,
    OFR_ARM_THM_MOVW_BREL_NC,
    OFR_ARM_THM_MOVT_BREL,
    OFR_ARM_THM_MOVW_BREL,
    OFR_ARM_PLT32_ABS,
    OFR_ARM_GOT_ABS,
    OFR_ARM_GOT_PREL,
    OFR_ARM_THM_JUMP11,
    OFR_ARM_THM_JUMP8,
    OFR_ARM_THM_ALU_ABS_G0_NC,
    OFR_ARM_THM_ALU_ABS_G1_NC,
    OFR_ARM_THM_ALU_ABS_G2_NC,
    OFR_ARM_THM_ALU_ABS_G3,  // 0x34D
};

// A row of a format's relocation table, as written in the static tables.
struct OF_RELOC_TYPE_ROW {
    const char *name;
    uint32_t number;
    uint32_t template_id;
};

class OF_RELOC_TYPE {
public:
    OF_RELOC_TYPE(const char *name, uint32_t number, uint32_t template_id,
                  const OF_RELOC_TEMPLATE *tmpl)
        : name_m(name), number_m(number), template_id_m(template_id), template_m(tmpl) {}

    const char *name() const { return name_m; }
    uint32_t number() const { return number_m; }
    uint32_t template_id() const { return template_id_m; }
    const OF_RELOC_TEMPLATE *reloc_template() const { return template_m; }
    const char *template_name() const { return template_m ? template_m->name : nullptr; }

    bool is_pcrel() const { return has(OFRF_PCREL); }
    bool is_unary() const { return has(OFRF_UNARY); }
    bool is_symrel() const { return has(OFRF_SYMREL); }
    bool is_binary() const { return has(OFRF_OPERATOR) && !has(OFRF_UNARY); }
    bool is_push() const { return has(OFRF_PUSH); }
    bool is_ldfld() const { return has(OFRF_LDFLD); }
    bool is_stfld() const { return has(OFRF_STFLD); }
    bool is_marker() const { return has(OFRF_MARKER); }
    bool is_fldrel() const { return has(OFRF_FLDREL); }
    bool is_const() const { return has(OFRF_CONST); }
    bool is_spc() const { return has(OFRF_SPC); }
    bool is_disp() const { return has(OFRF_DISP); }
    bool is_rela() const { return has(OFRF_DISP) || has(OFRF_ADDEND); }

    uint32_t flags() const { return template_m ? template_m->flags : 0; }
    uint32_t overflow() const { return template_m ? template_m->overflow : 0; }
    uint32_t field_size() const { return template_m ? template_m->field_size : 0; }
    uint32_t field_offset() const { return template_m ? template_m->field_offset : 0; }
    uint32_t container_size() const { return template_m ? template_m->container_size : 0; }
    uint32_t scale() const { return template_m ? template_m->scale : 0; }
    uint32_t pc_mask() const { return template_m ? template_m->pc_mask : ~0u; }

private:
    bool has(uint32_t f) const { return template_m && (template_m->flags & f) != 0; }

    const char *name_m;
    uint32_t number_m;
    uint32_t template_id_m;
    const OF_RELOC_TEMPLATE *template_m;
};

// One table per (machine, format), shared by every file of that kind.
class OF_RELOC_TYPE_TABLE {
public:
    void add_template(const OF_RELOC_TEMPLATE &t);
    // Returns false when a row names a template that is not there.
    bool add_type(const OF_RELOC_TYPE_ROW &row);

    const OF_RELOC_TEMPLATE *find_template(uint32_t id) const;
    const OF_RELOC_TYPE *by_template_id(uint32_t id) const;
    const OF_RELOC_TYPE *by_template_name(const char *name) const;
    const OF_RELOC_TYPE *by_number(uint32_t number) const;
    std::size_t type_count() const { return types_m.size(); }

private:
    std::map<uint32_t, std::unique_ptr<OF_RELOC_TEMPLATE>> templates_m;
    std::vector<std::unique_ptr<OF_RELOC_TYPE>> types_m;
    std::map<uint32_t, const OF_RELOC_TYPE *> by_id_m;
    std::map<uint32_t, const OF_RELOC_TYPE *> by_number_m;
};

// The shared record for "no such relocation type".
const OF_RELOC_TYPE *invalid_reloc_type();

// Static tables; each ends with a row whose id or number is all ones.
extern const OF_RELOC_TEMPLATE OF_COMMON_RELOC_TEMPLATE_DB[];
extern const OF_RELOC_TEMPLATE OF_ARM_RELOC_TEMPLATE_DB[];
extern const OF_RELOC_TYPE_ROW OF_ARM_ELF_RELOC_TYPE_DB[];
extern const OF_RELOC_TYPE_ROW OF_COMMON_ZQCOFF_RELOC_TYPE_DB[];
extern const OF_RELOC_TYPE_ROW OF_ARM_ZQCOFF_RELOC_TYPE_DB[];

}  // namespace OFE
