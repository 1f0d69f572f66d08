#pragma once
// What the section manager and the data directives call in subsystems of
// later steps; the interim bodies are in pending_sections.cpp.
#include <cstdint>

struct instruct;
struct linebuf;
struct section_record;
namespace DWE { class DW_DIE; }

// Jump expansion: an alignment gap behind a jump, for recomputation.
void VLI_addalign(int power, int32_t pad);

// Assembly-source debug (DWARF): the function or range now open, or null.
extern DWE::DW_DIE *DBD_curr_asmfunc;
void dw_asm_psn(linebuf *line);
void dw_create_asm_func(instruct *statement, int open, unsigned short tag);

// COFF debug: the $ASM$ function of the current section and its line
// entries for one instruction; the patch of those symbols when the section ends.
void CSYM_asm_line(section_record *section, instruct *ir);
void CSYM_patch_asmfunc_syms();
// COFF debug record of a data directive (--cdebug_asm_data).
void debug_sym(instruct *statement, int type, int storage, int size, int tag, const char *name);
