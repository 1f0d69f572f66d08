// The option tables: one row per option, in option_id order.
#include "driver/options_impl.h"

namespace {
constexpr uint32_t cls(class_id c) { return 1u << c; }

// Accepted values of the list options.  The first character of a text marks
// a deprecated value with '*'.
constexpr option_item items_abi[] = {{" eabi", 1}, {" zqabi", 2}, {" zq_arm9_abi", 3}, {nullptr, 0}};
constexpr option_item items_vmrs[] = {{" on", 3}, {" off", 4}, {nullptr, 0}};
constexpr option_item items_addrunit[] = {{" byte", 1}, {" word", 2}, {"*halfword", 3}, {nullptr, 0}};
constexpr option_item items_codestate[] = {{" 16", 16}, {" 32", 32}, {nullptr, 0}};
constexpr option_item items_onoff[] = {{" on", 1}, {" off", 2}, {nullptr, 0}};
constexpr option_item items_eabicompat[] = {{" legacy", 10}, {" none", 11}, {nullptr, 0}};
constexpr option_item items_embconst[] = {{" on", 11}, {" off", 12}, {nullptr, 0}};
constexpr option_item items_endian[] = {{" big", 1}, {" little", 2}, {nullptr, 0}};
constexpr option_item items_float[] = {{" fpv4spd16", 16}, {" vfpv2", 17}, {" vfpv3", 18},
                                       {" vfpv3d16", 19},  {" none", 21},  {nullptr, 0}};
constexpr option_item items_hll[] = {{" asm", 1}, {" c", 2}, {" cpp", 3}, {nullptr, 0}};
constexpr option_item items_lfu[] = {{" preserve", 1}, {" update", 2}, {"*keep", 1}, {nullptr, 0}};
constexpr option_item items_memcode[] = {{" near", 1}, {" far", 2}, {nullptr, 0}};
constexpr option_item items_memconst[] = {{" data", 1}, {" far", 2}, {" far_aggregates", 3}, {nullptr, 0}};
constexpr option_item items_memdata[] = {{" near", 1}, {" far", 2}, {" far_aggregates", 3}, {nullptr, 0}};
constexpr option_item items_objfmt[] = {{" elf", 2}, {" coff", 1}, {nullptr, 0}};
constexpr option_item items_platform[] = {{" generic", 1}, {"*legacy_board", 2}, {nullptr, 0}};
constexpr option_item items_runtime[] = {{" rts", 1}, {nullptr, 0}};
constexpr option_item items_silicon[] = {{" 4", 1},   {" 5e", 2},  {" 6", 3},   {" 6M0", 4},  {" 7A8", 5}, {" 7M3", 6},
                                         {" 7M4", 7}, {" 7R4", 8}, {" 7R5", 9}, {" 8M33", 10}, {nullptr, 0}};
constexpr option_item items_dwver[] = {{" 2", 2}, {" 3", 3}, {" 4", 4}, {nullptr, 0}};
constexpr option_item items_unaligned[] = {{" on", 62}, {" off", 61}, {nullptr, 0}};
constexpr option_item items_visibility[] = {{" default", 0}, {" protected", 3}, {" hidden", 2}, {nullptr, 0}};

// Spellings as typed, canonical first.
constexpr const char *sp_abi[] = {"--abi", nullptr};
constexpr const char *sp_absolute_listing[] = {"--absolute_listing", "-a", nullptr};
constexpr const char *sp_arm_vmrs_si_workaround[] = {"--arm_vmrs_si_workaround", nullptr};
constexpr const char *sp_asm_dependency[] = {"--asm_dependency", "--depend", nullptr};
constexpr const char *sp_asm_includes[] = {"--asm_includes", "--includes", nullptr};
constexpr const char *sp_asm_listing[] = {"--asm_listing", "-l", nullptr};
constexpr const char *sp_assembly_src_debug[] = {"--assembly_src_debug", nullptr};
constexpr const char *sp_buffer_diagnostics[] = {"--buffer_diagnostics", "-pdb", nullptr};
constexpr const char *sp_cdebug_asm_data[] = {"--cdebug_asm_data", nullptr};
constexpr const char *sp_cmd_file[] = {"--cmd_file", "-@", nullptr};
constexpr const char *sp_cmse[] = {"--cmse", nullptr};
constexpr const char *sp_code_address_listing_unit[] = {"--code_address_listing_unit", nullptr};
constexpr const char *sp_code_state[] = {"--code_state", nullptr};
constexpr const char *sp_coff_asd[] = {"--coff_asd", nullptr};
constexpr const char *sp_copy_file[] = {"--copy_file", "-hc", nullptr};
constexpr const char *sp_cross_reference[] = {"--cross_reference", "-x", nullptr};
constexpr const char *sp_debug[] = {"--debug:", nullptr};
constexpr const char *sp_debug_d[] = {nullptr};
constexpr const char *sp_debug_o[] = {nullptr};
constexpr const char *sp_define[] = {"--define", "--asm_define", "-d", nullptr};
constexpr const char *sp_diag_wrap[] = {"--diag_wrap", nullptr};
constexpr const char *sp_disable[] = {"--disable:", nullptr};
constexpr const char *sp_disable_branch_patching[] = {"--disable_branch_patching", "-j", nullptr};
constexpr const char *sp_disable_dual_state[] = {"--disable_dual_state", nullptr};
constexpr const char *sp_du[] = {nullptr};
constexpr const char *sp_eabi_compat[] = {"--eabi_compat", nullptr};
constexpr const char *sp_elf[] = {"--elf", nullptr};
constexpr const char *sp_embedded_constants[] = {"--embedded_constants", nullptr};
constexpr const char *sp_emit_warnings_as_errors[] = {"--emit_warnings_as_errors", "-pdew", nullptr};
constexpr const char *sp_endian[] = {"--endian", nullptr};
constexpr const char *sp_error_summary[] = {"--error_summary", "--summary", nullptr};
constexpr const char *sp_ex[] = {nullptr};
constexpr const char *sp_float_support[] = {"--float_support", nullptr};
constexpr const char *sp_hll_source[] = {"--hll_source", nullptr};
constexpr const char *sp_import_undef[] = {"--import_undef", nullptr};
constexpr const char *sp_include_file[] = {"--include_file", "-hi", nullptr};
constexpr const char *sp_include_path[] = {"--include_path", "-i", nullptr};
constexpr const char *sp_issue_remarks[] = {"--issue_remarks", nullptr};
constexpr const char *sp_lfu_default[] = {"--lfu_default", nullptr};
constexpr const char *sp_lfu_syms_file[] = {"--lfu_syms_file", nullptr};
constexpr const char *sp_little_endian[] = {"--little_endian", "-me", nullptr};
constexpr const char *sp_macro_file[] = {"--macro_file", "-t", nullptr};
constexpr const char *sp_option_42[] = {nullptr};
constexpr const char *sp_max_branch_chain[] = {"--max_branch_chain", nullptr};
constexpr const char *sp_mem_model_code[] = {"--mem_model:code", nullptr};
constexpr const char *sp_mem_model_const[] = {"--mem_model:const", nullptr};
constexpr const char *sp_mem_model_data[] = {"--mem_model:data", nullptr};
constexpr const char *sp_neon[] = {"--neon", nullptr};
constexpr const char *sp_no_warnings[] = {"--no_warnings", nullptr};
constexpr const char *sp_object_format[] = {"--object_format", nullptr};
constexpr const char *sp_old_style[] = {"--old_style", nullptr};
constexpr const char *sp_parser_opts[] = {"--parser_opts", nullptr};
constexpr const char *sp_pbc_output[] = {"--pbc_cs", "--pbc_output", nullptr};
constexpr const char *sp_platform[] = {"--platform", nullptr};
constexpr const char *sp_preprocess[] = {"--preprocess", nullptr};
constexpr const char *sp_profile[] = {"--profile", nullptr};
constexpr const char *sp_quiet[] = {"--quiet", "-q", nullptr};
constexpr const char *sp_runtime[] = {"--runtime", nullptr};
constexpr const char *sp_section_sizes[] = {"--section_sizes", nullptr};
constexpr const char *sp_set_screen_width[] = {"--set_screen_width", "--w", nullptr};
constexpr const char *sp_silicon_version[] = {"--silicon_version", "-v", nullptr};
constexpr const char *sp_sta[] = {nullptr};
constexpr const char *sp_vexel_cache_si_workaround[] = {"--vexel_cache_si_workaround", nullptr};
constexpr const char *sp_suppress_asm_extension[] = {"--suppress_asm_extension", "-f", nullptr};
constexpr const char *sp_suppress_remark[] = {"--suppress_remark", "-r", nullptr};
constexpr const char *sp_symdebug_coff[] = {"--symdebug:coff", nullptr};
constexpr const char *sp_symdebug_dwarf[] = {"--symdebug:dwarf", "-g", nullptr};
constexpr const char *sp_symdebug_dwarf_subsections[] = {"--symdebug:dwarf_subsections", nullptr};
constexpr const char *sp_symdebug_dwarf_version[] = {"--symdebug:dwarf_version", nullptr};
constexpr const char *sp_symdebug_none[] = {"--symdebug:none", "-n", nullptr};
constexpr const char *sp_symdebug_profile_coff[] = {"--symdebug:profile_coff", nullptr};
constexpr const char *sp_symdebug_skeletal[] = {"--symdebug:skeletal", nullptr};
constexpr const char *sp_syms_ignore_case[] = {"--syms_ignore_case", "-c", nullptr};
constexpr const char *sp_thumb_state[] = {"--thumb_state", "-mt", nullptr};
constexpr const char *sp_zq_manual_relocs[] = {"--zq:manual_relocs", nullptr};
constexpr const char *sp_zq_lib[] = {"--zq_lib", nullptr};
constexpr const char *sp_toolversion[] = {"--toolversion", nullptr};
constexpr const char *sp_ual[] = {"--ual", nullptr};
constexpr const char *sp_unaligned_access[] = {"--unaligned_access", nullptr};
constexpr const char *sp_undefine[] = {"--undefine", "--asm_undefine", "-u", nullptr};
constexpr const char *sp_ve[] = {nullptr};
constexpr const char *sp_option_81[] = {nullptr};
constexpr const char *sp_visibility[] = {"--visibility", nullptr};

}  // namespace

const option_definition option_obj::option_definitions[OPT_COUNT] = {
    {"abi", sp_abi, "abi", "application binary interface", cls(OC_TARGET) | cls(OC_OBJECT), false, items_abi},
    {"absolute_listing", sp_absolute_listing, nullptr, "absolute listing, no object", cls(OC_LISTING), false, nullptr},
    {"arm_vmrs_si_workaround", sp_arm_vmrs_si_workaround, "on|off", "VMRS silicon workaround", cls(OC_TARGET), false, items_vmrs},
    {"asm_dependency", sp_asm_dependency, "file", "write a dependency file", cls(OC_FILES), false, nullptr},
    {"asm_includes", sp_asm_includes, nullptr, "list included files as dependencies", cls(OC_FILES), false, nullptr},
    {"asm_listing", sp_asm_listing, nullptr, "write a listing file", cls(OC_LISTING), false, nullptr},
    {"assembly_src_debug", sp_assembly_src_debug, nullptr, "debug information for assembly source", cls(OC_DEBUG), false, nullptr},
    {"buffer_diagnostics", sp_buffer_diagnostics, nullptr, "line-buffer the message stream", cls(OC_DIAG), false, nullptr},
    {"cdebug_asm_data", sp_cdebug_asm_data, nullptr, "COFF debug records for data", cls(OC_DEBUG), false, nullptr},
    {"cmd_file", sp_cmd_file, "file", "read options from a file", cls(OC_FILES), true, nullptr},
    {"cmse", sp_cmse, nullptr, "security extension", cls(OC_TARGET), false, nullptr},
    {"code_address_listing_unit", sp_code_address_listing_unit, "unit", "unit of code addresses in the listing", cls(OC_LISTING), false, items_addrunit},
    {"code_state", sp_code_state, "16,32", "initial code state", cls(OC_TARGET), false, items_codestate},
    {"coff_asd", sp_coff_asd, nullptr, "COFF assembly source debug", cls(OC_DEBUG), false, nullptr},
    {"copy_file", sp_copy_file, "file", "copy a file before the source", cls(OC_FILES), false, nullptr},
    {"cross_reference", sp_cross_reference, nullptr, "cross-reference listing", cls(OC_LISTING), false, nullptr},
    {"debug", sp_debug, "list", "tracing switches", cls(OC_MISC), false, nullptr},
    {"debug_d", sp_debug_d, nullptr, "", cls(OC_MISC), false, nullptr},
    {"debug_o", sp_debug_o, nullptr, "", cls(OC_MISC), false, nullptr},
    {"define", sp_define, "name=value", "predefine a symbol", cls(OC_LANGUAGE), false, nullptr},
    {"diag_wrap", sp_diag_wrap, "on|off", "wrap message lines", cls(OC_DIAG), false, items_onoff},
    {"disable", sp_disable, "list", "disable features", cls(OC_MISC), false, nullptr},
    {"disable_branch_patching", sp_disable_branch_patching, nullptr, "no branch patching", cls(OC_TARGET), false, nullptr},
    {"disable_dual_state", sp_disable_dual_state, nullptr, "no dual-state support", cls(OC_TARGET), false, nullptr},
    {"du", sp_du, nullptr, "", cls(OC_MISC), false, nullptr},
    {"eabi_compat", sp_eabi_compat, "mode", "compatibility objects", cls(OC_OBJECT), false, items_eabicompat},
    {"elf", sp_elf, nullptr, "ELF object", cls(OC_OBJECT), false, nullptr},
    {"embedded_constants", sp_embedded_constants, "on|off", "constants in code sections", cls(OC_TARGET), false, items_embconst},
    {"emit_warnings_as_errors", sp_emit_warnings_as_errors, nullptr, "treat warnings as errors", cls(OC_DIAG), false, nullptr},
    {"endian", sp_endian, "big|little", "byte order", cls(OC_TARGET), false, items_endian},
    {"error_summary", sp_error_summary, nullptr, "print the error summary", cls(OC_DIAG), false, nullptr},
    {"ex", sp_ex, nullptr, "", cls(OC_MISC), false, nullptr},
    {"float_support", sp_float_support, "fpu", "floating-point unit", cls(OC_TARGET), false, items_float},
    {"hll_source", sp_hll_source, "lang", "language the input came from", cls(OC_LANGUAGE), false, items_hll},
    {"import_undef", sp_import_undef, "on|off", "import undefined symbols", cls(OC_LANGUAGE), false, items_onoff},
    {"include_file", sp_include_file, "file", "include a file before the source", cls(OC_FILES), false, nullptr},
    {"include_path", sp_include_path, "path", "add an include directory", cls(OC_FILES), false, nullptr},
    {"issue_remarks", sp_issue_remarks, nullptr, "issue remarks", cls(OC_DIAG), false, nullptr},
    {"lfu_default", sp_lfu_default, "mode", "live firmware update default", cls(OC_OBJECT), false, items_lfu},
    {"lfu_syms_file", sp_lfu_syms_file, "path", "live firmware update symbols", cls(OC_FILES), false, nullptr},
    {"little_endian", sp_little_endian, nullptr, "little-endian byte order", cls(OC_TARGET), false, nullptr},
    {"macro_file", sp_macro_file, "file", "name of the macro work file", cls(OC_FILES), false, nullptr},
    {"option_42", sp_option_42, nullptr, "", cls(OC_MISC), false, nullptr},
    {"max_branch_chain", sp_max_branch_chain, "limit", "longest branch chain", cls(OC_TARGET), false, nullptr},
    {"mem_model_code", sp_mem_model_code, "model", "code memory model", cls(OC_TARGET), false, items_memcode},
    {"mem_model_const", sp_mem_model_const, "model", "constant memory model", cls(OC_TARGET), false, items_memconst},
    {"mem_model_data", sp_mem_model_data, "model", "data memory model", cls(OC_TARGET), false, items_memdata},
    {"neon", sp_neon, nullptr, "NEON instructions", cls(OC_TARGET), false, nullptr},
    {"no_warnings", sp_no_warnings, nullptr, "no warnings", cls(OC_DIAG), false, nullptr},
    {"object_format", sp_object_format, "format", "object file format", cls(OC_OBJECT), false, items_objfmt},
    {"old_style", sp_old_style, nullptr, "old style", cls(OC_LANGUAGE), false, nullptr},
    {"parser_opts", sp_parser_opts, "opt_count", "words for the header converter", cls(OC_LANGUAGE), false, nullptr},
    {"pbc_output", sp_pbc_output, "file", "write a PBC file instead", cls(OC_OBJECT), false, nullptr},
    {"platform", sp_platform, "name", "target platform", cls(OC_TARGET), false, items_platform},
    {"preprocess", sp_preprocess, nullptr, "expanded source listing", cls(OC_LISTING), false, nullptr},
    {"profile", sp_profile, nullptr, "write a profile file", cls(OC_FILES), false, nullptr},
    {"quiet", sp_quiet, nullptr, "quiet", cls(OC_DIAG), false, nullptr},
    {"runtime", sp_runtime, "name", "run-time support", cls(OC_OBJECT), false, items_runtime},
    {"section_sizes", sp_section_sizes, "on|off", "print section sizes", cls(OC_OBJECT), false, items_onoff},
    {"set_screen_width", sp_set_screen_width, "chars", "message line width", cls(OC_DIAG), false, nullptr},
    {"silicon_version", sp_silicon_version, "id", "architecture", cls(OC_TARGET), false, items_silicon},
    {"sta", sp_sta, nullptr, "", cls(OC_MISC), false, nullptr},
    {"vexel_cache_si_workaround", sp_vexel_cache_si_workaround, nullptr, "cache silicon workaround", cls(OC_TARGET), false, nullptr},
    {"suppress_asm_extension", sp_suppress_asm_extension, nullptr, "no default extensions", cls(OC_FILES), false, nullptr},
    {"suppress_remark", sp_suppress_remark, "id", "suppress one or all remarks", cls(OC_DIAG), false, nullptr},
    {"symdebug_coff", sp_symdebug_coff, nullptr, "COFF debug", cls(OC_DEBUG), false, nullptr},
    {"symdebug_dwarf", sp_symdebug_dwarf, nullptr, "DWARF debug", cls(OC_DEBUG), false, nullptr},
    {"symdebug_dwarf_subsections", sp_symdebug_dwarf_subsections, "on|off", "DWARF subsections", cls(OC_DEBUG), false, items_onoff},
    {"symdebug_dwarf_version", sp_symdebug_dwarf_version, "version", "DWARF version", cls(OC_DEBUG), false, items_dwver},
    {"symdebug_none", sp_symdebug_none, nullptr, "no debug", cls(OC_DEBUG), false, nullptr},
    {"symdebug_profile_coff", sp_symdebug_profile_coff, nullptr, "COFF profiling debug", cls(OC_DEBUG), false, nullptr},
    {"symdebug_skeletal", sp_symdebug_skeletal, nullptr, "skeletal debug", cls(OC_DEBUG), false, nullptr},
    {"syms_ignore_case", sp_syms_ignore_case, nullptr, "case-insensitive symbols", cls(OC_LANGUAGE), false, nullptr},
    {"thumb_state", sp_thumb_state, nullptr, "start in Thumb state", cls(OC_TARGET), false, nullptr},
    {"zq_manual_relocs", sp_zq_manual_relocs, nullptr, "manual relocations", cls(OC_OBJECT), false, nullptr},
    {"zq_lib", sp_zq_lib, nullptr, "library build", cls(OC_OBJECT), false, nullptr},
    {"toolversion", sp_toolversion, nullptr, "print the version and stop", cls(OC_MISC), false, nullptr},
    {"ual", sp_ual, nullptr, "unified syntax", cls(OC_LANGUAGE), false, nullptr},
    {"unaligned_access", sp_unaligned_access, "on|off", "unaligned access", cls(OC_TARGET), false, items_unaligned},
    {"undefine", sp_undefine, "name", "remove a predefined symbol", cls(OC_LANGUAGE), false, nullptr},
    {"ve", sp_ve, nullptr, "", cls(OC_MISC), false, nullptr},
    {"option_81", sp_option_81, nullptr, "", cls(OC_MISC), false, nullptr},
    {"visibility", sp_visibility, "kind", "default symbol visibility", cls(OC_OBJECT), false, items_visibility},
};

const uint32_t option_obj::parm_type[OPT_COUNT] = {
    PT_ONEOF, PT_NONE, PT_ONEOF, PT_STRING, PT_NONE, PT_NONE,
    PT_NONE, PT_NONE, PT_NONE, PT_STRING, PT_NONE, PT_ONEOF,
    PT_ONEOF, PT_NONE, PT_STRING_LIST, PT_NONE, PT_STRING_LIST, PT_NONE,
    PT_NONE, PT_STRING_LIST, PT_ONEOF, PT_STRING_LIST, PT_NONE, PT_NONE,
    PT_NONE, PT_ONEOF, PT_NONE, PT_ONEOF, PT_NONE, PT_ONEOF,
    PT_NONE, PT_NONE, PT_ONEOF, PT_ONEOF, PT_ONEOF, PT_STRING_LIST,
    PT_STRING_LIST, PT_NONE, PT_ONEOF, PT_STRING, PT_NONE, PT_STRING,
    PT_NONE, PT_NUMBER, PT_ONEOF, PT_ONEOF, PT_ONEOF, PT_NONE,
    PT_NONE, PT_ONEOF, PT_NONE, PT_NUMBER, PT_STRING, PT_ONEOF,
    PT_NONE, PT_NONE, PT_NONE, PT_ONEOF, PT_ONEOF, PT_NUMBER,
    PT_ONEOF, PT_NONE, PT_NONE, PT_NONE, PT_STRING_LIST, PT_NONE,
    PT_NONE, PT_ONEOF, PT_ONEOF, PT_NONE, PT_NONE, PT_NONE,
    PT_NONE, PT_NONE, PT_NONE, PT_NONE, PT_NONE, PT_NONE,
    PT_ONEOF, PT_STRING_LIST, PT_NONE, PT_NONE, PT_ONEOF,
};

const option_parse_row option_parse_rows[OPT_COUNT] = {
    {POT_ONEOF, {}},  // abi
    {POT_NUMBER, {}},  // absolute_listing
    {POT_ONEOF, {}},  // arm_vmrs_si_workaround
    {POT_OPT_STRING, {}},  // asm_dependency
    {POT_NUMBER, {}},  // asm_includes
    {POT_NUMBER, {}},  // asm_listing
    {POT_NUMBER, {}},  // assembly_src_debug
    {POT_NUMBER, {}},  // buffer_diagnostics
    {POT_NUMBER, {}},  // cdebug_asm_data
    {POT_STRING, {}},  // cmd_file
    {POT_NUMBER, {}},  // cmse
    {POT_ONEOF, {}},  // code_address_listing_unit
    {POT_ONEOF, {}},  // code_state
    {POT_NUMBER, {}},  // coff_asd
    {POT_STRING, {}},  // copy_file
    {POT_NUMBER, {}},  // cross_reference
    {POT_LIST_STRING, {}},  // debug
    {POT_NUMBER, {}},  // debug_d
    {POT_NUMBER, {}},  // debug_o
    {POT_STRING, {}},  // define
    {POT_OPT_ONEOF, {}},  // diag_wrap
    {POT_LIST_STRING, {}},  // disable
    {POT_NUMBER, {}},  // disable_branch_patching
    {POT_NUMBER, {}},  // disable_dual_state
    {POT_NUMBER, {}},  // du
    {POT_ONEOF, {}},  // eabi_compat
    {POT_NUMBER, {}},  // elf
    {POT_ONEOF, {}},  // embedded_constants
    {POT_NUMBER, {}},  // emit_warnings_as_errors
    {POT_ONEOF, {}},  // endian
    {POT_NUMBER, {}},  // error_summary
    {POT_NUMBER, {}},  // ex
    {POT_ONEOF, {}},  // float_support
    {POT_ONEOF, {}},  // hll_source
    {POT_ONEOF, {}},  // import_undef
    {POT_STRING, {}},  // include_file
    {POT_STRING, {}},  // include_path
    {POT_NUMBER, {}},  // issue_remarks
    {POT_ONEOF, {}},  // lfu_default
    {POT_STRING, {}},  // lfu_syms_file
    {POT_NUMBER, {}},  // little_endian
    {POT_STRING, {}},  // macro_file
    {POT_NUMBER, {}},  // option_42
    {POT_NUMBER, {LONG_MIN, LONG_MAX}},  // max_branch_chain
    {POT_ONEOF, {}},  // mem_model_code
    {POT_ONEOF, {}},  // mem_model_const
    {POT_ONEOF, {}},  // mem_model_data
    {POT_NUMBER, {}},  // neon
    {POT_NUMBER, {}},  // no_warnings
    {POT_ONEOF, {}},  // object_format
    {POT_NUMBER, {}},  // old_style
    {POT_NUMBER, {}},  // parser_opts
    {POT_STRING, {}},  // pbc_output
    {POT_ONEOF, {}},  // platform
    {POT_NUMBER, {}},  // preprocess
    {POT_NUMBER, {}},  // profile
    {POT_NUMBER, {}},  // quiet
    {POT_ONEOF, {}},  // runtime
    {POT_ONEOF, {}},  // section_sizes
    {POT_NUMBER, {}},  // set_screen_width
    {POT_ONEOF, {}},  // silicon_version
    {POT_NUMBER, {}},  // sta
    {POT_NUMBER, {}},  // vexel_cache_si_workaround
    {POT_NUMBER, {}},  // suppress_asm_extension
    {POT_OPT_STRING, {}},  // suppress_remark
    {POT_NUMBER, {}},  // symdebug_coff
    {POT_NUMBER, {}},  // symdebug_dwarf
    {POT_ONEOF, {}},  // symdebug_dwarf_subsections
    {POT_ONEOF, {}},  // symdebug_dwarf_version
    {POT_NUMBER, {}},  // symdebug_none
    {POT_NUMBER, {}},  // symdebug_profile_coff
    {POT_NUMBER, {}},  // symdebug_skeletal
    {POT_NUMBER, {}},  // syms_ignore_case
    {POT_NUMBER, {}},  // thumb_state
    {POT_NUMBER, {}},  // zq_manual_relocs
    {POT_NUMBER, {}},  // zq_lib
    {POT_NUMBER, {}},  // toolversion
    {POT_NUMBER, {}},  // ual
    {POT_ONEOF, {}},  // unaligned_access
    {POT_STRING, {}},  // undefine
    {POT_NUMBER, {}},  // ve
    {POT_NUMBER, {}},  // option_81
    {POT_ONEOF, {}},  // visibility
};

const char *const help_spellings[] = {"-?", "-h", "--help", "--usage", nullptr};

const char *const option_obj::class_descriptions[OC_COUNT] = {
    "files", "listing", "debug information", "target", "messages", "source language", "object file", "other",
};

namespace {
// Kind 3: setting the COFF-only debug options while --elf is on is an error.
// Kind 2: the four debug models override each other.
constexpr auto make_conflicts()
{
    struct matrix { uint8_t m[OPT_COUNT][OPT_COUNT]{}; } c;
    for (option_id id : {OPT_CDEBUG_ASM_DATA, OPT_SYMDEBUG_COFF, OPT_SYMDEBUG_PROFILE_COFF}) c.m[id][OPT_ELF] = 3;
    constexpr option_id models[] = {OPT_SYMDEBUG_COFF, OPT_SYMDEBUG_DWARF, OPT_SYMDEBUG_NONE,
                                    OPT_SYMDEBUG_PROFILE_COFF};
    for (option_id a : models)
        for (option_id b : models)
            if (a != b) c.m[a][b] = 2;
    return c;
}
constexpr auto conflict_matrix = make_conflicts();
}  // namespace

const uint8_t (&option_obj::conflicts)[OPT_COUNT][OPT_COUNT] = conflict_matrix.m;
