#pragma once
// What object assembly calls in subsystems of later steps; the interim
// bodies are in pending_object_build.cpp.

// Relocation emission: ties each relocation to the object symbol that its
// symbol has by now.
void RELOC_fixup();
// Build attributes: fills the attribute tables, creating .ARM.attributes.
void BA_gen_build_attributes();
// DWARF: generates the debug sections into the object; negative on failure.
int dw_write();
// COFF debug: patches the symbols of the COFF debug records.
void CSYM_patch();
