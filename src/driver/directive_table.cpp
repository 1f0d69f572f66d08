// The directive tables: one row per spelling, each with its parse handler and
// the handlers of pass 1 and pass 2.
#include "debug/asm_debug.h"
#include "debug/coff_debug.h"
#include "debug/dwarf_directives.h"
#include "directives/cdecls.h"
#include "directives/directives.h"
#include "directives/struct_directives.h"
#include "driver/diag_directives.h"
#include "driver/directive_ids.h"
#include "driver/pipeline.h"
#include "expr/reloc_directive.h"
#include "listing/lst_directives.h"
#include "source/conditional.h"
#include "source/copy.h"
#include "source/macro.h"
#include "source/mlib.h"
#include "source/subsym.h"
#include "target/arm/trg_directives.h"

namespace {
constexpr dir_handler icons8 = DP_icons<8>;
constexpr dir_handler icons16 = DP_icons<16>;
constexpr dir_handler icons32 = DP_icons<32>;
}  // namespace

const dir_oprec gen_direct[] = {
    {".END", DIR_END, DP_no_oprnds, GD_end, GD_end},

    {".COMPILER_OPTS", DIR_COMPILER_OPTS, DP_compiler_opts, donothing, donothing},
    {".COMPILER_OPTS_SOURCE", DIR_COMPILER_OPTS, DP_compiler_opts, donothing, donothing},
    {".TEMPLATE", DIR_TEMPLATE, DP_template, GD_template, GD_template},

    {".EMSG", DIR_EMSG, DP_emsg, donothing, GD_emsg},
    {".MMSG", DIR_MMSG, DP_emsg, donothing, GD_mmsg},
    {".WMSG", DIR_WMSG, DP_emsg, donothing, GD_wmsg},
    {".REMARK", DIR_REMARK, DP_remark, GD_remark, GD_remark},
    {".NOREMARK", DIR_NOREMARK, DP_remark, GD_remark, GD_remark},

    {".COPY", DIR_COPY, DP_filename, GD_copy, GD_copy},
    {".INCLUDE", DIR_INCLUDE, DP_filename, GD_copy, GD_copy},

    {".IF", DIR_IF, DP_cond, CAD_if, CAD_if},
    {".ELSE", DIR_ELSE, DP_no_oprnds, CAD_else, CAD_else},
    {".ELSEIF", DIR_ELSEIF, DP_cond, CAD_else, CAD_else},
    {".ENDIF", DIR_ENDIF, DP_no_oprnds, CAD_endif, CAD_endif},
    {".LOOP", DIR_LOOP, DP_loopcnt, CAD_loop, CAD_loop},
    {".BREAK", DIR_BREAK, DP_break, CAD_break, CAD_break},
    {".ENDLOOP", DIR_ENDLOOP, DP_no_oprnds, CAD_endloop, CAD_endloop},

    {".MACRO", DIR_MACRO, DP_macro, MAC_define, MAC_define},
    {".ENDM", DIR_ENDM, DP_no_oprnds, MAC_endm, MAC_endm},
    {".MEXIT", DIR_MEXIT, DP_no_oprnds, MAC_exit, MAC_exit},

    {".MLIB", DIR_MLIB, DP_filename, MLIB_include, MLIB_include},

    {".VAR", DIR_VAR, DP_var, GD_var, GD_var},
    {".ASG", DIR_ASG, DP_asg, GD_asg, GD_asg},
    {".DEFINE", DIR_DEFINE, DP_asg, GD_asg, GD_asg},
    {".UNASG", DIR_UNASG, DP_unasg, GD_unasg, GD_unasg},
    {".UNDEFINE", DIR_UNDEFINE, DP_unasg, GD_unasg, GD_unasg},
    {".EVAL", DIR_EVAL, DP_eval, GD_eval, GD_eval},

    {".RELOC", DIR_RELOC, DP_reloc, donothing, donothing},

    {".ALIGN", DIR_ALIGN, DP_align, GD_align, GD_align},
    {".BES", DIR_BES, DP_space, GD_space, GD_space},
    {".SPACE", DIR_SPACE, DP_space, GD_space, GD_space},
    {".TEXT", DIR_TEXT, DP_no_oprnds, GD_text, GD_text},
    {".DATA", DIR_DATA, DP_no_oprnds, GD_data, GD_data},
    {".SECT", DIR_SECT, DP_sect, GD_sect, GD_sect},
    {".BSS", DIR_BSS, DP_bss, GD_bss, GD_bss},
    {".USECT", DIR_USECT, DP_usect, GD_usect, GD_usect},
    {".CLINK", DIR_CLINK, DP_opt_sect, GD_link_type, GD_link_type},
    {".RETAIN", DIR_RETAIN, DP_opt_sect, GD_link_type, GD_link_type},
    {".RETAINREFS", DIR_RETAINREFS, DP_opt_sect, GD_retainrefs, GD_retainrefs},
    {".COMDAT", DIR_COMDAT, DP_comdat, GD_comdat, GD_comdat},
    {".BOUND", DIR_BOUND, DP_bound, GD_bound, GD_bound},
    {".COMMON", DIR_COMMON, DP_common, GD_common, GD_common},
    {".NOINIT", DIR_NOINIT, DP_noinit, GD_noinit, GD_noinit},
    {".MAP", DIR_MAP, DP_map, GD_map, GD_map},
    {".CLEARMAP", DIR_CLEARMAP, DP_no_oprnds, GD_clearmap, GD_clearmap},
    {".GROUP", DIR_GROUP, DP_group, GD_group, GD_group},
    {".GMEMBER", DIR_GMEMBER, DP_gmember, GD_gmember, GD_gmember},
    {".ENDGROUP", DIR_ENDGROUP, DP_no_oprnds, GD_endgroup, GD_endgroup},
    {".NEWBLOCK", DIR_NEWBLOCK, DP_no_oprnds, GD_newblock, GD_newblock},

    {".STREAM", DIR_STREAM, icons32, GD1_stream, GD2_stream},
    {".ENCODE", DIR_ENCODE, icons32, GD_encode, GD_encode},
    {".VINSTR", DIR_WORD, icons32, GD_vinstr, GD_vinstr},
    {".FIELD", DIR_FIELD, DP_field, GD_field, GD_field},
    {".BITS", DIR_BITS, DP_field, GD_bits, GD_bits},
    {".STRING", DIR_STRING, icons8, GD1_byte, GD2_byte},
    {".CSTRING", DIR_STRING, icons8, GD_cstring, GD_cstring},
    {".BYTE", DIR_BYTE, icons8, GD1_byte, GD2_byte},
    {".UBYTE", DIR_UBYTE, icons8, GD1_byte, GD2_byte},
    {".CHAR", DIR_BYTE, icons8, GD1_byte, GD2_byte},
    {".UCHAR", DIR_UBYTE, icons8, GD1_byte, GD2_byte},
    {".HALF", DIR_HALF, icons16, GD_half, GD_half},
    {".UHALF", DIR_UHALF, icons16, GD_half, GD_half},
    {".SHORT", DIR_HALF, icons16, GD_half, GD_half},
    {".USHORT", DIR_UHALF, icons16, GD_half, GD_half},
    {".WORD", DIR_WORD, icons32, GD_word, GD_word},
    {".UWORD", DIR_UWORD, icons32, GD_word, GD_word},
    {".INT", DIR_WORD, icons32, GD_word, GD_word},
    {".UINT", DIR_UWORD, icons32, GD_word, GD_word},
    {".LONG", DIR_LONG, icons32, GD_long, GD_long},
    {".ULONG", DIR_ULONG, icons32, GD_long, GD_long},
    {".FLOAT", DIR_FLOAT, DP_float, GD_float, GD_float},
    {".DOUBLE", DIR_DOUBLE, DP_float, GD_double, GD_double},
    {".LDOUBLE", DIR_LDOUBLE, DP_float, GD_ldouble, GD_ldouble},

    {".TAG", DIR_TAG, DP_tag, GD_tag, GD_tag},
    {".STRUCT", DIR_STRUCT, DP_struct, GD_struct, GD_struct},
    {".CSTRUCT", DIR_STRUCT, DP_struct, GD_struct, GD_struct},
    {".ACCESS", DIR_ACCESS, DP_no_oprnds, GD_access, GD_access},
    {".ENDSTRUCT", DIR_ENDSTRUCT, DP_no_oprnds, GD_endstruct, GD_endstruct},
    {".UNION", DIR_UNION, DP_union, GD_union, GD_union},
    {".CUNION", DIR_UNION, DP_union, GD_union, GD_union},
    {".ENDUNION", DIR_ENDUNION, DP_no_oprnds, GD_endunion, GD_endunion},
    {".ENUM", DIR_ENUM, DP_no_oprnds, GD_enum, GD_enum},
    {".EMEMBER", DIR_EMEMBER, DP_no_oprnds, GD_endenum, GD_endenum},
    {".ENDENUM", DIR_ENDENUM, DP_no_oprnds, GD_endenum, GD_endenum},

    {".GLOBAL", DIR_GLOBAL, DP_global, GD1_global, GD2_global},
    {".DEF", DIR_DEF, DP_global, GD1_global, GD2_global},
    {".REF", DIR_REF, DP_global, GD1_global, GD2_global},
    {".SYSTEM", DIR_GLOBAL, DP_global, GD1_global, GD2_global},
    {".EXPORT", DIR_GLOBAL, DP_global, GD1_global, GD2_global},
    {".IMPORT", DIR_GLOBAL, DP_global, GD1_global, GD2_global},
    {".WEAK", DIR_GLOBAL, DP_global, GD1_global, GD2_global},
    {".TLS", DIR_GLOBAL, DP_global, GD1_global, GD2_global},
    {".PROTECTED", DIR_GLOBAL, DP_global, GD1_global, GD2_global},
    {".HIDDEN", DIR_GLOBAL, DP_global, GD1_global, GD2_global},
    {".EQU", DIR_EQU, DP_equ, GD_equ, GD_equ},
    {".SET", DIR_SET, DP_equ, GD_equ, GD_equ},
    {".SYMALIAS", DIR_SYMALIAS, DP_symalias, GD_symalias, GD_symalias},
    {".LABEL", DIR_LABEL, DP_label, GD1_label, GD2_label},
    {".ELFSYM", DIR_ELFSYM, DP_elfsym, GD_elfsym, GD_elfsym},
    {".SYMMETAINFO", DIR_SYMMETAINFO, DP_symmetainfo, GD_symmetainfo, GD_symmetainfo},
    {".SYM_META_INFO", DIR_SYMMETAINFO, DP_symmetainfo, GD_symmetainfo, GD_symmetainfo},
    {".SETSECT", DIR_SETSECT, DP_setsect, GD_setsect, GD_setsect},
    {".SETSYM", DIR_SETSYM, DP_setsym, GD_setsym, GD_setsym},
    {".SYMDEPEND", DIR_SYMDEPEND, DP_symdepend, GD_symdepend, GD_symdepend},
    {".SYMVER", DIR_SYMVER, DP_symver, GD_symver, GD_symver},

    {".CDECLS", DIR_CDECLS, DP_cdecls, GD_cdecls, GD_cdecls},

    {".BATTR", DIR_BATTR, DP_battr, donothing, donothing},

    {".TITLE", DIR_TITLE, DP_title, donothing, GD_title},
    {".OPTION", DIR_OPTION, DP_option, donothing, GD_option},
    {".TAB", DIR_TAB, DP_lstparm, donothing, GD_lstparms},
    {".WIDTH", DIR_WIDTH, DP_lstparm, donothing, GD_lstparms},
    {".LENGTH", DIR_LENGTH, DP_lstparm, donothing, GD_lstparms},
    {".PAGE", DIR_PAGE, DP_no_oprnds, donothing, GD_lstflags},
    {".LIST", DIR_LIST, DP_no_oprnds, donothing, GD_lstflags},
    {".NOLIST", DIR_NOLIST, DP_no_oprnds, donothing, GD_lstflags},
    {".DRLIST", DIR_DRLIST, DP_no_oprnds, donothing, GD_lstflags},
    {".DRNOLIST", DIR_DRNOLIST, DP_no_oprnds, donothing, GD_lstflags},
    {".FCLIST", DIR_FCLIST, DP_no_oprnds, donothing, GD_lstflags},
    {".FCNOLIST", DIR_FCNOLIST, DP_no_oprnds, donothing, GD_lstflags},
    {".MLIST", DIR_MLIST, DP_no_oprnds, donothing, GD_lstflags},
    {".MNOLIST", DIR_MNOLIST, DP_no_oprnds, donothing, GD_lstflags},
    {".SSLIST", DIR_SSLIST, DP_no_oprnds, donothing, GD_lstflags},
    {".SSNOLIST", DIR_SSNOLIST, DP_no_oprnds, donothing, GD_lstflags},

    {".DWTAG", DIR_DWTAG, DP_dwtag, donothing, donothing},
    {".DWATTR", DIR_DWATTR, DP_dwattr, donothing, donothing},
    {".DWMTYPE", DIR_DWMTYPE, DP_dwmtype, donothing, donothing},
    {".DWENDTAG", DIR_DWENDTAG, DP_dwendtag, donothing, donothing},
    {".DWLOCLIST", DIR_DWLOCLIST, DP_dwloclist, donothing, donothing},
    {".DWLOC", DIR_DWLOC, DP_dwloc, donothing, donothing},
    {".DWENDLOCLIST", DIR_DWENDLOCLIST, DP_dwendloclist, donothing, donothing},
    {".DWRNGLIST", DIR_DWRNGLIST, DP_dwrnglist, donothing, donothing},
    {".DWRNG", DIR_DWRNG, DP_dwrng, donothing, donothing},
    {".DWENDRNGLIST", DIR_DWENDRNGLIST, DP_dwendrnglist, donothing, donothing},
    {".DWCIE", DIR_DWCIE, DP_dwcie, donothing, donothing},
    {".DWFDE", DIR_DWFDE, DP_dwfde, donothing, donothing},
    {".DWCFI", DIR_DWCFI, DP_dwcfi, donothing, donothing},
    {".DWENDENTRY", DIR_DWENDENTRY, DP_dwendentry, donothing, donothing},
    {".DWPSN", DIR_DWPSN, DP_dwpsn, donothing, donothing},
    {".DWMACINFO", DIR_DWMACINFO, DP_dwmacinfo, donothing, donothing},

    {".ASMFUNC", DIR_ASMFUNC, DP_asmfunc, donothing, donothing},
    {".ENDASMFUNC", DIR_ENDASMFUNC, DP_endasmfunc, donothing, donothing},

    {".FILE", DIR_FILE, DP_file, DBD_file, DBD_file},
    {".FUNC", DIR_FUNC, DP_block, DBD1_func, DBD2_func},
    {".ENDFUNC", DIR_ENDFUNC, DP_endfunc, DBD1_func, DBD2_func},
    {".BLOCK", DIR_BLOCK, DP_block, DBD1_func, DBD2_func},
    {".ENDBLOCK", DIR_ENDBLOCK, DP_block, DBD1_func, DBD2_func},
    {".LINE", DIR_LINE, DP_line, DBD_line, DBD_line},
    {".SYM", DIR_SYM, DP_sym, donothing, DBD_sym},
    {".STAG", DIR_STAG, DP_dbgtag, DBD_tag, DBD_tag},
    {".ETAG", DIR_ETAG, DP_dbgtag, DBD_tag, DBD_tag},
    {".UTAG", DIR_UTAG, DP_dbgtag, DBD_tag, DBD_tag},
    {".MEMBER", DIR_MEMBER, DP_sym, donothing, DBD_sym},
    {".EOS", DIR_EOS, DP_no_oprnds, DBD_eos, DBD_eos},

    {nullptr, 0, nullptr, nullptr, nullptr},
};

const dir_oprec trg_direct[] = {
    {".STATE16", DIR_STATE16, DP_no_oprnds, TD_thumb_state, TD_thumb_state},
    {".STATE32", DIR_STATE32, DP_no_oprnds, TD_arm_state, TD_arm_state},
    {".ARMFUNC", DIR_ARMFUNC, DP_global, TD_arm_func, TD_arm_func},
    {".THUMBFUNC", DIR_THUMBFUNC, DP_global, TD_thumb_func, TD_thumb_func},
    {".THUMB", DIR_THUMB, DP_no_oprnds, TD_t_ual_state, TD_t_ual_state},
    {".ARM", DIR_ARM, DP_no_oprnds, TD_arm_state, TD_arm_state},
    {nullptr, 0, nullptr, nullptr, nullptr},
};

static_assert(sizeof(gen_direct) / sizeof(gen_direct[0]) == GEN_DIRECT_ROWS + 1);
static_assert(sizeof(trg_direct) / sizeof(trg_direct[0]) == TRG_DIRECT_ROWS + 1);
